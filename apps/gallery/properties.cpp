#include "apps/gallery/properties.h"

#include <algorithm>
#include <charconv>
#include <type_traits>
#include <utility>

#include "apps/gallery/icons.h"
#include "tvok/host/Services.h"
#include "tvok/records/text.h"

namespace gallery {

using tvok::OLE_COLOR;
using tvok::Variant;

namespace {

constexpr std::int32_t MostRows = 1'000'000;
constexpr std::int32_t MostPixels = 200;

/// Collects the properties of one control. After each write the control shows what only is stored otherwise.
template<class Control>
class Table {
public:
    Table(Control& control, std::function<void()> show) : control_(control), show_(std::move(show)) {}

    using Color = OLE_COLOR;
    void Colors(const char* name, Color (Control::*get)() const, void (Control::*set)(Color)) {
        Add({.name = name, .kind = ValueKind::Color}, get, set);
    }
    template<class Value>
    void Number(const char* name, Value (Control::*get)() const, void (Control::*set)(Value),
                std::int32_t least, std::int32_t most) {
        Add({.name = name, .kind = ValueKind::Number, .least = least, .most = most}, get, set);
    }
    template<class Value>
    void Steps(const char* name, Value (Control::*get)() const, void (Control::*set)(Value),
               std::int32_t least, std::int32_t most) {
        Add({.name = name, .kind = ValueKind::Number, .least = least, .most = most, .steps = true}, get, set);
    }
    template<class Value>
    void Choice(const char* name, ValueList list, Value (Control::*get)() const,
                void (Control::*set)(Value)) {
        Add({.name = name, .kind = ValueKind::Choice, .list = list}, get, set);
    }
    void Truth(const char* name, bool (Control::*get)() const, void (Control::*set)(bool)) {
        Add({.name = name, .kind = ValueKind::Truth}, get, set);
    }
    template<class Value>
    void Text(const char* name, Value (Control::*get)() const, void (Control::*set)(std::string_view)) {
        Own(
            {.name = name}, [=](const Control& control) { return Variant(std::string((control.*get)())); },
            [=](Control& control, const Variant& value) { (control.*set)(value.AsText()); });
    }

    void FontFace() {
        Own(
            {.name = "Font.Name", .kind = ValueKind::Name, .list = ValueList::Fonts},
            [](const Control& control) { return Variant(control.Font()->Name()); },
            [](Control& control, const Variant& value) { control.Font()->Name(value.AsText()); });
        Own(
            {.name = "Font.Size", .kind = ValueKind::Number, .least = 6, .most = 24, .steps = true},
            [](const Control& control) { return Variant(static_cast<double>(control.Font()->Size())); },
            [](Control& control, const Variant& value) {
                control.Font()->Size(static_cast<float>(value.AsNumber()));
            });
    }
    /// In a list the styles are those of each item, so its font has none of its own.
    void Font() {
        FontFace();
        Truth("FontTransparent", &Control::FontTransparent, &Control::FontTransparent);
    }
    void FontWithStyles() {
        Font();
        FontStyles();
    }
    void FontStyles() {
        using tvok::host::FontValue;
        FontStyle("Font.Bold", &FontValue::Bold);
        FontStyle("Font.Italic", &FontValue::Italic);
        FontStyle("Font.Underline", &FontValue::Underline);
        FontStyle("Font.Strikethrough", &FontValue::Strikethrough);
    }

    template<class Get, class Set>
    void Own(Property property, Get get, Set set) {
        Control& control = control_;
        property.get = [get, &control] { return get(control); };
        property.set = [set, show = show_, &control](const Variant& value) {
            set(control, value);
            show();
        };
        properties_.push_back(std::move(property));
    }

