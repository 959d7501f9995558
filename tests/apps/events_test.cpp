// The table of events: what they are called, and how their arguments read.
#include "apps/gallery/events.h"

#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apps/gallery/Page.h"
#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tvok::elistdata;
using tvok::qrosterdata;

/// Notes what it hears as "Name arguments".
class Notes : public EventListener {
public:
    std::optional<std::int64_t> Begun(const EventInfo& event) override {
        if (event.name == leaveOut) return {};
        running.emplace_back(event.name);
        return static_cast<std::int64_t>(running.size()) - 1;
    }
    void Ended(std::int64_t number, const std::string& arguments) override {
        ended.push_back(running.at(static_cast<std::size_t>(number)) + " " + arguments);
    }

    std::string leaveOut;
    std::vector<std::string> running, ended;
};

// Words.

TEST(EventWords, ATextStandsInQuotesWithItsControlCharactersAsEscapes) {
    EXPECT_EQ(Quoted("a\tb\r\nc"), R"("a\tb\r\nc")");
    EXPECT_EQ(Quoted("say \"hi\" \\"), R"("say \"hi\" \\")");
    EXPECT_EQ(Quoted(std::string("\x01", 1)), R"("\1")");
    EXPECT_EQ(Quoted(""), R"("")");
}

TEST(EventWords, ALongTextIsCutByCharactersAndNotByBytes) {
    std::string text;
    for (int i = 0; i < 41; ++i) text += "\u00E4";
    std::string kept;
    for (int i = 0; i < 40; ++i) kept += "\u00E4";
    EXPECT_EQ(Quoted(kept), "\"" + kept + "\"");
    EXPECT_EQ(Quoted(text), "\"" + kept + "\u2026\"");
}

TEST(EventWords, ColorsReadAsTheLibrarysNamesOrAsRedGreenAndBlue) {
    EXPECT_EQ(ColorWords(tvok::cWindowText), "cWindowText");
    EXPECT_EQ(ColorWords(tvok::SystemColor(16)), "system 16");
    EXPECT_EQ(ColorWords(0x00FF8001), "#0180FF");
}

TEST(EventWords, FlagsReadByTheirNames) {
    EXPECT_EQ(FlagWords(0), "0");
    EXPECT_EQ(FlagWords(tvok::vflag::Bold | tvok::vflag::IconBox), "IconBox+Bold");
    EXPECT_EQ(FlagWords(tvok::vflag::Bold | 0x1000), "Bold+4096");
}

std::string Words(Argument argument, const ValueParts& before, const ValueParts& after) {
    return ArgumentsText(std::array{argument}, {before}, {after});
}

template<class T>
std::string Words(Argument argument, const T& value) {
    const ValueParts parts = PartsOf(value, argument.style);
    return Words(argument, parts, parts);
}

TEST(EventWords, NumbersReadAsWhatTheyMean) {
    EXPECT_EQ(Words({"Index"}, 7), "Index=7");
    EXPECT_EQ(Words({"x"}, 307.5F), "x=307.5");
    EXPECT_EQ(Words({"Canceled"}, true), "Canceled=true");
    EXPECT_EQ(Words({"KeyCode", ArgumentStyle::Key}, 40), "KeyCode=40 Down");
    EXPECT_EQ(Words({"KeyCode", ArgumentStyle::Key}, 112), "KeyCode=112 F1");
    EXPECT_EQ(Words({"KeyCode", ArgumentStyle::Key}, 'C'), "KeyCode=67 C");
    EXPECT_EQ(Words({"KeyCode", ArgumentStyle::Key}, 186), "KeyCode=186");
    EXPECT_EQ(Words({"KeyAscii", ArgumentStyle::Character}, 'c'), "KeyAscii=99 c");
    EXPECT_EQ(Words({"KeyAscii", ArgumentStyle::Character}, 13), "KeyAscii=13 Enter");
    EXPECT_EQ(Words({"Shift", ArgumentStyle::Shift}, 3), "Shift=Shift+Ctrl");
    EXPECT_EQ(Words({"Shift", ArgumentStyle::Shift}, 0), "Shift=0");
    EXPECT_EQ(Words({"Button", ArgumentStyle::Button}, 2), "Button=right");
}

