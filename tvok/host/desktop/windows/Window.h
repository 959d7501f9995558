/// One window: a rectangle in a tree with a frame, a client area, a device context of its own, and the parts
/// of its client area that are visible and that have to be painted.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "tvok/host/desktop/gdi/DeviceContext.h"
#include "tvok/host/desktop/windows/Geometry.h"
#include "tvok/host/desktop/windows/Message.h"

namespace tvok::soft {

class Window;
class WindowTree;
class ScrollBars;
struct TopLevel;

/// What stands behind a window: its looks and its normal processing of messages. It outlives its window's
/// place in the tree.
class WindowClient {
public:
    virtual ~WindowClient() = default;

    /// A message that no hook took.
    virtual std::int32_t Process(Window& window, const Message& message) = 0;
    /// The width of the frame without scroll bars.
    virtual Insets Frame() const { return {}; }
    /// Draws the frame; (0, 0) is the window's outer left top.
    virtual void DrawFrame(Window&, DeviceContext&) {}
    virtual std::int32_t EraseColor() const = 0; ///< 0x00BBGGRR.
    virtual std::int16_t Pointer() const { return host::ccDefault; }
    /// Whether a mouse press on the window gives it the focus; null for none, else what gets it.
    virtual Window* FocusByMouse() { return nullptr; }
    /// The focus came into the window or one below it from elsewhere, or went away.
    virtual void FocusInside(bool) {}
    /// The theme's colours, fonts, resolution or widths may be others. Raises nothing.
    virtual void ThemeChanged() {}
    /// The frame became wider or narrower without a change of the window's size.
    virtual void FrameResized() {}
    /// The most that either side of the window may be while it has a parent.
    virtual std::int32_t LongestSide() const { return kMaxCoordinate; }
};

/// What the handle of a device context names.
struct ContextSlot {
    DeviceContext* context = nullptr;
    Window* window = nullptr; ///< Null: the screen, on which nothing is drawn.
    bool whole = false;       ///< Of the outer rectangle, not of the client area.
};

/// Changed by the `WindowTree` alone. Its handles name nothing once it has left the tree; its rectangle
/// stays.
class Window {
public:
    Window(WindowTree& tree, WindowClient& client);
    ~Window(); ///< Leaves the tree.
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    host::Handle handle() const { return handle_; } ///< Stays what it was after the window has left the tree.
    host::Handle hDC() const { return hDC_; }
    bool IsAlive() const { return alive_; }
    DeviceContext& dc() const { return dc_; }
    WindowClient& client() const { return client_; }
    WindowTree& tree() const { return tree_; }

    Window* parent() const { return parent_; }
    const std::vector<Window*>& children() const { return children_; } ///< From front to back.
    bool IsInside(const Window& ancestor) const;                       ///< Also true for itself.
    Window& root();
    TopLevel* top() const { return top_; } ///< Null while it is not in the tree.
    bool IsTopLevel() const { return own_ != nullptr; }

    /// The outer rectangle in the parent's client area; of a top-level window, on the screen.
    const tvok_Rect& rect() const { return rect_; }
    const tvok_Rect& outer() const { return outer_; }     ///< On the surface.
    const tvok_Rect& clientArea() const { return area_; } ///< On the surface.
    Insets insets() const;                                ///< Frame and scroll bars.
    bool shown() const { return shown_; }                 ///< Its own flag, whatever its parents do.
    bool IsVisible() const;                               ///< With all its parents.
    const Region& visible() const { return visible_; }    ///< Of the client area, on the surface.
    const Region& update() const { return update_; }      ///< What waits for a paint, on the surface.
    std::int32_t exStyle() const { return exStyle_; }
    ScrollBars* bars() const { return bars_; } ///< Null: none.

private:
    friend class WindowTree;

    WindowTree& tree_;
    WindowClient& client_;
    host::Handle handle_ = 0;
    host::Handle hDC_ = 0;
    bool alive_ = false;
    mutable DeviceContext dc_; ///< Measuring changes nothing of the window.

    Window* parent_ = nullptr;
    std::vector<Window*> children_;
    TopLevel* top_ = nullptr;
    std::unique_ptr<TopLevel> own_; ///< Of a top-level window.
    ContextSlot slot_;

    tvok_Rect rect_;
    tvok_Rect outer_;
    tvok_Rect area_;
    bool shown_ = false;
    std::int32_t exStyle_ = 0;
    ScrollBars* bars_ = nullptr;

    Region visible_;
    host::Point visibleOrigin_;            ///< Where the client area lay when `visible_` was made,
    const TopLevel* visibleTop_ = nullptr; ///< and on which surface.
    Region update_;
    bool erase_ = false;
    bool frameDirty_ = false;
    bool validated_ = false;       ///< By a `BeginPaint` since the last WM_PAINT was sent.
    std::vector<Region> painting_; ///< Of each `BeginPaint` that has no `EndPaint` yet.
};

} // namespace tvok::soft
