#include "tvok/host/desktop/windows/WindowTree.h"

#include <random>

#include <gtest/gtest.h>

#include "tests/host/desktop/windows/PatternWindow.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/SoftHooks.h"

namespace tvok::test {
namespace {

using soft::Window;

DesktopOptions Headless() {
    DesktopOptions options;
    options.display = DesktopOptions::Display::Headless;
    return options;
}

/// A desktop with a top-level window of 64 x 48 and others below it.
class Tree {
public:
    Tree() : desktop_(Headless()) { Add(nullptr, {10, 20, 74, 68}); }

    soft::World& world() { return desktop_.world(); }
    soft::WindowTree& windows() { return world().windows; }
    PatternWindow& operator[](std::size_t index) { return *all_[index]; }
    std::size_t size() const { return all_.size(); }
    PatternWindow& top() { return *all_[0]; }

    PatternWindow& Add(Window* parent, const tvok_Rect& rect, bool shown = true) {
        const auto id = static_cast<std::int32_t>(all_.size()) + 1;
        all_.push_back(std::make_unique<PatternWindow>(world(), id, parent, rect, shown));
        return *all_.back();
    }
    void Paint() {
        windows().UpdateAll();
        windows().DrawFrames();
    }

    /// What the surface of `top` has to show: found pixel by pixel, from back to front.
    std::vector<std::uint32_t> Expected(const Window& top) {
        const std::int32_t width = soft::WidthOf(top.rect());
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * soft::HeightOf(top.rect())));
        for (std::int32_t y = 0; y < soft::HeightOf(top.rect()); ++y)
            for (std::int32_t x = 0; x < width; ++x)
                pixels[static_cast<std::size_t>(y * width + x)] = soft::PixelOf(ColorAt(top, x, y, 0, 0));
        return pixels;
    }
    std::vector<std::uint32_t> Actual(const Window& top) {
        const soft::Surface& surface = top.top()->surface;
        std::vector<std::uint32_t> pixels;
        for (std::int32_t y = 0; y < surface.Height(); ++y)
            pixels.insert(pixels.end(), surface.Row(y), surface.Row(y) + surface.Width());
        return pixels;
    }

    /// Whose client area a pixel of a surface belongs to, by the rectangles alone; null for a frame.
    const Window* Owner(const Window& window, std::int32_t x, std::int32_t y) {
        const tvok_Rect area = ClientOf(window);
        if (!soft::Contains(area, {x, y})) return nullptr;
        for (const Window* child : window.children())
            if (child->shown() && soft::Contains(child->rect(), {x - area.Left, y - area.Top}))
                return Owner(*child, x - area.Left - child->rect().Left, y - area.Top - child->rect().Top);
        return &window;
    }

private:
    /// The client area within the window's own rectangle.
    static tvok_Rect ClientOf(const Window& window) {
        return soft::Inside({0, 0, soft::WidthOf(window.rect()), soft::HeightOf(window.rect())},
                            window.insets());
    }
    std::int32_t ColorAt(const Window& window, std::int32_t x, std::int32_t y, int, int) {
        const auto& client = static_cast<const PatternWindow&>(window.client());
        const tvok_Rect area = ClientOf(window);
        if (!soft::Contains(area, {x, y})) return client.FrameColor();
        for (const Window* child : window.children())
            if (child->shown() && soft::Contains(child->rect(), {x - area.Left, y - area.Top}))
                return ColorAt(*child, x - area.Left - child->rect().Left, y - area.Top - child->rect().Top,
                               0, 0);
        return client.ColorAt(x - area.Left, y - area.Top);
    }

    Desktop desktop_;
    std::vector<std::unique_ptr<PatternWindow>> all_;
};

/// Changes a tree at random.
class RandomTree : public Tree {
public:
    explicit RandomTree(unsigned seed) : random_(seed) {
        for (int i = 0; i < 7; ++i) Add(&Any(size()).window, Rect(), Number(0, 4) != 0);
    }

