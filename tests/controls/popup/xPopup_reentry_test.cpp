// Handlers that clear, sort, open again, throw, or end the control and its form in the middle of an event.
#include "tests/support/PopupTestDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Counts what opens and what is heard of it.
struct CountedPopup : PopupDesktop {
    CountedPopup() : PopupDesktop(Lines(6)) {
        popup->yn(3);
        popup->events.Click = [this](std::int32_t, qrosterdata&, bool) { ++clicks; };
    }
    std::int32_t openings = 0;
    std::int32_t clicks = 0;
    std::int32_t silentEnds = 0; ///< Closings that are not heard of.

    void OpenCounted() {
        if (!IsOpen() && popup->Count() > 0) ++openings;
        popup->Popup(false, true);
    }
    void End(const std::function<void()>& end) {
        if (IsOpen()) ++silentEnds;
        end();
    }
};

/// What a handler does to the popup that raised the event.
struct Deed {
    const char* name;
    void (*act)(CountedPopup&);
    bool throws = false; ///< What it throws comes out where an event is raised in a repaint.
};

const Deed cDeeds[] = {
    {"Clears", [](CountedPopup& at) { at.popup->Clear(); }},
    {"ClearsAndFillsAnew",
     [](CountedPopup& at) {
         at.popup->Clear();
         at.Add({"new"});
     }},
    {"Sorts", [](CountedPopup& at) { at.popup->SortedMode(bDescendingSorted); }},
    {"SortsByItemData", [](CountedPopup& at) { at.popup->SortedMode(bItemDataAscendingSorted); }},
    {"BecomesVirtual", [](CountedPopup& at) { at.popup->Count(2); }},
    {"TurnsIntoAPalette", [](CountedPopup& at) { at.popup->SetColorPal(PAL24x10); }},
    {"TurnsIntoNumbers", [](CountedPopup& at) { at.popup->SetNS(1, 3); }},
    {"OpensAgain", [](CountedPopup& at) { at.OpenCounted(); }},
    {"MovesTheFocus",
     [](CountedPopup& at) {
         at.desktop.Focus(*at.popup);
         at.desktop.FocusAway();
     }},
    {"PressesEsc",
     [](CountedPopup& at) {
         at.desktop.desktop().Input().KeyDown(host::VK_ESCAPE);
         host::platform().DoEvents();
     }},
    {"DropsItsHandlers",
     [](CountedPopup& at) {
         at.popup->events.Change = nullptr;
         at.popup->events.Click = nullptr;
         if (at.IsOpen()) ++at.silentEnds; // of which nothing is heard by now
         at.popup->events.EnumDATA = nullptr;
         at.popup->events.ExDraw = nullptr;
     }},
    {"Throws", [](CountedPopup&) { throw Error("from a handler"); }, true},
    {"RemovesTheControl", [](CountedPopup& at) { at.End([&] { at.desktop.form().Remove(*at.popup); }); }},
    {"RemovesTheFocusedControl", [](CountedPopup& at) { at.desktop.form().Remove(at.owner); }},
    {"ClosesTheForm", [](CountedPopup& at) { at.End([&] { at.desktop.form().Close(); }); }},
};

class xPopupReentry : public testing::TestWithParam<Deed> {
protected:
    /// Six items, open, and one deed at the first of the events that `arm` sets. Every closing but an end of
    /// the control gives one Click, and no error comes out that no handler threw.
    void Run(const std::function<void(CountedPopup&, const std::function<void()>&)>& arm) {
        for (const bool byMouse : {false, true}) {
            CountedPopup at;
            bool done = false;
            const auto once = [&] {
                if (std::exchange(done, true)) return;
                GetParam().act(at);
            };
            arm(at, once);
            Do([&] { at.OpenCounted(); });
            Do([&] { byMouse ? UseMouse(at) : UseKeys(at); });
            Do([&] { at.desktop.Pump(); });
            EXPECT_TRUE(done);
            EXPECT_EQ(at.clicks, at.openings - at.silentEnds - (at.IsOpen() ? 1 : 0)) << byMouse;
        }
    }
    static void Do(const std::function<void()>& step) {
        if (GetParam().throws) return quietly(step);
        EXPECT_NO_THROW(step());
    }
    static void UseKeys(PopupDesktop& at) {
        at.desktop.Key(host::VK_DOWN);
        at.desktop.Key(host::VK_DOWN);
        at.desktop.Key('I');
        at.desktop.Key(host::VK_END);
        at.desktop.Key(host::VK_RETURN);
    }
    static void UseMouse(PopupDesktop& at) {
        at.MoveToScreen(230, 310);
        at.Down();
        at.MoveToScreen(230, 330);
        at.MoveToScreen(230, 500);
        at.Up();
    }
};

