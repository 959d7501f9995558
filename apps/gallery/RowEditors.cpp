#include "apps/gallery/RowEditors.h"

#include <utility>

#include "apps/gallery/keys.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/Services.h"

namespace gallery {

using namespace tvok::host;
using tvok::vflag::Editor;

namespace {

constexpr std::int32_t AllCharacters = 1'000'000;

/// Keys that give a character, by their codes.
bool IsTyping(std::int32_t code) {
    return code == VK_SPACE || (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') ||
           (code >= 0x60 && code <= 0x6F) || (code >= 0xBA && code <= 0xE7);
}

bool IsForRows(std::int16_t code) {
    return code == VK_UP || code == VK_DOWN || code == VK_PRIOR || code == VK_NEXT;
}

} // namespace

RowEditors::RowEditors(tvok::Form& form, tvok::gList& list, tvok::TextBox& text, CheckBox& check,
                       EditedRows& rows)
    : form_(form), list_(list), text_(text), check_(check), rows_(rows), window_(list.hwnd()),
      keys_(services().CreateWindowHook()) {
    form_.ComponentOf(text_).BorderStyle(0);
    HearList();
    HearEditors();
    HearKeys();
    HearWheel(wheels_[0], text_);
    HearWheel(wheels_[1], check_);
    Hide();
}

/// The list tells of no keys, and its strip of buttons has the focus after a click on it: keys are heard
/// before either gets them. A popup's keys come to it first, since it hears them from later on.
void RowEditors::HearKeys() {
    keys_->RtMsg = [this](std::int32_t, std::int32_t key, std::int32_t word, std::int32_t&, bool& pass) {
        if (word < 0 || !FocusIsInList()) return; // a key that goes up has the sign bit
        if (platform().GetFocus() != window_) FocusList();
        pass = !ListKey(key);
    };
    std::int32_t kind = 3;
    std::int32_t thread = services().ThreadID();
    bool flag = false;
    keys_->HookSet(kind, thread, flag);
}

/// The wheel turns the list, also where the editor comes to lie under the pointer.
void RowEditors::HearWheel(std::shared_ptr<WindowHook>& hook, const Control& editor) {
    hook = services().CreateWindowHook();
    hook->RtMsg = [this](std::int32_t message, std::int32_t wParam, std::int32_t lParam, std::int32_t&,
                         bool& pass) {
        if (message != WM_MOUSEWHEEL) return;
        platform().PostMessageA(window_, message, wParam, lParam);
        pass = false;
    };
    std::int32_t kind = 0;
    std::int32_t window = form_.ComponentOf(editor).hWnd();
    bool flag = false;
    hook->HookSet(kind, window, flag);
}

void RowEditors::HearList() {
    auto& events = list_.events;
    events.ExEditorIni = [this](tvok::elistdata& item) { Load(item.hItem.key); };
    events.ExEditorSetPosition = [this](const std::string& key, std::int32_t& left, std::int32_t& top,
                                        std::int32_t& width, std::int32_t& height) {
        Place(key, {left, top, width, height}); // the last two as an extent
    };
    events.ExEditorShow = [this](const std::string& key) { Show(key); };
    events.ExEditorDataRestore = [this](const std::string& key) {
        if (key == key_) Commit();
    };
    events.ExEditorHide = [this](const std::string& key) {
        if (key.empty()) {
            HideEditor(text_);
            HideEditor(check_);
        } else {
            HideEditor(EditorOf(key));
        }
    };
}

void RowEditors::HearEditors() {
    text_.events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) { EditorKey(code, shift); };
    text_.events.Enter = [this] {
        if (Commit()) FocusList();
    };
    text_.events.LostFocus = [this] {
        if (hiding_) return;
        Commit();
        Load(std::string(key_)); // also shows the front of a long text again
    };
    check_.events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) {
        EditorKey(code, shift);
        if (code == VK_RETURN) FocusList();
    };
    check_.events.Change = [this] {
        const std::string key = key_;
        rows_.Take(key, Shown());
        Reload(key);
    };
}

Control& RowEditors::EditorOf(const std::string& key) const {
    return rows_.IsTruth(key) ? static_cast<Control&>(check_) : text_;
}

std::string RowEditors::Shown() const {
    if (rows_.IsTruth(key_)) return check_.Value() ? "1" : "0";
    return text_.Text();
}

// The editors' life.

void RowEditors::Load(const std::string& key) {
    key_ = key;
    before_ = rows_.Text(key);
    if (rows_.IsTruth(key)) return check_.Value(before_ == "1");
    text_.Text(before_);
}

/// False where the text is no value: the old one is back then.
bool RowEditors::Commit() {
    if (key_.empty() || rows_.IsTruth(key_) || Shown() == before_) return true;
    const std::string key = key_;
    const std::string text = Shown();
    before_ = text; // what follows may come here again
    const bool taken = rows_.Take(key, text);
    if (key_ == key) Load(key);
    return taken;
}

