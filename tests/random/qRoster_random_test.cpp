// Random input for `qRoster`: messages from a user and calls from a host, with handlers that act on the list
// they are raised by. A plain model tells which items there have to be.
//
// TVOK_RANDOM_SEED=n repeats a run; the seed is printed. TVOK_RANDOM_STEPS=n makes it longer or shorter.

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/RandomRuns.h"
#include "tvok/tvok.h"

namespace tvok {
namespace {

using desktop::MouseButton;
using test::FromEnvironment;
using test::WatchedServices;

class SteppedClock : public Clock {
public:
    std::chrono::milliseconds Now() const override { return now; }
    std::chrono::milliseconds now{1000};
};

/// What a handler throws now and then. It is no error of the library, so none of those can pass for it.
struct HandlersOwn : std::exception {};

/// Calm handlers edit records and remove items where they are asked to. Wild ones also call any member,
/// throw, and remove the list itself. A handler of `Change` that acts leaves the selected bits of both items
/// behind, so the bits are looked at with calm ones only.
enum class Handlers { Calm, Wild };

class RandomRun {
public:
    RandomRun(std::uint32_t seed, Handlers handlers)
        : random_(seed), handlers_(handlers), options_(Headless(clock_)), desktop_(options_),
          services_(host::services()), form_(desktop_.AddForm("random", 200, 160)) {
        before_ = host::SetServices(&services_);
        form_.events.Closing = [](bool& keep) { keep = true; }; // the pointer finds the close box, too
        MakeList();
    }
    ~RandomRun() { host::SetServices(before_); }
    RandomRun(const RandomRun&) = delete;
    RandomRun& operator=(const RandomRun&) = delete;

    void Step() {
        clock_.now += std::chrono::milliseconds(Number(0, 300));
        if (replace_) ReplaceList();
        if (Number(0, 1) == 0) {
            Message();
        } else {
            Call();
        }
        desktop_.ProcessEvents(std::chrono::milliseconds(0));
        Synchronise();
    }

    /// What has to hold between any two steps; the name of what does not.
    std::string Broken() {
        if (replace_) return {}; // the list was removed by one of its own handlers
        const std::int32_t count = list_->Count();
        if (count != static_cast<std::int32_t>(model_.size())) return "the count is the model's";
        if (list_->ListIndex() < 0 || list_->ListIndex() > count)
            return "the current item is within the list";
        if (const auto broken = BrokenItems(); !broken.empty()) return broken;
        const host::MessageHook& hook = *services_.hook;
        if (hook.ScrollMax() < 0) return "the scroll range is not negative";
        if (hook.ScrollValue() < 0 || hook.ScrollValue() > hook.ScrollMax())
            return "the position is in range";
        return {};
    }

    /// How often the list raised `Change`, `Click`, `DblClick` or `KeyDown`.
    std::uint32_t Raised() const { return raised_; }

private:
    static DesktopOptions Headless(const Clock& clock) {
        DesktopOptions options;
        options.display = DesktopOptions::Display::Headless;
        options.screenWidth = 400;
        options.screenHeight = 300;
        options.clock = &clock;
        return options;
    }

    std::int32_t Number(std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random_);
    }
    /// Mostly a position of the list, sometimes one just or far outside.
    std::int32_t Index() {
        const std::int32_t count = list_->Count();
        const std::int32_t kind = Number(0, 19);
        if (kind == 0) return Number(-2, 0);
        if (kind == 1) return count + Number(1, 8);
        return count > 0 ? Number(1, count) : 0;
    }
    std::string Text() {
        static const char* const words[] = {"ant",   "Bee",       "cat\tdog", "",         "eel\t\tfox",
                                            "ÄPFEL", "\xff\xfe!", "日本語",   "שלום abc", "gnu"};
        return words[Number(0, 9)] + std::to_string(Number(0, 30));
    }
    qrosterdata Item() {
        static constexpr std::int32_t flags[] = {0,    1,    4,    8,     12,    0x10,
                                                 0x20, 0x48, 0x88, 0x100, 0x200, 0x100000};
        return {.text = Text(),
                .key = std::to_string(++lastKey_),
                .IconID = Number(-1, 3),
                .IconPos = Number(0, 3) == 0 ? Number(-0x7FFFFFFF, 0x7FFFFFFF) : -1,
                .ItemData = Number(-5, 5),
                .vflag = flags[Number(0, 11)]};
    }

