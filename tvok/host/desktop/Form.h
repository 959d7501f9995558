/// A window that holds controls, moves the focus among them, and can be saved and loaded. It is top-level, or
/// inside another form.
#pragma once

#include <concepts>
#include <cstddef>
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
struct FormFile;
struct FormFileControl;
namespace soft {
class FormWindow;
class Window;
} // namespace soft

/// Where a control stands on its form: pixels of the form's client area.
struct Placement {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 100;
    std::int32_t height = 100;
    friend bool operator==(const Placement&, const Placement&) = default;
};

/// A rectangle that a designer shows above the controls: a handle, or an edge of a frame.
struct FormMark {
    tvok_Rect rect; ///< Pixels of the form's client area.
    OLE_COLOR fill = cHighlight;
    OLE_COLOR edge = cHighlight; ///< Its outermost pixels.
    friend bool operator==(const FormMark&, const FormMark&) = default;
};

/// A window of the desktop with controls on it. Made by `Desktop::AddForm` or by another form; it lives until
/// it is closed.
class Form {
public:
    /// Button (1 left, 2 right, 4 middle; of a move, all that are down), Shift, and the point in pixels of
    /// the client area, which may be outside it.
    using MouseEvent = Event<std::int16_t, std::int16_t, std::int32_t, std::int32_t>;

    /// Handlers may do anything to the form, also close it.
    struct Events {
        Event<> Resize;                              ///< After the client area changed.
        Event<> Paint;                               ///< Draw on `hDC()`.
        Event<bool&> Closing;                        ///< Set the boolean to true to keep the form.
        Event<> Closed;                              ///< After its controls have ended.
        Event<std::int16_t&, std::int16_t&> KeyDown; ///< Before the control with the focus: KeyCode, Shift.

        // The form is designed while it is at design time and `MouseDown` has a handler. Then, and only then,
        // it hears the mouse anywhere on it in place of its controls, and on its frame if it is an inner one.
        // While a button is down, it has the mouse wherever that goes. Its controls do not get the focus
        // either.

        MouseEvent MouseDown; ///< A button went down.
        MouseEvent MouseMove; ///< The pointer moved.
        MouseEvent MouseUp;   ///< A button went up.
        MouseEvent DblClick;  ///< Instead of the second `MouseDown` of the left button.
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
    /// Gives a control another place in that order, 0 for the first; one beyond the end is the last. It comes
    /// to stand behind the one before it and in front of those after it, as controls do from the start.
    void Reorder(const host::Control& control, std::size_t place);
    /// The component of a control of this form: its window, size, visibility and focus. Throws `ObjectError`
    /// for any other control.
    host::Component& ComponentOf(const host::Control& control) const;
    Placement PlacementOf(const host::Control& control) const;        ///< Where it stands now.
    void Place(const host::Control& control, const Placement& place); ///< Moves it there.

    /// A form inside this one, or inside the area of one of its controls, with a frame and a caption of its
    /// own and this client size. It lives until it is closed, its control is removed or this form ends; only
    /// a close by itself raises its `Closed`. The Tab key stays among its controls while the focus is there.
    Form& AddForm(std::string_view caption, std::int32_t width, std::int32_t height);
    /// The same inside a control.
    Form& AddForm(const host::Control& inside, std::string_view caption, std::int32_t width,
                  std::int32_t height);

    std::string Caption() const;
    void Caption(std::string_view text);
    std::int32_t Width() const; ///< Client size in pixels.
    std::int32_t Height() const;
    void Size(std::int32_t width, std::int32_t height); ///< Of the client area.
    /// The outer left top: on the screen, of an inner form in the area that it is in.
    void Move(std::int32_t x, std::int32_t y);
    OLE_COLOR BackColor() const; ///< Default button face.
    void BackColor(OLE_COLOR color);
    bool
    Resizable() const; ///< Whether the user may change its size, where the display lets users. Default true.
    void Resizable(bool resizable);
    std::int16_t MousePointer() const;       ///< Over the form itself; over all of a designed one. Default 0.
    void MousePointer(std::int16_t pointer); ///< Shows at once.
    host::Handle hWnd() const;               ///< Its window, the parent of its controls'.
    host::Handle hDC() const;                ///< The context of the client area, for the whole life.
    void SetFocus(); ///< To the control that had it last, else to the first; of a designed form to itself.
    void Close();    ///< As the user would: raises `Closing`.

    /// Run mode by default. At design time controls keep their properties and do not run. Set before adding
    /// controls.
    bool UserMode() const;
    void UserMode(bool run);
    /// Shows these rectangles above the controls, the later ones above the earlier, in place of those before.
    /// Meant for a designed form: otherwise they keep the mouse from what is below. Call it again after a
    /// control came to the front by its `ZOrder`.
    void Marks(const std::vector<FormMark>& marks);

    // What form files hold. See FormFile.h.

    FormFile Content() const;                                      ///< What `Save` writes.
    FormFileControl ContentOf(const host::Control& control) const; ///< The same of one control.
    void Content(const FormFile& content); ///< The form has to be empty, and is so after a throw.
    host::Control& Add(const FormFileControl& content); ///< Throws `Error` where the type is not known.

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
    Form& AddInner(soft::Window& parent, std::string_view caption, std::int32_t width, std::int32_t height);
    std::unique_ptr<soft::FormWindow> window_;
};

} // namespace tvok