/// The check box changes its value at once, and Esc still puts back what was there before.
void RowEditors::Reload(const std::string& key) {
    if (key != key_) return;
    if (rows_.IsTruth(key)) return check_.Value(rows_.Text(key) == "1");
    Load(key);
}

void RowEditors::Follow(const std::string& key) {
    if (key == key_ && (rows_.IsTruth(key) || Shown() == before_)) Reload(key);
}

void RowEditors::Take() {
    Commit();
}

void RowEditors::Forget() {
    key_.clear();
    before_.clear();
    Hide();
}

/// The place is one in the list's client area, and the editors are beside the list on the form.
void RowEditors::Place(const std::string& key, const tvok::tvok_Rect& twips) {
    const Screen& screen = services().Screen();
    const auto across = [&](std::int32_t length) {
        return tvok::dgi::TwipsToPixels(static_cast<float>(length), screen.TwipsPerPixelX());
    };
    const auto down = [&](std::int32_t length) {
        return tvok::dgi::TwipsToPixels(static_cast<float>(length), screen.TwipsPerPixelY());
    };
    Point corner{across(twips.Left), down(twips.Top)};
    platform().ClientToScreen(window_, corner);
    platform().ScreenToClient(form_.hWnd(), corner);
    form_.Place(EditorOf(key), {corner.x, corner.y, across(twips.Right), down(twips.bottom)});
}

/// Comes with every repaint of the row. A row that was reached without its editor being loaded, as the first
/// one by the focus, is loaded here, and so is one whose editor shows before the one of the row before
/// closes.
void RowEditors::Show(const std::string& key) {
    if (!form_.ComponentOf(list_).Visible()) return; // another page is on its way
    if (key != key_) {
        Commit();
        Load(key);
    }
    Control& editor = EditorOf(key);
    if (&editor != &text_) HideEditor(text_);
    if (&editor != &check_) HideEditor(check_);
    Component& component = form_.ComponentOf(editor);
    component.Visible(true);
    component.ZOrder(0);
}

/// What is being typed stays in the text box: the row may only have been scrolled away.
void RowEditors::HideEditor(Control& editor) {
    Component& component = form_.ComponentOf(editor);
    if (!component.Visible()) return;
    if (platform().GetFocus() == component.hWnd()) {
        const bool before = std::exchange(hiding_, true);
        form_.ComponentOf(list_).SetFocus();
        hiding_ = before;
    }
    component.Visible(false);
}

void RowEditors::Hide() {
    HideEditor(text_);
    HideEditor(check_);
}

// Keys and the focus.

bool RowEditors::FocusIsInList() const {
    const Handle focus = platform().GetFocus();
    return focus != 0 && (focus == window_ || platform().GetParent(focus) == window_);
}

void RowEditors::FocusList() {
    form_.ComponentOf(list_).SetFocus();
    list_.ListIndex(list_.ListIndex()); // what was edited may have moved the row out of the page
}

void RowEditors::Begin() {
    list_.ListIndex(list_.ListIndex()); // scrolls it back into the page
    Component& editor = form_.ComponentOf(EditorOf(key_));
    if (key_.empty() || !editor.Visible()) return;
    editor.SetFocus();
    text_.Select(0, AllCharacters); // what is typed takes its place
}

/// Whether the key is used up. One that types goes on to the editor, which has the focus by then.
bool RowEditors::ListKey(std::int32_t code) {
    const auto held = [](std::int32_t key) { return platform().GetAsyncKeyState(key) != 0; };
    tvok::elistdata item;
    if (held(VK_CONTROL) || held(VK_MENU) || list_.GetItem(item, {}, list_.ListIndex()) == 0) return false;
    if (item.bParentItem) {
        if (code != VK_RETURN && code != VK_SPACE) return false;
        rows_.Fold(list_.ListIndex());
        return true;
    }
    if (code == F4) {
        rows_.Drop(item.hItem.key);
        return true;
    }
    const bool typing = IsTyping(code) && (!rows_.IsTruth(item.hItem.key) || code == VK_SPACE);
    if ((item.item.vflag & Editor) == 0 || (!typing && code != F2 && code != VK_RETURN)) return false;
    Begin();
    return !typing;
}

void RowEditors::EditorKey(std::int16_t& code, std::int16_t& shift) {
    if (code == VK_ESCAPE) {
        if (rows_.IsTruth(key_) && Shown() != before_) rows_.Take(std::string(key_), std::string(before_));
        Load(std::string(key_));
        FocusList();
        code = 0;
    } else if (shift == 0 && IsForRows(code)) {
        const std::int16_t key = std::exchange(code, std::int16_t{0});
        Commit();
        FocusList();
        list_.KeyIn(key);
    } else if (code == F4) {
        Commit();
        FocusList();
        rows_.Drop(std::string(key_));
        code = 0;
    }
}

} // namespace gallery