TEST(EventWords, AListRecordReadsByItsTextAndWhatIsNotAsUsual) {
    EXPECT_EQ(Words({"x"}, qrosterdata{}), R"(x={text=""})");
    EXPECT_EQ(Words({"x"}, qrosterdata{.text = "a", .vflag = tvok::vflag::Selected}), R"(x={text="a"})");
    EXPECT_EQ(Words({"x"}, qrosterdata{.text = "a",
                                       .key = "k",
                                       .IconID = 3,
                                       .ItemData = 5,
                                       .fcolor = 0xFF,
                                       .vflag = tvok::vflag::Bold}),
              R"(x={text="a", key="k", IconID=3, ItemData=5, fcolor=#FF0000, vflag=Bold})");
}

TEST(EventWords, APropertyRecordReadsByItsCaptionKeyAndValue) {
    elistdata record;
    record.hItem.text = "Width";
    record.hItem.key = "w";
    record.nData = 12;
    record.item.text = "12";
    record.xbuttons = ";ns";
    record.bVisible = true;
    EXPECT_EQ(Words({"x"}, record),
              R"(x={hItem.text="Width", hItem.key="w", nData=12, item.text="12", xbuttons=";ns"})");
    record.nData = "x";
    record.item.text.clear();
    record.bVisible = false;
    EXPECT_EQ(Words({"x"}, record),
              R"(x={hItem.text="Width", hItem.key="w", nData="x", xbuttons=";ns", bVisible=false})");
}

TEST(EventWords, WhatChangedReadsAsOldAndNewAndInARecordFieldByField) {
    const ArgumentStyle plain = ArgumentStyle::Plain;
    EXPECT_EQ(Words({"Index"}, PartsOf(1, plain), PartsOf(2, plain)), "Index=1 \u2192 2");
    const qrosterdata before{.text = "a", .ItemData = 5};
    const qrosterdata after{.text = "b", .vflag = tvok::vflag::Selected};
    EXPECT_EQ(Words({"x"}, PartsOf(before, plain), PartsOf(after, plain)),
              "x={text=\"a\" \u2192 \"b\", ItemData=5 \u2192 0, vflag=0 \u2192 Selected}");
}

// The table.

TEST(Events, EveryControlOfTheLibraryTellsTheEventsOfItsHeader) {
    const auto names = [](const tvok::host::Control& control) {
        std::vector<std::string> names;
        for (const EventInfo& event : EventsOf(control)) names.emplace_back(event.name);
        return names;
    };
    EXPECT_EQ(names(tvok::qRoster()).size(), 11U);
    EXPECT_EQ(names(tvok::qRosterex()).size(), 13U);
    EXPECT_THAT(names(tvok::pcols()), ElementsAre("Click", "MouseDown"));
    EXPECT_THAT(names(tvok::iLabel()), ElementsAre("Click", "KeyDown", "MouseDown", "MouseUp", "KeyUp"));
    EXPECT_THAT(names(tvok::xPopup()), ElementsAre("Change", "Click", "EnumDATA", "ExDraw"));
    EXPECT_THAT(names(tvok::xbutton()), ElementsAre("MouseDown", "Click", "KeyDown"));
    EXPECT_THAT(names(tvok::ucColorSelector()), IsEmpty());
    EXPECT_EQ(names(tvok::gList()).size(), 15U);
    EXPECT_THAT(names(tvok::TextBox()), ElementsAre("Change", "KeyDown", "Enter", "LostFocus"));
}

TEST(Events, AreHeardWithTheirArgumentsForAsLongAsTheWatchesAreKept) {
    tvok::qRosterex list;
    const auto notes = std::make_shared<Notes>();
    EventWatches watches = WatchEvents(list, notes);
    list.events.KeySeek = [](std::int16_t, std::int32_t, std::int32_t& row) { row = 9; };
    std::int32_t row = 0;
    list.events.KeySeek('A', 3, row);
    EXPECT_THAT(notes->ended, ElementsAre("KeySeek KeyCode=65 A, ListIndex=3, NewIndex=0 \u2192 9"));
    watches.clear();
    list.events.Click(1);
    EXPECT_EQ(notes->ended.size(), 1U);
}

