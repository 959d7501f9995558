/// The painter on the real desktop: the platform calls of each kind of cell, as readable goldens.
#include <gtest/gtest.h>

#include "tests/support/Canvas.h"
#include "tests/support/TestDesktop.h"
#include "tvok/engine/dgi.h"
#include "tvok/engine/mtvok.h"

namespace tvok::test {
namespace {

/// A list's state on a bare component. Where a host is asked to draw, it frames the rectangle it was given.
class PainterTrace : public ::testing::Test {
protected:
    PainterTrace() {
        auto& component = *canvas.component;
        state.hWnd = component.hWnd();
        state.FocusHwnd = component.hWnd();
        state.hDC = component.hDC();
        state.FontObj = component.Font();
        state.TextHeight = dgi::PointsToPixels(state.FontObj->Size());
        state.IconHandle = desktop.desktop().AddImageList(std::vector<std::uint32_t>(512, 0xFF3366CC), 16);
        state.CellRect = {0, 0, 120, 18};
        state.Count = state.CurItem = state.CurCol = state.CurRow = 1;
        callback.ExDrawCallback = [](std::int32_t&, std::int32_t, const std::string&, std::int32_t hDC,
                                     std::int32_t, std::int32_t x, std::int32_t y, std::int32_t w,
                                     std::int32_t h) {
            dgi::FrameRectColor(hDC, {x, y, w, h}, 0x0000FF);
        };
    }
    static qrosterdata Item(std::int32_t flags, const std::string& text = "Apples") {
        return {.text = text,
                .IconID = 2,
                .IconBackColor = 0xC0FFC0,
                .bColor = 0xE0F0FF,
                .fcolor = 0x800000,
                .vflag = flags | vflag::InUse};
    }
    std::vector<std::string> Trace(const qrosterdata& item, bool focus = false) {
        return desktop.Trace([&] { mtvok::DrawListItem(state, item, callback, focus); });
    }
    /// Several cells in one golden, each under a heading.
    void Under(const std::string& heading, const std::vector<std::string>& lines) {
        sections_.push_back("-- " + heading);
        sections_.insert(sections_.end(), lines.begin(), lines.end());
    }
    void ExpectSections(const std::string& name) { ExpectTrace(name, sections_); }
    std::vector<std::string> TracePage(const tvok_Rect& rect) {
        return desktop.Trace([&] { mtvok::DrawItems(state, rect, items, indexes, cells, callback, false); });
    }