TEST_P(xPopupReentry, InChange) {
    Run([](CountedPopup& at, const std::function<void()>& once) {
        at.popup->events.Change = [once](std::int32_t, qrosterdata& item) {
            item.text += ".";
            once();
            item.text += "."; // the record lives as long as the event
        };
    });
}

TEST_P(xPopupReentry, InClick) {
    Run([](CountedPopup& at, const std::function<void()>& once) {
        at.popup->events.Click = [&at, once](std::int32_t, qrosterdata& item, bool) {
            ++at.clicks;
            once();
            item.text += ".";
        };
    });
}

TEST_P(xPopupReentry, InEnumDATA) {
    Run([](CountedPopup& at, const std::function<void()>& once) {
        at.popup->Count(6);
        at.popup->events.EnumDATA = [once](std::int32_t& index, qrosterdata& item) {
            once();
            item = {.text = std::to_string(index)};
        };
    });
}

TEST_P(xPopupReentry, InEnumDATAOfAMove) {
    Run([](CountedPopup& at, const std::function<void()>& once) {
        at.popup->Count(6);
        at.popup->events.Change = [&at, once](std::int32_t, qrosterdata&) {
            at.popup->events.EnumDATA = [once](std::int32_t&, qrosterdata& item) {
                once();
                item.text = "x";
            };
        };
    });
}

TEST_P(xPopupReentry, InExDraw) {
    Run([](CountedPopup& at, const std::function<void()>& once) {
        at.popup->Clear();
        for (const std::string& text : Lines(6))
            at.popup->AddItem({.text = text, .vflag = vflag::HostText | vflag::HostIcon | vflag::IconBox});
        at.popup->events.ExDraw = [once](std::int32_t&, std::int32_t, const std::string&, std::int32_t,
                                         std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                         std::int32_t) { once(); };
    });
}

INSTANTIATE_TEST_SUITE_P(Handler, xPopupReentry, testing::ValuesIn(cDeeds),
                         [](const auto& info) { return info.param.name; });

TEST(xPopupReentry, AHandlerOfClickMayOpenItAgain) {
    PopupDesktop at(Lines(3));
    at.popup->events.Click = [&](std::int32_t index, qrosterdata&, bool canceled) {
        at.story.push_back("Click " + std::to_string(index) + (canceled ? " canceled" : ""));
        if (at.story.size() < 3) at.popup->Popup(false, true);
    };
    at.Open();
    at.desktop.Key(host::VK_ESCAPE);
    EXPECT_TRUE(at.IsOpen());
    EXPECT_EQ(host::platform().GetCapture(), at.Floating());
    at.MoveToScreen(900, 700);
    at.Down();
    EXPECT_TRUE(at.IsOpen()) << "the press that closed it has done its work";
    at.Up();
    at.desktop.FocusAway();
    EXPECT_THAT(at.TakeStory(), ElementsAre("Click 0 canceled", "Click 0 canceled", "Click 0 canceled"));
}

// Closed in the middle of a repaint.

