// The log viewer's window without a screen: what it does on keys and as the log changes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "apps/logview/Viewer.h"
#include "tests/apps/LogviewFiles.h"
#include "tvok/host/RecordingPlatform.h"

namespace logview {
namespace {

using testing::HasSubstr;
using testing::Not;
using tvok::desktop::MouseButton;

constexpr std::int32_t cF2 = 113, cF3 = 114, cF4 = 115;

class LogviewWindow : public LogviewFiles {
protected:
    void Open(const std::string& path, Options options = {}) {
        options.file = path;
        viewer_ = std::make_unique<Viewer>(desktop_, options, settings_);
        form_ = desktop_.Forms().back().get();
        list_ = form_->Find<tvok::qRosterex>("log");
        Settle();
    }
    Viewer& viewer() { return *viewer_; }
    tvok::qRosterex& list() { return *list_; }
    tvok::Form& form() { return *form_; }
    tvok::Desktop& desktop() { return desktop_; }
    Settings& settings() { return settings_; }

    /// Until nothing works in the background and all it said is shown.
    void Settle() {
        desktop_.ProcessEvents({});
        while (viewer_->IsBusy()) desktop_.ProcessEvents(std::chrono::milliseconds(1));
        // The threads say what they found after they stop being busy.
        for (int turn = 0; turn < 20; ++turn) desktop_.ProcessEvents(std::chrono::milliseconds(1));
    }
    /// Until the viewer has looked at the file and `holds`; a test that waits for ever has failed.
    template<class Condition>
    void Until(Condition holds) {
        while (!holds()) {
            viewer_->Turn();
            desktop_.ProcessEvents(std::chrono::milliseconds(5));
        }
    }
    void UntilRows(std::int32_t rows) {
        Until([&] { return list_->Count() == rows; });
    }
    void Key(std::int32_t key, bool shift = false, bool control = false) {
        if (control) desktop_.Input().KeyDown(tvok::host::VK_CONTROL);
        if (shift) desktop_.Input().KeyDown(tvok::host::VK_SHIFT);
        desktop_.Input().KeyDown(key);
        desktop_.Input().KeyUp(key);
        if (shift) desktop_.Input().KeyUp(tvok::host::VK_SHIFT);
        if (control) desktop_.Input().KeyUp(tvok::host::VK_CONTROL);
        Settle();
    }
    void TypeInto(const char* box, const std::string& text) {
        form_->Find<tvok::TextBox>(box)->Text(text);
        Settle();
    }
    void EnterLine(const std::string& text) {
        TypeInto("line", text);
        form_->ComponentOf(*form_->Find("line")).SetFocus();
        Key(tvok::host::VK_RETURN);
    }
    /// Of the header and of each row on the page.
    std::vector<std::string> PaintedTexts() {
        std::vector<std::string> texts;
        tvok::host::RecordingPlatform recorder(desktop_.OwnPlatform(), [&](std::string_view call) {
            const std::size_t quote = call.find('"');
            if (call.starts_with("ExtTextOutA") && quote + 1 < call.size())
                texts.emplace_back(call.substr(quote + 1, call.rfind('"') - quote - 1));
        });
        desktop_.InterposePlatform(&recorder);
        list_->PaintAll();
        desktop_.InterposePlatform(nullptr);
        return texts;
    }
    std::string Status() const { return viewer_->StatusText(); }

private:
    static tvok::DesktopOptions Screen() {
        tvok::DesktopOptions options;
        options.display = tvok::DesktopOptions::Display::Headless;
        return options;
    }
    tvok::Desktop desktop_{Screen()};
    Settings settings_{{}};
    std::unique_ptr<Viewer> viewer_;
    tvok::Form* form_ = nullptr;
    tvok::qRosterex* list_ = nullptr;
};

TEST_F(LogviewWindow, ShowsWhereTheReaderIs) {
    Open(Write("a", Numbered(5000)));
    EXPECT_EQ(list().Count(), 5000);
    EXPECT_THAT(Status(), HasSubstr("line 1 of 5,000"));
    Key(tvok::host::VK_END);
    EXPECT_THAT(Status(), HasSubstr("line 5,000 of 5,000"));
    Key(tvok::host::VK_HOME);
    Key(tvok::host::VK_NEXT);
    EXPECT_EQ(list().ListIndex(), 1 + list().yn());
}

TEST_F(LogviewWindow, AnEmptyLogSaysSoAndGrows) {
    Open(Write("a", ""));
    EXPECT_EQ(list().Count(), 0);
    EXPECT_THAT(Status(), HasSubstr("0 lines"));
    Key(cF2);
    EXPECT_THAT(Status(), HasSubstr("no line to mark"));
    Key('C', false, true);
    EXPECT_THAT(Status(), HasSubstr("No line is selected"));
    Write("a", "2026-01-01 00:00:00 INFO first\n", true);
    UntilRows(1);
    EXPECT_EQ(list().HeaderCount(), 3); // what its columns are shows with the first line
}

TEST_F(LogviewWindow, ALineThatWasUnfinishedIsShownWhole) {
    Options options;
    options.follow = true;
    Open(Write("a", "one\ntw"), options);
    Write("a", "o\nthree\n", true);
    UntilRows(3);
    const std::vector<std::string> texts = PaintedTexts();
    EXPECT_THAT(texts, testing::ElementsAre("Line", "one", "two", "three"));
}

TEST_F(LogviewWindow, FollowingShowsNewLinesAndKeepsThePlaceOfAReaderWhoScrolledAway) {
    Options options;
    options.follow = true;
    Open(Write("a", Numbered(2000)), options);
    EXPECT_EQ(list().ListIndex(), 2000);
    Write("a", "more\nmore\n", true);
    UntilRows(2002);
    EXPECT_EQ(viewer().NewLinesUnseen(), 0);

    Key(tvok::host::VK_HOME);
    for (const int lines : {3, 500}) {
        Write("a", Numbered(lines), true);
        UntilRows(list().Count() + lines);
    }
    EXPECT_EQ(viewer().NewLinesUnseen(), 503);
    EXPECT_THAT(PaintedTexts(), testing::Contains("line 0")); // the page is still the first one

    Key(tvok::host::VK_END);
    EXPECT_EQ(viewer().NewLinesUnseen(), 0);
    EXPECT_EQ(list().ListIndex(), 2505);
}

TEST_F(LogviewWindow, ManyLinesAtOnceAreFollowedToTheLast) {
    Options options;
    options.follow = true;
    Open(Write("a", "one\n"), options);
    for (const int lines : {200, 5000, 250000}) { // one by one, together, counted
        Write("a", Numbered(lines), true);
        UntilRows(list().Count() + lines);
        EXPECT_EQ(viewer().NewLinesUnseen(), 0) << lines;
    }
}

TEST_F(LogviewWindow, WithoutFollowingThePageStaysAndNewLinesAreCounted) {
    Open(Write("a", Numbered(2000)));
    Key(tvok::host::VK_END);
    Write("a", Numbered(50), true);
    UntilRows(2050);
    EXPECT_GE(viewer().NewLinesUnseen(), 49); // the first one may show in part
    Key('E', false, true);
    EXPECT_THAT(Status(), HasSubstr("following"));
    EXPECT_EQ(viewer().NewLinesUnseen(), 0);
}

TEST_F(LogviewWindow, TheNewestLineCanStandAtTheTop) {
    Options options;
    options.follow = options.newestFirst = true;
    Open(Write("a", Numbered(2000)), options);
    Write("a", "new\n", true);
    UntilRows(2001);
    EXPECT_EQ(list().ViewMode(), 0);
    EXPECT_EQ(viewer().NewLinesUnseen(), 0);
    Key('E', false, true); // the page waits
    Write("a", "newer\n", true);
    Until([&] { return viewer().NewLinesUnseen() == 1; });
    EXPECT_EQ(list().Count(), 2001);
    Key('E', false, true);
    EXPECT_EQ(list().Count(), 2002);
}

TEST_F(LogviewWindow, FindsOnAndBackAndAroundTheEnd) {
    std::string bytes = Numbered(3000);
    Open(Write("a", bytes));
    TypeInto("find", "line 2");
    EXPECT_EQ(list().ListIndex(), 3);
    TypeInto("find", "line 29");
    EXPECT_EQ(list().ListIndex(), 30); // one letter more looks on from where the typing began
    TypeInto("find", "line 2");
    EXPECT_EQ(list().ListIndex(), 3);
    TypeInto("find", "line 29");
    Key(cF3);
    EXPECT_EQ(list().ListIndex(), 291);
    Key(cF3, true);
    EXPECT_EQ(list().ListIndex(), 30);
    Key(cF3, true);
    EXPECT_EQ(list().ListIndex(), 3000);
    EXPECT_THAT(Status(), HasSubstr("on from the end"));
    Key(cF3);
    EXPECT_EQ(list().ListIndex(), 30);
    EXPECT_THAT(Status(), HasSubstr("on from the beginning"));
    TypeInto("find", "nowhere at all");
    EXPECT_THAT(Status(), HasSubstr("is not in this log"));
    EXPECT_EQ(list().ListIndex(), 30);
}

TEST_F(LogviewWindow, GoesToALineAndSelectsARangeOfLines) {
    Open(Write("a", Numbered(3000)));
    EnterLine("1,234");
    EXPECT_EQ(list().ListIndex(), 1234);
    EnterLine("2000-1000");
    EXPECT_EQ(list().StartSelected(), 1000);
    EXPECT_EQ(list().EndSelected(), 2000);
    EXPECT_THAT(Status(), HasSubstr("lines 1,000 - 2,000 of 3,000: 1,001 lines selected"));
    EnterLine("4000");
    EXPECT_THAT(Status(), HasSubstr("no line 4,000: the last one is 3,000"));
    EnterLine("ten");
    EXPECT_THAT(Status(), HasSubstr("is no line"));
    Key('G', false, true);
    Key(tvok::host::VK_ESCAPE);
    EXPECT_THAT(Status(), Not(HasSubstr("no line")));
}

TEST_F(LogviewWindow, LinesAreNumberedAsInTheFile) {
    Open(Write("a", "name,size,date\na,1,2\nb,2,3\n"));
    EXPECT_EQ(list().Count(), 2);
    EXPECT_THAT(Status(), HasSubstr("line 2 of 3"));
    EnterLine("3");
    EXPECT_EQ(list().ListIndex(), 2);
}

TEST_F(LogviewWindow, CopiesWhatIsSelected) {
    Open(Write("a", "2026-01-01 00:00:00 INFO first\r\n2026-01-01 00:00:01 WARN second\nthird"));
    Key('A', false, true);
    Key('C', false, true);
    EXPECT_EQ(desktop().ClipboardText(),
              "2026-01-01 00:00:00 INFO first\n2026-01-01 00:00:01 WARN second\nthird\n");
    EXPECT_THAT(Status(), HasSubstr("Copied 3 lines (69 bytes) as text."));
    Key(tvok::host::VK_HOME);
    Key('C', true, true);
    EXPECT_EQ(desktop().ClipboardText(), "2026-01-01 00:00:00\tINFO\tfirst\n");
}

TEST_F(LogviewWindow, CopiesAMillionLines) {
    std::string bytes;
    for (int i = 0; i < 1000010; ++i) bytes += std::to_string(i) + '\n';
    Open(Write("a", bytes));
    EnterLine("5-1000004");
    EXPECT_THAT(Status(), HasSubstr("1,000,000 lines selected"));
    Key('C', false, true);
    const std::string copied = desktop().ClipboardText();
    EXPECT_EQ(copied, bytes.substr(8, copied.size()));
    EXPECT_TRUE(copied.ends_with("\n1000003\n"));
    EXPECT_THAT(Status(), HasSubstr("Copied 1,000,000 lines"));
}

TEST_F(LogviewWindow, WritesWhatIsSelectedToANewFile) {
    const auto before = std::filesystem::current_path();
    Open(Write("some.log", Numbered(30)));
    std::filesystem::current_path(std::filesystem::path(Path("some.log")).parent_path());
    EnterLine("2-3");
    Key('S', false, true);
    EXPECT_THAT(Status(), HasSubstr("Wrote 2 lines (17 bytes) to some.log.2-3.txt."));
    std::ifstream file(Path("some.log.2-3.txt"));
    std::string text;
    std::getline(file, text, '\0');
    EXPECT_EQ(text, "line 1x\nline 2xx\n");
    Key('S', false, true);
    EXPECT_THAT(Status(), HasSubstr("is there already"));
    std::filesystem::current_path(before);
}

TEST_F(LogviewWindow, MarksAreKeptInTheListsBuffer) {
    Open(Write("a", Numbered(3000)));
    for (const char* line : {"10", "2000", "30"}) {
        EnterLine(line);
        Key(cF2);
    }
    EXPECT_EQ(list().FileBufValue(2000), 1);
    EXPECT_THAT(Status(), HasSubstr("3 marked"));
    Key(cF4);
    EXPECT_EQ(list().ListIndex(), 2000);
    Key(cF4);
    EXPECT_EQ(list().ListIndex(), 10);
    Key(cF4, true);
    EXPECT_EQ(list().ListIndex(), 2000);
    Key(cF2);
    EXPECT_EQ(list().FileBufValue(2000), 0);
    EXPECT_THAT(Status(), HasSubstr("2 marked"));
}

TEST_F(LogviewWindow, SaysWhatBecameOfTheFile) {
    const std::string path = Write("a", Numbered(3000));
    Open(path);
    Key(cF2);
    Key('A', false, true);
    Write("a", "short\n");
    UntilRows(1);
    EXPECT_THAT(Status(), HasSubstr("cut short"));
    EXPECT_THAT(Status(), Not(HasSubstr("marked")));
    EXPECT_EQ(list().FileBufValue(1), 0);

    Write("b", "new\nlines\n");
    std::filesystem::rename(Path("b"), path);
    UntilRows(2);
    EXPECT_THAT(Status(), HasSubstr("was replaced"));

    std::filesystem::remove(path);
    Until([&] { return Status().find("was removed") != std::string::npos; });
    EXPECT_EQ(list().Count(), 2);
    Key(cF4);
    EXPECT_THAT(Status(), HasSubstr("No line is marked")); // and one message does not hide the other
    EXPECT_THAT(Status(), HasSubstr("was removed"));
}

TEST_F(LogviewWindow, AFolderInTheFilesPlaceLeavesWhatWasRead) {
    const std::string path = Write("a", "one\ntwo\n");
    Open(path);
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    Until([&] { return Status().find("a folder") != std::string::npos; });
    EXPECT_EQ(list().Count(), 2);
    Key(tvok::host::VK_END);
    EXPECT_EQ(list().ListIndex(), 2);
}

TEST_F(LogviewWindow, ColumnWidthsAreRememberedWhenTheWindowCloses) {
    Open(Write("a", "a,b,1\nc,d,2\n"));
    list().HeaderWidths("111-222-333");
    form().Close();
    desktop().ProcessEvents({});
    EXPECT_FALSE(viewer().IsOpen());
    EXPECT_EQ(settings().Widths("delimiter , 3"), "111-222-333");
    Open(Path("a"));
    EXPECT_EQ(list().HeaderWidths(), "111-222-333");
}

TEST_F(LogviewWindow, LinesThatAreNoTextAreShownAllTheSame) {
    std::string bytes("\0\x01\xFF\n", 4);
    bytes += std::string(1000000, 'x') + "\n\r\n" + "\x1B[31mERROR\x1B[0m\tend";
    Open(Write("a", bytes));
    EXPECT_EQ(list().Count(), 4);
    Key('A', false, true);
    Key('C', false, true);
    EXPECT_THAT(Status(), HasSubstr("Copied 4 lines"));
    desktop().SaveForm(form(), Path("picture.png"));
}

TEST_F(LogviewWindow, TheFirstPageIsThereBeforeTheWholeLogIsIndexed) {
    const std::string path = Write("a", Numbered(1000));
    std::filesystem::resize_file(path, std::uintmax_t{2} * 1024 * 1024 * 1024); // a hole: nothing is written
    Options options;
    options.file = path;
    Viewer early(desktop(), options, settings());
    EXPECT_TRUE(early.IsBusy());
    EXPECT_GE(desktop().Forms().back()->Find<tvok::qRosterex>("log")->Count(), 1000);
}

} // namespace
} // namespace logview