    std::int32_t Number(std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random_);
    }
    tvok_Rect Rect() {
        const std::int32_t left = Number(-12, 50);
        const std::int32_t top = Number(-12, 40);
        return {left, top, left + Number(0, 40), top + Number(0, 30)};
    }
    PatternWindow& Any(std::size_t among) {
        return (*this)[static_cast<std::size_t>(Number(0, static_cast<std::int32_t>(among) - 1))];
    }

    void Change() {
        Window& window = Any(size()).window;
        const bool top = &window == &this->top().window;
        auto& client = static_cast<PatternWindow&>(window.client());
        switch (Number(0, 7)) {
        case 0:
            return windows().Place(window, top ? tvok_Rect{0, 0, Number(20, 90), Number(20, 70)} : Rect());
        case 1: return windows().Show(window, top || !window.shown());
        case 2: return windows().Order(window, Number(0, 1));
        case 3:
            if (!top && !window.IsTopLevel()) windows().Order(window, Any(size()).window.handle());
            return;
        case 4:
            client.frame = {Number(0, 3), Number(0, 3), Number(0, 3), Number(0, 3)};
            return windows().FrameChanged(window);
        case 5:
            if (!top) windows().Reparent(window, Number(0, 5) == 0 ? nullptr : &Any(size()).window);
            return;
        case 6: {
            const tvok_Rect rect = Rect();
            return windows().Invalidate(window, &rect, false);
        }
        default: return Paint();
        }
    }

private:
    std::mt19937 random_;
};

TEST(WindowTree, AVisibleRegionIsWhatNeitherParentsNorSiblingsNorChildrenHide) {
    for (unsigned seed = 0; seed < 12; ++seed) {
        RandomTree tree(seed);
        for (int step = 0; step < 40; ++step) {
            tree.Change();
            for (const Window* top : tree.windows().tops()) {
                for (std::int32_t y = 0; y < soft::HeightOf(top->rect()); y += 3)
                    for (std::int32_t x = 0; x < soft::WidthOf(top->rect()); x += 3) {
                        const Window* owner = top->shown() ? tree.Owner(*top, x, y) : nullptr;
                        for (std::size_t i = 0; i < tree.size(); ++i) {
                            const Window& window = tree[i].window;
                            if (window.top() != top->top()) continue;
                            ASSERT_EQ(window.visible().Contains(x, y), &window == owner)
                                << "seed " << seed << " step " << step << " window " << i << " at " << x
                                << ' ' << y;
                        }
                    }
            }
        }
    }
}

TEST(WindowTree, WhateverChangesTheScreenShowsWhatItWouldShowPaintedAnew) {
    for (unsigned seed = 100; seed < 130; ++seed) {
        RandomTree tree(seed);
        for (int step = 0; step < 40; ++step) {
            tree.Change();
            if (step % 3 != 0) continue;
            tree.Paint();
            for (const Window* top : tree.windows().tops()) {
                if (!top->shown()) continue;
                ASSERT_EQ(tree.Actual(*top), tree.Expected(*top)) << "seed " << seed << " step " << step;
            }
        }
    }
}

TEST(WindowTree, AChangeThatUncoversNothingPaintsNothing) {
    Tree tree;
    auto& below = tree.Add(&tree.top().window, {4, 4, 40, 40});
    auto& above = tree.Add(&tree.top().window, {10, 10, 30, 30});
    tree.Paint();
    below.paintedPixels = above.paintedPixels = tree.top().paintedPixels = 0;
    tree.windows().Place(above.window, {10, 10, 30, 31}); // one row more
    tree.Paint();
    EXPECT_EQ(above.paintedPixels, 20);
    EXPECT_EQ(below.paintedPixels, 0);
    EXPECT_EQ(tree.top().paintedPixels, 0);
    tree.windows().Place(above.window, {10, 10, 30, 30});
    tree.Paint();
    EXPECT_EQ(below.paintedPixels, 20);
    EXPECT_EQ(above.paintedPixels, 20);
}

TEST(WindowTree, AFormThatIsInFrontAlreadyIsNotDrawnAgainToComeToTheFront) {
    TestDesktop desktop;
    Window& window = desktop.form().window().window();
    soft::WindowTree& windows = desktop.desktop().world().windows;
    desktop.Pump();
    const auto isDrawnToComeToTheFront = [&] {
        windows.Order(window, host::HWND_TOP);
        windows.DrawFrames();
        return !window.top()->damage.Take().IsEmpty();
    };
    EXPECT_FALSE(isDrawnToComeToTheFront());
    EXPECT_TRUE(window.top()->toRaise); // another program's window may be before it
    desktop.desktop().AddForm("in front", 50, 50);
    desktop.Pump();
    EXPECT_TRUE(isDrawnToComeToTheFront());
    EXPECT_EQ(windows.tops().front(), &window);
}

