// The gallery's event log beside live controls, by a user's mouse and keys.
#include "apps/gallery/EventLog.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using tvok::qrosterdata;

constexpr std::int32_t RowHeight = 18;

class EventLogTest : public testing::Test {
protected:
    EventLogTest() {
        form().Size(980, 520);
        log_.store().Clock([this] { return time_; });
        log_.Layout({0, 330, 980, 520});
        form().events.Paint = [this] { log_.Paint(form().hDC()); };
        Turn();
    }

    tvok::Form& form() { return desktop_.form(); }
    tvok::qRosterex& list() { return log_.list(); }
    void Turn() {
        desktop_.Pump();
        log_.Turn();
        desktop_.Pump();
    }
    template<class T>
    T& AddWatched(const char* name, const tvok::Placement& place) {
        T& control = form().Add<T>(name, place);
        log_.Watch(control, name);
        return control;
    }
    tvok::qRoster& AddFruits() {
        auto& list = desktop_.Roster({}, {"ant", "bee", "cat", "dog"});
        desktop_.Pump();
        log_.Watch(list, "list");
        return list;
    }

    /// The rows, newest first, without their time and with blanks between the cells.
    std::vector<std::string> Rows() {
        Turn();
        std::vector<std::string> rows;
        for (std::int32_t row = list().Count(); row >= 1; --row) {
            std::string text = log_.RowText(row);
            text.erase(0, text.find('\t') + 1);
            for (auto at = text.find('\t'); at != std::string::npos; at = text.find('\t')) text[at] = ' ';
            rows.push_back(std::move(text));
        }
        return rows;
    }
    std::string Newest() {
        const auto rows = Rows();
        return rows.empty() ? "none" : rows.front();
    }
    static std::string WordsOf(SwitchPanel& panel, std::size_t which) {
        qrosterdata item;
        panel.list().GetData(static_cast<std::int32_t>(which) + 1, item);
        return item.text.substr(item.text.find('\t') + 1);
    }
    void Do(EventLog::Action which) { Flip(log_.actions(), which, 84); }
    void Set(EventLog::Filter which) { Flip(log_.filters(), which, 236); }
    void Flip(SwitchPanel& panel, std::size_t which, std::int32_t width) {
        desktop_.Pass(std::chrono::seconds(1)); // so that two clicks are no double click
        desktop_.Click(panel.list(), static_cast<std::int32_t>(which) * width + 40, 8);
        Turn();
    }
    /// So many events that differ.
    void Raise(const tvok::xbutton& strip, std::int32_t first, std::int32_t last) {
        for (std::int32_t i = first; i <= last; ++i) strip.events.Click(std::to_string(i));
    }
    void ScrollAway() {
        desktop_.MoveTo(list(), 300, 40);
        desktop_.Wheel(-10);
    }

    tvok::test::TestDesktop desktop_;
    EventLog log_{desktop_.desktop(), desktop_.form()};
    milliseconds time_{std::chrono::hours(9)};
};

// The controls.

TEST_F(EventLogTest, AClickOnAFlatListTellsItsEventsWithTheItem) {
    auto& list = AddFruits();
    desktop_.Focus(list); // which makes the first item current
    Do(EventLog::Clear);
    desktop_.Focus(list);
    desktop_.Click(list, 20, 30);
    EXPECT_THAT(Rows(), ElementsAre("list MouseUp Button=left, Shift=0, x=300, y=450",
                                    R"(list Click Index=2, x={text="bee"})",
                                    "list MouseDown Button=left, Shift=0, x=300, y=450",
                                    R"(list Change Index=2, x={text="bee"})"));
}

