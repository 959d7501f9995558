// Handlers that clear, rebuild, grow, write, throw, or end the list and its form in the middle of an event.
#include "tests/support/PropertyListDesktop.h"

namespace tvok::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using List = PropertyListDesktop;

/// Groups, editors, a strip with a popup, a list and a type of the host's; more rows than the page has.
struct BusyList : List {
    BusyList() : List({.ListMode = 1}) {
        popLists[7] = "107=zero\r\n999\r\n107=one\r\n106=1\r\n999\r\n";
        Fill();
        list->BuiltList();
        Forget();
    }
    void Fill() {
        list->AddItem(Group("g"));
        for (const char* key : {"a", "b", "c", "d"}) {
            elistdata item = Edited(key, "g");
            item.xbuttons = std::string("b|0|2;") + (key[0] == 'c' ? "cs" : key[0] == 'd' ? "li 7" : "own");
            list->AddItem(item);
        }
        list->AddItem(Group("h"));
        for (int i = 10; i < 25; ++i) list->AddItem(Value("k" + std::to_string(i), "h"));
    }
    bool gone = false; ///< The control, or the form that it is on.
};

/// What a handler does to the list that raised the event.
struct Deed {
    const char* name;
    void (*act)(BusyList&);
    bool throws = false;
};

const Deed cDeeds[] = {
    {"Clears", [](BusyList& at) { at.list->Clear(); }},
    {"ClearsAndFillsAnew",
     [](BusyList& at) {
         at.list->Clear(true);
         at.list->AddItem(List::Edited("new", "g"));
         at.list->BuiltList();
     }},
    {"Rebuilds", [](BusyList& at) { at.list->BuiltList(); }},
    {"ChangesTheMode", [](BusyList& at) { at.list->ListMode(at.list->ListMode() == 1 ? 0 : 1); }},
    {"Removes", [](BusyList& at) { at.list->RemoveItem(-2); }},
    {"RemovesTheCurrentRow", [](BusyList& at) { at.list->RemoveItem(at.list->ListIndex()); }},
    {"Grows",
     [](BusyList& at) {
         for (int i = 0; i < 200; ++i) at.list->AddItem(List::Value("", "g"));
     }},
    {"GrowsAndRebuilds",
     [](BusyList& at) {
         for (int i = 0; i < 200; ++i) at.list->AddItem(List::Value("", "g"));
         at.list->BuiltList();
     }},
    {"Replaces", [](BusyList& at) { at.list->AddItem(List::Group("a")); }},
    {"SetsData",
     [](BusyList& at) {
         for (const char* key : {"a", "b", "c", "d", "nobody"}) at.list->SetData(1, key);
     }},
    {"SetsVarData", [](BusyList& at) { at.list->VarData("v"); }},
    {"MovesTheCurrentRow", [](BusyList& at) { at.list->ListIndex(at.list->Count()); }},
    {"Enumerates",
     [](BusyList& at) {
         at.list->ReqEnumItems(1);
         at.list->ReqEnumItems(1, "b");
     }},
    {"ReadsAText", [](BusyList& at) { at.list->ItemsStr("20=-1\r\n108=a\r\n999\r\n24=0\r\n4=-1\r\n"); }},
    {"WritesAText", [](BusyList& at) { at.list->ItemsStr(at.list->ItemsStr()); }},
    {"PressesKeys",
     [](BusyList& at) {
         at.list->KeyIn(host::VK_END);
         at.list->KeyIn(host::VK_UP);
     }},
    {"Scrolls", [](BusyList& at) { at.hook->ScrollValue(4); }},
    {"Resizes",
     [](BusyList& at) {
         at.desktop.form().Place(*at.list, {10, 10, 90, 50});
     }},
    {"MovesTheFocus", [](BusyList& at) { at.desktop.FocusAway(); }},
    {"PumpsMessages", [](BusyList&) { host::platform().DoEvents(); }},
    {"DropsItsHandlers",
     [](BusyList& at) {
         gList::Events& events = at.list->events;
         events.EnumItems = nullptr;
         events.Change = nullptr;
         events.Click = nullptr;
         events.DblClick = nullptr;
         events.ButtonClick = nullptr;
         events.ButtonMouseDown = nullptr;
         events.ButtonMouseDownEx = nullptr;
         events.ExItemShowCov = nullptr;
         events.ExEditorIni = nullptr;
         events.ExEditorDataRestore = nullptr;
         events.ExEditorHide = nullptr;
         events.ExEditorShow = nullptr;
         events.ExEditorSetPosition = nullptr;
         events.EnumPopStr = nullptr;
         events.ExDraw = nullptr;
     }},
    {"Throws", [](BusyList&) { throw Error("from a handler"); }, true},
    {"RemovesTheControl",
     [](BusyList& at) {
         at.gone = true;
         at.desktop.form().Remove(*at.list);
     }},
    {"ClosesTheForm",
     [](BusyList& at) {
         at.gone = true;
         at.desktop.form().Close();
     }},
};

