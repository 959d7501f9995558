#include "tvok/host/desktop/gdi/Frames.h"

#include <gtest/gtest.h>

#include "tests/host/desktop/gdi/DrawnSurface.h"

namespace tvok::test {
namespace {

using namespace host;

/// A theme whose edge colours have letters: h highlight, l light, s shadow, d dark shadow, f face, t button
/// text, w window, x window text, F window frame, g grey text.
constexpr std::pair<std::int32_t, char> letters[]{
    {COLOR_BTNHIGHLIGHT, 'h'}, {COLOR_3DLIGHT, 'l'},  {COLOR_BTNSHADOW, 's'}, {COLOR_3DDKSHADOW, 'd'},
    {COLOR_BTNFACE, 'f'},      {COLOR_BTNTEXT, 't'},  {COLOR_WINDOW, 'w'},    {COLOR_WINDOWTEXT, 'x'},
    {COLOR_WINDOWFRAME, 'F'},  {COLOR_GRAYTEXT, 'g'},
};

struct Board : DrawnSurface {
    Board(std::int32_t width, std::int32_t height) : DrawnSurface(width, height) {
        for (std::int32_t i = 0; i < 25; ++i) theme.colors[static_cast<std::size_t>(i)] = 0x010101 * (i + 1);
    }
    Rows Picture() const {
        Rows rows = DrawnSurface::Picture();
        for (std::int32_t y = 0; y < surface.Height(); ++y)
            for (const auto& [index, letter] : letters)
                for (std::int32_t x = 0; x < surface.Width(); ++x)
                    if (At(x, y) == static_cast<soft::Pixel>(0x010101 * (index + 1)))
                        rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = letter;
        return rows;
    }
    Rows Edge(std::int32_t edge, std::int32_t flags) {
        tvok_Rect rect{0, 0, surface.Width(), surface.Height()};
        EXPECT_TRUE(soft::DrawEdge(dc, theme, rect, edge, flags));
        return Picture();
    }
    Rows Control(std::int32_t type, std::int32_t state) {
        EXPECT_TRUE(
            soft::DrawFrameControl(dc, theme, {0, 0, surface.Width(), surface.Height()}, type, state));
        return Picture();
    }
    Theme theme;
};

TEST(DrawEdge, RaisedHasLightAboveAndShadowBelow) {
    EXPECT_EQ(Board(6, 5).Edge(EDGE_RAISED, BF_RECT),
              (Rows{"llllld", "lhhhsd", "lh..sd", "lssssd", "dddddd"}));
}

TEST(DrawEdge, SunkenEtchedAndBumpDifferInTheirLines) {
    EXPECT_EQ(Board(6, 5).Edge(EDGE_SUNKEN, BF_RECT),
              (Rows{"sssssh", "sdddlh", "sd..lh", "sllllh", "hhhhhh"}));
    EXPECT_EQ(Board(6, 5).Edge(EDGE_ETCHED, BF_RECT),
              (Rows{"sssssh", "shhhsh", "sh..sh", "sssssh", "hhhhhh"}));
    EXPECT_EQ(Board(6, 5).Edge(EDGE_BUMP, BF_RECT), (Rows{"llllld", "ldddld", "ld..ld", "llllld", "dddddd"}));
}

TEST(DrawEdge, SoftChangesTheLights) {
    EXPECT_EQ(Board(6, 5).Edge(EDGE_RAISED, BF_RECT | BF_SOFT),
              (Rows{"hhhhhd", "hlllsd", "hl..sd", "hssssd", "dddddd"}));
    EXPECT_EQ(Board(6, 5).Edge(EDGE_SUNKEN, BF_RECT | BF_SOFT),
              (Rows{"dddddh", "dssslh", "ds..lh", "dllllh", "hhhhhh"}));
}

TEST(DrawEdge, FlatAndMonoHaveTheSameLineOnAllSides) {
    EXPECT_EQ(Board(6, 5).Edge(EDGE_SUNKEN, BF_RECT | BF_FLAT),
              (Rows{"ssssss", "sffffs", "sf..fs", "sffffs", "ssssss"}));
    EXPECT_EQ(Board(6, 5).Edge(EDGE_RAISED, BF_RECT | BF_MONO),
              (Rows{"FFFFFF", "FwwwwF", "Fw..wF", "FwwwwF", "FFFFFF"}));
}

TEST(DrawEdge, MiddleFillsWhatIsInside) {
    EXPECT_EQ(Board(4, 3).Edge(BDR_RAISEDOUTER, BF_RECT | BF_MIDDLE), (Rows{"llld", "lffd", "dddd"}));
    EXPECT_EQ(Board(4, 3).Edge(BDR_SUNKENINNER, BF_RECT | BF_MIDDLE), (Rows{"dddl", "dffl", "llll"}));
    EXPECT_EQ(Board(3, 2).Edge(0, BF_RECT | BF_MIDDLE | BF_MONO), (Rows{"www", "www"}));
}

TEST(DrawEdge, DrawsTheSidesThatAreAskedFor) {
    EXPECT_EQ(Board(4, 4).Edge(EDGE_ETCHED, BF_TOP), (Rows{"ssss", "hhhh", "....", "...."}));
    EXPECT_EQ(Board(4, 4).Edge(EDGE_ETCHED, BF_LEFT | BF_BOTTOM), (Rows{"sh..", "sh..", "ssss", "hhhh"}));
}

TEST(DrawEdge, AdjustTakesTheLinesOffTheRectangle) {
    Board board(20, 20);
    tvok_Rect rect{0, 0, 20, 20};
    soft::DrawEdge(board.dc, board.theme, rect, EDGE_RAISED, BF_RECT);
    EXPECT_EQ(rect, (tvok_Rect{0, 0, 20, 20}));
    soft::DrawEdge(board.dc, board.theme, rect, EDGE_RAISED, BF_RECT | BF_ADJUST);
    EXPECT_EQ(rect, (tvok_Rect{2, 2, 18, 18}));
    soft::DrawEdge(board.dc, board.theme, rect, BDR_SUNKENOUTER, BF_LEFT | BF_ADJUST);
    EXPECT_EQ(rect, (tvok_Rect{3, 2, 18, 18}));
}

TEST(DrawEdge, BothOfAPairAreRefused) {
    Board board(4, 4);
    tvok_Rect rect{0, 0, 4, 4};
    EXPECT_FALSE(soft::DrawEdge(board.dc, board.theme, rect, BDR_RAISEDOUTER | BDR_SUNKENOUTER, BF_RECT));
    EXPECT_EQ(board.Ink(), tvok_Rect{});
}

TEST(DrawFrameControl, APushButtonIsRaisedAndSinksWhenPushed) {
    EXPECT_EQ(Board(6, 5).Control(DFC_BUTTON, DFCS_BUTTONPUSH),
              (Rows{"hhhhhd", "hlllsd", "hlffsd", "hssssd", "dddddd"}));
    EXPECT_EQ(Board(6, 5).Control(DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_PUSHED),
              (Rows{"dddddh", "dssslh", "dsfflh", "dllllh", "hhhhhh"}));
    EXPECT_EQ(Board(6, 5).Control(DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_FLAT),
              (Rows{"ssssss", "sffffs", "sffffs", "sffffs", "ssssss"}));
}

TEST(DrawFrameControl, ArrowsPointTheirWay) {
    EXPECT_EQ(Board(12, 9).Control(DFC_SCROLL, DFCS_SCROLLDOWN),
              (Rows{"llllllllllld", "lhhhhhhhhhsd", "lhffffffffsd", "lhfftttfffsd", "lhffftffffsd",
                    "lhffffffffsd", "lhffffffffsd", "lssssssssssd", "dddddddddddd"}));
    const auto arrow = [](std::int32_t state) {
        Board board(13, 13);
        board.Control(DFC_SCROLL, state);
        Rows rows = board.Picture(), inner;
        for (std::size_t y = 3; y < 10; ++y) inner.push_back(rows[y].substr(3, 7));
        return inner;
    };
    EXPECT_EQ(arrow(DFCS_SCROLLUP),
              (Rows{"fffffff", "fffffff", "ffftfff", "fftttff", "ftttttf", "fffffff", "fffffff"}));
    EXPECT_EQ(arrow(DFCS_SCROLLLEFT),
              (Rows{"fffffff", "fffftff", "fffttff", "fftttff", "fffttff", "fffftff", "fffffff"}));
    EXPECT_EQ(arrow(DFCS_SCROLLRIGHT),
              (Rows{"fffffff", "fftffff", "ffttfff", "fftttff", "ffttfff", "fftffff", "fffffff"}));
    EXPECT_EQ(arrow(DFCS_SCROLLCOMBOBOX), arrow(DFCS_SCROLLDOWN));
    EXPECT_EQ(arrow(DFCS_SCROLLUP | DFCS_PUSHED),
              (Rows{"fffffff", "fffffff", "fffffff", "fffftff", "ffftttf", "ffttttt", "fffffff"}));
    EXPECT_EQ(arrow(DFCS_SCROLLUP | DFCS_INACTIVE),
              (Rows{"fffffff", "fffffff", "fffgfff", "ffgggff", "fgggggf", "ffhhhhh", "fffffff"}));
}

TEST(DrawFrameControl, TheCloseButtonHasACross) {
    Board board(16, 14);
    board.Control(DFC_CAPTION, DFCS_CAPTIONCLOSE);
    const Rows rows = board.Picture();
    EXPECT_EQ(rows[0], "hhhhhhhhhhhhhhhd");
    EXPECT_EQ(rows[4].substr(2, 12), "ffttfffttfff") << ::testing::PrintToString(rows);
}

TEST(DrawFrameControl, ACheckBoxIsSquareAndShowsItsTick) {
    Board empty(17, 13), checked(17, 13);
    empty.Control(DFC_BUTTON, DFCS_BUTTONCHECK);
    EXPECT_EQ(empty.Picture()[6], "..sdwwwwwwwwwlh..");
    checked.Control(DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED);
    const Rows rows = checked.Picture();
    Rows inner;
    for (std::size_t y = 2; y < 11; ++y) inner.push_back(rows[y].substr(4, 9));
    EXPECT_EQ(inner, (Rows{"wwwwwwwww", "wwwwwwwxw", "wwwwwwxxw", "wxwwwxxxw", "wxxwxxxww", "wxxxxxwww",
                           "wwxxxwwww", "wwwxwwwww", "wwwwwwwww"}));
}

TEST(DrawFrameControl, ARadioButtonIsRoundAndShowsItsDot) {
    Board board(12, 12);
    board.Control(DFC_BUTTON, DFCS_BUTTONRADIO | DFCS_CHECKED);
    const Rows rows = board.Picture();
    EXPECT_EQ(rows[0][0], '.');
    EXPECT_EQ(rows[11][11], '.');
    EXPECT_EQ(rows[0][5], 's');
    EXPECT_EQ(rows[11][6], 'h');
    EXPECT_EQ(rows[5].substr(4, 4), "xxxx");
    EXPECT_EQ(rows[2][5], 'w');
}

TEST(DrawFrameControl, AnInactiveOneIsDull) {
    Board board(13, 13);
    board.Control(DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED | DFCS_INACTIVE);
    for (const std::string& row : board.Picture()) EXPECT_EQ(row.find_first_of("wx"), std::string::npos);
}

TEST(DrawFrameControl, PartsThatThereAreNoneOfAreRefused) {
    Board board(9, 9);
    const tvok_Rect rect{0, 0, 9, 9};
    EXPECT_FALSE(soft::DrawFrameControl(board.dc, board.theme, rect, 9, 0));
    EXPECT_FALSE(soft::DrawFrameControl(board.dc, board.theme, rect, DFC_SCROLL, 4));
    EXPECT_FALSE(soft::DrawFrameControl(board.dc, board.theme, rect, DFC_BUTTON, 3));
    EXPECT_FALSE(soft::DrawFrameControl(board.dc, board.theme, rect, DFC_CAPTION, 7));
    EXPECT_EQ(board.Ink(), tvok_Rect{});
}

TEST(DrawFrameControl, AnyRectangleIsSafeAndDrawsInsideItself) {
    constexpr std::pair<std::int32_t, std::int32_t> parts[]{
        {DFC_BUTTON, DFCS_BUTTONPUSH},  {DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED},
        {DFC_BUTTON, DFCS_BUTTONRADIO}, {DFC_SCROLL, DFCS_SCROLLUP | DFCS_PUSHED},
        {DFC_SCROLL, DFCS_SCROLLRIGHT}, {DFC_CAPTION, DFCS_CAPTIONCLOSE | DFCS_PUSHED}};
    for (const auto& [type, state] : parts) {
        for (std::int32_t width = 0; width < 24; ++width)
            for (std::int32_t height = 0; height < 24; ++height) {
                Board board(32, 32);
                const tvok_Rect rect{4, 4, 4 + width, 4 + height};
                soft::DrawFrameControl(board.dc, board.theme, rect, type, state);
                const tvok_Rect ink = board.Ink();
                ASSERT_EQ(ink, soft::Intersection(ink, rect))
                    << type << ' ' << state << ' ' << width << 'x' << height;
            }
        Board board(8, 8);
        for (const tvok_Rect& rect :
             {tvok_Rect{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}, tvok_Rect{9, 9, -9, -9},
              tvok_Rect{INT32_MAX - 1, 0, INT32_MAX, 1}, tvok_Rect{INT32_MIN, 0, INT32_MIN + 6, INT32_MAX}})
            soft::DrawFrameControl(board.dc, board.theme, rect, type, state);
    }
}

} // namespace
} // namespace tvok::test
