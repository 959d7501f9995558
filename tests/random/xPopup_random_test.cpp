// Thousands of random member calls and inputs. Whatever comes, the current item is one that there is, and
// every opening ends with exactly one Click.
#include <random>

#include "tests/support/PopupTestDesktop.h"

namespace tvok::test {
namespace {

class RandomPopup {
public:
    explicit RandomPopup(unsigned seed) : random_(seed) {
        at_.popup->events.Click = [this](std::int32_t, qrosterdata& item, bool) {
            ++clicks_;
            item.text += "'";
            if (Number(6) == 0) Open();
        };
        at_.popup->events.Change = [this](std::int32_t index, qrosterdata& item) {
            EXPECT_EQ(index, at_.popup->ListIndex());
            item.key = "seen";
            if (Number(40) == 0) quietly([&] { Member(); });
        };
        at_.popup->events.EnumDATA = [this](std::int32_t& index, qrosterdata& item) {
            item = {.text = std::to_string(index), .vflag = Number(50) == 0 ? Number(0x400) : 0};
            if (Number(200) == 0) quietly([&] { Member(); });
        };
    }

    void Run(int steps) {
        for (int step = 0; step < steps; ++step) {
            if (Number(2) == 0) {
                quietly([&] { Member(); });
            } else {
                ASSERT_NO_THROW(Input()) << step;
            }
            ASSERT_NO_THROW(at_.desktop.Pump()) << step;
            const std::int32_t current = at_.popup->ListIndex();
            ASSERT_GE(current, 0) << step;
            ASSERT_LE(current, at_.popup->Count()) << step;
            ASSERT_EQ(clicks_, at_.IsOpen() ? openings_ - 1 : openings_) << step;
        }
        EXPECT_GT(openings_, steps / 100);
    }

private:
    std::int32_t Number(std::int32_t below) {
        return static_cast<std::int32_t>(random_() % static_cast<unsigned>(below));
    }

    void Open() {
        const bool opens = !at_.IsOpen() && at_.popup->Count() > 0;
        if (opens) ++openings_; // before its messages run, which may close it
        at_.popup->Popup(Number(4) == 0, Number(2) == 0);
    }

    void Member() {
        xPopup& popup = *at_.popup;
        switch (Number(18)) {
        case 0:
        case 1:
        case 2: return Open();
        case 3: return popup.AddItem({.text = "item " + std::to_string(Number(30)), .ItemData = Number(5)});
        case 4: return at_.Add(Lines(Number(12)));
        case 5: return Number(5) == 0 ? popup.Clear() : popup.ListIndex(Number(12));
        case 6: return popup.Count(Number(40) - 2);
        case 7: return popup.SortedMode(Number(6));
        case 8: return popup.SetColorPal(Number(7));
        case 9: return popup.SetNS(Number(20) - 10, Number(20));
        case 10: return popup.xn(Number(5));
        case 11: return popup.yn(Number(9));
        case 12: return popup.ItemsStr(popup.ItemsStr());
        case 13: return popup.CalTextWidth();
        case 14: return popup.DrawItem(Number(15) - 2);
        case 15: return popup.HotTrack(Number(2) == 0);
        case 16: return popup.ResetSize();
        default:
            return popup.SetParentRect({Number(1400) - 50, Number(1100) - 50, Number(1400), Number(1100)});
        }
    }

    void Input() {
        switch (Number(9)) {
        case 0: return at_.desktop.Key(host::VK_ESCAPE + Number(20));
        case 1: return at_.desktop.Key(host::VK_RETURN);
        case 2: return at_.Down();
        case 3: return at_.Up();
        case 4: return at_.desktop.Wheel(Number(5) - 2);
        case 5: return at_.desktop.Focus(at_.owner);
        case 6:
            if (Number(10) == 0) at_.desktop.FocusAway();
            return;
        default: {
            const tvok_Rect rect = at_.IsOpen() ? at_.WindowRect() : tvok_Rect{0, 0, 1200, 1000};
            const auto within = [&](std::int32_t from, std::int32_t to) {
                return from - 20 + Number(std::max(to - from, 1) + 40);
            };
            return at_.MoveToScreen(within(rect.Left, rect.Right), within(rect.Top, rect.bottom));
        }
        }
    }

    std::mt19937 random_;
    PopupDesktop at_;
    std::int32_t openings_ = 0;
    std::int32_t clicks_ = 0;
};

TEST(xPopupRandom, EveryOpeningEndsWithOneClickAndTheCurrentItemIsOneThatThereIs) {
    for (const unsigned seed : {1U, 2U, 3U, 4U}) {
        RandomPopup popup(seed);
        popup.Run(3000);
        if (testing::Test::HasFatalFailure()) return;
    }
}

} // namespace
} // namespace tvok::test
