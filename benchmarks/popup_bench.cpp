// What a popup costs: opening a palette, opening very many virtual items, number lists, and sorts.

#include <chrono>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <malloc.h>

#include "benchmarks/ratios.h"
#include "tvok/tvok.h"

namespace tvok::bench {
namespace {

/// A popup on a form in memory.
struct PopupInMemory {
    Desktop desktop{[] {
        DesktopOptions options;
        options.display = DesktopOptions::Display::Headless;
        return options;
    }()};
    xPopup& popup = desktop.AddForm("bench", 300, 200).Add<xPopup>("popup1", {0, 0, 18, 17});

    PopupInMemory() {
        popup.SetParentRect({100, 100, 300, 120});
        Pump();
    }
    void Pump() { desktop.ProcessEvents(std::chrono::milliseconds{0}); }
    void Key(std::int32_t key) {
        desktop.Input().KeyDown(key);
        desktop.Input().KeyUp(key);
        Pump();
    }
};

/// Opens and closes; `Popup` has painted when it returns.
double OpeningSeconds(PopupInMemory& at, int each) {
    return Seconds(
        150,
        [&] {
            at.popup.Popup(false, true);
            at.Key(host::VK_ESCAPE);
        },
        each);
}

/// One paint of all cells of the open popup: what is least for it to show itself.
double PaintSeconds(PopupInMemory& at, int each) {
    at.popup.Popup(false, true);
    const host::Handle hWnd = host::platform().GetCapture(); // an open popup has the mouse
    const double seconds = Seconds(
        150,
        [&] {
            host::platform().InvalidateRect(hWnd, nullptr, false);
            host::platform().UpdateWindow(hWnd);
            at.Pump(); // shows it, as an opening does
        },
        each);
    at.Key(host::VK_ESCAPE);
    return seconds;
}

void MeasurePalette() {
    PopupInMemory at;
    at.popup.SetColorPal(PAL24x10);
    const double paint = PaintSeconds(at, 2);
    Report("palette of 240 colours: open and close, in paints of its cells", OpeningSeconds(at, 2) / paint,
           Wanted::AtMost, 2);
    const double filling = Seconds(
        15, [&] { at.popup.SetColorPal(PAL24x10); }, 20);
    Report("palette of 240 colours: computed, in paints of its cells", filling / paint, Wanted::AtMost, 1);
}

/// What the heap holds more once there are so many items.
double BytesPerItem(std::int32_t count) {
    PopupInMemory at;
    const auto before = mallinfo2();
    at.popup.Count(count);
    const auto after = mallinfo2();
    const auto held = [](const struct mallinfo2& info) {
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    return (held(after) - held(before)) / count;
}

double OpeningOfVirtualItems(std::int32_t count) {
    PopupInMemory at;
    at.popup.Count(count);
    return OpeningSeconds(at, 2);
}

void MeasureVirtualItems() {
    constexpr std::int32_t kMany = 10'000'000;
    Report("10,000,000 virtual items: open, against 100",
           OpeningOfVirtualItems(kMany) / OpeningOfVirtualItems(100), Wanted::AtMost, 1.3);
    Report("10,000,000 virtual items: heap of the index, bytes per item", BytesPerItem(kMany), Wanted::AtMost,
           4.01, "bytes");

    PopupInMemory at;
    std::vector<std::int32_t> plain;
    const double filling = Seconds(5, [&] {
        at.popup.Clear();
        at.popup.Count(kMany);
    });
    const double least = Seconds(5, [&] {
        plain = std::vector<std::int32_t>(1);
        plain.assign(kMany, 1);
    });
    Report("10,000,000 virtual items: Count, against a filled array", filling / least, Wanted::AtMost, 3);
    const double seek = Seconds(5, [&] {
        at.popup.Popup();
        at.Key('X');
        at.Key(host::VK_ESCAPE);
    });
    Report("10,000,000 virtual items: a letter that none begins with, likewise", seek / least, Wanted::AtMost,
           4);
}

void MeasureNumbers() {
    PopupInMemory at;
    const double ratio = RatioOf([&] { at.popup.SetNS(1, 32000); },
                                 [&] {
                                     for (int i = 0; i < 16; ++i) at.popup.SetNS(1, 2000);
                                 });
    Report("SetNS: 32,000 numbers against 2,000, each", ratio, Wanted::AtMost, 1.5);
}

struct Key {
    std::int32_t data;
    std::string_view text;
    std::int32_t place;
};

/// Sorting items of random numbers and texts: the popup's way, and `std::sort` over keys made beforehand.
class Sorting {
public:
    explicit Sorting(std::int32_t numbers) {
        std::mt19937 random(5);
        for (std::int32_t i = 0; i < kItems; ++i) {
            const auto data = static_cast<std::int32_t>(random() % static_cast<unsigned>(numbers));
            texts_.push_back("item " + std::to_string(random() % 1'000'000) + " of a list");
            at_.popup.AddItem({.text = texts_.back(), .ItemData = data});
            keys_.push_back({data, {}, i});
        }
        for (std::size_t i = 0; i < keys_.size(); ++i) keys_[i].text = texts_[i];
    }

    template<class Before>
    double Ratio(std::int32_t mode, Before before) {
        double own = 1e9;
        double least = 1e9;
        for (int run = 0; run < 3; ++run) {
            Shuffle();
            own = std::min(own, Seconds(1, [&] { at_.popup.SortedMode(mode); }));
            auto keys = keys_;
            least = std::min(least, Seconds(1, [&] { std::sort(keys.begin(), keys.end(), before); }));
        }
        return own / least;
    }

private:
    static constexpr std::int32_t kItems = 1'000'000;

    /// Back to the order of adding.
    void Shuffle() {
        at_.popup.Clear();
        for (std::size_t i = 0; i < texts_.size(); ++i)
            at_.popup.AddItem({.text = texts_[i], .ItemData = keys_[i].data});
    }

    PopupInMemory at_;
    std::vector<std::string> texts_;
    std::vector<Key> keys_;
};

void MeasureSorts() {
    const auto byText = [](const Key& a, const Key& b) { return a.text < b.text; };
    const auto byData = [](const Key& a, const Key& b) {
        return a.data != b.data ? a.data < b.data : b.text < a.text;
    };
    Sorting distinct(INT32_MAX);
    Report("1,000,000 items by text, against std::sort on keys", distinct.Ratio(bAscendingSorted, byText),
           Wanted::AtMost, 2);
    Report("1,000,000 items by ItemData, against std::sort on keys",
           distinct.Ratio(bItemDataAscendingSorted, byData), Wanted::AtMost, 2);
    Sorting equal(1000);
    Report("the same with 1,000 different numbers", equal.Ratio(bItemDataAscendingSorted, byData),
           Wanted::AtMost, 2);
}

} // namespace
} // namespace tvok::bench

int main() {
    tvok::bench::MeasurePalette();
    tvok::bench::MeasureVirtualItems();
    tvok::bench::MeasureNumbers();
    tvok::bench::MeasureSorts();
    return tvok::bench::missed;
}
