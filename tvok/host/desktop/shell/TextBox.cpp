#include "tvok/host/desktop/TextBox.h"

#include <algorithm>
#include <utility>

#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/shell/Clipboard.h"
#include "tvok/host/desktop/shell/EditText.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok {

using namespace host;

namespace {

constexpr std::int32_t Padding = 3; ///< Pixels between the client area's edges and the text.
constexpr std::int16_t ShiftBit = 1, ControlBit = 2, AltBit = 4;

std::int32_t CharactersTo(const std::string& text, std::size_t place) {
    return ToInt32(static_cast<std::int64_t>(CharacterCount(std::string_view(text).substr(0, place))));
}

/// Text settings of a device context, given back in the end.
class TextSettings {
public:
    TextSettings(Handle hDC, OLE_COLOR text, OLE_COLOR background)
        : hDC_(hDC), text_(platform().SetTextColor(hDC, dgi::TranslateColor(text))),
          background_(platform().SetBkColor(hDC, dgi::TranslateColor(background))),
          mode_(platform().SetBkMode(hDC, TRANSPARENT_BK)),
          align_(platform().SetTextAlign(hDC, TA_LEFT | TA_TOP)) {}
    ~TextSettings() {
        platform().SetTextColor(hDC_, text_);
        platform().SetBkColor(hDC_, background_);
        platform().SetBkMode(hDC_, mode_);
        platform().SetTextAlign(hDC_, align_);
    }
    TextSettings(const TextSettings&) = delete;
    TextSettings& operator=(const TextSettings&) = delete;

private:
    Handle hDC_;
    std::int32_t text_;
    std::int32_t background_;
    std::int32_t mode_;
    std::int32_t align_;
};

tvok_Rect Measure(Handle hDC, std::string_view text) {
    tvok_Rect rect;
    platform().DrawTextA(hDC, text.data(), ToInt32(static_cast<std::int64_t>(text.size())), rect,
                         DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    return rect;
}

} // namespace

TextBox::TextBox() : text_(std::make_unique<soft::EditText>()) {}

TextBox::~TextBox() = default;

// Content.

const std::string& TextBox::Text() const {
    return text_->Text();
}

std::string TextBox::SelText() const {
    return text_->SelectedText();
}

void TextBox::Text(std::string_view text) {
    const std::string before = text_->Text();
    text_->Text(text);
    scroll_ = 0;
    Changed(text_->Text() != before);
}

std::int32_t TextBox::MaxLength() const {
    return ToInt32(static_cast<std::int64_t>(text_->MaxLength()));
}

void TextBox::MaxLength(std::int32_t characters) {
    if (characters >= 0) text_->MaxLength(static_cast<std::size_t>(characters));
}

std::int32_t TextBox::SelStart() const {
    return CharactersTo(text_->Text(), text_->SelectionStart());
}

std::int32_t TextBox::SelLength() const {
    return CharactersTo(text_->Text(), text_->SelectionEnd()) - SelStart();
}

void TextBox::Select(std::int32_t start, std::int32_t length) {
    const auto from = static_cast<std::size_t>(std::max(start, 0));
    const auto to = from + static_cast<std::size_t>(std::max(length, 0));
    text_->MoveTo(FirstCharacters(Text(), from).size(), false);
    text_->MoveTo(FirstCharacters(Text(), to).size(), true);
    ShowCaret();
}

void TextBox::BackColor(OLE_COLOR color) {
    backColor_ = color;
    if (component_ != nullptr) component_->BackColor(color);
    Repaint();
}

void TextBox::ForeColor(OLE_COLOR color) {
    foreColor_ = color;
    Repaint();
}

void TextBox::Changed(bool changed) {
    ShowCaret();
    if (changed) events.Change();
}

// Life cycle.

void TextBox::Initialize(Component& component) {
    component_ = &component;
    component.MousePointer(ccIBeam);
    component.BackColor(backColor_);
}

void TextBox::InitProperties() {
    component_->BorderStyle(1);
    component_->Appearance(1);
    text_->Text(component_->Ambient().DisplayName());
}

void TextBox::ReadProperties(PropertyBag& bag) {
    component_->BorderStyle(ToInt16(Read(bag, "BorderStyle", std::int32_t{1})));
    component_->Appearance(ToInt16(Read(bag, "Appearance", std::int32_t{1})));
    Assign(*component_->Font(), Read(bag, "Font", component_->Ambient().Font()));
    BackColor(Read(bag, "BackColor", cWindowBackground));
    ForeColor(Read(bag, "ForeColor", cWindowText));
    MaxLength(Read(bag, "MaxLength", std::int32_t{0}));
    ReadOnly(Read(bag, "ReadOnly", false));
    text_->Text(ReadText(bag, "Text"));
}

void TextBox::WriteProperties(PropertyBag& bag) {
    bag.WriteProperty("BorderStyle", std::int32_t{component_->BorderStyle()}, std::int32_t{1});
    bag.WriteProperty("Appearance", std::int32_t{component_->Appearance()}, std::int32_t{1});
    bag.WriteProperty("Font", ValueOf(*component_->Font()), component_->Ambient().Font());
    bag.WriteProperty("BackColor", backColor_, cWindowBackground);
    bag.WriteProperty("ForeColor", foreColor_, cWindowText);
    bag.WriteProperty("MaxLength", MaxLength(), std::int32_t{0});
    bag.WriteProperty("ReadOnly", readOnly_, false);
    bag.WriteProperty("Text", Text(), std::string());
}

void TextBox::Resize() {
    ShowCaret();
}

void TextBox::Terminate() {
    component_ = nullptr;
}

void TextBox::GotFocus() {
    focused_ = true;
    Repaint();
}

void TextBox::LostFocus() {
    focused_ = false;
    selecting_ = false;
    Repaint();
    events.LostFocus();
}

// Geometry and painting.

tvok_Rect TextBox::TextArea() const {
    tvok_Rect client;
    platform().GetClientRect(component_->hWnd(), client);
    const std::int32_t height = Measure(component_->hDC(), "Ag").bottom;
    const std::int32_t top = std::max((client.bottom - height) / 2, 0);
    return {Padding, top, std::max(client.Right - Padding, Padding), std::min(top + height, client.bottom)};
}

std::int32_t TextBox::WidthTo(std::size_t place) const {
    return place == 0 ? 0 : Measure(component_->hDC(), std::string_view(Text()).substr(0, place)).Right;
}

std::size_t TextBox::PlaceAt(std::int32_t x) const {
    const std::int32_t inText = x - TextArea().Left + scroll_;
    std::size_t low = 0;
    std::size_t high = Text().size();
    while (low < high) {
        std::size_t middle = text_->AtOrBefore((low + high + 1) / 2);
        if (middle <= low) middle = text_->After(low);
        const std::size_t before = text_->Before(middle);
        if (2 * std::int64_t{inText} >= std::int64_t{WidthTo(before)} + WidthTo(middle))
            low = middle;
        else
            high = before;
    }
    return low;
}

std::size_t TextBox::PlaceAtTwips(float x) const {
    return PlaceAt(TruncateToInt32(static_cast<double>(x / services().Screen().TwipsPerPixelX())));
}

tvok_Rect TextBox::SelectionArea(const tvok_Rect& area) const {
    const std::int32_t origin = area.Left - scroll_;
    const tvok_Rect whole{origin + WidthTo(text_->SelectionStart()), area.Top,
                          origin + WidthTo(text_->SelectionEnd()), area.bottom};
    tvok_Rect shown;
    Platform::IntersectRect(shown, whole, area);
    return shown;
}

tvok_Rect TextBox::CaretArea(const tvok_Rect& area) const {
    const std::int32_t x = area.Left - scroll_ + WidthTo(text_->Caret());
    return {x, area.Top, x + 1, area.bottom};
}

void TextBox::DrawText(const tvok_Rect& area, const tvok_Rect& part, OLE_COLOR text,
                       OLE_COLOR background) const {
    const TextSettings settings(component_->hDC(), text, background);
    platform().ExtTextOutA(component_->hDC(), area.Left - scroll_, area.Top, ETO_OPAQUE | ETO_CLIPPED, &part,
                           Text().data(), ToInt32(static_cast<std::int64_t>(Text().size())));
}

void TextBox::Paint() {
    if (component_ == nullptr) return;
    tvok_Rect client;
    platform().GetClientRect(component_->hWnd(), client);
    const tvok_Rect area = TextArea();
    dgi::FillRectFrame(component_->hDC(), client, area, backColor_);
    DrawText(area, area, foreColor_, backColor_);
    if (!focused_) return;
    if (text_->HasSelection())
        DrawText(area, SelectionArea(area), SystemColor(COLOR_HIGHLIGHTTEXT), cHighlight);
    dgi::FillRectColor(component_->hDC(), CaretArea(area), foreColor_);
}

void TextBox::Repaint() const {
    if (component_ != nullptr) platform().InvalidateRect(component_->hWnd(), nullptr, false);
}

void TextBox::ShowCaret() {
    if (component_ == nullptr) return;
    const tvok_Rect area = TextArea();
    const std::int32_t room = std::max(area.Right - area.Left - 1, 0);
    const std::int32_t caret = WidthTo(text_->Caret());
    scroll_ = std::clamp(scroll_, std::max(caret - room, 0), caret);
    scroll_ = std::min(scroll_, std::max(WidthTo(Text().size()) - room, 0));
    Repaint();
}

// Keys.

void TextBox::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyDown(keyCode, shift);
    if (component_ == nullptr || (shift & AltBit) != 0) return;
    const bool control = (shift & ControlBit) != 0;
    if (keyCode == VK_RETURN) return events.Enter();
    if (control && RunCommand(keyCode)) return;
    if (MoveCaret(keyCode, control, (shift & ShiftBit) != 0)) return ShowCaret();
    if (!readOnly_) Changed(EraseByKey(keyCode, control));
}