/// Counts what the host is asked to draw, and does one deed the first time.
struct ClosingHost : CountedPopup {
    explicit ClosingHost(const std::function<void(ClosingHost&)>& deed) : deed_(deed) {
        popup->Clear();
        for (const std::string& text : Lines(6)) popup->AddItem({.text = text, .vflag = vflag::HostText});
    }
    std::int32_t asked = 0;
    void Draw() {
        ++asked;
        if (deed_) std::exchange(deed_, nullptr)(*this);
    }
    void Arm() {
        popup->events.ExDraw = [this](auto&&...) { Draw(); };
        popup->events.EnumDATA = [this](std::int32_t&, qrosterdata& item) {
            Draw();
            item = {.text = "a", .vflag = vflag::HostText};
        };
    }
    void ScrollOnce() {
        OpenCounted();
        MoveToRow(1);
        Arm();
        EXPECT_NO_THROW(desktop.Wheel(-1));
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(clicks, 1);
        EXPECT_EQ(asked, 1) << "of a closed popup nothing is drawn";
    }

private:
    std::function<void(ClosingHost&)> deed_;
};

TEST(xPopupReentry, AHostThatMovesTheFocusWhileItDrawsEndsTheRepaint) {
    ClosingHost at([](ClosingHost& host) { host.desktop.FocusAway(); });
    at.ScrollOnce();
}

TEST(xPopupReentry, AHostThatLetsEscRunWhileItDrawsEndsTheRepaint) {
    ClosingHost at([](ClosingHost& host) {
        host.desktop.desktop().Input().KeyDown(host::VK_ESCAPE);
        host::platform().DoEvents();
    });
    at.ScrollOnce();
}

TEST(xPopupReentry, AHostThatMovesTheFocusWhileItIsAskedForAnItemEndsTheRepaint) {
    ClosingHost at([](ClosingHost& host) { host.desktop.FocusAway(); });
    at.popup->Count(60);
    at.ScrollOnce();
}

TEST(xPopupReentry, AnErrorInClickIsIgnored) {
    PopupDesktop at(Lines(3));
    at.popup->events.Click = [](std::int32_t, qrosterdata&, bool) { throw Error("from a handler"); };
    at.Open();
    EXPECT_NO_THROW(at.desktop.Key(host::VK_ESCAPE));
    EXPECT_FALSE(at.IsOpen());
    at.Open();
    EXPECT_TRUE(at.IsOpen());
}

TEST(xPopupReentry, TheControlMayEndInTheMessagesThatRunWhileItOpens) {
    PopupDesktop at(Lines(3));
    at.owner.onEvent = [&](const std::string& event) {
        if (event.starts_with("KeyDown")) at.desktop.form().Remove(*at.popup);
    };
    at.desktop.desktop().Input().KeyDown(host::VK_SHIFT);
    at.popup->Popup();
    EXPECT_FALSE(at.IsOpen());
    EXPECT_EQ(host::platform().GetCapture(), 0);
    EXPECT_THAT(at.story, IsEmpty());
    at.desktop.Pump();
}

TEST(xPopupReentry, EveryClosingOfManyGivesExactlyOneClick) {
    PopupDesktop at(Lines(6));
    std::int32_t clicks = 0;
    at.popup->events.Click = [&](std::int32_t, qrosterdata&, bool) { ++clicks; };
    unsigned seed = 7;
    const auto next = [&](std::int32_t below) {
        seed = seed * 1664525U + 1013904223U;
        return static_cast<std::int32_t>((seed >> 8) % static_cast<unsigned>(below));
    };
    std::int32_t openings = 0;
    for (int step = 0; step < 3000; ++step) {
        if (!at.IsOpen()) {
            at.desktop.Focus(at.owner);
            at.popup->Popup(false, true);
            ++openings;
        }
        switch (next(8)) {
        case 0: at.desktop.Key(host::VK_ESCAPE + next(16)); break;
        case 1: at.desktop.Key(host::VK_RETURN); break;
        case 2: at.Down(); break;
        case 3: at.Up(); break;
        case 4: host::platform().ReleaseCapture(); break;
        case 5: at.desktop.Wheel(next(3) - 1); break;
        default: at.MoveToScreen(180 + next(160), 280 + next(120)); break;
        }
        ASSERT_EQ(clicks, at.IsOpen() ? openings - 1 : openings) << step;
    }
    EXPECT_GT(openings, 200);
}

} // namespace
} // namespace tvok::test