class gListReentry : public testing::TestWithParam<Deed> {
protected:
    using Arm = std::function<void(BusyList&, const std::function<void()>&)>;

    /// One deed at the first of the events that `arm` sets, then much more use. No error comes out that no
    /// handler threw, and the list stays in order.
    void Run(const Arm& arm) {
        BusyList at;
        bool done = false;
        bool armed = true;
        arm(at, [&] {
            if (!armed || std::exchange(done, true)) return;
            GetParam().act(at);
        });
        for (const auto& step : Steps()) {
            if (at.gone) break;
            Do([&] { step(at); });
            if (!at.gone) ExpectOrder(at);
        }
        Do([&] { at.desktop.Pump(); });
        EXPECT_TRUE(done);
        armed = false;
        if (!at.gone) ExpectAfterlife(at);
    }

private:
    static std::vector<void (*)(BusyList&)> Steps() {
        return {[](BusyList& at) { at.ClickRow(2); },
                [](BusyList& at) { at.ClickRow(3); },
                [](BusyList& at) { at.list->VarData(3); },
                [](BusyList& at) { at.list->SetData(5, "b"); },
                [](BusyList& at) { PressStrip(at); },
                [](BusyList& at) { at.desktop.Key(host::VK_ESCAPE); },
                [](BusyList& at) { at.list->ListIndex(5); },
                [](BusyList& at) { PressStrip(at); },
                [](BusyList& at) { at.desktop.Key(host::VK_DOWN); },
                [](BusyList& at) { at.desktop.Key(host::VK_RETURN); },
                [](BusyList& at) { at.list->KeyIn(host::VK_DOWN); },
                [](BusyList& at) { at.DoubleClickRow(3); },
                [](BusyList& at) { at.list->ListMode(0); },
                [](BusyList& at) { at.DoubleClickRow(3); },
                [](BusyList& at) { at.hook->ScrollValue(9); },
                [](BusyList& at) { at.list->ReqEnumItems(4); },
                [](BusyList& at) { at.list->ReqEnumItems(4, "c"); },
                [](BusyList& at) { at.list->AddItem(List::Value("x", "", ";li 9")); },
                [](BusyList& at) { at.list->ItemsStr("108=y\r\n23=;own\r\n999\r\n"); },
                [](BusyList& at) { at.list->RemoveItem(-3); },
                [](BusyList& at) { at.list->BuiltList(); },
                [](BusyList& at) { at.list->Clear(); }};
    }
    static void PressStrip(BusyList& at) {
        const tvok_Rect strip = at.Strip();
        if (strip != tvok_Rect()) at.desktop.Click(*at.list, strip.Left + 3, strip.Top + 3);
    }
    static void Do(const std::function<void()>& step) {
        if (GetParam().throws) return quietly(step);
        EXPECT_NO_THROW(step());
    }
    static void ExpectOrder(const BusyList& at) {
        EXPECT_GE(at.list->ListIndex(), 0);
        EXPECT_LE(at.list->ListIndex(), at.list->Count());
    }
    /// The list can be used as if nothing had happened.
    static void ExpectAfterlife(BusyList& at) {
        at.list->Clear();
        at.Fill();
        at.list->ListMode(1);
        at.list->BuiltList();
        EXPECT_EQ(at.list->Count(), 21);
        at.list->ListIndex(3);
        EXPECT_EQ(at.Row(3).hItem.key, "b");
        EXPECT_THAT(at.Selected(), ElementsAre(3));
    }
};

TEST_P(gListReentry, InEnumItems) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.EnumItems = [once](elistdata& x, std::int32_t) {
            x.HelpStr += ".";
            once();
            x.HelpStr += "."; // the record stays in place as long as the event runs
            x.nData = 1;
        };
    });
}

TEST_P(gListReentry, InChange) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.Change = [once](std::int32_t, elistdata& x) {
            once();
            x.HelpStr += ".";
        };
    });
}

TEST_P(gListReentry, InClick) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.Click = [once](std::int32_t, elistdata& x) {
            once();
            x.HelpStr += ".";
        };
    });
}

