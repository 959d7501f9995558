/// A market that never was: trades that can be asked for in any order, and when they arrive.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace gallery {

struct Trade {
    std::string_view symbol;
    std::string_view venue;
    std::int32_t cents = 0;  ///< Price, above 0.
    std::int32_t change = 0; ///< In cents, against the symbol's first price.
    std::int32_t volume = 0; ///< In whole lots of 100.

    friend bool operator==(const Trade&, const Trade&) = default;
};

/// Trade number `row`, from 1: always the same, worked out from the number alone, so nothing has to be kept.
/// The prices of a symbol wander; neighbouring ones lie close together.
Trade TradeOfRow(std::int32_t row);

/// How trades arrive: some more, some less, and every eight seconds a burst of six times the rate.
class Arrivals {
public:
    static constexpr std::int32_t BurstFactor = 6;

    /// How many arrive in the next `elapsed`, at `rate` a second on the whole outside of bursts. However the
    /// time is cut into calls, the sum is the same.
    std::int32_t Next(std::chrono::milliseconds elapsed, std::int32_t rate);

private:
    std::int64_t time_ = 0;     // in milliseconds
    std::int64_t fraction_ = 0; // of a trade, in millionths
};

std::string PriceText(std::int32_t cents);            ///< "1,204.50"
std::string ChangeText(std::int32_t cents);           ///< "+1.20", "−0.35", "0.00"
std::string TimeOfDayText(std::int32_t milliseconds); ///< "09:30:00.125"

} // namespace gallery