bool TextBox::MoveCaret(std::int32_t keyCode, bool control, bool extend) {
    const std::size_t caret = text_->Caret();
    const bool collapse = text_->HasSelection() && !extend && !control;
    switch (keyCode) {
    case VK_LEFT:
        text_->MoveTo(collapse  ? text_->SelectionStart()
                      : control ? text_->WordBefore(caret)
                                : text_->Before(caret),
                      extend);
        return true;
    case VK_RIGHT:
        text_->MoveTo(collapse  ? text_->SelectionEnd()
                      : control ? text_->WordAfter(caret)
                                : text_->After(caret),
                      extend);
        return true;
    case VK_HOME: text_->MoveTo(0, extend); return true;
    case VK_END: text_->MoveTo(Text().size(), extend); return true;
    default: return false;
    }
}

void TextBox::Copy() const {
    if (text_->HasSelection()) soft::clipboard().Text(text_->SelectedText());
}

bool TextBox::RunCommand(std::int32_t keyCode) {
    switch (keyCode) {
    case 'A':
        text_->SelectAll();
        ShowCaret();
        return true;
    case 'C': Copy(); return true;
    case 'X':
        Copy();
        if (!readOnly_) Changed(text_->EraseSelection());
        return true;
    case 'V':
        if (!readOnly_) Changed(text_->Insert(soft::clipboard().Text()));
        return true;
    case 'Z':
        if (!readOnly_) Changed(text_->Undo());
        return true;
    default: return false;
    }
}