TEST_P(gListReentry, InDblClick) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.DblClick = [once](std::int32_t, elistdata& x) {
            once();
            x.HelpStr += ".";
        };
    });
}

TEST_P(gListReentry, InButtonClick) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ButtonClick = [once](const std::string& key, elistdata& x) {
            once();
            x.HelpStr += key;
        };
    });
}

TEST_P(gListReentry, InButtonMouseDown) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ButtonMouseDown = [once](const std::string& key, elistdata& x) {
            once();
            x.HelpStr += key;
        };
    });
}

TEST_P(gListReentry, InButtonMouseDownEx) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ButtonMouseDownEx = [once](const std::string& key, elistdata& x) {
            once();
            x.HelpStr += key;
        };
    });
}

TEST_P(gListReentry, InExDraw) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.EnumItems = [](elistdata& x, std::int32_t) {
            x.hItem.vflag |= vflag::HostText | vflag::HostHead;
            x.item.vflag |= vflag::HostText;
        };
        at.list->ReqEnumItems(0);
        at.list->events.ExDraw = [once](std::int32_t&, std::int32_t, const std::string& key, std::int32_t,
                                        std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                        std::int32_t) {
            once();
            EXPECT_LT(key.size(), 99u); // it lives as long as the event
        };
    });
}

TEST_P(gListReentry, InExItemShowCov) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ExItemShowCov = [once](elistdata& x) {
            x.item.text += ".";
            once();
            x.item.text += ".";
        };
    });
}

TEST_P(gListReentry, InExEditorDataRestore) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ExEditorDataRestore = [once](const std::string& key) {
            const std::string before = key;
            once();
            EXPECT_EQ(key, before);
        };
    });
}

TEST_P(gListReentry, InExEditorIni) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ExEditorIni = [once](elistdata& x) {
            x.HelpStr += ".";
            once();
            x.HelpStr += ".";
        };
    });
}

TEST_P(gListReentry, InExEditorSetPosition) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ExEditorSetPosition = [once](const std::string& key, std::int32_t& left,
                                                     std::int32_t&, std::int32_t&, std::int32_t&) {
            const std::string before = key;
            once();
            EXPECT_EQ(key, before);
            left = 0;
        };
    });
}

TEST_P(gListReentry, InExEditorHide) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ExEditorHide = [once](const std::string& key) {
            const std::string before = key;
            once();
            EXPECT_EQ(key, before);
        };
    });
}

TEST_P(gListReentry, InExEditorShow) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.ExEditorShow = [once](const std::string& key) {
            const std::string before = key;
            once();
            EXPECT_EQ(key, before);
        };
    });
}

TEST_P(gListReentry, InEnumPopStr) {
    Run([](BusyList& at, const std::function<void()>& once) {
        at.list->events.EnumPopStr = [once](std::int32_t, std::string& text) {
            text = "107=one\r\n106=1\r\n999\r\n";
            once();
            text += "107=two\r\n106=2\r\n999\r\n";
        };
    });
}

INSTANTIATE_TEST_SUITE_P(Handlers, gListReentry, testing::ValuesIn(cDeeds),
                         [](const auto& info) { return std::string(info.param.name); });

// What single cases lead to.

TEST(gListReentryCases, SetDataInsideExEditorShowShowsTheNewValueAndShowsTheEditorOnceMore) {
    List at;
    at.Show({List::Edited("a")});
    int left = 1;
    at.list->events.ExEditorShow = [&](const std::string& key) {
        at.log.push_back("ExEditorShow(" + key + ")");
        if (left-- > 0) at.list->SetData("new", key);
    };
    at.list->ListIndex(1);
    EXPECT_EQ(at.list->GetData("a"), Variant("new"));
    EXPECT_THAT(at.TakeLog({"ExEditorShow", "ExItemShowCov", "Change"}),
                ElementsAre("ExEditorShow(a)", "ExItemShowCov(a)", "ExEditorShow(a)", "Change(1, a)"));
}

TEST(gListReentryCases, ARebuildInsideChangeKeepsTheItemAndRaisesChangeOnce) {
    List at;
    at.Show({List::Value("b"), List::Value("c")});
    int left = 1;
    at.list->events.Change = [&](std::int32_t row, elistdata& x) {
        at.log.push_back("Change(" + std::to_string(row) + ", " + x.hItem.key + ")");
        if (left-- <= 0) return;
        at.list->AddItem(List::Value("a"));
        at.list->BuiltList();
    };
    at.list->ListIndex(2);
    EXPECT_THAT(at.TakeLog({"Change"}), ElementsAre("Change(2, c)", "Change(3, c)"));
    EXPECT_EQ(at.list->ListIndex(), 3);
    EXPECT_THAT(at.Selected(), ElementsAre(3));
}

