/// The window of a form: its frame where the display has none, its controls and inner forms, and the way of
/// the focus.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/windows/ComponentWindow.h"

namespace tvok::soft {

/// One rectangle of `Form::Marks`.
class MarkWindow final : public WindowClient {
public:
    MarkWindow(World& world, Window& form);

    Window& window() { return window_; }
    void Show(const FormMark& mark); ///< A new one comes to the front.

    std::int32_t Process(Window& window, const Message& message) override;
    std::int32_t EraseColor() const override;

private:
    void Paint();

    World& world_;
    Window& form_;
    FormMark mark_;
    Window window_;
};

class FormWindow final : public WindowClient {
public:
    FormWindow(World& world, std::string_view caption, std::int32_t width, std::int32_t height);
    /// A form whose window is inside this one, which is a part of `outer`.
    FormWindow(FormWindow& outer, Window& parent, std::string_view caption, std::int32_t width,
               std::int32_t height);
    ~FormWindow() override;

    World& world() const { return world_; }
    Window& window() { return window_; }
    const Window& window() const { return window_; }
    Form* form() const { return form_; }
    void form(Form* form) { form_ = form; }

    /// A control and what it stands on. The control goes first: it may hold pictures and the font.
    struct Entry {
        std::string name;
        std::unique_ptr<ComponentWindow> component;
        std::unique_ptr<host::Control> control;
    };
    const std::vector<Entry>& entries() const { return entries_; }
    const Entry& EntryOf(const host::Control& control) const; ///< Throws `ObjectError` where it is not here.
    const Entry* Find(std::string_view name) const;
    void Adopt(std::string_view name, const tvok_Rect& rect, std::unique_ptr<host::Control> control,
               host::PropertyBag* settings);
    void Remove(host::Control& control);
    void Reorder(const host::Control& control, std::size_t place);

    Form& AddInner(std::unique_ptr<Form> form); ///< One that was made for this one as its outer form.
    /// At design time with somebody who hears the mouse: controls get neither mouse nor focus.
    bool IsDesigned() const { return !userMode && form_ && form_->events.MouseDown; }
    bool IsInner() const { return outer_ != nullptr; }
    FormWindow& Outermost() { return outer_ ? outer_->Outermost() : *this; }
    const FormWindow& Outermost() const { return outer_ ? outer_->Outermost() : *this; }
    /// The form that has this window among its own, and not one around it. Null for a popup.
    static FormWindow* Around(const Window& window);

    void Marks(const std::vector<FormMark>& marks);
    void SetPointer(std::int16_t value);

    void SetCaption(std::string_view text);
    void Size(std::int32_t width, std::int32_t height); ///< Of the client area.
    void RequestClose(); ///< As the user would; the form leaves the desktop unless it objects.
    void End();          ///< Ends all controls and takes the window away. Harmless twice.

    void RememberFocus(host::Handle hWnd) { lastFocus_ = hWnd; }
    /// What had the focus last, else the first control that can have it, else the form itself.
    host::Handle WantedFocus() const;
    /// To the next or the previous control in the order of adding. False where there is no other.
    bool MoveFocus(bool back);
    /// The same for Tab, and back for Shift+Tab. False for other keys, and with Control or Alt.
    bool TakeTab(std::int16_t code, std::int16_t shift);
    /// Raises `KeyDown` of the outer forms, then of this one, until one of them makes the code 0.
    void RaiseKeyDown(std::int16_t& code, std::int16_t& shift);

    std::int32_t Process(Window& window, const Message& message) override;
    Insets Frame() const override;
    void DrawFrame(Window& window, DeviceContext& context) override;
    std::int32_t EraseColor() const override;
    std::int16_t Pointer() const override { return pointer; }
    Window* FocusByMouse() override { return IsDesigned() ? &window_ : nullptr; }
    void FocusInside(bool inside) override;

    std::string caption;
    OLE_COLOR backColor = cButtonFace;
    std::int16_t pointer = host::ccDefault;
    bool userMode = true;
    bool resizable = true;

private:
    void Open(std::int32_t width, std::int32_t height);
    void EndInner(const Window& inside);
    void CloseInner(Form& form);
    void Paint();
    bool HearMouse(const Message& message);
    void RaiseMouse(Form::MouseEvent Form::Events::*event, std::int16_t button, const Message& message);
    bool LooksActive() const;
    tvok_Rect CloseButton() const; ///< In the window's own coordinates; empty without a frame of its own.
    void PressFrame(const Message& message);

    World& world_;
    Form* form_ = nullptr;
    FormWindow* const outer_ = nullptr;
    std::vector<Entry> entries_;
    std::vector<std::unique_ptr<Form>> inner_;
    std::vector<std::unique_ptr<MarkWindow>> marks_;
    host::Handle lastFocus_ = 0;
    bool holdsFocus_ = false;
    bool ended_ = false;
    Window window_;
};

} // namespace tvok::soft
