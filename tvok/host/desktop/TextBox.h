/// A single-line edit field.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tvok/host/Component.h"
#include "tvok/host/PropertyBag.h"
#include "tvok/records/Event.h"

namespace tvok {

namespace soft {
class EditText;
}

/// Edits by whole characters as a reader sees them. Arrow keys, Home and End move the caret, by words with
/// Control, and select with Shift; a drag selects, a double click selects a word. Control with A, C, X, V and
/// Z selects all, copies, cuts, pastes and takes back.
class TextBox : public host::Control {
public:
    /// Handlers may do anything to the control, also remove it.
    struct Events {
        Event<> Change;                              ///< The text changed, by the user or by a write.
        Event<std::int16_t&, std::int16_t&> KeyDown; ///< KeyCode and Shift; what is left in them is acted on.
        Event<> Enter;                               ///< The user pressed the Enter key.
        Event<> LostFocus;                           ///< The focus went elsewhere.
    };
    Events events;

    TextBox();
    ~TextBox() override;

    const std::string& Text() const; ///< UTF-8.
    /// Keeps the first line, without control characters, up to `MaxLength`. The caret goes to the front.
    void Text(std::string_view text);
    std::int32_t MaxLength() const;             ///< In code points. 0, the default, is no limit.
    void MaxLength(std::int32_t characters);    ///< Below 0: ignored. A longer text stays.
    bool ReadOnly() const { return readOnly_; } ///< The user can select and copy, not change. Default false.
    void ReadOnly(bool on) { readOnly_ = on; }

    // The selection, in code points from 0.

    std::int32_t SelStart() const;                        ///< Its first character, or the caret's place.
    std::int32_t SelLength() const;                       ///< 0 where nothing is selected.
    std::string SelText() const;                          ///< UTF-8.
    void Select(std::int32_t start, std::int32_t length); ///< Limited to the text. The caret is at its end.

    OLE_COLOR BackColor() const { return backColor_; } ///< Default window background.
    void BackColor(OLE_COLOR color);
    OLE_COLOR ForeColor() const { return foreColor_; } ///< Default window text.
    void ForeColor(OLE_COLOR color);

    // Life cycle and input, called by the component.

    void Initialize(host::Component& component) override;
    void InitProperties() override;
    void ReadProperties(host::PropertyBag& bag) override;
    void WriteProperties(host::PropertyBag& bag) override;
    void Resize() override;
    void Paint() override;
    void Terminate() override;
    void GotFocus() override;
    void LostFocus() override;
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    void KeyPress(std::int16_t& keyAscii) override;
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void DblClick() override;

private:
    tvok_Rect TextArea() const; ///< Client pixels that the text may use.
    std::int32_t WidthTo(std::size_t place) const;
    std::size_t PlaceAt(std::int32_t x) const;
    std::size_t PlaceAtTwips(float x) const;
    void DrawText(const tvok_Rect& area, const tvok_Rect& part, OLE_COLOR text, OLE_COLOR background) const;
    tvok_Rect SelectionArea(const tvok_Rect& area) const;
    tvok_Rect CaretArea(const tvok_Rect& area) const;

    bool MoveCaret(std::int32_t keyCode, bool control, bool extend);
    bool RunCommand(std::int32_t keyCode);
    bool EraseByKey(std::int32_t keyCode, bool control);
    void Copy() const;
    void ShowCaret();
    void Repaint() const;
    void Changed(bool changed); ///< Shows the text, and raises `Change` where it changed.

    host::Component* component_ = nullptr; ///< Null before `Initialize` and after `Terminate`.
    std::unique_ptr<soft::EditText> text_;
    OLE_COLOR backColor_ = cWindowBackground;
    OLE_COLOR foreColor_ = cWindowText;
    std::int32_t scroll_ = 0; ///< Pixels of the text left of the area.
    bool readOnly_ = false;
    bool focused_ = false;
    bool selecting_ = false;  ///< The button is down since it was pressed here.
    std::size_t pressed_ = 0; ///< Place of the last press.
    char16_t firstHalf_ = 0;  ///< Of a character of two UTF-16 units, until the second comes.
};

} // namespace tvok
