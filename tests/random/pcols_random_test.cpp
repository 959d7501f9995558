// Random input for `pcols`: a user's drags and presses and a host's calls, against a plain model of the bar
// that is told every message by a hook of its own.
//
// TVOK_RANDOM_SEED=n repeats a run; the seed is printed. TVOK_RANDOM_STEPS=n makes it longer or shorter.

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/RandomRuns.h"
#include "tests/support/TestDesktop.h"
#include "tvok/engine/dgi.h"

namespace tvok::test {
namespace {

using desktop::MouseButton;

/// The bar as it is told, step by step, with an array that is longer than the count now and then.
struct Model {
    std::vector<qrosterheader> columns{1};
    std::int32_t count = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t sizing = 0;
    std::int32_t startX = 0;
    std::int32_t startWidth = 0;
    std::int32_t room = 0;
    std::vector<std::int32_t> pressed;

    std::int32_t& W(std::int32_t column) { return columns[static_cast<std::size_t>(column)].hWidth; }
    std::int32_t Bound() const { return static_cast<std::int32_t>(columns.size()) - 1; }
    void Resize(std::int32_t bound) { columns.resize(static_cast<std::size_t>(bound) + 1); }
    std::int32_t Sum(std::int32_t upTo) {
        std::int32_t sum = 0;
        for (std::int32_t i = 1; i <= upTo; ++i) sum += W(i);
        return sum;
    }

    void SetData(std::int32_t index, const qrosterheader& record) {
        std::int32_t target = -1;
        if (index >= 1 && index <= count) target = index;
        if (index == 0) {
            if (count <= Bound()) Resize(count + 1);
            target = ++count;
        } else if (index < 0 && -index <= count) {
            if (count <= Bound()) Resize(count + 1);
            for (std::int32_t i = count; i >= -index; --i)
                columns[static_cast<std::size_t>(i + 1)] = columns[static_cast<std::size_t>(i)];
            ++count;
            target = -index;
        }
        if (target > 0) columns[static_cast<std::size_t>(target)] = record;
        if (count > 0) Fit();
    }
    void Fit() {
        for (bool more = true; more;) {
            for (std::int32_t i = 1; i <= count; ++i) W(i) = std::max(W(i), 10);
            const std::int32_t excess = Sum(count) - width;
            if (excess <= 0) break;
            const std::int32_t cut = excess / count + (excess % count != 0 ? 1 : 0);
            more = false;
            for (std::int32_t i = 1; i <= count; ++i) {
                W(i) = std::max(W(i) - cut, 10);
                more = more || W(i) != 10;
            }
        }
        for (std::int32_t i = 1; i <= count; ++i)
            if (Sum(i) > width) count = i - 1;
    }
    void Remove(std::int32_t index) {
        std::int32_t j = 0;
        for (std::int32_t i = 1; i <= count; ++i)
            if (i != index && ++j != i)
                columns[static_cast<std::size_t>(j)] = columns[static_cast<std::size_t>(i)];
        count = j;
    }
    void Count(std::int32_t value) {
        count = value;
        Resize(value);
    }

    std::int32_t Edge(std::int32_t x, std::int32_t y) {
        if (count < 1 || y < 0 || y > height) return 0;
        for (std::int32_t i = 1; i <= count; ++i)
            if (x > Sum(i) - 3 && x < Sum(i) + 3) return i;
        return 0;
    }
    std::int32_t Column(std::int32_t x, std::int32_t y) {
        if (x < 0 || y < 0 || x > width || y > height) return -1;
        if (count <= 0) return 0;
        if (x < W(1) - 3) return 1;
        for (std::int32_t i = 2; i <= count; ++i)
            if (x > Sum(i - 1) + 3 && x < Sum(i) - 3) return i;
        return x > (count == 1 ? 0 : Sum(count)) + 3 ? 0 : -1;
    }
    void Press(std::int32_t x, std::int32_t y) {
        sizing = Edge(x, y);
        if (sizing == 0) {
            if (Column(x, y) >= 0) pressed.push_back(Column(x, y));
            return;
        }
        startX = x;
        startWidth = W(sizing);
        room = sizing != count ? W(sizing) + W(sizing + 1) : width - Sum(sizing - 1);
    }
    void Move(std::int32_t x) {
        if (sizing < 1 || sizing > count) return;
        const std::int32_t w = std::max(startWidth - startX + x, 10);
        if (w == W(sizing)) return;
        W(sizing) = w;
        if (sizing == count) {
            W(sizing) = std::min(w, room);
        } else if (W(sizing + 1) = room - w; W(sizing + 1) < 10) {
            W(sizing + 1) = 10;
            W(sizing) = room - 10;
        }
    }
    std::string Widths() {
        std::string text;
        for (std::int32_t i = 1; i <= count; ++i) text += (i > 1 ? "-" : "") + std::to_string(W(i));
        return text;
    }
};

class RandomBar {
public:
    explicit RandomBar(std::uint32_t seed)
        : random_(seed), bar_(desktop_.form().Add<pcols>("bar", Placement{50, 50, 300, 22})),
          hook_(host::services().CreateWindowHook()) {
        bar_.BorderStyle(0);
        bar_.events.MouseDown = [this](std::int32_t column, std::int32_t) {
            pressed_.push_back(column);
            if (Number(0, 3) == 0) Call();
        };
        hook_->RtMsg = [this](std::int32_t message, std::int32_t, std::int32_t lParam, std::int32_t&, bool&) {
            const host::Point at = dgi::PointFromLParam(lParam);
            if (message == host::WM_MOUSEMOVE) model_.Move(at.x);
            if (message == host::WM_LBUTTONDOWN || message == host::WM_RBUTTONDOWN) model_.Press(at.x, at.y);
            if (message == host::WM_LBUTTONUP) model_.sizing = 0;
        };
        std::int32_t kind = 0;
        std::int32_t window = bar_.hwnd();
        bool flag = true;
        hook_->HookSet(kind, window, flag); // set last, so asked before the bar's own
        Size(300, 22);
    }