TEST(WindowTree, MovingATopLevelWindowPaintsNothing) {
    Tree tree;
    tree.Paint();
    tree.top().paintedPixels = 0;
    tree.windows().Place(tree.top().window, {30, 30, 94, 78});
    tree.Paint();
    EXPECT_EQ(tree.top().paintedPixels, 0);
    EXPECT_EQ(tree.windows().ClientOrigin(tree.top().window), (host::Point{30, 30}));
}

TEST(WindowTree, ScrollingAPartlyCoveredWindowLeavesWhatAFullRepaintWould) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        RandomTree tree(seed);
        tree.Paint();
        PatternWindow& client = tree.Any(tree.size());
        for (int step = 0; step < 4; ++step) {
            if (tree.Number(0, 2) == 0) tree.Change(); // leaves something that waits for a paint
            const std::int32_t dx = tree.Number(0, 3) == 0 ? tree.Number(-9, 9) : 0;
            const std::int32_t dy = tree.Number(-20, 20);
            client.scrolledX -= dx;
            client.scrolledY -= dy;
            tvok_Rect update;
            tree.windows().Scroll(client.window, {dx, dy}, nullptr, nullptr, &update);
            tree.windows().Invalidate(client.window, &update, false);
            tree.windows().Update(client.window);
        }
        tree.Paint();
        const Window& top = *client.window.top()->window;
        if (top.shown()) {
            ASSERT_EQ(tree.Actual(top), tree.Expected(top)) << "seed " << seed;
        }
    }
}

TEST(WindowTree, ScrollingMovesPixelsAndPaintsOnlyTheUncoveredBand) {
    Tree tree;
    auto& list = tree.Add(&tree.top().window, {4, 4, 44, 44});
    tree.Paint();
    list.paintedPixels = 0;
    list.scrolledY += 5;
    tvok_Rect update;
    ASSERT_TRUE(tree.windows().Scroll(list.window, {0, -5}, nullptr, nullptr, &update));
    EXPECT_EQ(update, (tvok_Rect{0, 35, 40, 40}));
    tree.windows().Invalidate(list.window, &update, false);
    tree.Paint();
    EXPECT_EQ(list.paintedPixels, 40 * 5);
    EXPECT_EQ(tree.Actual(tree.top().window), tree.Expected(tree.top().window));
}

TEST(WindowTree, WhatWaitedForAPaintStillWaitsWhereItWasScrolledTo) {
    Tree tree;
    auto& list = tree.Add(&tree.top().window, {4, 4, 44, 44});
    tree.Paint();
    const tvok_Rect stale{0, 20, 40, 24};
    tree.windows().Invalidate(list.window, &stale, false);
    tvok_Rect update;
    tree.windows().Scroll(list.window, {0, -10}, nullptr, nullptr, &update);
    EXPECT_TRUE(list.window.update().ContainsWhole({4, 14, 44, 18})); // on the surface
    EXPECT_FALSE(list.window.update().Contains(10, 24));
    EXPECT_EQ(update, (tvok_Rect{0, 10, 40, 40}));
}

TEST(WindowTree, BeginPaintClipsToWhatIsInvalidAndValidatesIt) {
    Tree tree;
    tree.Paint();
    const tvok_Rect part{3, 4, 10, 12};
    Window& window = tree.top().window;
    tree.windows().Invalidate(window, &part, false);
    host::PaintStruct paint;
    EXPECT_EQ(tree.windows().BeginPaint(window, paint), window.hDC());
    EXPECT_EQ(paint.rcPaint, part);
    EXPECT_FALSE(paint.fErase);
    EXPECT_TRUE(window.update().IsEmpty());
    EXPECT_EQ(window.dc().Clip(), soft::Region(part));
    tree.windows().EndPaint(window);
    EXPECT_EQ(window.dc().Clip(), window.visible());
}