bool TextBox::EraseByKey(std::int32_t keyCode, bool control) {
    if (keyCode != VK_BACK && keyCode != VK_DELETE) return false;
    if (text_->HasSelection()) return text_->EraseSelection();
    const std::size_t caret = text_->Caret();
    if (keyCode == VK_BACK)
        return text_->Erase(control ? text_->WordBefore(caret) : text_->Before(caret), caret);
    return text_->Erase(caret, control ? text_->WordAfter(caret) : text_->After(caret));
}

void TextBox::KeyPress(std::int16_t& keyAscii) {
    const auto unit = static_cast<char16_t>(keyAscii);
    const char16_t first = std::exchange(firstHalf_, u'\0');
    if (readOnly_ || unit < u' ' || unit == 0x7F) return;
    if (unit >= 0xD800 && unit < 0xDC00) {
        firstHalf_ = unit;
        return;
    }
    char32_t character = unit;
    if (first != 0 && unit >= 0xDC00 && unit < 0xE000)
        character = 0x10000u + ((first - 0xD800u) << 10) + (unit - 0xDC00u);
    std::string typed;
    AppendCharacter(typed, character);
    Changed(text_->Insert(typed));
}

// Mouse.

void TextBox::MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float&) {
    if (component_ == nullptr || button != 1) return;
    if (platform().GetFocus() != component_->hWnd()) component_->SetFocus();
    if (component_ == nullptr) return;
    pressed_ = PlaceAtTwips(x);
    selecting_ = true;
    text_->MoveTo(pressed_, (shift & ShiftBit) != 0);
    ShowCaret();
}

void TextBox::MouseMove(std::int16_t&, std::int16_t&, float& x, float&) {
    if (component_ == nullptr || !selecting_) return;
    text_->MoveTo(PlaceAtTwips(x), true);
    ShowCaret();
}

void TextBox::MouseUp(std::int16_t& button, std::int16_t&, float&, float&) {
    if (button == 1) selecting_ = false;
}

void TextBox::DblClick() {
    if (component_ == nullptr) return;
    text_->SelectWordAt(pressed_);
    ShowCaret();
}

} // namespace tvok