TEST_F(EventLogTest, AKeyInALargeListTellsWhereItWentFromTheTop) {
    auto& list = AddWatched<tvok::qRosterex>("large", {10, 10, 300, 200});
    list.Count(5);
    list.ListIndex(3);
    desktop_.Focus(list);
    Do(EventLog::Clear);
    desktop_.Focus(list);
    desktop_.Key(tvok::host::VK_DOWN);
    EXPECT_THAT(Rows(), ElementsAre("large KeyUp KeyCode=40 Down, Shift=0", "large Click Index=2",
                                    "large Change Index=3", "large KeyDown KeyCode=40 Down, Shift=0"));
}

TEST_F(EventLogTest, APressOnAColumnBarTellsTheColumn) {
    auto& bar = AddWatched<tvok::pcols>("bar", {10, 10, 300, 24});
    bar.Add(0, "One", 100);
    bar.Add(0, "Two", 100);
    bar.Refresh();
    desktop_.Click(bar, 150, 8);
    EXPECT_THAT(Rows(), ElementsAre("bar MouseDown xIndex=2, lButton=left"));
}

TEST_F(EventLogTest, AClickOnALabelTellsTheButton) {
    auto& label = AddWatched<tvok::iLabel>("label", {10, 10, 100, 30});
    desktop_.RightClick(label, 20, 10);
    EXPECT_THAT(Rows(), ElementsAre("label MouseUp Button=right, Shift=0, x=300, y=150",
                                    "label MouseDown Button=right, Shift=0, x=300, y=150"));
}

TEST_F(EventLogTest, AKeyInAPopupTellsTheItemAndThatItWasTaken) {
    auto& popup = AddWatched<tvok::xPopup>("popup", {10, 10, 30, 30});
    for (const char* text : {"ant", "bee"}) popup.AddItem({.text = text});
    popup.SetParentRect({200, 280, 300, 300});
    popup.Popup(false);
    Turn();
    desktop_.Key(tvok::host::VK_DOWN);
    desktop_.Key(tvok::host::VK_RETURN);
    EXPECT_THAT(Rows(), ElementsAre(R"(popup Click Index=1, x={text="ant"}, Canceled=false)",
                                    R"(popup Change Index=1, x={text="ant"})"));
}

TEST_F(EventLogTest, AClickOnAStripTellsTheKeyOfTheButton) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    strip.SetButtons("A|first|0|B|second|0");
    desktop_.Click(strip, 30, 8);
    EXPECT_THAT(Rows(), ElementsAre(R"(strip Click key="second")", R"(strip MouseDown key="second")"));
}

TEST_F(EventLogTest, AColorSelectorHasNoEventToTell) {
    auto& selector = AddWatched<tvok::ucColorSelector>("color", {10, 10, 120, 22});
    desktop_.Click(selector, 20, 8);
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(EventLogTest, AClickOnAPropertyListTellsTheRecord) {
    auto& list = AddWatched<tvok::gList>("props", {10, 10, 300, 200});
    tvok::elistdata item = list.DefaultItem();
    item.hItem.text = item.hItem.key = "Width";
    item.xbuttons = ";ns";
    item.nData = 12;
    list.AddItem(item);
    list.BuiltList();
    Turn();
    Do(EventLog::Clear);
    desktop_.Click(list, 60, 8);
    EXPECT_THAT(Rows(),
                testing::Contains("props Click Index=1, x={hItem.text=\"Width\", hItem.key=\"Width\", "
                                  "nData=12, item.text=\"12\", xbuttons=\";ns\"}"));
}

TEST_F(EventLogTest, TypingInATextBoxTellsTheKeyAndTheChange) {
    auto& box = AddWatched<tvok::TextBox>("box", {10, 10, 100, 24});
    desktop_.Focus(box);
    desktop_.Type("a");
    EXPECT_THAT(Rows(), ElementsAre("box Change ", "box KeyDown KeyCode=65 A, Shift=0"));
}

// What handlers do.

TEST_F(EventLogTest, WhatAHandlerChangesStandsBesideWhatCame) {
    auto& list = AddFruits();
    list.events.KeyDown = [](std::int16_t& code, std::int16_t&) { code = 0; };
    list.events.Change = [](std::int32_t, qrosterdata& x) { x.text = "bumblebee"; };
    desktop_.Focus(list);
    desktop_.Key(tvok::host::VK_DOWN);
    EXPECT_THAT(Rows(), testing::Contains("list KeyDown KeyCode=40 Down \u2192 0, Shift=0"));
    list.ListIndex(2);
    EXPECT_EQ(Newest(), "list Change Index=2, x={text=\"bee\" \u2192 \"bumblebee\"}");
}

TEST_F(EventLogTest, AnEventThatAHandlerCausesStandsAboveItAndIsIndented) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    auto& list = AddFruits();
    strip.events.Click = [&list](const std::string&) { list.ListIndex(3); };
    strip.events.Click("go");
    EXPECT_THAT(Rows(), ElementsAre(R"(list   Change Index=3, x={text="cat"})", R"(strip Click key="go")"));
}

