#include "apps/gallery/PopupsPage.h"

#include <algorithm>
#include <chrono>

#include "apps/gallery/words.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"

namespace gallery {

using tvok::host::platform;

namespace {

constexpr std::int32_t ColorButton = 48, ColorButtons = 6;
constexpr std::int32_t FieldHeight = 24, SwatchHeight = 40;
constexpr std::int32_t FieldWidth = ColorButton * ColorButtons;
constexpr std::int32_t SwitchRows = 2;
constexpr std::int32_t RowHeight = 20, IconArea = 24;
constexpr std::int32_t LastNumber = 100, FirstNumber = 42, FirstStored = 3, FirstVirtual = 500'000;
constexpr tvok::OLE_COLOR FirstColor = 0xE07000;
constexpr std::int32_t IconFlags = tvok::vflag::IconBox | tvok::vflag::IconOnBackground;

constexpr const char* ColorStrip = "8x2|0|0|8x8|1|0|16x8|2|0|24x8|3|0|24x10|4|0|0|5|2";
constexpr const char* ArrowStrip = "0|open|2";

struct StoredEntry {
    const char* text;
    Icon icon;
};
constexpr StoredEntry StoredEntries[] = {
    {"Archives", Icon::Box},        {"Books", Icon::Books},   {"Command lines", Icon::Terminal},
    {"Databases", Icon::Cylinder},  {"E-mail", Icon::Letter}, {"Figures", Icon::Chart},
    {"Graphics", Icon::Picture},    {"Hardware", Icon::Gear}, {"Internet", Icon::Globe},
    {"JavaScript", Icon::Brackets}, {"Kernels", Icon::Gear},  {"Libraries", Icon::Books},
    {"Manuals", Icon::Page},        {"News", Icon::Newest},
};

constexpr std::int32_t Letters = 26;

/// Those with one letter stand together: the number of entries before those with the letter `place`, from 0.
constexpr std::int32_t EntriesBefore(std::int32_t place) {
    return static_cast<std::int32_t>((std::int64_t{PopupsPage::Entries} * place + Letters - 1) / Letters);
}

const char* WordOf(std::int32_t place) {
    static constexpr std::array<const char*, Letters> words{
        "Alder",    "Birch",    "Cedar",   "Dogwood", "Elm",    "Fir",   "Ginkgo",
        "Hazel",    "Ironwood", "Juniper", "Katsura", "Larch",  "Maple", "Nutmeg",
        "Oak",      "Pine",     "Quince",  "Rowan",   "Spruce", "Teak",  "Umbrella pine",
        "Viburnum", "Willow",   "Xylosma", "Yew",     "Zelkova"};
    return words.at(static_cast<std::size_t>(place));
}

tvok::qrosterdata StoredItem(const StoredEntry& entry) {
    return {.text = entry.text, .IconID = static_cast<std::int32_t>(entry.icon), .vflag = IconFlags};
}

} // namespace

PopupsPage::PopupsPage(tvok::Desktop& desktop, tvok::Form& form)
    : desktop_(desktop), form_(form), hands_(desktop, form),
      icons_(desktop.AddImageList(DrawIcons(), IconSize)), log_(form.Add<tvok::qRoster>("popups.log", {})),
      switches_(form.Add<tvok::qRoster>("popups.switches", {}), icons_, 1),
      letters_(tvok::host::services().CreateWindowHook()) {
    AddField(form, Color, "color", ColorStrip);
    AddField(form, Number, "number", ArrowStrip);
    AddField(form, Stored, "stored", ArrowStrip);
    AddField(form, Virtual, "virtual", ArrowStrip);
    popup(Number).SetNS(0, LastNumber);
    popup(Number).ListIndex(FirstNumber + 1);
    FillStored(popup(Stored));
    SetUpVirtual(popup(Virtual));
    fields_[Color].value = {.text = popup(Color).GetColorDesc(FirstColor), .IconBackColor = FirstColor};
    fields_[Number].value.text = std::to_string(FirstNumber);
    fields_[Stored].value = StoredItem(StoredEntries[FirstStored - 1]);
    fields_[Virtual].value.text = EntryText(FirstVirtual);
    for (Field& field : fields_) Hear(field);
    SetUpSwitches();
    log_.FixedHeight(false);
    log_.ItemHeight(RowHeight);
    log_.CX_TEXT(IconArea);
    log_.IconHandle(icons_);
    log_.IconPos(tvok::PackIconPos({.Height = IconSize, .width = IconSize, .Top = 2, .Left = 4}));
    letters_->RtMsg = [this](std::int32_t, std::int32_t key, std::int32_t word, std::int32_t&, bool& pass) {
        const bool letter = key >= 'A' && key <= 'Z';
        if (!letter || word < 0) return; // a key that goes up has the sign bit
        popup(Virtual).ListIndex(FirstEntry(static_cast<char>(key)));
        pass = false;
    };
}

// Content.

void PopupsPage::AddField(tvok::Form& form, Kind kind, const char* name, const std::string& buttons) {
    Field& field = fields_[kind];
    field.name = name;
    field.strip = &form.Add<tvok::xbutton>(std::string("popups.") + name, {});
    field.strip->ButtonSettingsStr(buttons);
    field.strip->events.MouseDown = [this, kind](const std::string& key) { Open(kind, key); };
    field.popup = &form.Add<tvok::xPopup>(std::string("popups.") + name + ".popup", {});
}

void PopupsPage::FillStored(tvok::xPopup& popup) {
    popup.IconHandle(icons_);
    popup.IconPos(tvok::PackIconPos({.Height = IconSize, .width = IconSize, .Top = 2, .Left = 4}));
    popup.CX_TEXT(IconArea);
    popup.ItemHeight(RowHeight);
    popup.GridlineOnBorder(true);
    popup.yn(8);
    for (const StoredEntry& entry : StoredEntries) popup.AddItem(StoredItem(entry));
    popup.ListIndex(FirstStored);
}

void PopupsPage::SetUpVirtual(tvok::xPopup& popup) {
    popup.CX_TEXT(4);
    popup.ItemHeight(RowHeight);
    popup.GridlineOnBorder(true);
    popup.yn(10);
    popup.events.EnumDATA = [](std::int32_t& index, tvok::qrosterdata& record) {
        record = {.text = EntryText(index)};
    };
    popup.Count(Entries);
    popup.ListIndex(FirstVirtual);
}

std::string PopupsPage::EntryText(std::int32_t index) {
    const auto place = static_cast<std::int32_t>(std::int64_t{index - 1} * Letters / Entries);
    return std::string(WordOf(place)) + " " + Grouped(index);
}

std::int32_t PopupsPage::FirstEntry(char letter) {
    return letter >= 'A' && letter <= 'Z' ? EntriesBefore(letter - 'A') + 1 : 0;
}

void PopupsPage::SetUpSwitches() {
    switches_.Add({"HotTrack", [this] { return CheckIcon(hotTrack_); },
                   [this] { return std::string(hotTrack_ ? "on: moves choose" : "off: drags choose"); },
                   [this] { hotTrack_ = !hotTrack_; }});
    switches_.Add({"AlignCursor", [this] { return CheckIcon(atPointer_); },
                   [this] { return std::string(atPointer_ ? "on: at the pointer" : "off: at the field"); },
                   [this] { atPointer_ = !atPointer_; }});
}

// Opening, and what the popups tell.

void PopupsPage::Open(Kind kind, const std::string& key) {
    Field& field = fields_[kind];
    tvok::xPopup& opened = *field.popup;
    field.before = field.value;
    field.indexBefore = opened.ListIndex();
    opened.HotTrack(hotTrack_);
    if (kind == Color) {
        FillColors(key);
        opened.SetParentHwnd(field.strip->hwnd());
    } else {
        const tvok::tvok_Rect box = BoxOf(field);
        tvok::host::Point corner{box.Left, box.Top};
        platform().ClientToScreen(form_.hWnd(), corner);
        opened.SetParentRect({corner.x, corner.y, corner.x + FieldWidth, corner.y + FieldHeight});
    }
    open_ = true;
    opened.Popup(atPointer_, true);
    if (!open_) return;                   // messages that waited have closed it
    opened.ListIndex(opened.ListIndex()); // it opens with its first row on top
    if (kind == Virtual) ListenToLetters();
}

void PopupsPage::FillColors(const std::string& key) {
    const std::int32_t palette = key.front() - '0';
    popup(Color).SetColorPal(palette);
    if (palette == tvok::PAL_SYSCOLOR) popup(Color).CalTextWidth();
}

/// The popup's own search looks at stored items, and a virtual list has none. A hook of our own, which is
/// asked first, knows where each letter begins.
void PopupsPage::ListenToLetters() {
    std::int32_t keys = 3;
    std::int32_t thread = tvok::host::services().ThreadID();
    bool flag = false;
    letters_->HookSet(keys, thread, flag);
}

void PopupsPage::Hear(Field& field) {
    const bool isVirtual = &field == &fields_[Virtual];
    const bool isColor = &field == &fields_[Color];
    field.popup->events.Change = [this, &field, isVirtual, isColor](std::int32_t index,
                                                                    tvok::qrosterdata& item) {
        tvok::qrosterdata shown = item;
        if (isVirtual) shown.text = EntryText(index); // the record is that of the last row painted
        if (isColor) shown.text = field.popup->GetColorDesc(item.IconBackColor);
        Tell(std::string(field.name) + ": Change(" + Grouped(index) + ", \"" + shown.text + "\")",
             Icon::Page);
        Show(field, shown);
    };
    field.popup->events.Click = [this, &field](std::int32_t index, tvok::qrosterdata&, bool canceled) {
        open_ = false;
        letters_->HookRelease();
        Tell(std::string(field.name) + ": Click(" + Grouped(index) + ", " +
                 (canceled ? "cancelled)" : "accepted)"),
             canceled ? Icon::EmptyBox : Icon::CheckedBox);
        if (canceled) TakeBack(field);
        // The popup took the release of the mouse: the button comes up as its strip loses the focus.
        if (platform().GetFocus() == field.strip->hwnd())
            platform().SetFocus(form_.ComponentOf(switches_.list()).hWnd());
    };
}

void PopupsPage::TakeBack(Field& field) {
    const auto before = field.before;
    // A palette is filled anew each time; the lists stay, and with them what the user left as current.
    if (field.popup != fields_[Color].popup) field.popup->ListIndex(field.indexBefore);
    Show(field, before);
}

void PopupsPage::Show(Field& field, const tvok::qrosterdata& item) {
    field.value = item;
    const tvok::tvok_Rect box = BoxOf(field);
    platform().InvalidateRect(form_.hWnd(), &box, false);
}

void PopupsPage::Tell(const std::string& line, Icon icon) {
    log_.AddItem(1, {.text = line, .IconID = static_cast<std::int32_t>(icon), .vflag = IconFlags});
    log_.Refresh();
}

// Looks.

void PopupsPage::Layout(const tvok::tvok_Rect& area) {
    area_ = area;
    const std::int32_t left = area.Left + Margin;
    std::int32_t top = area.Top + BannerHeight + HeadingHeight;
    fields_[Color].place = {left, top, FieldWidth, SwatchHeight};
    top += SwatchHeight;
    form_.Place(*fields_[Color].strip, {left, top, FieldWidth, ColorButton});
    top += ColorButton + HeadingHeight + Margin / 2;
    for (const Kind kind : {Number, Stored, Virtual}) {
        fields_[kind].place = {left, top, FieldWidth, FieldHeight};
        form_.Place(*fields_[kind].strip,
                    {left + FieldWidth - FieldHeight + 1, top + 1, FieldHeight - 2, FieldHeight - 2});
        top += FieldHeight + HeadingHeight + Margin / 2;
    }
    form_.Place(switches_.list(), {left, top, FieldWidth, SwitchPanel::HeightOf(SwitchRows)});
    switches_.Spread(FieldWidth - 2);
    const std::int32_t logLeft = left + FieldWidth + 2 * Margin;
    const std::int32_t logTop = area.Top + BannerHeight + HeadingHeight;
    form_.Place(log_, {logLeft, logTop, std::max(area.Right - Margin - logLeft, 160),
                       std::max(area.bottom - Margin - logTop, 60)});
}

void PopupsPage::Paint(tvok::host::Handle hDC) {
    DrawBackground(hDC, area_, fonts_, "Lists that drop out of the form",
                   "Press a button, drag into what opens, and let go. Esc or a press outside takes it back");
    const auto heading = [&](const tvok::Placement& below, const std::string& text) {
        DrawLabel(hDC, {below.left, below.top - HeadingHeight, below.left + below.width, below.top}, text,
                  fonts_.Bold(), tvok::cButtonText);
    };
    heading(fields_[Color].place, "A colour, from five grids and the system's");
    heading(fields_[Number].place, "A number, 0 to " + std::to_string(LastNumber));
    heading(fields_[Stored].place, "A stored list with icons");
    heading(fields_[Virtual].place, "One of " + Grouped(Entries) + "; type a letter");
    heading(form_.PlacementOf(switches_.list()), "How they behave");
    heading(form_.PlacementOf(log_), "What the popups tell, the newest first");
    PaintSwatch(hDC, fields_[Color]);
    for (const Kind kind : {Number, Stored, Virtual}) PaintField(hDC, fields_[kind]);
}

tvok::tvok_Rect PopupsPage::BoxOf(const Field& field) {
    const tvok::Placement& place = field.place;
    return {place.left, place.top, place.left + place.width, place.top + place.height};
}

void PopupsPage::PaintField(tvok::host::Handle hDC, const Field& field) {
    tvok::tvok_Rect text = BoxOf(field);
    tvok::dgi::DrawBoxRect(hDC, text, 1, tvok::SystemColor(tvok::host::COLOR_BTNSHADOW),
                           tvok::cWindowBackground, true);
    text.Left += 6;
    if (field.value.IconID > 0) {
        platform().ImageList_Draw(icons_, field.value.IconID - 1, hDC, text.Left - 1, text.Top + 4, 1);
        text.Left += IconArea - 2;
    }
    text.Right -= FieldHeight;
    DrawLabel(hDC, text, field.value.text, fonts_.Plain(), tvok::cWindowText);
}

void PopupsPage::PaintSwatch(tvok::host::Handle hDC, const Field& field) {
    const tvok::tvok_Rect box = BoxOf(field);
    const tvok::OLE_COLOR edge = tvok::SystemColor(tvok::host::COLOR_BTNSHADOW);
    tvok::dgi::DrawBoxRect(hDC, box, 1, edge, tvok::cWindowBackground, true);
    const std::int32_t middle = box.Left + FieldWidth / 2;
    tvok::dgi::DrawBoxRect(hDC, {box.Left + 4, box.Top + 4, middle, box.bottom - 4}, 1, edge, ChosenColor(),
                           true);
    DrawLabel(hDC, {middle + 8, box.Top, box.Right - 2, box.bottom}, field.value.text, fonts_.Plain(),
              tvok::cWindowText);
}

// Scenes.

void PopupsPage::Press(Kind kind, std::int32_t button) {
    const tvok::xbutton& pressed = strip(kind);
    tvok::tvok_Rect client;
    platform().GetClientRect(pressed.hwnd(), client);
    tvok::host::Point point{client.bottom * button - client.bottom / 2, client.bottom / 2};
    platform().ClientToScreen(pressed.hwnd(), point);
    tvok::desktop::Input& input = desktop_.Input();
    input.MouseUp(tvok::desktop::MouseButton::Left);
    input.MouseMove(point.x, point.y);
    input.MouseDown(tvok::desktop::MouseButton::Left);
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

/// To a point of the page, with the button held.
void PopupsPage::DragTo(std::int32_t x, std::int32_t y) {
    tvok::host::Point point{area_.Left + x, area_.Top + y};
    platform().ClientToScreen(form_.hWnd(), point);
    desktop_.Input().MouseMove(point.x, point.y);
    desktop_.ProcessEvents(std::chrono::milliseconds{0});
}

std::vector<Scene> PopupsPage::Scenes() {
    const std::int32_t belowColors = BannerHeight + HeadingHeight + SwatchHeight + ColorButton;
    std::vector<Scene> scenes{{"", [] {}}};
    const char* const palettes[] = {"8x2", "8x8", "16x8", "24x8", "24x10", "system"};
    for (std::int32_t button = 1; button <= ColorButtons; ++button) {
        scenes.push_back({palettes[button - 1],
                          [=, this] {
                              Press(Color, button);
                              DragTo(Margin + 90, belowColors + 26);
                          },
                          true});
    }
    const auto open = [this](Kind kind) {
        return [this, kind] {
            Press(kind, 1);
            const tvok::Placement& box = fields_[kind].place;
            DragTo(box.left - area_.Left + 60, box.top - area_.Top + FieldHeight + 110);
        };
    };
    scenes.push_back({"numbers", open(Number), true});
    scenes.push_back({"stored", open(Stored), true});
    scenes.push_back({"million",
                      [this] {
                          Press(Virtual, 1);
                          desktop_.Input().KeyDown('S');
                          desktop_.Input().KeyUp('S');
                      },
                      true});
    return scenes;
}

} // namespace gallery
