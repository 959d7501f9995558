/// Everything of a desktop: its parts, and what ties them together.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tvok/host/Font.h"
#include "tvok/host/desktop/Desktop.h"
#include "tvok/host/desktop/gdi/GdiObjects.h"
#include "tvok/host/desktop/pixels/ImageList.h"
#include "tvok/host/desktop/shell/Clipboard.h"
#include "tvok/host/desktop/text/TextEngine.h"
#include "tvok/host/desktop/windows/FocusManager.h"
#include "tvok/host/desktop/windows/Hooks.h"
#include "tvok/host/desktop/windows/InputRouter.h"
#include "tvok/host/desktop/windows/MessageLoop.h"
#include "tvok/host/desktop/windows/ScrollTracker.h"
#include "tvok/host/desktop/windows/SoftPlatform.h"
#include "tvok/host/desktop/windows/SoftServices.h"
#include "tvok/host/desktop/windows/WindowTree.h"

namespace tvok::soft {

/// The one thread's number, as `Services::ThreadID` gives it.
inline constexpr std::int32_t kThreadID = 1;
/// An arrow's step of a horizontal bar, in pixels.
inline constexpr std::int32_t kHorizontalLine = 16;
/// Of the title that a form draws itself.
inline constexpr std::int32_t kTitleHeight = 20;
/// The second press of a double click is within half of this of the first.
inline constexpr std::int32_t kDoubleClickSize = 4;

class World {
public:
    World(Desktop& desktop, const DesktopOptions& options, std::unique_ptr<Display> display);
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// While one lives, nothing that was buried is freed: a control's own code may be below on the stack.
    class Running {
    public:
        explicit Running(World& world) : depth_(world.depth_) { ++depth_; }
        ~Running() { --depth_; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

    private:
        int& depth_;
    };

    /// Asks the hooks of the window, then the window. Nothing happens where there is none.
    std::int32_t Send(const Message& message);
    bool ProcessEvents(std::chrono::milliseconds timeout);
    /// Lets what waits run and shows it, also in the middle of a handler.
    void DoEvents();
    void Quit(int code);
    bool IsOver() const { return over_; }
    int ExitCode() const { return exitCode_; }

    std::chrono::milliseconds Now() const { return clock_.Now(); }
    float TwipsPerPixel() const { return 1440.0F / static_cast<float>(theme.dotsPerInch); }
    host::FontValue DefaultFont() const;
    std::int32_t ColorOf(OLE_COLOR color) const; ///< 0x00BBGGRR.
    void SetTheme(const Theme& wanted);
    void Scale(float scale);

    Form& AddForm(std::unique_ptr<Form> form);
    void CloseForm(Form& form);
    FormWindow* FormOf(const Window& window) const; ///< Null for a popup.
    /// Other forms take no input until this is given what it gave back: the one before. Null: all take it.
    FormWindow* Modal(FormWindow* form) { return std::exchange(modal_, form); }
    FormWindow* Modal() const { return modal_; }
    bool TakesInput(const FormWindow* form) const { return !modal_ || !form || form == modal_; }
    void FormGone(const FormWindow& form);
    host::Point NextFormPlace();

    /// Keeps something until no event can be running any more that belongs to it.
    void Bury(std::shared_ptr<void> thing) { grave_.push_back(std::move(thing)); }
    void WindowGone(const Window& window);
    void WindowHidden(const Window& window);
    /// Paints what has to be painted and gives the damage to the display.
    void Present();
    bool NeedsPresent() const; ///< Whether that would tell the display anything, paints apart.

    host::Handle AddImages(ImageList images);
    const ImageList* Images(host::Handle handle) const;

    Desktop& desktop;
    Theme theme;
    GdiObjects objects;
    TextEngine text;
    std::unique_ptr<Display> display;
    Hooks hooks;
    WindowTree windows;
    MessageLoop loop;
    FocusManager focus;
    ScrollTracker tracker;
    InputRouter input;
    SoftPlatform platform;
    SoftServices services;
    std::vector<std::unique_ptr<Form>> forms;

private:
    DisplayWindow Describe(const Window& window) const;
    void Tell(Window& window);
    void Show(Window& window);
    void FreeBuried();

    const Clock& clock_;
    DisplayClipboard clipboard_;
    Clipboard* clipboardBefore_;
    FormWindow* modal_ = nullptr;
    std::vector<std::shared_ptr<void>> grave_;
    std::vector<std::unique_ptr<ImageList>> images_;
    int depth_ = 0; ///< How many `Running` live.
    bool over_ = false;
    int exitCode_ = 0;
    std::int32_t formsMade_ = 0;
};

} // namespace tvok::soft
