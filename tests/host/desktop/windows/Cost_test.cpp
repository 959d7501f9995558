/// What must not grow with anything.
#include <gtest/gtest.h>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/Allocations.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/Services.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {
namespace {

/// Scrolls as the lists do: moves the pixels and paints the band that was uncovered.
class ScrollingControl : public Recorder {
public:
    void ReadProperties(host::PropertyBag&) override {
        hook = host::services().CreateMessageHook();
        hook->HookMode(3);
        bool flag = false;
        hook->HookAttach(component->hWnd(), flag);
        hook->events.Change = [this](std::int32_t value, std::int32_t, std::int32_t) { Scroll(value); };
        hook->events.RtMsg = [this](std::int32_t message, std::int32_t, std::int32_t, std::int32_t&, bool&) {
            if (message == host::WM_PAINT) PaintBand();
        };
        hook->ScrollMax(1000000);
    }
    void Terminate() override { hook.reset(); }

    std::unique_ptr<host::MessageHook> hook;

private:
    void Scroll(std::int32_t value) {
        host::Platform& platform = host::platform();
        tvok_Rect rect;
        tvok_Rect update;
        platform.GetClientRect(component->hWnd(), rect);
        platform.ScrollDC(component->hDC(), 0, (last_ - value) * 18, &rect, &rect, 0, &update);
        platform.InvalidateRect(component->hWnd(), &update, false);
        platform.UpdateWindow(component->hWnd());
        last_ = value;
    }
    void PaintBand() {
        host::Platform& platform = host::platform();
        host::PaintStruct paint;
        platform.BeginPaint(component->hWnd(), paint);
        platform.FillRect(component->hDC(), paint.rcPaint, platform.GetStockObject(host::WHITE_BRUSH));
        platform.EndPaint(component->hWnd(), paint);
    }
    std::int32_t last_ = 0;
};

TEST(Cost, ScrollingARowAllocatesNothingOnceWarm) {
    if (!CanCountAllocations()) GTEST_SKIP() << "allocations cannot be counted here";
    TestDesktop desktop;
    auto& control = desktop.form().Add<ScrollingControl>("a", {10, 10, 400, 300});
    desktop.Pump();
    const auto scroll = [&](std::int32_t from) {
        for (std::int32_t row = from; row < from + 50; ++row) control.hook->ScrollValue(row);
        desktop.Pump();
    };
    scroll(1);
    scroll(51);
    const std::uint64_t before = Allocations();
    for (std::int32_t row = 101; row < 151; ++row) control.hook->ScrollValue(row);
    EXPECT_EQ(Allocations() - before, 0u);
}

TEST(Cost, ChangingBoldAndItalicForEachCellAllocatesNothingOnceWarm) {
    if (!CanCountAllocations()) GTEST_SKIP() << "allocations cannot be counted here";
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    const host::FontPtr font = control.component->Font();
    const auto toggle = [&] {
        for (const bool on : {true, false}) {
            font->Bold(on);
            font->Italic(!on);
            font->Underline(on);
            font->Strikethrough(!on);
            host::platform().ExtTextOutA(control.component->hDC(), 2, 2, 0, nullptr, "Apples", 6);
        }
    };
    toggle();
    desktop.Pump();
    toggle();
    desktop.Pump();
    const std::uint64_t before = Allocations();
    toggle();
    EXPECT_EQ(Allocations() - before, 0u);
}

TEST(Cost, AFontFreesItsDrawingObjects) {
    TestDesktop desktop;
    soft::GdiObjects& objects = desktop.desktop().world().objects;
    const std::int32_t before = objects.LiveObjects();
    {
        auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
        const host::FontPtr font = control.component->Font();
        for (const float size : {8.0F, 9.0F, 10.0F, 11.0F}) {
            font->Size(size);
            font->Bold(size > 9);
        }
        EXPECT_EQ(objects.LiveObjects(), before + 1);
        desktop.form().Remove(control);
    }
    desktop.Pump();
    EXPECT_EQ(objects.LiveObjects(), before);
}

TEST(Cost, AClickOnAnActiveFormRepaintsNothing) {
    TestDesktop desktop;
    auto& control = desktop.form().Add<Recorder>("a", {10, 10, 100, 50});
    desktop.Pump();
    desktop.Click(control, 5, 5);
    const int before = control.paints;
    desktop.desktop().world().Present();
    soft::TopLevel& top = *desktop.form().window().window().top();
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    desktop.desktop().Input().MouseUp(desktop::MouseButton::Left);
    desktop.desktop().world().loop.Run();
    desktop.desktop().world().windows.DrawFrames();
    EXPECT_TRUE(top.damage.IsEmpty());
    EXPECT_EQ(control.paints, before);
}

} // namespace
} // namespace tvok::test