    TestDesktop desktop;
    Canvas& canvas = desktop.form().Add<Canvas>("canvas", Placement{0, 0, 300, 200});
    ListState state;
    ItemSlots items;
    IndexArray indexes{0};
    CellTable cells{20, 20};
    cExdrawCallback callback;

private:
    std::vector<std::string> sections_;
};

TEST_F(PainterTrace, PlainCell) {
    ExpectTrace("cell_plain", Trace(Item(0)));
}

TEST_F(PainterTrace, IconBoxWithEachOfItsBits) {
    Under("icon box", Trace(Item(vflag::IconBox)));
    Under("with border", Trace(Item(vflag::IconBox | vflag::IconBorder)));
    Under("on the background", Trace(Item(vflag::IconBox | vflag::IconOnBackground)));
    Under("drawn by the host", Trace(Item(vflag::IconBox | vflag::HostIcon)));
    Under("with border, drawn by the host",
          Trace(Item(vflag::IconBox | vflag::IconBorder | vflag::HostIcon)));
    Under("text at the edge", Trace(Item(vflag::IconBox | vflag::TextAtEdge)));
    ExpectSections("cell_icon_box");
}

TEST_F(PainterTrace, TextAtTheEdgeAndTextOfTheHost) {
    Under("text at the edge", Trace(Item(vflag::TextAtEdge)));
    Under("text drawn by the host", Trace(Item(vflag::HostText)));
    ExpectSections("cell_text_bits");
}

TEST_F(PainterTrace, HeadBand) {
    state.HeadWidthEx = 16;
    state.GridlineWidth = 1;
    Under("head band", Trace(Item(0)));
    Under("drawn on by the host", Trace(Item(vflag::HostHead)));
    ExpectSections("cell_head_band");
}

TEST_F(PainterTrace, GridLinesWithoutAndWithABorder) {
    state.GridlineWidth = 2;
    Under("between the cells", Trace(Item(0)));
    state.GridlineOnBorder = true;
    Under("on the border too", Trace(Item(0)));
    ExpectSections("cell_grid_lines");
}

TEST_F(PainterTrace, TabColumnsWithOverflow) {
    state.TabStopSettingStr = "30,60,20";
    mtvok::ParseTabStops(state);
    Under("as many parts as columns until the edge",
          Trace(Item(0, "Apples\tgreen and far too long\t12\tno")));
    Under("fewer tabs than stops", Trace(Item(0, "Pears")));
    ExpectSections("cell_tab_columns");
}

TEST_F(PainterTrace, RightAlignment) {
    Under("one text", Trace(Item(vflag::RightAligned)));
    state.TabStopSettingStr = "30";
    mtvok::ParseTabStops(state);
    Under("tab columns", Trace(Item(vflag::RightAligned, "Apples\t12")));
    ExpectSections("cell_right_aligned");
}

TEST_F(PainterTrace, SelectedCell) {
    ExpectTrace("cell_selected", Trace(Item(vflag::Selected)));
}

TEST_F(PainterTrace, FocusInAllFourCases) {
    state.ListIndex = 1;
    Under("by the focus, without it", Trace(Item(0), false));
    Under("by the focus, with it", Trace(Item(0), true));
    Under("always, without the focus", Trace(Item(vflag::FocusAlways), false));
    Under("always, with the focus", Trace(Item(vflag::FocusAlways), true));
    ExpectSections("cell_focus");
}

// Font properties are no platform calls, so here the pixels speak.
TEST_F(PainterTrace, EachFontStyleShowsAndTheNextCellIsPlainAgain) {
    const auto pixels = [&](std::int32_t flags) {
        mtvok::DrawListItem(state, Item(flags), callback, false);
        return desktop.Pixels(canvas);
    };
    desktop.Pump(); // the window's own first paint
    const auto plain = pixels(0);
    std::vector<std::vector<std::uint32_t>> seen{plain};
    for (const auto style : {vflag::Bold, vflag::Italic, vflag::Strikethrough, vflag::Underline}) {
        const auto styled = pixels(style);
        for (const auto& other : seen) EXPECT_FALSE(styled == other) << style;
        seen.push_back(styled);
        EXPECT_TRUE(pixels(0) == plain) << style;
    }
}

TEST_F(PainterTrace, BlankCells) {
    state.CurItem = 0;
    state.GridlineWidth = 2;
    Under("between the lines", Trace(Item(0)));
    state.GridlineOnBorder = true;
    state.CellRect = {2, 2, 122, 20};
    Under("in the corner of a border", Trace(Item(0)));
    state.HeadWidthEx = 16;
    Under("with its head band", Trace(Item(vflag::HostHead)));
    ExpectSections("cell_blank");
}

TEST_F(PainterTrace, PageWithAPartialRowBlanksAndFillers) {
    state.xn = 2;
    state.yn = 2;
    state.GridlineWidth = 1;
    state.FixedWidthForLastXn = true;
    state.Count = 3;
    items.Resize(3);
    indexes.Resize(3);
    for (std::int32_t i = 1; i <= 3; ++i) {
        items.Put(i, Item(0, "Item " + std::to_string(i)));
        indexes[i] = i;
    }
    mtvok::BuildCellGrid(cells, state);
    Under("all of it", TracePage(state.ClientRect));
    Under("one cell, and the fillers whatever the rectangle", TracePage({110, 5, 111, 6}));
    Under("an empty rectangle: the fillers alone", TracePage({}));
    ExpectSections("page_with_fillers");
}

} // namespace
} // namespace tvok::test