TEST(gListReentryCases, ClearInsideClickLeavesNoEditorBehind) {
    List at;
    at.Show({List::Edited("a"), List::Edited("b")});
    at.list->events.Click = [&](std::int32_t, elistdata&) { at.list->Clear(); };
    at.ClickRow(1);
    EXPECT_EQ(at.list->Count(), 0);
    EXPECT_EQ(at.list->ListIndex(), 0);
    const auto log = at.TakeLog();
    EXPECT_EQ(std::count(log.begin(), log.end(), "ExEditorIni(a)"), 0);
    EXPECT_EQ(log.back(), "ExEditorHide()");
    at.Show({List::Edited("a")});
    EXPECT_EQ(at.list->Count(), 1);
}

TEST(gListReentryCases, AHandlerThatMovesTheCurrentRowInClickMovesTheEditorAlong) {
    List at;
    at.Show({List::Edited("a"), List::Edited("b"), List::Edited("c")});
    at.list->events.Click = [&](std::int32_t, elistdata&) { at.list->ListIndex(3); };
    at.ClickRow(1);
    EXPECT_THAT(at.TakeLog({"ExEditorIni", "Change"}),
                ElementsAre("Change(1, a)", "Change(3, c)", "ExEditorIni(c)"));
    at.list->BuiltList();
    EXPECT_EQ(at.TakeLog().front(), "ExEditorDataRestore(c)") << "the open editor is that of the new row";
}

TEST(gListReentryCases, GrowthInsideEnumItemsKeepsTheRecordAndWhatIsWrittenAfterwards) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t) {
        for (int i = 0; i < 300; ++i) at.list->AddItem(List::Value(""));
        x.HelpStr = "kept";
        x.nData = 5;
    };
    at.list->ReqEnumItems(0, "a");
    EXPECT_EQ(at.ByKey("a").HelpStr, "kept");
    EXPECT_EQ(at.ByKey("a").nData, Variant(5));
    EXPECT_EQ(at.ByKey("b").HelpStr, "");
    EXPECT_EQ(at.Slot(302).bVisible, true);
}

TEST(gListReentryCases, GrowthInsideExItemShowCovKeepsTheRecord) {
    List at;
    bool inside = false;
    at.list->events.ExItemShowCov = [&](elistdata& x) {
        if (std::exchange(inside, true)) return;
        for (int i = 0; i < 300; ++i) at.list->AddItem(List::Value(""));
        x.item.text = "made";
    };
    EXPECT_EQ(at.list->AddItem(List::Value("a")), -1);
    EXPECT_EQ(at.ByKey("a").item.text, "made");
}

TEST(gListReentryCases, AnErrorInChangeComesOutOfAWriteOfListIndexAfterTheMove) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->events.Change = [](std::int32_t, elistdata&) { throw Error("from a handler"); };
    EXPECT_THROW(at.list->ListIndex(2), Error);
    EXPECT_EQ(at.list->ListIndex(), 2);
    EXPECT_THAT(at.Selected(), ElementsAre(2));
}

TEST(gListReentryCases, AnErrorInEnumItemsComesOutAndEndsTheWalk) {
    List at;
    at.Show({List::Value("a"), List::Value("b"), List::Value("c")});
    std::vector<std::string> seen;
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t) {
        seen.push_back(x.hItem.key);
        x.hItem.key = "changed";
        if (seen.size() == 2) throw Error("from a handler");
    };
    EXPECT_THROW(at.list->ReqEnumItems(0), Error);
    EXPECT_THAT(seen, ElementsAre("a", "b"));
    EXPECT_EQ(at.Slot(2).hItem.key, "changed");
    elistdata item;
    EXPECT_EQ(at.list->GetItem(item, "b"), 0) << "what a handler changed counts although it threw";
    EXPECT_EQ(at.list->GetItem(item, "changed"), -1);
}

TEST(gListReentryCases, AKeyThatAHandlerEditsCountsAtOnce) {
    List at;
    at.Show({List::Value("a"), List::Value("b")});
    at.list->events.EnumItems = [&](elistdata& x, std::int32_t) {
        if (x.hItem.key != "a") return;
        x.hItem.key = "z";
        elistdata found;
        EXPECT_EQ(at.list->GetItem(found, "z"), -1);
        EXPECT_EQ(at.list->GetItem(found, "a"), 0);
    };
    at.list->ReqEnumItems(0);
}

} // namespace
} // namespace tvok::test