TEST_F(EventLogTest, AHandlerThatRemovesItsControlLeavesARow) {
    auto& list = AddFruits();
    list.events.Change = [this, &list](std::int32_t, qrosterdata&) { form().Remove(list); };
    list.ListIndex(2);
    EXPECT_THAT(Rows(), ElementsAre(R"(list Change Index=2, x={text="bee"})"));
    AddWatched<tvok::xbutton>("another", {10, 10, 60, 20}).events.Click("k");
    EXPECT_EQ(Newest(), R"(another Click key="k")");
}

TEST_F(EventLogTest, AHandlerThatThrowsLeavesARow) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    strip.events.Click = [](const std::string&) { throw std::runtime_error("from the host"); };
    EXPECT_THROW(strip.events.Click("k"), std::runtime_error);
    EXPECT_EQ(Newest(), R"(strip Click key="k")");
    strip.events.MouseDown("k");
    EXPECT_EQ(Newest(), R"(strip MouseDown key="k")");
}

TEST_F(EventLogTest, AnEventThatStillRunsStandsThereWithoutArguments) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    std::string meanwhile;
    strip.events.Click = [&](const std::string&) { meanwhile = Newest(); };
    strip.events.Click("k");
    EXPECT_EQ(meanwhile, "strip Click ");
    EXPECT_EQ(Newest(), R"(strip Click key="k")");
}

TEST_F(EventLogTest, AHandlerMayEndTheLogThatHearsIt) {
    auto& strip = form().Add<tvok::xbutton>("strip", tvok::Placement{10, 10, 60, 20});
    tvok::Form& second = desktop_.desktop().AddForm("Second", 980, 300);
    auto log = std::make_unique<EventLog>(desktop_.desktop(), second);
    log->Watch(strip, "strip");
    strip.events.Click = [&log](const std::string&) { log.reset(); };
    strip.events.Click("k");
    strip.events.Click("k");
    EXPECT_EQ(log, nullptr);
    second.Close();
    Turn();
}

// Floods.

TEST_F(EventLogTest, PaintingAndMouseMovesAreLeftOutAndCounted) {
    auto& large = AddWatched<tvok::qRosterex>("large", {10, 10, 300, 200});
    auto& list = form().Add<tvok::qRoster>("list", tvok::Placement{320, 10, 200, 200});
    log_.Watch(list, "list");
    large.Count(4);
    Turn();
    Do(EventLog::Clear);
    large.PaintAll();
    desktop_.MoveTo(list, 10, 10);
    desktop_.MoveTo(list, 20, 10);
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(WordsOf(log_.filters(), EventLog::Frequent), "6 left out");
}

