/// The window of a form: its frame where the display has none, its controls, and the way of the focus.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/windows/ComponentWindow.h"

namespace tvok::soft {

class FormWindow final : public WindowClient {
public:
    FormWindow(World& world, std::string_view caption, std::int32_t width, std::int32_t height);
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
    void RaiseKeyDown(std::int16_t& code, std::int16_t& shift);

    std::int32_t Process(Window& window, const Message& message) override;
    Insets Frame() const override;
    void DrawFrame(Window& window, DeviceContext& context) override;
    std::int32_t EraseColor() const override;
    Window* FocusByMouse() override { return nullptr; }

    std::string caption;
    OLE_COLOR backColor = cButtonFace;
    bool userMode = true;
    bool resizable = true;

private:
    void Paint();
    tvok_Rect CloseButton() const; ///< In the window's own coordinates; empty without a frame of its own.
    void PressFrame(const Message& message);

    World& world_;
    Form* form_ = nullptr;
    std::vector<Entry> entries_;
    host::Handle lastFocus_ = 0;
    bool ended_ = false;
    Window window_;
};

} // namespace tvok::soft
