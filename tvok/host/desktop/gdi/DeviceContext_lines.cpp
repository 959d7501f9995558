#include "tvok/host/desktop/gdi/DeviceContext_private.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <span>
#include <utility>

namespace tvok::soft {

namespace {

/// Runs of drawn and left-out pixels of a pen style; empty for a pen without gaps.
std::span<const std::uint8_t> DashesOf(const Pen& pen) {
    static constexpr std::array<std::uint8_t, 2> dash{18, 6};
    static constexpr std::array<std::uint8_t, 2> dot{3, 3};
    static constexpr std::array<std::uint8_t, 4> dashDot{9, 6, 3, 6};
    static constexpr std::array<std::uint8_t, 6> dashDotDot{9, 3, 3, 3, 3, 3};
    if (pen.width > 1) return {};
    switch (pen.style) {
    case 1: return dash;
    case 2: return dot;
    case 3: return dashDot;
    case 4: return dashDotDot;
    default: return {};
    }
}

bool IsGap(std::span<const std::uint8_t> dashes, std::uint64_t step) {
    if (dashes.empty()) return false;
    std::uint64_t whole = 0;
    for (const std::uint8_t run : dashes) whole += run;
    std::uint64_t place = step % whole;
    for (std::size_t i = 0;; ++i) {
        if (place < dashes[i]) return i % 2 == 1;
        place -= dashes[i];
    }
}

/// A line as steps along its longer direction. All of it fits 64 bits: differences are below 2^32, and so the
/// product of two stays below 2^64.
struct Steps {
    host::Point from;
    std::uint64_t count = 0; ///< Pixels, without the last point.
    std::uint64_t rise = 0;  ///< Pixels across for all of them.
    bool flat = true;        ///< The longer direction is x.
    bool forward = true;
    bool rising = true;

    Steps(host::Point a, host::Point b) : from(a) {
        const std::int64_t dx = std::int64_t{b.x} - a.x;
        const std::int64_t dy = std::int64_t{b.y} - a.y;
        flat = std::abs(dx) >= std::abs(dy);
        count = static_cast<std::uint64_t>(std::abs(flat ? dx : dy));
        rise = static_cast<std::uint64_t>(std::abs(flat ? dy : dx));
        forward = (flat ? dx : dy) >= 0;
        rising = (flat ? dy : dx) >= 0;
    }
    std::int64_t Along(std::uint64_t step) const {
        const auto distance = static_cast<std::int64_t>(step);
        return std::int64_t{flat ? from.x : from.y} + (forward ? distance : -distance);
    }
    std::int64_t Across(std::uint64_t step) const {
        const auto distance = static_cast<std::int64_t>((step * rise + count / 2) / count);
        return std::int64_t{flat ? from.y : from.x} + (rising ? distance : -distance);
    }
    /// The steps whose place along lies within `low` to `high` - 1: the first, and the one behind the last.
    std::pair<std::uint64_t, std::uint64_t> Within(std::int64_t low, std::int64_t high) const {
        const std::int64_t start = flat ? from.x : from.y;
        const auto limit = static_cast<std::int64_t>(count);
        const std::int64_t begin = forward ? low - start : start - high + 1;
        const std::int64_t end = forward ? high - start : start - low + 1;
        return {static_cast<std::uint64_t>(std::clamp<std::int64_t>(begin, 0, limit)),
                static_cast<std::uint64_t>(std::clamp<std::int64_t>(end, 0, limit))};
    }
    /// A pen's width measured across, which is longer than the pen is wide where the line is slanted.
    std::int64_t WidthAcross(std::int32_t penWidth) const {
        const double ratio =
            std::hypot(static_cast<double>(count), static_cast<double>(rise)) / static_cast<double>(count);
        return std::llround(std::max(penWidth, 1) * ratio);
    }
};

} // namespace

bool HasGaps(const Pen& pen) {
    return !DashesOf(pen).empty();
}

bool DeviceContext::MoveTo(std::int32_t x, std::int32_t y, host::Point* before) {
    if (before) *before = position_;
    position_ = {x, y};
    return true;
}

bool DeviceContext::LineTo(std::int32_t x, std::int32_t y) {
    const host::Point from = position_;
    position_ = {x, y};
    if (pen_.style == host::PS_NULL) return true;
    if ((from.x == x || from.y == y) && !HasGaps(pen_))
        StraightLine(from, position_);
    else
        StepLine(from, position_);
    return true;
}

void DeviceContext::StraightLine(host::Point from, host::Point to) {
    const PenReach reach(pen_.width);
    const auto low = [](std::int64_t a, std::int64_t b) { return a <= b ? a : b + 1; };
    const auto high = [](std::int64_t a, std::int64_t b) { return a <= b ? b : a + 1; };
    const WideRect line = from.y == to.y ? WideRect{low(from.x, to.x), from.y - reach.before,
                                                    high(from.x, to.x), from.y + reach.behind + 1}
                                         : WideRect{from.x - reach.before, low(from.y, to.y),
                                                    from.x + reach.behind + 1, high(from.y, to.y)};
    Mix(Placed(line), PixelOf(pen_.color));
}

/// One stroke across for each pixel along; only the steps that may be visible are walked.
void DeviceContext::StepLine(host::Point from, host::Point to) {
    const Steps steps(from, to);
    if (steps.count == 0) return;
    const auto dashes = DashesOf(pen_);
    const PenReach reach(steps.WidthAcross(pen_.width));
    const auto [first, last] =
        steps.flat
            ? steps.Within(std::int64_t{bounds_.Left} - originX_, std::int64_t{bounds_.Right} - originX_)
            : steps.Within(std::int64_t{bounds_.Top} - originY_, std::int64_t{bounds_.bottom} - originY_);
    for (std::uint64_t step = first; step < last; ++step) {
        const bool gap = IsGap(dashes, step);
        if (gap && bkMode_ != host::OPAQUE_BK) continue;
        const std::int64_t along = steps.Along(step);
        const std::int64_t before = steps.Across(step) - reach.before;
        const std::int64_t behind = before + reach.before + reach.behind + 1;
        MixUnnoted(Placed(steps.flat ? WideRect{along, before, along + 1, behind}
                                     : WideRect{before, along, behind, along + 1}),
                   PixelOf(gap ? bkColor_ : pen_.color));
    }
    Note(Placed({std::min<std::int64_t>(from.x, to.x) - reach.before,
                 std::min<std::int64_t>(from.y, to.y) - reach.before,
                 std::max<std::int64_t>(from.x, to.x) + reach.behind + 1,
                 std::max<std::int64_t>(from.y, to.y) + reach.behind + 1}));
}

} // namespace tvok::soft