    void Step() {
        switch (Number(0, 3)) {
        case 0: Call(); break;
        case 1: desktop_.MoveTo(bar_, Number(-20, 330), Number(-4, 26)); break;
        case 2: Drag(); break;
        default: Button();
        }
    }
    std::string Broken() {
        if (bar_.Count() != model_.count) return "the count is the model's";
        if (bar_.HeaderWidths() != model_.Widths()) return bar_.HeaderWidths() + " is " + model_.Widths();
        for (std::int32_t i = 1; i <= model_.count; ++i)
            if (bar_.GetData(i) != model_.columns[static_cast<std::size_t>(i)])
                return "the records are the model's";
        if (pressed_ != model_.pressed) return "the presses are the model's";
        return {};
    }
    /// The picture that is there is the one of a repaint, once the bar was refreshed.
    bool IsPainted() {
        bar_.Refresh();
        const auto before = desktop_.Pixels(bar_);
        host::platform().InvalidateRect(bar_.hwnd(), nullptr, true);
        desktop_.Pump();
        return desktop_.Pixels(bar_) == before;
    }
    std::size_t Presses() const { return pressed_.size(); }
    std::int32_t drags = 0;

private:
    std::int32_t Number(std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random_);
    }
    void Size(std::int32_t width, std::int32_t height) {
        model_.width = width;
        model_.height = height;
        desktop_.form().Place(bar_, {50, 50, width, height});
    }
    qrosterheader Record() {
        return {.text = "column " + std::to_string(++made_),
                .hWidth = Number(0, 19) == 0 ? Number(-100, 100'000) : Number(5, 90),
                .key = "k" + std::to_string(made_),
                .fcolor = Number(0, 0xFFFFFF),
                .Alignment = static_cast<std::int16_t>(Number(0, 2)),
                .vflag = Number(0, 9)};
    }
    void SetData(std::int32_t index) {
        const qrosterheader record = Record();
        if (Number(0, 1) == 0) {
            bar_.SetData(index, record);
        } else {
            bar_.Add(index, record.text, record.hWidth, record.key, record.Alignment, record.fcolor,
                     record.vflag);
        }
        model_.SetData(index, record);
    }
    void Widths() {
        std::string text;
        const std::int32_t parts = Number(0, model_.count + 2);
        for (std::int32_t i = 1; i <= parts; ++i) {
            const std::int32_t width = Number(0, 60);
            text += (i > 1 ? "-" : "") + std::to_string(width);
            if (width >= 10 && i <= model_.count) model_.W(i) = width;
        }
        bar_.HeaderWidths(text);
    }
    void Call() {
        switch (Number(0, 15)) {
        case 0:
            bar_.Clear();
            model_.count = 0;
            break;
        case 1: {
            const std::int32_t count = Number(0, 9);
            bar_.Count(count);
            model_.Count(count);
            break;
        }
        case 2: Widths(); break;
        case 3: Size(Number(0, 9) == 0 ? 0 : Number(30, 400), Number(0, 30)); break;
        case 4:
        case 5: {
            const std::int32_t index = Number(-1, model_.count + 2);
            bar_.Remove(index);
            model_.Remove(index);
            break;
        }
        case 6: bar_.lFlag(Number(0, 15) << 20); break;
        case 7: bar_.Refresh(); break;
        case 8:
        case 9: SetData(Number(-model_.count - 2, model_.count + 2)); break;
        default: SetData(0);
        }
    }
    void Button() {
        const auto button = Number(0, 5) == 0 ? MouseButton::Right : MouseButton::Left;
        desktop_.clock().now += std::chrono::milliseconds(Number(0, 600));
        if (Number(0, 2) != 0) desktop_.desktop().Input().MouseDown(button);
        if (Number(0, 2) != 0) desktop_.desktop().Input().MouseUp(button);
        desktop_.Pump();
    }
    /// From a divider, for most presses at random miss them.
    void Drag() {
        if (model_.count < 1) return;
        const std::int32_t from = model_.Sum(Number(1, model_.count)) + Number(-3, 3);
        if (from < 0 || from >= model_.width) return;
        ++drags;
        desktop_.Drag(bar_, {from, std::min(5, model_.height)}, {Number(-20, 330), 8}, 3);
    }

    std::mt19937 random_;
    TestDesktop desktop_;
    pcols& bar_;
    Model model_;
    std::vector<std::int32_t> pressed_;
    std::unique_ptr<host::WindowHook> hook_;
    std::int32_t made_ = 0;
};

TEST(pcolsAtRandom, IsItsModelWhateverUsersAndHostsDo) {
    const std::uint32_t seed = FromEnvironment("TVOK_RANDOM_SEED", 20);
    const std::uint32_t steps = FromEnvironment("TVOK_RANDOM_STEPS", 20'000);
    std::printf("TVOK_RANDOM_SEED=%u\n", seed);
    RandomBar bar(seed);
    for (std::uint32_t step = 0; step < steps; ++step) {
        bar.Step();
        const std::string broken = bar.Broken();
        ASSERT_TRUE(broken.empty()) << "step " << step << ", seed " << seed << ": not true that " << broken;
        if (step % 50 == 0) {
            ASSERT_TRUE(bar.IsPainted()) << "step " << step << ", seed " << seed;
        }
    }
    EXPECT_GT(bar.Presses(), steps / 100);
    EXPECT_GT(bar.drags, static_cast<std::int32_t>(steps / 20));
}

} // namespace
} // namespace tvok::test
