#include "apps/gallery/market.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include "apps/gallery/words.h"

namespace gallery {

namespace {

struct Symbol {
    std::string_view name;
    std::int32_t cents; // what it is worth on the whole
};

// The first ones are traded most.
constexpr std::array<Symbol, 20> Symbols{{
    {"ALDER", 18'425}, {"BRISK", 6'240},  {"CASTLE", 41'930}, {"DUNE", 2'815},  {"EMBER", 9'660},
    {"FERN", 13'275},  {"GALE", 5'105},   {"HARROW", 27'340}, {"INLET", 1'490}, {"JASPER", 7'725},
    {"KITE", 3'360},   {"LARK", 11'080},  {"MOOR", 22'615},   {"NEWEL", 860},   {"OPAL", 15'950},
    {"PINE", 4'470},   {"QUARRY", 8'835}, {"REEF", 30'205},   {"SLATE", 1'955}, {"TIDE", 10'540},
}};
constexpr std::array<std::string_view, 5> Venues{"North", "Harbor", "West", "Main", "Dark"};

/// Numbers without a pattern, the same for the same pair.
std::uint32_t Scatter(std::uint32_t a, std::uint32_t b) {
    std::uint32_t x = a * 0x9E3779B1u ^ (b + 0x7F4A7C15u) * 0x85EBCA77u;
    x = (x ^ x >> 15) * 0x2C1B3C6Du;
    x = (x ^ x >> 12) * 0x297A2D39u;
    return x ^ x >> 15;
}

/// From -1000 to 1000: a scattered value at every `period`th row, and a straight line between two of them.
std::int64_t Wave(std::uint32_t seed, std::int32_t row, std::int32_t period) {
    const auto knot = [&](std::int64_t place) {
        return std::int64_t{Scatter(seed, static_cast<std::uint32_t>(place)) % 2001} - 1000;
    };
    const std::int64_t place = row / period;
    const std::int64_t along = row % period;
    return knot(place) + (knot(place + 1) - knot(place)) * along / period;
}

std::int32_t PriceOf(std::size_t symbol, std::int32_t row) {
    const auto seed = static_cast<std::uint32_t>(symbol) * 16;
    const std::int64_t wander = Wave(seed + 1, row, 30'000) * 24 + Wave(seed + 2, row, 4'000) * 9 +
                                Wave(seed + 3, row, 500) * 3 + Wave(seed + 4, row, 60);
    const std::int64_t worth = Symbols[symbol].cents;
    return static_cast<std::int32_t>(worth + worth * wander / 1'000'000);
}

/// Most trades are small and a few are very large.
std::int32_t VolumeOf(std::uint32_t scattered) {
    const std::uint32_t kind = scattered % 100;
    const std::uint32_t size = scattered / 100;
    const std::uint32_t lots = kind < 72 ? 1 + size % 9 : kind < 97 ? 10 + size % 40 : 50 + size % 350;
    return static_cast<std::int32_t>(lots * 100);
}

/// Twice from a whole number of them, so that the lower ones come more often.
std::size_t SymbolOf(std::uint32_t scattered) {
    const auto many = static_cast<std::uint32_t>(Symbols.size());
    return scattered % many * (scattered / many % many + 1) / many;
}

std::string Decimal(std::int64_t cents) {
    char text[8];
    std::snprintf(text, sizeof text, ".%02d", static_cast<int>(cents % 100));
    return Grouped(cents / 100) + text;
}

} // namespace

Trade TradeOfRow(std::int32_t row) {
    const auto number = static_cast<std::uint32_t>(row);
    const std::size_t symbol = SymbolOf(Scatter(number, 1));
    Trade trade;
    trade.symbol = Symbols[symbol].name;
    trade.venue = Venues[Scatter(number, 2) % Venues.size()];
    trade.cents = PriceOf(symbol, row);
    trade.change = trade.cents - PriceOf(symbol, 0);
    trade.volume = VolumeOf(Scatter(number, 3));
    return trade;
}

std::int32_t Arrivals::Next(std::chrono::milliseconds elapsed, std::int32_t rate) {
    constexpr std::int64_t Period = 8'000, Burst = 7'400, Swell = 1'000, Whole = 1'000'000;
    std::int64_t parts = 0;
    for (std::int64_t i = 0; i < elapsed.count(); ++i, ++time_) {
        const std::int64_t swell = std::abs(time_ % Swell - Swell / 2); // 0 to 500 and back, 250 on the whole
        const std::int64_t thousandths = time_ % Period >= Burst ? 1'000 * BurstFactor : 750 + swell;
        parts += rate * thousandths; // of a trade in this millisecond, in millionths
    }
    fraction_ += parts;
    const std::int64_t count = fraction_ / Whole;
    fraction_ %= Whole;
    return static_cast<std::int32_t>(count);
}

std::string PriceText(std::int32_t cents) {
    return Decimal(cents);
}

std::string ChangeText(std::int32_t cents) {
    const char* const sign = cents > 0 ? "+" : cents < 0 ? "\u2212" : "";
    return sign + Decimal(std::abs(std::int64_t{cents}));
}

std::string TimeOfDayText(std::int32_t milliseconds) {
    const std::int32_t seconds = milliseconds / 1000;
    char text[48];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d.%03d", seconds / 3600 % 24, seconds / 60 % 60,
                  seconds % 60, milliseconds % 1000);
    return text;
}

} // namespace gallery