TEST(WindowTree, HandlesNameNothingOnceTheWindowIsGoneAndAreNotUsedAgainSoon) {
    Tree tree;
    host::Platform& platform = host::platform();
    auto gone =
        std::make_unique<PatternWindow>(tree.world(), 99, &tree.top().window, tvok_Rect{0, 0, 9, 9}, true);
    const host::Handle hWnd = gone->window.handle();
    const host::Handle hDC = gone->window.hDC();
    gone.reset();
    auto& next = tree.Add(&tree.top().window, {0, 0, 9, 9});
    EXPECT_NE(next.window.handle(), hWnd);
    tvok_Rect rect{1, 2, 3, 4};
    EXPECT_FALSE(platform.GetClientRect(hWnd, rect));
    EXPECT_FALSE(platform.FillRect(hDC, rect, platform.GetStockObject(host::WHITE_BRUSH)));
    EXPECT_EQ(platform.GetParent(hWnd), 0);
    EXPECT_FALSE(platform.InvalidateRect(hWnd, nullptr, true));
    EXPECT_FALSE(platform.PostMessageA(hWnd, host::WM_USER, 0, 0));
    EXPECT_EQ(platform.GetWindowDC(hWnd), 0);
}

TEST(WindowTree, AWindowContextReachesTheFrameAndItsOriginIsTheOuterCorner) {
    Tree tree;
    auto& framed = tree.Add(&tree.top().window, {4, 6, 24, 26});
    framed.frame = {2, 2, 2, 2};
    tree.windows().FrameChanged(framed.window);
    tree.Paint();
    host::Platform& platform = host::platform();
    const host::Handle hDC = platform.GetWindowDC(framed.window.handle());
    host::Point origin;
    ASSERT_TRUE(platform.GetDCOrgEx(hDC, origin));
    EXPECT_EQ(origin, (host::Point{14, 26}));
    platform.FillRect(hDC, {0, 0, 1, 1}, platform.GetStockObject(host::WHITE_BRUSH));
    EXPECT_EQ(tree.top().window.top()->surface.Row(6)[4], 0xFFFFFFu);
    EXPECT_TRUE(platform.ReleaseDC(framed.window.handle(), hDC));
    EXPECT_FALSE(platform.ReleaseDC(framed.window.handle(), hDC));
    ASSERT_TRUE(platform.GetDCOrgEx(framed.window.hDC(), origin));
    EXPECT_EQ(origin, (host::Point{16, 28}));
}

TEST(WindowTree, TheScreensContextDrawsNothingAndKnowsTheResolution) {
    Tree tree;
    host::Platform& platform = host::platform();
    const host::Handle screen = platform.GetWindowDC(0);
    EXPECT_EQ(platform.GetDeviceCaps(screen, host::LOGPIXELSY), 96);
    EXPECT_TRUE(platform.FillRect(screen, {0, 0, 5, 5}, platform.GetStockObject(host::BLACK_BRUSH)));
    EXPECT_TRUE(platform.ReleaseDC(0, screen));
}

TEST(WindowTree, HugeAndInvertedRectanglesAreTakenWithinReason) {
    Tree tree;
    auto& child = tree.Add(&tree.top().window, {0, 0, 10, 10});
    host::Platform& platform = host::platform();
    const std::int32_t most = 0x7FFFFFFF;
    platform.SetWindowPos(child.window.handle(), 0, -most, -most, most, most, 0);
    platform.SetWindowPos(child.window.handle(), 0, most, most, -most, -most, 0);
    EXPECT_EQ(soft::WidthOf(child.window.rect()), 0);
    platform.SetWindowPos(tree.top().window.handle(), 0, 0, 0, most, 10, 0);
    EXPECT_EQ(soft::WidthOf(tree.top().window.rect()), soft::kMaxSurface);
    const tvok_Rect all{-most, -most, most, most};
    EXPECT_TRUE(platform.InvalidateRect(tree.top().window.handle(), &all, false));
    tvok_Rect update;
    EXPECT_TRUE(platform.ScrollDC(tree.top().window.hDC(), most, -most, &all, &all, 0, &update));
}

} // namespace
} // namespace tvok::test
