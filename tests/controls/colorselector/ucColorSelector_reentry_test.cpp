// Hosts that act, throw, or end the selector in the middle of what it is doing: while its popup is filled and
// opens, in the colour dialog, and as the focus comes back to it.
#include "tests/support/SelectorTestDesktop.h"

#include <stdexcept>
#include <tuple>

#include "tvok/host/RecordingPlatform.h"

namespace tvok::test {
namespace {

/// Calls `act` at the end of each platform call of a name; the line of a call begins with it.
class AtCalls {
public:
    AtCalls(TestDesktop& desktop, const std::string& name, const std::function<void()>& act)
        : desktop_(desktop.desktop()), recorder_(desktop_.OwnPlatform(), [name, act](std::string_view line) {
              if (line.starts_with(name)) act();
          }) {
        desktop_.InterposePlatform(&recorder_);
    }
    ~AtCalls() { desktop_.InterposePlatform(nullptr); }
    AtCalls(const AtCalls&) = delete;
    AtCalls& operator=(const AtCalls&) = delete;

private:
    tvok::Desktop& desktop_;
    host::RecordingPlatform recorder_;
};

struct Deed {
    const char* name;
    void (*act)(SelectorDesktop&);
    bool ends = false; ///< The selector is gone afterwards.
    bool throws = false;
};

const Deed cDeeds[] = {
    {"RemovesTheControl",
     [](SelectorDesktop& at) { at.desktop.form().Remove(*std::exchange(at.selector, nullptr)); }, true},
    {"ClosesTheForm",
     [](SelectorDesktop& at) {
         at.selector = nullptr;
         at.desktop.form().Close();
     },
     true},
    {"WritesTheColour", [](SelectorDesktop& at) { at.selector->SelectColor(0x123456); }},
    {"ChangesTheSize",
     [](SelectorDesktop& at) {
         at.desktop.form().Place(*at.selector, {20, 20, 90, 40});
     }},
    {"TakesTheBorder", [](SelectorDesktop& at) { at.selector->BorderStyle(0); }},
    {"GivesTheFocusAway", [](SelectorDesktop& at) { at.desktop.FocusAway(); }},
    {"TakesTheFocus", [](SelectorDesktop& at) { host::platform().SetFocus(at.OwnWindow()); }},
    {"HidesTheControl",
     [](SelectorDesktop& at) { at.desktop.form().ComponentOf(*at.selector).Visible(false); }},
    {"PressesEsc",
     [](SelectorDesktop& at) {
         at.desktop.desktop().Input().KeyDown(host::VK_ESCAPE);
         host::platform().DoEvents();
     }},
    {"PressesAnArrow", [](SelectorDesktop& at) { at.PressButton(SelectorDesktop::Grid); }},
    {"AsksTheDialogOnceMore", [](SelectorDesktop& at) { at.ClickButton(SelectorDesktop::Dialog); }},
    {"Throws", [](SelectorDesktop&) { throw std::runtime_error("thrown by a host"); }, false, true},
};

/// A user's way through the selector on which `once` is called.
struct Moment {
    const char* name;
    void (*run)(SelectorDesktop&, const std::function<void()>& once);
};

const Moment cMoments[] = {
    {"AsTheGridOpens",
     [](SelectorDesktop& at, const std::function<void()>& once) {
         const AtCalls calls(at.desktop, "DoEvents", once);
         at.PressButton(SelectorDesktop::Grid);
     }},
    {"AsTheListOpens",
     [](SelectorDesktop& at, const std::function<void()>& once) {
         const AtCalls calls(at.desktop, "DoEvents", once);
         at.PressButton(SelectorDesktop::List);
     }},
    {"AsTheListIsFilled",
     [](SelectorDesktop& at, const std::function<void()>& once) {
         at.watch.onString = once;
         at.PressButton(SelectorDesktop::List);
     }},
    {"AsAPreviewIsNamed",
     [](SelectorDesktop& at, const std::function<void()>& once) {
         at.ClickButton(SelectorDesktop::List);
         at.watch.onString = once;
         at.desktop.Key(host::VK_DOWN);
         at.desktop.Key(host::VK_DOWN);
     }},
    {"AsACancelledColourIsNamed",
     [](SelectorDesktop& at, const std::function<void()>& once) {
         at.selector->SelectColor(cButtonFace);
         at.ClickButton(SelectorDesktop::Grid);
         at.MoveToCell(1, 5);
         at.watch.onString = once;
         at.desktop.Key(host::VK_ESCAPE);
     }},
    {"AsThePopupGivesTheMouseBack",
     [](SelectorDesktop& at, const std::function<void()>& once) {
         at.ClickButton(SelectorDesktop::Grid);
         at.MoveToCell(1, 5);
         {
             const AtCalls calls(at.desktop, "ReleaseCapture", once);
             at.Click(6, 50);
         }
         host::platform().ReleaseCapture(); // which a throw has kept the popup from
     }},
    {"InTheDialog",
     [](SelectorDesktop& at, const std::function<void()>& once) {
         at.watch.onPick = [once](host::Handle) {
             once();
             return SelectorDesktop::cRed;
         };
         at.ClickButton(SelectorDesktop::Dialog);
     }},
    {"AsTheFocusComesBackFromElsewhere",
     [](SelectorDesktop& at, const std::function<void()>& once) {
         auto& other = at.desktop.form().Add<Recorder>("other", {20, 100, 50, 50});
         at.watch.onPick = [&](host::Handle) {
             at.desktop.Focus(other);
             other.onEvent = [once](const std::string& event) {
                 if (event == "LostFocus") once();
             };
             return SelectorDesktop::cRed;
         };
         at.ClickButton(SelectorDesktop::Dialog);
         if (at.desktop.desktop().Forms().empty()) return;
         other.onEvent = nullptr;
     }},
};

class ucColorSelectorReentry : public testing::TestWithParam<std::tuple<Moment, Deed>> {};

TEST_P(ucColorSelectorReentry, NothingDangles) {
    const auto& [moment, deed] = GetParam();
    SelectorDesktop at;
    bool done = false;
    const auto act = [&, run = deed.act] {
        if (!std::exchange(done, true)) run(at);
    };
    const auto step = [&, throws = deed.throws](const std::function<void()>& what) {
        if (throws) return quietly(what);
        EXPECT_NO_THROW(what());
    };
    step([&, run = moment.run] { run(at, act); });
    EXPECT_TRUE(done);
    at.watch.onString = nullptr;
    at.watch.onPick = [](host::Handle) { return -1; };
    step([&] { at.desktop.Release(); });
    step([&] { at.desktop.Pump(); });
    EXPECT_EQ(at.selector == nullptr, deed.ends);
    if (at.selector == nullptr) {
        EXPECT_FALSE(at.IsOpen()) << "a popup goes with its control";
        return;
    }
    // What is left works as ever.
    at.desktop.LetGoKey(host::VK_ESCAPE);
    at.desktop.Key(host::VK_ESCAPE);
    at.desktop.form().ComponentOf(*at.selector).Visible(true);
    at.desktop.form().Place(*at.selector, SelectorDesktop::cPlace);
    at.selector->BorderStyle(1);
    at.desktop.Focus(*at.selector);
    at.PressButton(SelectorDesktop::Grid);
    ASSERT_TRUE(at.IsOpen());
    at.MoveToCell(9, 5);
    at.Up();
    EXPECT_EQ(at.selector->SelectColor(), SelectorDesktop::cGreen);
    EXPECT_TRUE(at.ShowsFocus());
}

INSTANTIATE_TEST_SUITE_P(EachMomentAndDeed, ucColorSelectorReentry,
                         testing::Combine(testing::ValuesIn(cMoments), testing::ValuesIn(cDeeds)),
                         [](const auto& info) {
                             return std::string(std::get<0>(info.param).name) + std::get<1>(info.param).name;
                         });

TEST(ucColorSelectorEnds, WithItsPopupOpenThePopupGoesAlong) {
    for (const bool byForm : {false, true}) {
        SelectorDesktop at;
        at.ClickButton(SelectorDesktop::Grid);
        at.MoveToCell(1, 5);
        ASSERT_TRUE(at.IsOpen());
        byForm ? at.desktop.form().Close() : at.desktop.form().Remove(*at.selector);
        at.desktop.Pump();
        EXPECT_FALSE(at.IsOpen());
        EXPECT_EQ(host::platform().GetCapture(), 0);
    }
}

TEST(ucColorSelectorEnds, AHeldFontOutlivesTheControl) {
    SelectorDesktop at;
    const host::FontPtr font = at.selector->Font();
    at.desktop.form().Remove(*at.selector);
    at.desktop.Pump();
    EXPECT_NO_THROW(font->Size(20));
}

} // namespace
} // namespace tvok::test
