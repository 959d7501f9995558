// Random input for `ucColorSelector`: messages from a user and calls from a host, with a dialog that writes
// colours, runs messages, throws and removes the selector. Whatever comes, a cancelled popup puts the colour
// from before its opening back, and an accepted one keeps what was previewed last.
//
// TVOK_RANDOM_SEED=n repeats a run; the seed is printed. TVOK_RANDOM_STEPS=n makes it longer or shorter.

#include <cstdio>
#include <exception>
#include <random>

#include "tests/support/RandomRuns.h"
#include "tests/support/SelectorTestDesktop.h"

namespace tvok::test {
namespace {

/// What a dialog throws now and then; the selector takes it for a cancelled one.
struct DialogsOwn : std::exception {};

class SelectorRun {
public:
    explicit SelectorRun(std::uint32_t seed) : random_(seed) {
        at_.watch.onPick = [this](host::Handle) { return Dialog(); };
        at_.desktop.FocusAway(); // to a control that Tab finds as well
    }

    /// What was not as it has to be; empty where all was.
    std::string Step() {
        if (at_.selector == nullptr) MakeSelector();
        const bool wasOpen = at_.IsOpen();
        const OLE_COLOR before = at_.selector->SelectColor();
        const End end = wasOpen ? EndOf(Number(0, 15)) : Anything(Number(0, 9));
        at_.desktop.Pump();
        if (at_.selector == nullptr) return {};
        if (wasOpen && !at_.IsOpen()) {
            ++closed_;
            const OLE_COLOR now = at_.selector->SelectColor();
            if (end == End::Cancels && now != kept_) return "a cancelled popup puts the old colour back";
            if (end == End::Accepts && now != before && now != kept_) return "an accepted colour stays";
        }
        return Broken();
    }

    std::int32_t Closed() const { return closed_; }
    std::int32_t Dialogs() const { return dialogs_; }

private:
    enum class End { None, Cancels, Accepts };

    std::int32_t Number(std::int32_t from, std::int32_t to) {
        return std::uniform_int_distribution<std::int32_t>(from, to)(random_);
    }
    OLE_COLOR Color() { return Number(0, 3) == 0 ? SystemColor(Number(0, 40)) : Number(0, 0xFFFFFF); }

    void MakeSelector() {
        at_.desktop.Pump();
        at_.selector = &at_.desktop.form().Add<ucColorSelector>("selector", SelectorDesktop::cPlace);
        at_.desktop.Pump();
    }

    /// While a popup is open.
    End EndOf(std::int32_t deed) {
        switch (deed) {
        case 0: at_.desktop.Key(host::VK_ESCAPE); return End::Cancels;
        case 1:
            at_.MoveToScreen(1200, 20);
            at_.Down();
            return End::Cancels;
        case 2: at_.desktop.FocusAway(); return End::Cancels;
        case 3: at_.desktop.Key(host::VK_RETURN); return End::Accepts;
        case 4: at_.Up(); return End::Accepts;
        case 5: at_.desktop.Key(host::VK_TAB); return End::Cancels;
        case 6:
        case 7: at_.desktop.Key(Number(host::VK_END, host::VK_DOWN)); return End::None;
        case 8: at_.desktop.Key(Number('A', 'Z')); return End::None;
        default:
            const tvok_Rect client = at_.ClientRect();
            at_.MoveTo(Number(-20, client.Right + 20), Number(-20, client.bottom + 20));
            return End::None;
        }
    }

    /// While none is.
    End Anything(std::int32_t deed) {
        ucColorSelector& selector = *at_.selector;
        switch (deed) {
        case 0: selector.SelectColor(Color()); break;
        case 1:
            // As far as the buttons stay where `PressButton` looks for them.
            at_.desktop.form().Place(selector, {20, 20, Number(0, 300), Number(0, 60)});
            at_.desktop.form().Place(selector, SelectorDesktop::cPlace);
            break;
        case 2: selector.ForeColor(Color()), selector.borderColor(Color()); break;
        case 3: selector.BackColor(Color()); break;
        case 4: selector.FontTransparent(Number(0, 1) == 0); break;
        case 5: at_.Up(); break;
        case 6: at_.desktop.Focus(selector); break;
        case 7: at_.desktop.FocusAway(); break;
        default:
            at_.Up(); // which may be the click that opens the dialog
            if (at_.selector == nullptr) break;
            kept_ = at_.selector->SelectColor();
            at_.PressButton(static_cast<SelectorDesktop::Button>(Number(0, 2)));
        }
        return End::None;
    }

    std::int32_t Dialog() {
        ++dialogs_;
        switch (Number(0, 5)) {
        case 0: throw DialogsOwn();
        case 1: at_.selector->SelectColor(Color()); return -1;
        case 2: at_.desktop.Pump(); return Color();
        case 3:
            if (Number(0, 3) == 0) at_.desktop.form().Remove(*std::exchange(at_.selector, nullptr));
            return Color();
        default: return Color();
        }
    }

    std::string Broken() {
        const host::Handle focus = host::platform().GetFocus();
        if (at_.IsOpen() && at_.ShowsFocus() && at_.selector->BackColor() != cHighlight)
            return "an open popup hides the focus";
        at_.selector->Paint();
        const auto painted = at_.desktop.Pixels(*at_.selector);
        host::platform().InvalidateRect(at_.OwnWindow(), nullptr, true);
        at_.desktop.Pump();
        if (at_.desktop.Pixels(*at_.selector) != painted) return "a repaint gives the same pixels";
        if (host::platform().GetFocus() != focus) return "a paint leaves the focus alone";
        return {};
    }

    std::mt19937 random_;
    SelectorDesktop at_;
    OLE_COLOR kept_ = 0; ///< From before the popup opened.
    std::int32_t closed_ = 0;
    std::int32_t dialogs_ = 0;
};

TEST(ucColorSelectorAtRandom, ACancelledPopupPutsTheOldColourBackAndAnAcceptedOneKeepsThePreview) {
    const std::uint32_t seed = FromEnvironment("TVOK_RANDOM_SEED", 9);
    const std::uint32_t steps = FromEnvironment("TVOK_RANDOM_STEPS", 5'000);
    std::printf("TVOK_RANDOM_SEED=%u\n", seed);
    SelectorRun run(seed);
    for (std::uint32_t step = 0; step < steps; ++step) {
        const std::string broken = run.Step();
        ASSERT_TRUE(broken.empty()) << "step " << step << ", seed " << seed << ": not true that " << broken;
    }
    EXPECT_GT(run.Closed(), static_cast<std::int32_t>(steps / 100)) << "popups open and close";
    EXPECT_GT(run.Dialogs(), static_cast<std::int32_t>(steps / 100));
}

} // namespace
} // namespace tvok::test
