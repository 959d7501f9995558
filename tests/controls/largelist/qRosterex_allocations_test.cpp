/// A warm list takes nothing from the heap for the rows that it paints, on a desktop with real text.
#include <charconv>

#include "tests/support/Allocations.h"
#include "tests/support/TestDesktop.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/desktop/windows/SoftHooks.h"
#include "tvok/host/desktop/windows/World.h"

#include <gtest/gtest.h>

namespace tvok::test {
namespace {

class LargeListHeap : public testing::Test {
protected:
    static constexpr std::int32_t cRows = 1000000;

    TestDesktop desktop;
    qRosterex& list = desktop.form().Add<qRosterex>("list", Placement{0, 0, 600, 400});

    void SetUp() override {
        if (!CanCountAllocations()) GTEST_SKIP() << "the sanitizer has a heap of its own";
        list.HeaderHeight(20);
        list.GridlineWidth(1);
        for (const char* caption : {"number", "square", "text"}) list.HeaderAdd(0, caption, 170);
        list.events.EnumDATA = [](std::int32_t& row, qrosterdata& record) {
            char cells[64];
            char* end = std::to_chars(cells, cells + 20, row).ptr;
            *end++ = '\t';
            end = std::to_chars(end, end + 20, std::int64_t{row} * row).ptr;
            record.text.assign(cells, end).append("\tsome words in a cell");
            record.fcolor = cWindowText;
            record.bColor = row % 2 == 0 ? cWindowBackground : 0xF0F0F0;
            record.IconPos = 0;
            record.vflag = row % 5 == 0 ? vflag::Bold : row % 7 == 0 ? 0x1000 : 0;
        };
        list.ViewMode(1);
        list.Count(cRows);
        desktop.Focus(list);
        GoTo(cRows / 2);
    }

    soft::SoftMessageHook& bars() {
        return *desktop.desktop().world().hooks.messages.Newest(desktop.WindowOf(list));
    }
    void GoTo(std::int32_t position) {
        bars().ScrollValue(position);
        desktop.Pump();
    }
    void Key(std::int32_t code, std::int16_t shift = 0) {
        auto keyCode = static_cast<std::int16_t>(code);
        list.KeyDown(keyCode, shift);
    }
    void Send(std::int32_t message, std::int32_t buttons, std::int32_t x, std::int32_t y) {
        desktop.desktop().world().Send(
            {desktop.WindowOf(list), message, buttons, dgi::LParamFromPoint(x, y)});
    }

    /// Heap blocks that 50 runs take when 250 have warmed it: every place of the row cache, and every glyph.
    /// What a turn of the message loop takes to show all this is not the list's.
    template<class Action>
    std::uint64_t BlocksOf(Action action) {
        std::uint64_t taken = 0;
        for (int run = 0; run < 300; ++run) {
            const std::uint64_t before = Allocations();
            action();
            if (run >= 250) taken += Allocations() - before;
            desktop.Pump();
        }
        return taken;
    }
};

TEST_F(LargeListHeap, ARepaintAllocatesNothing) {
    EXPECT_EQ(BlocksOf([&] { list.PaintAll(); }), 0u);
    EXPECT_EQ(BlocksOf([&] { list.DrawItem(cRows / 2 + 3); }), 0u);
}

TEST_F(LargeListHeap, ScrollingAllocatesNothing) {
    std::int32_t position = cRows / 2;
    EXPECT_EQ(BlocksOf([&] { bars().ScrollValue(++position); }), 0u);
    EXPECT_EQ(BlocksOf([&] { bars().ScrollValue(position -= 2); }), 0u);
    EXPECT_EQ(BlocksOf([&] { bars().ScrollValue(position += list.yn()); }), 0u);
    EXPECT_EQ(BlocksOf([&] { bars().ScrollValue(position = cRows - position); }), 0u);
}

TEST_F(LargeListHeap, AKeyAllocatesNothing) {
    list.ListIndex(cRows / 2 + 3);
    for (const std::int32_t key : {host::VK_DOWN, host::VK_UP, host::VK_NEXT, host::VK_HOME, host::VK_END})
        EXPECT_EQ(BlocksOf([&] { Key(key); }), 0u) << key;
    list.MultiSelect(1);
    GoTo(0);
    list.ListIndex(1);
    EXPECT_EQ(BlocksOf([&] { Key(host::VK_DOWN, 1); }), 0u);
    EXPECT_EQ(BlocksOf([&] { Key(host::VK_END, 1); }), 0u);
}

TEST_F(LargeListHeap, TheMouseAllocatesNothing) {
    std::int32_t y = 30;
    const auto step = [&] { y = y < 300 ? y + 20 : 30; };
    for (const std::int32_t mode : {0, 1}) {
        list.MultiSelect(mode);
        EXPECT_EQ(BlocksOf([&] {
                      step();
                      Send(host::WM_LBUTTONDOWN, host::MK_LBUTTON, 80, y);
                      Send(host::WM_MOUSEMOVE, host::MK_LBUTTON, 80, y + 25);
                      Send(host::WM_LBUTTONUP, 0, 80, y + 25);
                  }),
                  0u)
            << mode;
    }
}

TEST_F(LargeListHeap, ARowThatComesAllocatesNothing) {
    EXPECT_EQ(BlocksOf([&] { list.AddItemButtom(); }), 0u) << "away from the end";
    GoTo(bars().ScrollMax());
    EXPECT_EQ(BlocksOf([&] { list.AddItemButtom(); }), 0u) << "at the end";
    list.FileBufCreate();
    EXPECT_EQ(BlocksOf([&] { list.AddItemButtom(5); }), 0u) << "with a file";
    list.ViewMode(0);
    GoTo(0);
    list.Refresh();
    EXPECT_EQ(BlocksOf([&] { list.AddItemTop(); }), 0u) << "at the top";
    GoTo(100);
    EXPECT_EQ(BlocksOf([&] { list.AddItemTop(); }), 0u) << "away from the top";
}

TEST_F(LargeListHeap, TheTurnThatShowsAPageAllocatesAsLittleAsOneThatShowsARow) {
    const auto turn = [&](std::int32_t by) {
        std::uint64_t most = 0;
        for (int run = 0; run < 100; ++run) {
            const std::uint64_t before = Allocations();
            GoTo(bars().ScrollValue() + by);
            if (run >= 50) most = std::max(most, Allocations() - before);
        }
        return most;
    };
    const std::uint64_t row = turn(1), page = turn(list.yn());
    EXPECT_LT(page, row + static_cast<std::uint64_t>(list.yn()) / 2);
}

} // namespace
} // namespace tvok::test
