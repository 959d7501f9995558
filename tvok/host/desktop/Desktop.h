/// The software desktop: windows, messages, pixels and text in one process, shown on a screen or kept in
/// memory.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/host/Platform.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/Input.h"
#include "tvok/host/desktop/Theme.h"

namespace tvok {

class Form;
namespace soft {
class Display;
class World;
} // namespace soft

/// What the desktop takes its time from: double clicks and auto-repeat.
class Clock {
public:
    virtual ~Clock() = default;
    virtual std::chrono::milliseconds Now() const = 0; ///< Never less than before.
};

/// What a desktop is made with. The defaults are those of a program for a user.
struct DesktopOptions {
    /// Automatic: a window where there is a display, else headless, said in one line on standard error.
    enum class Display { Automatic, Headless, Window };

    Display display = Display::Automatic;
    Theme theme = Theme::Classic();
    std::int32_t screenWidth = 1280;  ///< Of a headless screen, in pixels.
    std::int32_t screenHeight = 1024; ///< The same.
    float scale = 1;                  ///< Screen pixels for each pixel of a window; limited to 0.5 to 4.
    std::string fontFile; ///< One font file for every look-up: pixels that do not depend on the machine.
    /// "en", "tr", …: casing and order of texts, and the language of the string resources; empty for the
    /// user's.
    std::string language;
    const Clock* clock = nullptr; ///< Null: the machine's. Has to outlive the desktop.
};

/// One per thread, and only one thread may call its members, save `Post`. It sets the thread's platform and
/// services.
class Desktop {
public:
    Desktop();
    /// Throws `ResourceError` where a window is asked for and there is no display.
    explicit Desktop(const DesktopOptions& options);
    /// On a display made elsewhere; the options that choose one do not count.
    Desktop(const DesktopOptions& options, std::unique_ptr<soft::Display> display);
    ~Desktop(); ///< Closes every form.
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// A visible form with this client size in pixels. It lives until it is closed or the desktop ends.
    Form& AddForm(std::string_view caption, std::int32_t width, std::int32_t height);
    const std::vector<std::unique_ptr<Form>>& Forms() const; ///< Those that are open.

    /// Processes events until the last form is closed or `Quit` is called; gives `Quit`'s code. A headless
    /// desktop has no user: it processes what waits and returns.
    int Run();
    void Quit(int code = 0); ///< Ends `Run` and `ProcessEvents` with their next turn.
    /// Waits for events up to `timeout`, processes all that wait and shows what changed. False once it is
    /// over.
    bool ProcessEvents(std::chrono::milliseconds timeout);
    /// Runs `task` on the desktop's thread in its turn. The one member that other threads may call.
    void Post(std::function<void()> task);

    bool IsHeadless() const;           ///< Nothing of it is on a screen.
    const Theme& CurrentTheme() const; ///< As of the last `SetTheme`.
    /// Repaints everything; fonts follow a changed resolution. A component whose client area changed by it
    /// hears `Resize`.
    void SetTheme(const Theme& theme);

    /// Screen pixels for each pixel of a window.
    float Scale() const;
    /// From 0.5 to 4; throws `Error` for any other number. Forms keep their size in pixels of their own and
    /// their left top on the screen, so they become larger or smaller there; nobody hears `Resize`, unless
    /// the window system gives a form another size than that. The screen has as many more or fewer pixels of
    /// the desktop's. A headless desktop and one inside another program keep the number and show nothing by
    /// it: their pixels are the windows' own, and it is for whoever shows those to scale them.
    void Scale(float scale);

    /// An image list of square images cut from one PNG strip, or one PNG file each. The handle lives as long
    /// as the desktop. Throws `FileError` that names the file.
    std::int32_t LoadImageList(const std::vector<std::string>& pngFiles, std::int32_t size);
    /// The same from pixels in memory: 0xAARRGGBB, `size` x `size` each, one image after the other.
    std::int32_t AddImageList(const std::vector<std::uint32_t>& pixels, std::int32_t size);

    /// Writes the whole screen, or one form with its frame, as PNG. Throws `FileError` that names the file.
    void SaveScreen(const std::string& pngFile);
    void SaveScreen(const std::string& pngFile, const tvok_Rect& part); ///< A part of it, one pixel or more.
    void SaveForm(const Form& form, const std::string& pngFile);

    /// The user's clipboard, as UTF-8; a headless desktop has one of its own.
    std::string ClipboardText() const;
    /// A text of more bytes than `ClipboardCapacity` changes nothing.
    void ClipboardText(std::string_view text);
    std::size_t ClipboardCapacity() const; ///< About 16 MB on the X Window System, else without a limit.

    /// Input as if from a user: what tests and other displays feed.
    desktop::Input& Input();
    /// Passes every platform call through `platform` instead of the desktop's own, for traces. Null: the own
    /// again.
    void InterposePlatform(host::Platform* platform);
    host::Platform& OwnPlatform();

    soft::World& world() { return *world_; } ///< The desktop's insides, for its own parts.

private:
    std::unique_ptr<soft::World> world_;
    host::Platform* platformBefore_;
    host::Services* servicesBefore_;
};

} // namespace tvok