TEST_F(EventLogTest, RepeatsOfAPaintingAskShareARowThatCountsThem) {
    auto& large = AddWatched<tvok::qRosterex>("large", {320, 10, 300, 200});
    auto& list = AddFruits();
    large.events.EnumDATA = [](std::int32_t& row, qrosterdata& x) { x.text = std::to_string(row); };
    Set(EventLog::Frequent);
    large.Count(4);
    Do(EventLog::Clear);
    large.PaintAll();
    desktop_.MoveTo(list, 10, 10);
    large.PaintAll();
    desktop_.MoveTo(list, 20, 10);
    EXPECT_THAT(Rows(), ElementsAre("list MouseMove \u00D72 Button=0, Shift=0, x=300, y=150",
                                    "large EnumDATA \u00D78 Index=1, x={text=\"1\"}"));
    list.ListIndex(2);
    large.PaintAll();
    EXPECT_THAT(Rows(),
                ElementsAre(StartsWith("large EnumDATA \u00D74"), StartsWith("list Change"),
                            StartsWith("list MouseMove \u00D72"), StartsWith("large EnumDATA \u00D78")));
}

TEST_F(EventLogTest, ARowThatIsShownCountsOnInItsPlace) {
    auto& list = AddFruits();
    Set(EventLog::Frequent);
    Do(EventLog::Clear);
    desktop_.MoveTo(list, 10, 10);
    EXPECT_EQ(Newest(), "list MouseMove Button=0, Shift=0, x=150, y=150");
    const auto one = desktop_.Pixels(this->list());
    desktop_.MoveTo(list, 12, 10);
    EXPECT_EQ(Newest(), "list MouseMove \u00D72 Button=0, Shift=0, x=180, y=150");
    EXPECT_FALSE(one == desktop_.Pixels(this->list()));
    EXPECT_EQ(this->list().Count(), 1);
}

TEST_F(EventLogTest, EventsThatFollowEachOtherWithTheSameArgumentsShareARow) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    strip.events.Click("a");
    strip.events.Click("a");
    strip.events.Click("b");
    EXPECT_THAT(Rows(), ElementsAre(R"(strip Click key="b")", "strip Click \u00D72 key=\"a\""));
}

// The list.

TEST_F(EventLogTest, TheTimeOfDayIsThatOfTheRaise) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    time_ += milliseconds(61'005);
    strip.events.Click("a");
    time_ += milliseconds(1);
    Turn();
    EXPECT_EQ(log_.RowText(1), "09:01:01.005\tstrip\tClick\tkey=\"a\"");
}

TEST_F(EventLogTest, AReaderWhoScrolledAwayKeepsThePlaceAndIsToldHowManyAreNew) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    Raise(strip, 1, 60);
    Turn();
    EXPECT_EQ(WordsOf(log_.filters(), EventLog::Newest), "following");
    ScrollAway();
    const auto shown = desktop_.Pixels(list());
    Raise(strip, 61, 75);
    Turn();
    EXPECT_TRUE(shown == desktop_.Pixels(list()));
    EXPECT_EQ(WordsOf(log_.filters(), EventLog::Newest), "15 new above");
    Set(EventLog::Newest);
    EXPECT_FALSE(shown == desktop_.Pixels(list()));
    EXPECT_EQ(WordsOf(log_.filters(), EventLog::Newest), "following");
    const auto top = desktop_.Pixels(list());
    list().PaintAll();
    EXPECT_TRUE(top == desktop_.Pixels(list()));
}

TEST_F(EventLogTest, WhoComesWithTheTabKeyStandsOnTheNewestEvent) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    Raise(strip, 1, 60);
    Turn();
    desktop_.Focus(list());
    EXPECT_EQ(list().ListIndex(), 60);
    desktop_.Key(tvok::host::VK_DOWN);
    EXPECT_EQ(list().ListIndex(), 59);
    Raise(strip, 61, 62);
    Turn();
    EXPECT_EQ(list().ListIndex(), 59);
}