    void MakeList();
    void ReplaceList();
    void Handle();
    void Message();
    void Mouse();
    void Call();
    void CallInside();
    void CallOnItems();
    void CallOnSelection();
    void CallOnGrid();
    void Add();
    void GetData(std::int32_t index);
    void RemoveOne();
    void Sort();
    void Synchronise();
    std::string BrokenItems();

    std::mt19937 random_;
    Handlers handlers_;
    SteppedClock clock_;
    DesktopOptions options_;
    Desktop desktop_;
    WatchedServices services_;
    host::Services* before_ = nullptr;
    Form& form_;
    qRoster* list_ = nullptr;
    bool replace_ = false; ///< The list is gone and has to be made anew.
    bool shiftDown_ = false;
    std::int32_t depth_ = 0; ///< Of handlers that act.
    std::int32_t lastKey_ = 0;
    std::uint32_t raised_ = 0;
    /// An item was removed since the list was last empty. Closing the gap leaves `ListIndex` where it is, so
    /// the selected bit may then stand at another item.
    bool removed_ = false;
    /// Keys in display order; empty for one that is marked removed.
    std::vector<std::string> model_;
};

void RandomRun::MakeList() {
    list_ = &form_.Add<qRoster>("list", {Number(-5, 20), Number(-5, 20), Number(40, 160), Number(20, 120)});
    list_->events.Change = [this](std::int32_t, qrosterdata&) { Handle(); };
    list_->events.Click = [this](std::int32_t, qrosterdata& item) {
        item.ItemData = 7;
        Handle();
    };
    list_->events.DblClick = [this](std::int32_t, qrosterdata&) { Handle(); };
    list_->events.KeyDown = [this](std::int16_t& code, std::int16_t&) {
        if (Number(0, 9) == 0) code = static_cast<std::int16_t>(Number(0, 255));
        Handle();
    };
    list_->events.EnumSelectedItemCallBack = [this](std::int32_t&, std::int32_t& index) {
        if (Number(0, 2) == 0 && index <= list_->Count()) {
            list_->RemoveItem(index);
            model_[static_cast<std::size_t>(index) - 1].clear();
            removed_ = true;
        }
    };
    list_->events.ExDraw = [](std::int32_t&, std::int32_t, const std::string&, std::int32_t hDC, std::int32_t,
                              std::int32_t left, std::int32_t top, std::int32_t, std::int32_t) {
        host::platform().MoveToEx(hDC, left, top, nullptr);
        host::platform().LineTo(hDC, left + 4, top + 4);
    };
    model_.clear();
    removed_ = false;
    replace_ = false;
}

void RandomRun::ReplaceList() {
    desktop_.ProcessEvents(std::chrono::milliseconds(0));
    MakeList();
}

/// What a handler does: mostly nothing, sometimes a call, rarely an error or the end of the list.
void RandomRun::Handle() {
    ++raised_;
    if (handlers_ == Handlers::Calm) return;
    Synchronise();
    const std::int32_t kind = Number(0, 199);
    if (kind == 0) throw HandlersOwn();
    if (depth_ > 2 || replace_) return;
    if (kind == 1) {
        replace_ = true;
        form_.Remove(*list_);
    } else if (kind < 20) {
        CallInside();
    }
}

/// A call by a handler, which keeps what other handlers throw on the way to itself.
void RandomRun::CallInside() {
    ++depth_;
    try {
        Call();
    } catch (const HandlersOwn&) { // as a host would that knows its handlers
    }
    --depth_;
}

void RandomRun::Message() {
    desktop::Input& input = desktop_.Input();
    switch (Number(0, 5)) {
    case 0: {
        static constexpr std::int32_t keys[] = {
            host::VK_UP,   host::VK_DOWN,  host::VK_LEFT, host::VK_RIGHT, host::VK_HOME, host::VK_END,
            host::VK_NEXT, host::VK_PRIOR, 'A',           host::VK_SPACE, host::VK_TAB,  host::VK_RETURN};
        const std::int32_t key = keys[Number(0, 11)];
        input.KeyDown(key);
        input.KeyUp(key);
        break;
    }
    case 1:
        shiftDown_ = !shiftDown_;
        if (shiftDown_) input.KeyDown(host::VK_SHIFT);
        if (!shiftDown_) input.KeyUp(host::VK_SHIFT);
        break;
    case 2: input.Text(Text().substr(0, 3)); break;
    case 3: input.Wheel(Number(-3, 3)); break;
    default: Mouse();
    }
}

void RandomRun::Mouse() {
    desktop::Input& input = desktop_.Input();
    host::Point corner{0, 0};
    host::platform().ClientToScreen(form_.hWnd(), corner);
    const bool control = Number(0, 5) == 0;
    if (control) input.KeyDown(host::VK_CONTROL);
    input.MouseMove(corner.x + Number(-10, 210), corner.y + Number(-10, 170));
    const auto button = Number(0, 9) == 0 ? MouseButton::Right : MouseButton::Left;
    if (Number(0, 2) != 0) input.MouseDown(button);
    if (Number(0, 1) != 0) input.MouseMove(corner.x + Number(-10, 210), corner.y + Number(-10, 170));
    if (Number(0, 5) != 0) input.MouseUp(button);
    if (control) input.KeyUp(host::VK_CONTROL);
}

void RandomRun::Call() {
    const std::int32_t kind = Number(0, 9);
    if (kind < 5) return CallOnItems();
    if (kind < 8) return CallOnSelection();
    CallOnGrid();
}

/// `index` may be beyond the list, and then has to be refused.
void RandomRun::GetData(std::int32_t index) {
    qrosterdata item;
    try {
        list_->GetData(index, item);
    } catch (const SubscriptError&) {
        EXPECT_TRUE(index < 0 || index > list_->Count());
    }
}

void RandomRun::Add() {
    if (list_->Count() > 60) return;
    const std::int32_t index = Index();
    const qrosterdata item = Item();
    const auto place =
        index < 1 || index > list_->Count() ? model_.size() : static_cast<std::size_t>(index) - 1;
    EXPECT_FALSE(list_->AddItem(index, item));
    model_.insert(model_.begin() + static_cast<std::ptrdiff_t>(place), item.key);
}

void RandomRun::RemoveOne() {
    const std::int32_t count = list_->Count();
    if (count == 0) return;
    const std::int32_t index = Number(1, count);
    list_->RemoveItem(index);
    model_[static_cast<std::size_t>(index) - 1].clear();
    removed_ = true;
}

/// The order of equal texts is the list's own, so the model takes the order over; no item may get lost.
void RandomRun::Sort() {
    list_->SortedMode(Number(0, 4));
    Synchronise();
    std::vector<std::string> sorted;
    qrosterdata item;
    for (std::int32_t index = 1; index <= list_->Count(); ++index) {
        list_->GetData(index, item);
        sorted.push_back((item.vflag & vflag::InUse) != 0 ? item.key : std::string());
    }
    EXPECT_TRUE(std::is_permutation(sorted.begin(), sorted.end(), model_.begin(), model_.end()));
    model_ = sorted;
}

void RandomRun::CallOnItems() {
    qrosterdata item;
    switch (Number(0, 11)) {
    case 0:
        if (Number(0, 3) == 0) RemoveOne();
        break;
    case 1: GetData(Index()); break;
    case 2: {
        if (list_->Count() == 0) return;
        const std::int32_t index = Number(1, list_->Count());
        if (!list_->GetData(index, item) || (item.vflag & vflag::InUse) == 0) return;
        item.text = Text();
        list_->SetData(index, item, Number(0, 1) != 0);
        break;
    }
    case 3: list_->Refresh(); break;
    case 4: Sort(); break;
    case 5:
        if (Number(0, 4) == 0) {
            list_->Clear();
            model_.clear();
            removed_ = false;
        }
        break;
    case 6: list_->FindItem(Text(), Number(0, 1) != 0); break;
    case 7: list_->StrSeekItem(Text()); break;
    case 8: (void)list_->ItemsStr(); break;
    default: Add();
    }
}

void RandomRun::CallOnSelection() {
    switch (Number(0, 6)) {
    case 0: list_->Selecteded(Index(), Index()); break;
    case 1: list_->UnSelecteded(Index(), Index()); break;
    case 2: list_->EnumSelectedItem(Number(0, 9), Number(0, 1) != 0); break;
    case 3: list_->MultiSelect(Number(0, 1)); break;
    case 4: list_->HotTrack(Number(0, 1) != 0); break;
    default: list_->ListIndex(Index());
    }
}

void RandomRun::CallOnGrid() {
    switch (Number(0, 13)) {
    case 0: list_->xn(Number(-1, 4)); break;
    case 1: list_->yn(Number(-1, 8)); break;
    case 2: list_->XnAuto(Number(0, 3) == 0); break;
    case 3: list_->ItemHeight(Number(-2, 40)); break;
    case 4: list_->ItemWidth(Number(-2, 90)); break;
    case 5: list_->GridlineWidth(Number(-1, 3)); break;
    case 6: list_->GridlineOnBorder(Number(0, 1) != 0); break;
    case 7: list_->FixedHeight(Number(0, 1) != 0); break;
    case 8:
        list_->ColWidthSettingStr(std::to_string(Number(-9, 99)) + ",x," + std::to_string(Number(-9, 99)));
        break;
    case 9: list_->TabStopSettingStr(Number(0, 1) != 0 ? "" : std::to_string(Number(-9, 99)) + ",3"); break;
    case 10: list_->HeadWidthEx(Number(-3, 30)); break;
    case 11: list_->CX_TEXT(Number(-3, 30)); break;
    case 12: list_->PaintAll(); break;
    default: form_.Place(*list_, {Number(-5, 20), Number(-5, 20), Number(0, 180), Number(0, 150)});
    }
}

/// Marked items leave whenever something refreshes the list, so the list says when.
void RandomRun::Synchronise() {
    if (replace_ || list_->Count() == static_cast<std::int32_t>(model_.size())) return;
    std::erase(model_, std::string());
}

std::string RandomRun::BrokenItems() {
    qrosterdata item;
    std::int32_t selected = 0;
    for (std::int32_t index = 1; index <= list_->Count(); ++index) {
        list_->GetData(index, item);
        const bool marked = (item.vflag & vflag::InUse) == 0;
        const std::string& key = model_[static_cast<std::size_t>(index) - 1];
        if (marked != key.empty()) return "exactly removed items are marked";
        if (!marked && item.key != key) return "the items are the model's, in its order";
        if (list_->IsSelected(index)) ++selected;
    }
    if (handlers_ == Handlers::Wild || removed_ || list_->MultiSelect() != 0) return {};
    if (selected > 1) return "single selection selects at most one item";
    return {};
}

void SendRandomInput(Handlers handlers) {
    const std::uint32_t seed = FromEnvironment("TVOK_RANDOM_SEED", 20);
    const std::uint32_t steps = FromEnvironment("TVOK_RANDOM_STEPS", 100'000);
    std::printf("TVOK_RANDOM_SEED=%u\n", seed);

    RandomRun run(seed, handlers);
    for (std::uint32_t step = 0; step < steps; ++step) {
        try {
            run.Step();
        } catch (const HandlersOwn&) { // on its way through the desktop
        } catch (const std::exception& error) {
            FAIL() << "step " << step << ", seed " << seed << ": " << error.what();
        }
        const std::string broken = run.Broken();
        ASSERT_TRUE(broken.empty()) << "step " << step << ", seed " << seed << ": not true that " << broken;
    }
    EXPECT_GT(run.Raised(), steps / 100) << "the input reaches the list";
}

TEST(qRosterAtRandom, StaysConsistentWhateverUsersAndHostsDo) {
    SendRandomInput(Handlers::Calm);
}

TEST(qRosterAtRandom, SurvivesHandlersThatThrowActAndRemoveTheList) {
    SendRandomInput(Handlers::Wild);
}

} // namespace
} // namespace tvok
