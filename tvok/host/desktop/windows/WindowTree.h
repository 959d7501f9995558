/// All windows of a desktop: their tree and order, where they lie, what of them is visible, and what has to
/// be painted.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tvok/host/desktop/displays/Display.h"
#include "tvok/host/desktop/windows/HandleTable.h"
#include "tvok/host/desktop/windows/Window.h"

namespace tvok::soft {

class World;

/// What a window has because it is not inside another: the pixels, and what the display knows of it.
struct TopLevel {
    Window* window = nullptr;
    Surface surface;
    Damage damage; ///< What was drawn since the display saw it.
    std::string caption;
    bool popup = true; ///< Torn out of a form: above the forms, takes no focus.
    bool toRaise = false;
    bool isOpen = false; ///< The display has it.
    DisplayWindow told;  ///< What the display was told last.
};

/// What `WindowTree::OpenContext` gives.
struct FrameContext {
    FrameContext(GdiObjects& objects, TextEngine& text) : context(objects, text) {}
    DeviceContext context;
    ContextSlot slot;
    host::Handle handle = 0; ///< 0: spare.
};

/// Where a point of the screen falls.
struct Hit {
    Window* window = nullptr;
    std::int32_t code = host::HTNOWHERE;
};

/// Every change keeps the visible regions right, and what it uncovers is invalidated. A window that keeps its
/// place keeps its pixels; one that moves on its surface is painted anew. Messages are sent when the change
/// is complete; the windows may be gone when they return.
class WindowTree {
public:
    explicit WindowTree(World& world);
    ~WindowTree();
    World& world() const { return world_; }
    WindowTree(const WindowTree&) = delete;
    WindowTree& operator=(const WindowTree&) = delete;

    // The tree.

    /// A window without a parent is top-level. It comes to the front. Sends nothing.
    void Attach(Window& window, Window* parent, const tvok_Rect& rect, bool shown);
    void Remove(Window& window); ///< With all windows below it. Harmless twice.
    Window* Find(host::Handle hWnd) const { return windows_.Find(hWnd); }
    std::vector<Window*> All() const; ///< Every window, parents first.
    /// Top-level windows from front to back: the topmost band, then the others.
    const std::vector<Window*>& tops() const { return tops_; }

    // Places.

    void Place(Window& window, const tvok_Rect& rect); ///< WM_MOVE and WM_SIZE follow a real change.
    void Show(Window& window, bool show);
    void Order(Window& window, host::Handle after); ///< HWND_TOP and its like, or a sibling to stand behind.
    /// The rectangle keeps its numbers. Null: a popup of its own. False for a parent inside the window.
    bool Reparent(Window& window, Window* parent);
    void FrameChanged(Window& window); ///< Its frame or a scroll bar came, went or changed. Sends nothing.
    void Bars(Window& window, ScrollBars* bars);
    void ExStyle(Window& window, std::int32_t style);

    host::Point ClientOrigin(const Window& window) const; ///< On the screen.
    tvok_Rect ScreenRect(const Window& window) const;     ///< Outer.
    Hit HitTest(host::Point screen) const;

    // Painting.

    /// Client coordinates; null for the whole client area.
    void Invalidate(Window& window, const tvok_Rect* rect, bool erase);
    void InvalidateAll();
    void InvalidateFrame(Window& window) { window.frameDirty_ = true; }
    /// Sends WM_PAINT if something is invalid. What throws, or does not paint, leaves the window valid.
    void Update(Window& window);
    /// Paints every window that needs it, and what that invalidates; what never ends waits for the next call.
    void UpdateAll();
    bool NeedsPaint() const;
    void DrawFrames();
    bool NeedsFrames() const; ///< Whether `DrawFrames` would draw.
    host::Handle BeginPaint(Window& window, host::PaintStruct& paint);
    void EndPaint(Window& window);
    bool Scroll(Window& window, host::Point by, const tvok_Rect* scroll, const tvok_Rect* clip,
                tvok_Rect* update);

    // Contexts.

    const ContextSlot* Context(host::Handle hDC) const { return contexts_.Find(hDC); }
    /// A context for a whole window; null for one of the screen, which draws nothing.
    host::Handle OpenContext(Window* window);
    bool CloseContext(host::Handle hDC);
    host::Point ContextOrigin(host::Handle hDC) const; ///< On the screen.

private:
    struct Affected; ///< What a change may have touched.

    template<class Change>
    void Rearrange(Window& window, Change change);
    void UpdatePlaces(Window& window);
    void Recompute(Window& window, const Affected& affected);
    void Reveal(Window& window);
    void RemoveCover(const Window& window, Region& region) const;
    void RemoveChildren(const Window& window, Region& region) const;
    void ApplyClip(Window& window);
    void TargetContext(FrameContext& context);
    void CloseContextsOf(const Window& window);
    void Link(Window& window, Window* parent);
    void Unlink(Window& window);
    void SortTops();
    void Erase(Window& window, host::PaintStruct& paint);
    void DrawFrame(Window& window);
    void MoveDirtyPart(Window& window, host::Point by, const tvok_Rect& scroll, const tvok_Rect& clip);

    World& world_;
    HandleTable<Window> windows_{1};
    HandleTable<ContextSlot> contexts_{2};
    std::vector<Window*> tops_;
    std::vector<std::unique_ptr<FrameContext>> frameContexts_; ///< Open ones and spare ones.
    std::unique_ptr<DeviceContext> frameDc_;
    Region scratch_;
    Region dirty_;
    std::vector<host::Handle> stale_;
};

} // namespace tvok::soft
