/// The desktop inside another program's window and loop: the program shows pixels, feeds input, and gives the
/// desktop a turn when it wants one. No thread and no window of its own.
///
///     tvok::Embedding embedding(options, tvok::Embedding::Layout::OneSurface, {.wake = postToMyLoop});
///     embedding.Resize(400, 300);
///     embedding.Fill(embedding.desktop().AddForm("Stock", 400, 300));
///     // In the program's loop, after input, a timer or a wake:
///     embedding.Turn();
///     for (const tvok_Rect& rect : embedding.TakeDamage()) show(embedding.Pixels(), rect);
///     wakeMeAfter(embedding.NextTurn());
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/host/desktop/Desktop.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

namespace soft {
class EmbeddedDisplay;
}

/// A form or a popup that wants an outer window of its own.
struct EmbeddedWindow {
    host::Handle id = 0; ///< What members take as `window`.
    tvok_Rect rect;      ///< Its pixels on the desktop's screen, without what the outer window has around it.
    std::string caption; ///< UTF-8.
    bool popup = false;  ///< Borderless, above the forms, never takes the focus.
    bool resizable = true; ///< The user may change its size.
    bool visible = false;  ///< Else the outer window is to be hidden.
};

/// What the desktop asks of the program. Each may be empty. All but `wake` come on the desktop's thread.
/// `opened` and those below it come at the end of `Turn` and before `wait`, only in the layout `Windows`;
/// they may do anything, also take turns and close forms. What one throws leaves through `Turn`; those after
/// it come with the next.
struct EmbeddingCalls {
    /// Something was posted, from any thread, that thread too: have `Turn` called soon, on the desktop's
    /// thread. Comes once, and again after the next turn.
    std::function<void()> wake = nullptr;
    /// A handler waits for the user, such as the colour dialog: run one round of the outer loop, up to this
    /// long, with turns and all. Where this is empty such dialogs end at once as cancelled, and
    /// `Desktop::IsHeadless` is true.
    std::function<void(std::chrono::milliseconds)> wait = nullptr;
    std::function<void(std::int16_t)> pointer =
        nullptr; ///< The shape over the desktop: `ccDefault`, `ccIBeam`, …
    /// The outer clipboard as UTF-8. Where one of the two is empty, the desktop has a clipboard of its own.
    std::function<std::string()> readClipboard = nullptr;
    std::function<void(std::string_view)> writeClipboard = nullptr;

    std::function<void(const EmbeddedWindow&)> opened = nullptr;
    std::function<void(const EmbeddedWindow&)> changed = nullptr; ///< Place, size, caption or visibility.
    std::function<void(host::Handle)> raised = nullptr; ///< To the front, with the focus if it is no popup.
    std::function<void(host::Handle)> closed = nullptr; ///< `id` names nothing any more.
};

/// Pixels are 0x00RRGGBB, row by row from the top.
struct EmbeddedPixels {
    const std::uint32_t* data = nullptr; ///< Null where there are none.
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::ptrdiff_t stride = 0; ///< From row to row, in pixels.
};

/// All members belong to the thread that made it, which may have no other desktop. Its end closes every form
/// and calls nothing but `wake`; it must not end within a turn. A `window` is 0 in the layout `OneSurface`;
/// one that names nothing has no pixels, and input for it is dropped.
class Embedding {
public:
    enum class Layout {
        OneSurface, ///< The screen with all forms and popups is one picture, `window` 0. Forms have frames.
        Windows     ///< Each form and each popup is an outer window. Forms have no frames of their own.
    };
    /// Of the options those that choose a display, and `scale`, do not count. `screenWidth` and
    /// `screenHeight` are the surface, or what popups keep within. Takes turns only when told to.
    Embedding(const DesktopOptions& options, Layout layout, EmbeddingCalls calls = {});
    ~Embedding();
    Embedding(const Embedding&) = delete;
    Embedding& operator=(const Embedding&) = delete;

    Desktop& desktop() { return *desktop_; } ///< The same for its whole life.

    // Turns.

    /// Runs all that waits. Does not wait itself. False once the desktop is over: its last form was closed,
    /// or `Quit` was called. What a handler throws leaves through here; the rest stays for the next turn.
    bool Turn();
    /// How long nothing has to be done. 0: a turn is due; none: until input, `wake` or a change by the
    /// program. To be asked after each turn, after feeding, and after the program touched a control.
    std::optional<std::chrono::milliseconds> NextTurn();

    // Pixels.

    /// The rectangles that changed since they were taken last, in pixels of the window, apart from each
    /// other. Brings `Pixels` up to date.
    std::vector<tvok_Rect> TakeDamage(host::Handle window = 0);
    /// As of the last `TakeDamage`; valid until the next, and until the window closes.
    EmbeddedPixels Pixels(host::Handle window = 0) const;

    // The outer window. Input is queued for the next turn. Buttons, wheel, keys and text are fed to
    // `desktop().Input()`, after `MouseMove` here.

    /// In pixels of the window; outside of it too while a button is held.
    void MouseMove(std::int32_t x, std::int32_t y, host::Handle window = 0);
    /// The outer window got the focus: its form, or the front one of a surface, has it. Not for popups.
    void FocusIn(host::Handle window = 0);
    void FocusOut();       ///< Another window that is not the desktop's got it.
    void PressElsewhere(); ///< A button went down outside of all of the desktop. Closes an open popup.
    /// The outer window has this size, 0 to 16384 each way. A surface changes at once, with what fills it.
    void Resize(std::int32_t width, std::int32_t height, host::Handle window = 0);
    void Moved(std::int32_t x, std::int32_t y, host::Handle window); ///< Where `rect` begins now.
    /// The user wants to close the window; of a surface, the form that fills it. The form may object.
    void CloseRequest(host::Handle window = 0);

    /// The client area covers the surface from now on, whatever its size; the frame lies outside. No more
    /// than one form at a time; others lie above or below it. Nothing in the layout `Windows`.
    void Fill(Form& form);

private:
    void FollowSurface();

    std::unique_ptr<Desktop> desktop_;
    soft::EmbeddedDisplay* display_; ///< The desktop's.
    host::Handle filling_ = 0;
};

} // namespace tvok