    std::vector<Property> Take() { return std::move(properties_); }

private:
    void FontStyle(const char* name, bool tvok::host::FontValue::*style) {
        using tvok::host::ValueOf;
        Own(
            {.name = name, .kind = ValueKind::Truth},
            [=](const Control& control) { return Variant(ValueOf(*control.Font()).*style ? 1 : 0); },
            [=](Control& control, const Variant& value) {
                tvok::host::FontValue font = ValueOf(*control.Font());
                font.*style = value.AsInteger() != 0;
                tvok::host::Assign(*control.Font(), font);
            });
    }
    template<class Value>
    void Add(Property property, Value (Control::*get)() const, void (Control::*set)(Value)) {
        const bool truth = property.kind == ValueKind::Truth;
        Own(
            std::move(property),
            [=](const Control& control) {
                const auto value = static_cast<std::int32_t>((control.*get)());
                return Variant(truth ? (value != 0 ? 1 : 0) : value);
            },
            [=](Control& control, const Variant& value) {
                if constexpr (std::is_same_v<Value, bool>)
                    (control.*set)(value.AsInteger() != 0);
                else
                    (control.*set)(static_cast<Value>(value.AsInteger()));
            });
    }

    Control& control_;
    std::function<void()> show_;
    std::vector<Property> properties_;
};

/// What every list has.
template<class Control>
void AddListLooks(Table<Control>& table) {
    table.Choice("Appearance", ValueList::Looks, &Control::Appearance, &Control::Appearance);
    table.Choice("BorderStyle", ValueList::Borders, &Control::BorderStyle, &Control::BorderStyle);
    table.Colors("BackColor", &Control::BackColor, &Control::BackColor);
    table.Colors("SelectedColor", &Control::SelectedColor, &Control::SelectedColor);
    table.Colors("GridlineColor", &Control::GridlineColor, &Control::GridlineColor);
    table.Colors("IconBorderColor", &Control::IconBorderColor, &Control::IconBorderColor);
    table.Number("GridlineWidth", &Control::GridlineWidth, &Control::GridlineWidth, 0, 8);
    table.Number("CX_TEXT", &Control::CX_TEXT, &Control::CX_TEXT, 0, MostPixels);
}

/// The four numbers that `IconPos` packs.
template<class Control>
void AddIconPos(Table<Control>& table) {
    using Pos = tvok::tvok_IconPos;
    for (const auto& [name, part] : {std::pair{"IconPos.Left", &Pos::Left},
                                     {"IconPos.Top", &Pos::Top},
                                     {"IconPos.width", &Pos::width},
                                     {"IconPos.Height", &Pos::Height}})
        table.Own(
            {.name = name, .kind = ValueKind::Number, .most = 255, .steps = true},
            [part = part](const Control& control) {
                return Variant(std::int32_t{tvok::UnpackIconPos(control.IconPos()).*part});
            },
            [part = part](Control& control, const Variant& value) {
                Pos pos = tvok::UnpackIconPos(control.IconPos());
                pos.*part = static_cast<std::uint8_t>(value.AsInteger());
                control.IconPos(tvok::PackIconPos(pos));
            });
}

template<class Control>
void AddHeadBand(Table<Control>& table) {
    table.Number("HeadWidthEx", &Control::HeadWidthEx, &Control::HeadWidthEx, 0, 60);
    table.Colors("HeadExBackColor", &Control::HeadExBackColor, &Control::HeadExBackColor);
    table.Colors("HeadExBorderColor", &Control::HeadExBorderColor, &Control::HeadExBorderColor);
}

void AddColumn(Table<tvok::pcols>& table, std::int32_t column) {
    using tvok::pcols;
    using Header = tvok::qrosterheader;
    const auto part = [&](const char* what, ValueKind kind, ValueList list, auto get, auto set) {
        table.Own(
            {.name = "Column" + std::to_string(column) + what, .kind = kind, .list = list},
            [=](const pcols& bar) { return Variant(get(bar.GetData(column))); },
            [=](pcols& bar, const Variant& value) {
                Header header = bar.GetData(column);
                set(header, value);
                bar.SetData(column, header);
            });
    };
    part(
        ".text", ValueKind::Text, ValueList::None, [](const Header& header) { return header.text; },
        [](Header& header, const Variant& value) { header.text = value.AsText(); });
    part(
        ".fcolor", ValueKind::Color, ValueList::None, [](const Header& header) { return header.fcolor; },
        [](Header& header, const Variant& value) { header.fcolor = value.AsInteger(); });
    part(
        ".Alignment", ValueKind::Choice, ValueList::Sides,
        [](const Header& header) { return std::int32_t{header.Alignment}; },
        [](Header& header, const Variant& value) {
            header.Alignment = static_cast<std::int16_t>(value.AsInteger());
        });
}

std::vector<ListedValue> IconNames() {
    const char* const names[] = {"None",   "Box",     "Books",       "Terminal",  "Gear",  "Brackets",
                                 "Page",   "Letter",  "Globe",       "Picture",   "Disk",  "Chart",
                                 "Rising", "Falling", "Checked box", "Empty box", "Newest"};
    std::vector<ListedValue> values;
    for (const char* name : names) values.push_back({static_cast<std::int32_t>(values.size()), name});
    return values;
}

bool SameText(std::string_view a, std::string_view b) {
    return tvok::host::services().Language().CompareText(a, b) == 0;
}

/// All of `text` as a whole number.
std::optional<std::int32_t> WholeNumber(std::string_view text, int base = 10) {
    std::uint32_t bits = 0;
    std::int32_t number = 0;
    const char* end = text.data() + text.size();
    // Hexadecimal digits stand for bits, so that those of system colours have their sign.
    const auto read = base == 10 ? std::from_chars(text.data(), end, number, base)
                                 : std::from_chars(text.data(), end, bits, base);
    if (text.empty() || read.ec != std::errc() || read.ptr != end) return std::nullopt;
    return base == 10 ? number : static_cast<std::int32_t>(bits);
}

std::optional<OLE_COLOR> ColorOfText(std::string_view text, const ColorNames& colors) {
    constexpr std::int32_t White = 0xFFFFFF;
    if (const auto named = colors.Find(text)) return named;
    if (text.starts_with('#')) {
        const auto rgb = text.size() == 7 ? WholeNumber(text.substr(1), 16) : std::nullopt;
        if (!rgb) return std::nullopt;
        return (*rgb & 0xFF) << 16 | (*rgb & 0xFF00) | *rgb >> 16;
    }
    if (!text.starts_with("&H") && !text.starts_with("&h")) return std::nullopt;
    const auto color = WholeNumber(text.substr(2), 16);
    return color && *color >= 0 && *color <= White ? color : std::nullopt;
}

/// By its whole text, else by the beginning of one alone.
std::optional<std::int32_t> ListedOfText(ValueList list, std::string_view text) {
    const ListedValue* found = nullptr;
    int beginnings = 0;
    for (const ListedValue& listed : ValuesOf(list)) {
        if (SameText(listed.text, text)) return listed.value;
        const std::string_view beginning = tvok::FirstCharacters(listed.text, tvok::CharacterCount(text));
        if (text.empty() || !SameText(beginning, text)) continue;
        found = &listed;
        ++beginnings;
    }
    return beginnings == 1 ? std::optional(found->value) : std::nullopt;
}

} // namespace

const std::vector<ListedValue>& ValuesOf(ValueList list) {
    using namespace tvok::vflag;
    static const std::vector<std::vector<ListedValue>> lists{
        {},
        {{0, "None"}, {1, "Single"}},
        {{0, "Flat"}, {1, "Three-dimensional"}},
        {{0, "One"}, {1, "Several"}},
        {{0, "As added"}, {1, "Ascending"}, {2, "Descending"}},
        {{0, "Plain"},
         {Bold, "Bold"},
         {Italic, "Italic"},
         {Underline, "Underlined"},
         {Bold | Italic, "Bold and italic"}},
        {{0, "Left"}, {1, "Right"}, {2, "Centred"}},
        IconNames(),
        {{0, "DejaVu Sans"}, {1, "DejaVu Sans Mono"}, {2, "DejaVu Serif"}, {3, "Noto Sans CJK JP"}},
        {{0, "Flat"}, {1, "In groups"}},
        {{0, "As added"}, {1, "By text"}, {2, "By text, down"}, {3, "By ItemData"}, {4, "By ItemData, down"}},
    };
    return lists.at(static_cast<std::size_t>(list));
}

// The controls.

PropertyGroup PropertiesOf(tvok::qRoster& list) {
    using tvok::qRoster;
    Table<qRoster> table(list, [&list] { list.Refresh(); });
    AddListLooks(table);
    AddHeadBand(table);
    table.Truth("GridlineOnBorder", &qRoster::GridlineOnBorder, &qRoster::GridlineOnBorder);
    table.Steps("ItemHeight", &qRoster::ItemHeight, &qRoster::ItemHeight, 8, 80);
    table.Number("ItemWidth", &qRoster::ItemWidth, &qRoster::ItemWidth, 0, 600);
    table.Truth("XnAuto", &qRoster::XnAuto, &qRoster::XnAuto); // before `xn`, which it fixes
    table.Steps("xn", &qRoster::xn, &qRoster::xn, 1, 6);
    AddIconPos(table);
    table.Truth("FixedHeight", &qRoster::FixedHeight, &qRoster::FixedHeight);
    table.Truth("FixedWidthForLastXn", &qRoster::FixedWidthForLastXn, &qRoster::FixedWidthForLastXn);
    table.Text("ColWidthSettingStr", &qRoster::ColWidthSettingStr, &qRoster::ColWidthSettingStr);
    table.Text("TabStopSettingStr", &qRoster::TabStopSettingStr, &qRoster::TabStopSettingStr);
    table.Choice("MultiSelect", ValueList::Selections, &qRoster::MultiSelect, &qRoster::MultiSelect);
    table.Choice("SortedMode", ValueList::Orders, &qRoster::SortedMode, &qRoster::SortedMode);
    table.Truth("HotTrack", &qRoster::HotTrack, &qRoster::HotTrack);
    table.Steps("ListIndex", &qRoster::ListIndex, &qRoster::ListIndex, 1, MostRows);
    table.Text("TmpKey", &qRoster::TmpKey, &qRoster::TmpKey);
    table.Font();
    return {"roster", "Flat list", table.Take()};
}

PropertyGroup RowsOf(tvok::qRoster& list) {
    using tvok::qRoster;
    Table<qRoster> table(list, [&list] { list.Refresh(); });
    table.Steps("yn", &qRoster::yn, &qRoster::yn, 1, 64);
    return {"rows", "Rows", table.Take()};
}

PropertyGroup PropertiesOf(tvok::qRosterex& list) {
    using tvok::qRosterex;
    Table<qRosterex> table(list, [&list] { list.Refresh(); });
    AddListLooks(table);
    AddHeadBand(table);
    table.Truth("FixedHeight", &qRosterex::FixedHeight, &qRosterex::FixedHeight);
    table.Steps("ItemHeight", &qRosterex::ItemHeight, &qRosterex::ItemHeight, 8, 80);
    table.Steps("HeaderHeight", &qRosterex::HeaderHeight, &qRosterex::HeaderHeight, 0, 60);
    table.Choice("HeaderFlag", ValueList::Styles, &qRosterex::HeaderFlag, &qRosterex::HeaderFlag);
    table.Text("HeaderWidths", &qRosterex::HeaderWidths, &qRosterex::HeaderWidths);
    table.Number("Count", &qRosterex::Count, &qRosterex::Count, 0, MostRows);
    table.Steps("ListIndex", &qRosterex::ListIndex, &qRosterex::ListIndex, 1, MostRows);
    table.Choice("MultiSelect", ValueList::Selections, &qRosterex::MultiSelect, &qRosterex::MultiSelect);
    table.Truth("HotTrack", &qRosterex::HotTrack, &qRosterex::HotTrack);
    table.Truth("KeySeek", &qRosterex::KeySeek, &qRosterex::KeySeek);
    table.Truth("ShowIcon", &qRosterex::ShowIcon, &qRosterex::ShowIcon);
    table.Number("IconCX", &qRosterex::IconCX, &qRosterex::IconCX, 0, 64);
    table.Number("IconCY", &qRosterex::IconCY, &qRosterex::IconCY, 0, 64);
    table.Text("ClearText", &qRosterex::ClearText, &qRosterex::ClearText);
    table.Text("TmpKey", &qRosterex::TmpKey, &qRosterex::TmpKey);
    table.Font();
    return {"large", "Large list", table.Take()};
}

PropertyGroup PropertiesOf(tvok::pcols& bar) {
    using tvok::pcols;
    Table<pcols> table(bar, [&bar] { bar.Refresh(); });
    table.Choice("Appearance", ValueList::Looks, &pcols::Appearance, &pcols::Appearance);
    table.Choice("BorderStyle", ValueList::Borders, &pcols::BorderStyle, &pcols::BorderStyle);
    table.Colors("BackColor", &pcols::BackColor, &pcols::BackColor);
    table.Choice("lFlag", ValueList::Styles, &pcols::lFlag, &pcols::lFlag);
    table.Text("HeaderWidths", &pcols::HeaderWidths, &pcols::HeaderWidths);
    for (std::int32_t column = 1; column <= bar.Count(); ++column) AddColumn(table, column);
    table.Font();
    return {"bar", "Column bar", table.Take()};
}

PropertyGroup PropertiesOf(tvok::xbutton& strip) {
    using tvok::xbutton;
    Table<xbutton> table(strip, [&strip] { strip.SetButtons(std::string(strip.ButtonSettingsStr())); });
    table.Text("ButtonSettingsStr", &xbutton::ButtonSettingsStr, &xbutton::ButtonSettingsStr);
    table.Colors("ForeColor", &xbutton::ForeColor, &xbutton::ForeColor);
    table.Number("IconWidth", &xbutton::IconWidth, &xbutton::IconWidth, 0, 64);
    table.Number("IconHeight", &xbutton::IconHeight, &xbutton::IconHeight, 0, 64);
    table.FontWithStyles();
    return {"strip", "Button strip", table.Take()};
}

PropertyGroup PropertiesOf(tvok::iLabel& label) {
    using tvok::iLabel;
    Table<iLabel> table(label, [&label] { label.Refresh(); });
    table.Text("Caption", &iLabel::Caption, &iLabel::Caption);
    table.Choice("BorderStyle", ValueList::Borders, &iLabel::BorderStyle, &iLabel::BorderStyle);
    table.Colors("BackColor", &iLabel::BackColor, &iLabel::BackColor);
    table.Colors("ForeColor", &iLabel::ForeColor, &iLabel::ForeColor);
    table.Colors("GridlineColor", &iLabel::GridlineColor, &iLabel::GridlineColor);
    table.Number("GridlineWidth", &iLabel::GridlineWidth, &iLabel::GridlineWidth, 0, 12);
    table.Steps("TextLeft", &iLabel::TextLeft, &iLabel::TextLeft, 0, MostPixels);
    table.Truth("MultiLine", &iLabel::MultiLine, &iLabel::MultiLine);
    table.Truth("NOPREFIX", &iLabel::NOPREFIX, &iLabel::NOPREFIX);
    table.Truth("HideFocus", &iLabel::HideFocus, &iLabel::HideFocus);
    table.Choice("IconID", ValueList::Icons, &iLabel::IconID, &iLabel::IconID);
    table.Steps("IconLeft", &iLabel::IconLeft, &iLabel::IconLeft, 0, MostPixels);
    table.Steps("IconTop", &iLabel::IconTop, &iLabel::IconTop, 0, MostPixels);
    table.Number("IconWidth", &iLabel::IconWidth, &iLabel::IconWidth, 0, MostPixels);
    table.Number("IconHeight", &iLabel::IconHeight, &iLabel::IconHeight, 0, MostPixels);
    table.Truth("IconBorder", &iLabel::IconBorder, &iLabel::IconBorder);
    table.Colors("IconBorderColor", &iLabel::IconBorderColor, &iLabel::IconBorderColor);
    table.Truth("IconTransParent", &iLabel::IconTransParent, &iLabel::IconTransParent);
    table.Colors("IconBackColor", &iLabel::IconBackColor, &iLabel::IconBackColor);
    table.FontWithStyles();
    return {"label", "Label", table.Take()};
}

/// Not its structure, since that decides which row is being edited.
PropertyGroup PropertiesOf(tvok::gList& list) {
    using tvok::gList;
    Table<gList> table(list, [&list] { list.Refresh(); });
    AddListLooks(table);
    AddHeadBand(table);
    AddIconPos(table);
    table.Truth("GridlineOnBorder", &gList::GridlineOnBorder, &gList::GridlineOnBorder);
    table.Steps("ItemHeight", &gList::ItemHeight, &gList::ItemHeight, 16, 40);
    return {"self", "This property list", table.Take()};
}

PropertyGroup StructureOf(tvok::gList& list) {
    using tvok::gList;
    Table<gList> table(list, [&list] { list.BuiltList(); });
    table.Choice("ListMode", ValueList::Modes, &gList::ListMode, &gList::ListMode);
    table.Truth("Sorted", &gList::Sorted, &gList::Sorted);
    table.Truth("FixedHeight", &gList::FixedHeight, &gList::FixedHeight);
    table.Text("TmpKey", &gList::TmpKey, &gList::TmpKey);
    table.Font();
    return {"structure", "Structure", table.Take()};
}

/// While it is closed there is nothing to show. Its number of items is no property to write: that would make
/// it virtual.
PropertyGroup PropertiesOf(tvok::xPopup& popup) {
    using tvok::xPopup;
    Table<xPopup> table(popup, [] {});
    table.Steps("xn", &xPopup::xn, &xPopup::xn, 1, 64);
    table.Steps("yn", &xPopup::yn, &xPopup::yn, 1, 64);
    table.Steps("ItemHeight", &xPopup::ItemHeight, &xPopup::ItemHeight, 8, 80);
    table.Steps("ItemWidth", &xPopup::ItemWidth, &xPopup::ItemWidth, 8, 600);
    table.Number("GridlineWidth", &xPopup::GridlineWidth, &xPopup::GridlineWidth, 0, 8);
    table.Colors("GridlineColor", &xPopup::GridlineColor, &xPopup::GridlineColor);
    table.Truth("GridlineOnBorder", &xPopup::GridlineOnBorder, &xPopup::GridlineOnBorder);
    table.Truth("FixedWidthForLastXn", &xPopup::FixedWidthForLastXn, &xPopup::FixedWidthForLastXn);
    table.Text("ColWidthSettingStr", &xPopup::ColWidthSettingStr, &xPopup::ColWidthSettingStr);
    table.Text("TabStopSettingStr", &xPopup::TabStopSettingStr, &xPopup::TabStopSettingStr);
    table.Number("CX_TEXT", &xPopup::CX_TEXT, &xPopup::CX_TEXT, 0, MostPixels);
    AddIconPos(table);
    table.Colors("BackColor", &xPopup::BackColor, &xPopup::BackColor);
    table.Colors("SelectedColor", &xPopup::SelectedColor, &xPopup::SelectedColor);
    table.Colors("IconBorderColor", &xPopup::IconBorderColor, &xPopup::IconBorderColor);
    table.Number("HeadWidthEx", &xPopup::HeadWidthEx, &xPopup::HeadWidthEx, 0, 60);
    table.Colors("HeadExBackColor", &xPopup::HeadExBackColor, &xPopup::HeadExBackColor);
    table.Colors("HeadExBorderColor", &xPopup::HeadExBorderColor, &xPopup::HeadExBorderColor);
    table.Truth("HotTrack", &xPopup::HotTrack, &xPopup::HotTrack);
    table.Choice("SortedMode", ValueList::PopupOrders, &xPopup::SortedMode, &xPopup::SortedMode);
    table.Steps("ListIndex", &xPopup::ListIndex, &xPopup::ListIndex, 1, MostRows);
    table.Text("TmpKey", &xPopup::TmpKey, &xPopup::TmpKey);
    table.Font();
    return {"popup", "Popup", table.Take()};
}

PropertyGroup PropertiesOf(tvok::ucColorSelector& selector) {
    using Selector = tvok::ucColorSelector;
    Table<Selector> table(selector,
                          [&selector] { selector.BackColor(selector.BackColor()); }); // which repaints
    table.Colors("SelectColor", &Selector::SelectColor, &Selector::SelectColor);
    table.Colors("borderColor", &Selector::borderColor, &Selector::borderColor);
    table.Colors("ForeColor", &Selector::ForeColor, &Selector::ForeColor);
    table.Colors("BackColor", &Selector::BackColor, &Selector::BackColor);
    table.Choice("BorderStyle", ValueList::Borders, &Selector::BorderStyle, &Selector::BorderStyle);
    table.FontWithStyles();
    return {"selector", "Colour selector", table.Take()};
}

PropertyGroup PropertiesOf(tvok::TextBox& box) {
    using tvok::TextBox;
    Table<TextBox> table(box, [] {});
    table.Text("Text", &TextBox::Text, &TextBox::Text);
    table.Number("MaxLength", &TextBox::MaxLength, &TextBox::MaxLength, 0, MostRows);
    table.Truth("ReadOnly", &TextBox::ReadOnly, &TextBox::ReadOnly);
    table.Colors("BackColor", &TextBox::BackColor, &TextBox::BackColor);
    table.Colors("ForeColor", &TextBox::ForeColor, &TextBox::ForeColor);
    return {"box", "Text box", table.Take()};
}

PropertyGroup PropertiesOf(tvok::host::Widget& widget) {
    using tvok::host::Widget;
    Table<Widget> table(widget, [&widget] { widget.Refresh(); });
    table.Choice("Appearance", ValueList::Looks, &Widget::Appearance, &Widget::Appearance);
    table.Choice("BorderStyle", ValueList::Borders, &Widget::BorderStyle, &Widget::BorderStyle);
    table.FontFace();
    table.FontStyles();
    return {"component", "Component", table.Take()};
}

// Texts of values.

ColorNames::ColorNames(tvok::xPopup& palette) {
    palette.SetColorPal(tvok::PAL_SYSCOLOR);
    for (std::int32_t index = 1; index <= palette.Count(); ++index) {
        colors_.emplace_back();
        palette.GetData(index, colors_.back());
    }
}

std::optional<OLE_COLOR> ColorNames::Find(std::string_view name) const {
    const auto found =
        std::ranges::find_if(colors_, [&](const auto& color) { return SameText(color.text, name); });
    return found == colors_.end() ? std::nullopt : std::optional(found->IconBackColor);
}

std::optional<Variant> ValueOfText(const Property& property, std::string_view text,
                                   const ColorNames& colors) {
    const auto asVariant = [](std::optional<std::int32_t> number) {
        return number ? std::optional<Variant>(*number) : std::nullopt;
    };
    const std::string_view trimmed = tvok::Trim(text);
    switch (property.kind) {
    case ValueKind::Color: return asVariant(ColorOfText(trimmed, colors));
    case ValueKind::Choice: return asVariant(ListedOfText(property.list, trimmed));
    case ValueKind::Name: return Variant(trimmed);
    case ValueKind::Text: return Variant(text);
    case ValueKind::Number:
    case ValueKind::Truth: break;
    }
    const auto number = WholeNumber(trimmed);
    const std::int32_t most = property.kind == ValueKind::Truth ? 1 : property.most;
    return number && *number >= property.least && *number <= most ? asVariant(number) : std::nullopt;
}

} // namespace gallery