TEST(Events, WhatAHandlerIsToFillReadsAsItLeftIt) {
    tvok::qRosterex list;
    const auto notes = std::make_shared<Notes>();
    const EventWatches watches = WatchEvents(list, notes);
    list.events.EnumDATA = [](std::int32_t&, qrosterdata& x) { x.text = "new"; };
    std::int32_t row = 4;
    qrosterdata record{.text = "what the place held"};
    list.events.EnumDATA(row, record);
    EXPECT_THAT(notes->ended, ElementsAre(R"(EnumDATA Index=4, x={text="new"})"));
}

TEST(Events, TheRectangleOfAHostsDrawingReadsAsOne) {
    tvok::qRoster list;
    const auto notes = std::make_shared<Notes>();
    const EventWatches watches = WatchEvents(list, notes);
    std::int32_t message = tvok::bExDrawText;
    list.events.ExDraw(message, 2, "k", 7, 0, 1, 2, 30, 40);
    EXPECT_THAT(notes->ended,
                ElementsAre(R"(ExDraw Msg=text, Index=2, key="k", hDC=7, cy=0, rect=(1,2)-(30,40))"));
}

TEST(Events, TheArgumentOfAValueThatTheHandlersHostChangedElsewhereReadsAsItCame) {
    tvok::xbutton strip;
    const auto notes = std::make_shared<Notes>();
    const EventWatches watches = WatchEvents(strip, notes);
    std::string key = "came";
    strip.events.Click = [&key](const std::string&) { key = "changed"; };
    strip.events.Click(key);
    EXPECT_THAT(notes->ended, ElementsAre(R"(Click key="came")"));
}

TEST(Events, AnEventThatIsLeftOutIsNotToldOf) {
    tvok::xbutton strip;
    const auto notes = std::make_shared<Notes>();
    notes->leaveOut = "MouseDown";
    const EventWatches watches = WatchEvents(strip, notes);
    strip.events.MouseDown("a");
    strip.events.Click("a");
    EXPECT_THAT(notes->ended, ElementsAre(R"(Click key="a")"));
}

TEST(Events, OfAFormAreHeardToo) {
    tvok::test::TestDesktop desktop;
    const auto notes = std::make_shared<Notes>();
    const EventWatches watches = WatchEvents(desktop.form(), notes);
    desktop.form().events.Closing = [](bool& keep) { keep = true; };
    desktop.form().Close();
    EXPECT_THAT(notes->ended, ElementsAre("Closing keep=false \u2192 true"));
}

// A watched control does to the platform what it does unwatched: on every page of the gallery, all of what
// its scenes do.
class WatchedPage : public testing::TestWithParam<std::string> {};

std::vector<std::string> TraceOf(const std::string& name, bool watched, std::size_t& heard) {
    tvok::test::TestDesktop desktop;
    desktop.form().Size(980, 640);
    const auto page = FindPage(name)->make(desktop.desktop(), desktop.form());
    const auto notes = std::make_shared<Notes>();
    std::vector<EventWatches> watches;
    for (const std::string& control : desktop.form().Names())
        if (watched) watches.push_back(WatchEvents(*desktop.form().Find(control), notes));
    page->Layout({0, 0, 980, 640});
    desktop.form().events.Paint = [&] { page->Paint(desktop.form().hDC()); };
    auto lines = desktop.Trace([&] {
        for (const Scene& scene : page->Scenes()) {
            scene.act();
            desktop.Pump();
        }
    });
    heard = notes->ended.size();
    EXPECT_EQ(heard, notes->running.size());
    return lines;
}

TEST_P(WatchedPage, BehavesAsUnwatched) {
    std::size_t heard = 0;
    const auto unwatched = TraceOf(GetParam(), false, heard);
    EXPECT_EQ(heard, 0U);
    const auto watched = TraceOf(GetParam(), true, heard);
    EXPECT_GT(heard, 0U);
    EXPECT_FALSE(unwatched.empty());
    EXPECT_TRUE(watched == unwatched);
}

INSTANTIATE_TEST_SUITE_P(Pages, WatchedPage,
                         testing::Values("lists", "feed", "columns", "labels", "buttons", "popups", "colors",
                                         "properties"));

} // namespace
} // namespace gallery
