/// A top-level window that holds controls, moves the focus among them, and can be saved and loaded.
#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tvok/host/Component.h"
#include "tvok/host/PropertyBag.h"
#include "tvok/records/Event.h"

namespace tvok {

class Desktop;
namespace soft {
class FormWindow;
}

/// Where a control stands on its form: pixels of the form's client area.
struct Placement {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 100;
    std::int32_t height = 100;
};

/// A window of the desktop with controls on it. Made by `Desktop::AddForm`; it lives until it is closed.
class Form {
public:
    /// Handlers may do anything to the form, also close it.
    struct Events {
        Event<> Resize;                              ///< After the client area changed.
        Event<> Paint;                               ///< Draw on `hDC()`.
        Event<bool&> Closing;                        ///< Set the boolean to true to keep the form.
        Event<> Closed;                              ///< After its controls have ended.
        Event<std::int16_t&, std::int16_t&> KeyDown; ///< Before the control with the focus: KeyCode, Shift.
    };
    Events events; ///< Assign a callable; `nullptr` drops it.

    ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    /// Makes a control and brings it up: in run mode it is loaded from `settings` or from every key's
    /// default, at design time it is newly placed. It lives until `Remove` or the form's end.
    template<std::derived_from<host::Control> T, class... Args>
    T& Add(std::string_view name, const Placement& place, Args&&... args) {
        auto control = std::make_unique<T>(std::forward<Args>(args)...);
        T& result = *control;
        Adopt(name, place, std::move(control), nullptr);
        return result;
    }
    /// The same for a control made elsewhere, loaded from `settings` where given.
    void Adopt(std::string_view name, const Placement& place, std::unique_ptr<host::Control> control,
               host::PropertyBag* settings);
    /// Ends the control. Also allowed inside one of its own events, whoever called it: it is then freed when
    /// they have returned, by the next turn of the message loop.
    void Remove(host::Control& control);

    host::Control* Find(std::string_view name) const; ///< Null where there is none.
    template<std::derived_from<host::Control> T>
    T* Find(std::string_view name) const {
        return dynamic_cast<T*>(Find(name));
    }
    std::vector<std::string> Names() const; ///< In the order of adding, which is the order of Tab.
    /// The component of a control of this form: its window, size, visibility and focus. Throws `ObjectError`
    /// for any other control.
    host::Component& ComponentOf(const host::Control& control) const;
    Placement PlacementOf(const host::Control& control) const;        ///< Where it stands now.
    void Place(const host::Control& control, const Placement& place); ///< Moves it there.

    std::string Caption() const;
    void Caption(std::string_view text);
    std::int32_t Width() const; ///< Client size in pixels.
    std::int32_t Height() const;
    void Size(std::int32_t width, std::int32_t height); ///< Of the client area.
    void Move(std::int32_t x, std::int32_t y);          ///< On the screen: the outer left top.
    OLE_COLOR BackColor() const;                        ///< Default button face.
    void BackColor(OLE_COLOR color);
    bool
    Resizable() const; ///< Whether the user may change its size, where the display lets users. Default true.
    void Resizable(bool resizable);
    host::Handle hWnd() const; ///< Its window, the parent of its controls'.
    host::Handle hDC() const;  ///< The context of the client area, for the whole life.
    void Close();              ///< As the user would: raises `Closing`.

    /// Run mode by default. At design time controls keep their properties and do not run. Set before adding
    /// controls.
    bool UserMode() const;
    void UserMode(bool run);

    /// Form files: caption, size, and each control's type, name, place and settings. Throws `FileError` that
    /// names file, line and key. `Load` checks everything before it adds anything; the form has to be empty.
    void Save(const std::string& file) const;
    void Load(const std::string& file);

    soft::FormWindow& window() { return *window_; } ///< The form's insides, for the desktop's own parts.
    const soft::FormWindow& window() const { return *window_; }

private:
    friend class Desktop;
    friend class soft::FormWindow;
    explicit Form(std::unique_ptr<soft::FormWindow> window);
    std::unique_ptr<soft::FormWindow> window_;
};

} // namespace tvok
