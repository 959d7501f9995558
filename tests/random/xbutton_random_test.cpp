// Random input for `xbutton`: messages from a user and calls from a host, with handlers that set the text,
// give the focus away, throw and remove the strip.
//
// TVOK_RANDOM_SEED=n repeats a run; the seed is printed. TVOK_RANDOM_STEPS=n makes it longer or shorter.

#include <cstdio>
#include <exception>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/RandomRuns.h"
#include "tests/support/TestDesktop.h"

namespace tvok::test {
namespace {

/// What a handler throws now and then.
struct HandlersOwn : std::exception {};

class StripRun {
public:
    explicit StripRun(std::uint32_t seed) : random_(seed) { MakeStrip(); }

    void Step() {
        if (removed_) MakeStrip();
        switch (Number(0, 11)) {
        case 0: strip_->ButtonSettingsStr(Settings()); break;
        case 1: desktop_.form().Place(*strip_, {20, 20, Number(0, 90), Number(1, 60)}); break;
        case 2: strip_->IconWidth(Number(-40, 40)); break;
        case 3: strip_->ForeColor(Number(0, 0xFFFFFF)); break;
        case 4: desktop_.FocusAway(); break;
        case 5: desktop_.Focus(*strip_); break;
        case 6: desktop_.Key(Number(37, 40)); break;
        case 7: desktop_.Pass(std::chrono::milliseconds(Number(0, 900))); break;
        case 8: desktop_.Press(*strip_, X(), Number(-5, 60)); break;
        case 9: desktop_.MoveTo(*strip_, X(), Number(-5, 60)); break;
        case 10: desktop_.RightClick(*strip_, X(), Number(-5, 60)); break;
        default: desktop_.Release();
        }
    }

    /// What has to hold between steps and does not; empty where all does.
    std::string Broken() {
        if (removed_) return {};
        const Placement place = desktop_.form().PlacementOf(*strip_);
        ButtonRow row;
        if (row.Set(strip_->ButtonSettingsStr(), place.height) != place.width)
            return "the strip is as wide as its buttons";
        if (strip_->hwnd() == 0) return "the strip has a window";
        return {};
    }

    /// With the mouse released, the strip looks like one that was never pressed.
    std::string BrokenAtRest() {
        if (removed_) return {};
        desktop_.Release();
        if (removed_) return {};
        host::platform().InvalidateRect(desktop_.WindowOf(*strip_), nullptr, true);
        desktop_.Pump();
        const auto shown = desktop_.Pixels(*strip_);
        desktop_.MoveTo(*strip_, X(), 3);
        if (desktop_.Pixels(*strip_) != shown) return "a released button stays up";
        return {};
    }

    std::uint32_t raised = 0;

private:
    std::int32_t Number(std::int32_t from, std::int32_t to) {
        return std::uniform_int_distribution<std::int32_t>(from, to)(random_);
    }
    std::int32_t X() { return Number(-10, desktop_.form().PlacementOf(*strip_).width + 10); }
    std::string Settings() {
        static const std::string parts[] = {"|", "|", "|",   "|",     "0", "1",  "2",    "3",
                                            "a", " ", "...", "99999", "-", "&H", "日本", "\xff"};
        std::string settings;
        for (std::int32_t i = Number(0, 24); i > 0; --i) settings += parts[Number(0, 15)];
        return settings;
    }
    void MakeStrip() {
        removed_ = false;
        desktop_.Pump();
        strip_ = &desktop_.form().Add<xbutton>("strip", {20, 20, Number(0, 90), Number(1, 60)});
        strip_->ButtonSettingsStr("a|a|0|0|b|1|1|c|2");
        strip_->events.MouseDown = [this](const std::string&) { Handle(); };
        strip_->events.Click = [this](const std::string&) { Handle(); };
        strip_->events.KeyDown = [this](std::int16_t& code, std::int16_t&) {
            code = 0;
            Handle();
        };
    }
    void Handle() {
        ++raised;
        if (removed_) return;
        const std::int32_t deed = Number(0, 29);
        if (deed == 0) throw HandlersOwn();
        if (deed == 1) {
            removed_ = true;
            desktop_.form().Remove(*strip_);
        } else if (deed == 2) {
            host::platform().SetFocus(desktop_.form().hWnd());
        } else if (deed < 10) {
            strip_->ButtonSettingsStr(Settings());
        }
    }

    std::mt19937 random_;
    TestDesktop desktop_;
    xbutton* strip_ = nullptr;
    bool removed_ = false; ///< It is gone and has to be made anew.
};

TEST(xbuttonAtRandom, StaysConsistentWhateverUsersHostsAndHandlersDo) {
    const std::uint32_t seed = FromEnvironment("TVOK_RANDOM_SEED", 20);
    const std::uint32_t steps = FromEnvironment("TVOK_RANDOM_STEPS", 20'000);
    std::printf("TVOK_RANDOM_SEED=%u\n", seed);
    StripRun run(seed);
    for (std::uint32_t step = 0; step < steps; ++step) {
        std::string broken;
        try {
            run.Step();
            broken = step % 50 == 0 ? run.BrokenAtRest() : run.Broken();
        } catch (const HandlersOwn&) { // on its way through the desktop
        }
        ASSERT_TRUE(broken.empty()) << "step " << step << ", seed " << seed << ": not true that " << broken;
    }
    EXPECT_GT(run.raised, steps / 100) << "the input reaches the strip";
}

} // namespace
} // namespace tvok::test
