#include "tvok/host/RecordingPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/CallLog.h"

namespace tvok::host {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class Recording : public ::testing::Test {
protected:
    std::vector<std::string> lines;
    test::CallLog next;
    RecordingPlatform recording{next, [this](std::string_view line) { lines.emplace_back(line); }};
};

TEST_F(Recording, WritesAFillWithItsColorAndPassesItOn) {
    const auto brush = recording.CreateSolidBrush(0x0000FF);
    lines.clear();
    recording.FillRect(77, {0, 0, 20, 18}, brush);
    EXPECT_THAT(lines, ElementsAre("FillRect        hdc=1 (0,0)-(20,18) brush=#FF0000"));
    EXPECT_THAT(next.Named("FillRect"), ElementsAre(test::FillRectCall({0, 0, 20, 18}, 0x0000FF)));
}

TEST_F(Recording, WritesATextInQuotes) {
    const tvok_Rect rect{20, 0, 120, 18};
    recording.ExtTextOutA(77, 20, 2, 6, &rect, "Apples and more", 6, nullptr);
    EXPECT_THAT(lines, ElementsAre("ExtTextOutA     hdc=1 at (20,2) flags=6 (20,0)-(120,18) \"Apples\""));
    EXPECT_THAT(next.Named("ExtTextOutA"), SizeIs(1));
}

TEST_F(Recording, EscapesWhatIsNotPrintableAscii) {
    const std::string text("a\"\\\t\0\xC3\xA9", 7);
    recording.ExtTextOutA(77, 0, 0, 0, nullptr, text.data(), 7, nullptr);
    EXPECT_THAT(lines, ElementsAre(R"(ExtTextOutA     hdc=1 at (0,0) flags=0 "a\"\\\x09\x00\xC3\xA9")"));
}

TEST_F(Recording, NumbersHandlesInTheOrderOfTheirFirstAppearance) {
    recording.SetBkMode(900, 2);
    recording.SetBkMode(5, 2);
    recording.SetBkMode(900, 1);
    recording.UpdateWindow(900);
    recording.SetBkMode(0, 2);
    EXPECT_THAT(lines, ElementsAre("SetBkMode       hdc=1 mode=2", "SetBkMode       hdc=2 mode=2",
                                   "SetBkMode       hdc=1 mode=1", "UpdateWindow    hwnd=1",
                                   "SetBkMode       hdc=0 mode=2"));
}

TEST_F(Recording, ShowsPensAndBrushesWhereverTheyAppear) {
    const auto pen = recording.CreatePen(PS_INSIDEFRAME, 2, 0x563412);
    recording.SelectObject(77, pen);
    recording.SelectObject(77, recording.GetStockObject(HOLLOW_BRUSH));
    recording.DeleteObject(pen);
    EXPECT_EQ(lines[0], "CreatePen       pen=#123456 width=2 style=6");
    EXPECT_EQ(lines[1], "SelectObject    hdc=1 pen=#123456 width=2 style=6 -> object=1");
    EXPECT_EQ(lines[3], "SelectObject    hdc=1 stock=5 -> object=2");
    EXPECT_THAT(lines[4], ::testing::StartsWith("DeleteObject    pen=#123456 width=2 style=6"));
}

TEST_F(Recording, ShowsWhatAQuestionWasAnswered) {
    next.client = {0, 0, 300, 200};
    next.focus = 31;
    tvok_Rect rect;
    Point point{1, 2};
    recording.GetClientRect(31, rect);
    recording.GetFocus();
    recording.ScreenToClient(31, point);
    EXPECT_EQ(rect, next.client);
    EXPECT_EQ(lines[0], "GetClientRect   hwnd=1 -> (0,0)-(300,200)");
    EXPECT_EQ(lines[1], "GetFocus        -> hwnd=1");
    EXPECT_EQ(lines[2], "ScreenToClient  hwnd=1 (1,2) -> " + std::string("(") + std::to_string(point.x) +
                            "," + std::to_string(point.y) + ")");
}

TEST_F(Recording, WritesAnOperationBeforeWhatItLeadsTo) {
    next.onCall = [this](const std::string& name) {
        if (name == "UpdateWindow") recording.SetBkMode(1, 2);
    };
    recording.UpdateWindow(31);
    EXPECT_THAT(lines, ElementsAre("UpdateWindow    hwnd=1", "SetBkMode       hdc=1 mode=2"));
}

TEST_F(Recording, WritesTheSameLinesForTheSameCallsOnOtherHandles) {
    const auto run = [this](Handle hDC) {
        std::vector<std::string> written;
        RecordingPlatform fresh(next, [&](std::string_view line) { written.emplace_back(line); });
        const auto brush = fresh.CreateSolidBrush(0);
        fresh.FillRect(hDC, {0, 0, 1, 1}, brush);
        fresh.DeleteObject(brush);
        return written;
    };
    EXPECT_EQ(run(5), run(6));
}

} // namespace
} // namespace tvok::host