TEST_F(EventLogTest, KeepsMoreThanAHundredThousandEventsAndForgetsTheOldest) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    Raise(strip, 1, 1'000);
    ScrollAway();
    for (std::int32_t i = 1'000; i < 200'000; i += 1'000) {
        Raise(strip, i + 1, i + 1'000);
        log_.Turn();
    }
    EXPECT_EQ(log_.store().Newest() - log_.store().Oldest() + 1, EventStore::Capacity);
    EXPECT_THAT(Newest(), R"(strip Click key="200000")");
    std::int32_t row = list().Count();
    EXPECT_THAT(log_.RowText(row - 100'000), HasSubstr("key=\"100000\""));
}

TEST_F(EventLogTest, RowsThatAreNotKeptSayItAndGoWhenTheReaderIsBackAtTheNewest) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    Raise(strip, 1, 100);
    Turn();
    ScrollAway();
    Raise(strip, 101, 200'000);
    Turn();
    EXPECT_EQ(list().Count(), 200'000);
    EXPECT_EQ(log_.RowText(1), "\t\t(no longer kept)\t");
    Set(EventLog::Newest);
    EXPECT_EQ(list().Count(), EventStore::Capacity);
    EXPECT_THAT(log_.RowText(1), HasSubstr("key=\"" + std::to_string(200'001 - EventStore::Capacity) + "\""));
    EXPECT_THAT(log_.RowText(list().Count()), HasSubstr("key=\"200000\""));
    EXPECT_EQ(list().ListIndex(), list().Count());
    const auto shown = desktop_.Pixels(list());
    list().PaintAll();
    EXPECT_TRUE(shown == desktop_.Pixels(list()));
}

TEST_F(EventLogTest, AnEventCostsTheSameHoweverManyThereAre) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    const auto callsOfOne = [&](const char* key) {
        return desktop_
            .Trace([&] {
                strip.events.Click(key);
                log_.Turn();
            })
            .size();
    };
    Raise(strip, 1, 1'000);
    Turn();
    const std::size_t few = callsOfOne("x");
    Raise(strip, 1'001, 120'001); // an odd number, since every other row has a colour of its own
    Turn();
    EXPECT_EQ(callsOfOne("y"), few);
}

TEST_F(EventLogTest, ThousandsOfEventsOfOneTurnCostNoMoreThanAPage) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    Raise(strip, 1, 100);
    Turn();
    const auto callsOf = [&](std::int32_t first, std::int32_t last) {
        return desktop_
            .Trace([&] {
                Raise(strip, first, last);
                log_.Turn();
            })
            .size();
    };
    const std::size_t page = callsOf(101, 120);
    EXPECT_LE(callsOf(121, 5'000), page + 4);
}

TEST_F(EventLogTest, ATurnWithoutNewsPaintsNothing) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    strip.events.Click("a");
    Turn();
    EXPECT_THAT(desktop_.Trace([this] { log_.Turn(); }),
                testing::Not(testing::Contains(StartsWith("ExtText"))));
}

// The switches.

TEST_F(EventLogTest, WhilePausedEventsPassByAndAreCounted) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    EXPECT_EQ(log_.Heading(), "Events, newest first");
    Do(EventLog::Pause);
    Raise(strip, 1, 3);
    EXPECT_THAT(Rows(), IsEmpty());
    EXPECT_EQ(log_.Heading(), "Paused: 3 passed by");
    Do(EventLog::Pause);
    Raise(strip, 4, 4);
    EXPECT_THAT(Rows(), ElementsAre(R"(strip Click key="4")"));
}

TEST_F(EventLogTest, ClearEmptiesTheListAndTheNextEventIsItsFirst) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    Raise(strip, 1, 50);
    Turn();
    ScrollAway();
    Do(EventLog::Clear);
    EXPECT_EQ(list().Count(), 0);
    strip.events.Click("next");
    EXPECT_THAT(Rows(), ElementsAre(R"(strip Click key="next")"));
    EXPECT_EQ(WordsOf(log_.filters(), EventLog::Newest), "following");
}

TEST_F(EventLogTest, ClearInsideAnEventForgetsThatToo) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    strip.events.Click = [this](const std::string&) { log_.actions().Flip(EventLog::Clear); };
    strip.events.Click("k");
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(EventLogTest, CopyTakesTheSelectedRowsNewestFirstWithTabsBetweenTheCells) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    Raise(strip, 1, 5);
    Turn();
    desktop_.Drag(list(), {300, RowHeight + 8}, {300, 3 * RowHeight + 8});
    Do(EventLog::Copy);
    EXPECT_EQ(desktop_.desktop().ClipboardText(), "09:00:00.000\tstrip\tClick\tkey=\"4\"\n"
                                                  "09:00:00.000\tstrip\tClick\tkey=\"3\"\n"
                                                  "09:00:00.000\tstrip\tClick\tkey=\"2\"\n");
    EXPECT_EQ(log_.Heading(), "3 rows copied");
}

TEST_F(EventLogTest, ControlCCopiesTheCurrentRow) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    Raise(strip, 1, 5);
    Turn();
    desktop_.Focus(list());
    desktop_.HoldKey(tvok::host::VK_CONTROL);
    desktop_.Key('C');
    desktop_.LetGoKey(tvok::host::VK_CONTROL);
    EXPECT_EQ(desktop_.desktop().ClipboardText(), "09:00:00.000\tstrip\tClick\tkey=\"5\"\n");
}

TEST_F(EventLogTest, TheLogDoesNotTellOfItself) {
    log_.Watch(list(), "log");
    log_.Watch(log_.bar(), "bar");
    log_.Watch(log_.actions().list(), "actions");
    log_.Watch(log_.filters().list(), "filters");
    Set(EventLog::Frequent);
    desktop_.Click(list(), 100, 8);
    desktop_.Click(log_.bar(), 20, 8);
    list().PaintAll();
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(EventLogTest, WhileHiddenItNotesAndShowsThatLater) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    log_.Visible(false);
    Raise(strip, 1, 3);
    Turn();
    EXPECT_EQ(list().Count(), 0);
    log_.Visible(true);
    Turn();
    EXPECT_EQ(list().Count(), 3);
}

TEST_F(EventLogTest, TheColumnsFollowADividerOfTheBar) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    strip.events.Click("a");
    Turn();
    const std::string before = list().HeaderWidths();
    desktop_.Drag(log_.bar(), {98, 8}, {128, 8});
    Turn();
    EXPECT_THAT(before, StartsWith("98-130-"));
    EXPECT_THAT(list().HeaderWidths(), StartsWith("128-100-"));
}

TEST_F(EventLogTest, AControlThatIsForgottenAddsNoRow) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    const std::size_t watched = log_.Watched();
    strip.events.Click("a");
    log_.Forget(&strip);
    strip.events.Click("b");
    EXPECT_EQ(log_.Watched(), watched - 1);
    EXPECT_THAT(Rows(), ElementsAre(R"(strip Click key="a")"));
}

TEST_F(EventLogTest, AFormIsWatchedWithItsControlsUntilItIsForgotten) {
    tvok::Form& run = desktop_.desktop().AddForm("", 200, 100);
    const auto& strip = run.Add<tvok::xbutton>("strip", {10, 10, 60, 20});
    log_.WatchForm(run, "run");
    strip.events.Click("a");
    run.events.Closed = [&] { log_.ForgetForm(run); };
    run.Close();
    EXPECT_THAT(Rows(), testing::Contains(R"(run.strip Click key="a")"));
    EXPECT_THAT(Rows(), testing::Contains(StartsWith("run Closed"))) << "the last that it raises";
    EXPECT_EQ(log_.Watched(), 0u);
}

TEST_F(EventLogTest, AControlThatIsWatchedAgainGetsItsNewName) {
    auto& strip = AddWatched<tvok::xbutton>("strip", {10, 10, 60, 20});
    log_.Watch(strip, "renamed");
    strip.events.Click("a");
    EXPECT_THAT(Rows(), ElementsAre(R"(renamed Click key="a")"));
}

} // namespace
} // namespace gallery
