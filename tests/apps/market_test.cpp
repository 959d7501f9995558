#include "apps/gallery/market.h"

#include <cstdlib>
#include <limits>
#include <map>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace gallery {
namespace {

using std::chrono::milliseconds;

TEST(Market, ATradeIsWorkedOutFromItsNumberAlone) {
    std::vector<Trade> forwards;
    for (std::int32_t row = 1; row <= 500; ++row) forwards.push_back(TradeOfRow(row));
    for (std::int32_t row = 500; row >= 1; --row)
        EXPECT_EQ(TradeOfRow(row), forwards[static_cast<std::size_t>(row) - 1]) << "row " << row;
    EXPECT_NE(forwards[0], forwards[1]);
}

TEST(Market, EveryTradeHasAPriceAndWholeLotsUpToTheLastRowThatThereCanBe) {
    std::vector<std::int32_t> rows{std::numeric_limits<std::int32_t>::max(), 2'000'000'000, 1};
    for (std::int32_t row = 2; row < 50'000; row += 7) rows.push_back(row);
    for (const std::int32_t row : rows) {
        const Trade trade = TradeOfRow(row);
        EXPECT_GT(trade.cents, 0) << "row " << row;
        EXPECT_GE(trade.volume, 100) << "row " << row;
        EXPECT_EQ(trade.volume % 100, 0) << "row " << row;
    }
}

TEST(Market, NeighbouringPricesOfASymbolLieCloseTogether) {
    std::map<std::string_view, std::int32_t> last;
    for (std::int32_t row = 1; row <= 20'000; ++row) {
        const Trade trade = TradeOfRow(row);
        const auto before = last.find(trade.symbol);
        if (before != last.end()) {
            EXPECT_LE(std::abs(trade.cents - before->second), trade.cents / 100 + 2) << "row " << row;
        }
        last[trade.symbol] = trade.cents;
    }
    EXPECT_EQ(last.size(), 20U);
}

TEST(Market, SomeTradesAreUpSomeAreDownAndEveryVenueHasSome) {
    std::int32_t up = 0;
    std::int32_t down = 0;
    std::set<std::string_view> venues;
    for (std::int32_t row = 1; row <= 20'000; ++row) {
        const Trade trade = TradeOfRow(row);
        up += trade.change > 0 ? 1 : 0;
        down += trade.change < 0 ? 1 : 0;
        venues.insert(trade.venue);
    }
    EXPECT_GT(up, 4'000);
    EXPECT_GT(down, 4'000);
    EXPECT_EQ(venues.size(), 5U);
}

TEST(Market, HowManyTradesArriveDoesNotDependOnHowTheTimeIsCut) {
    Arrivals whole;
    Arrivals cut;
    const std::int32_t together = whole.Next(milliseconds(9'000), 400);
    std::int32_t sum = 0;
    for (std::int32_t time = 0; time < 9'000;) {
        const std::int32_t step = std::min(1 + time % 40, 9'000 - time);
        sum += cut.Next(milliseconds(step), 400);
        time += step;
    }
    EXPECT_EQ(sum, together);
    EXPECT_EQ(cut.Next(milliseconds(0), 400), 0);
}

TEST(Market, ABurstOfSixTimesTheRateComesEveryEightSeconds) {
    Arrivals arrivals;
    for (int round = 0; round < 3; ++round) {
        EXPECT_NEAR(arrivals.Next(milliseconds(7'000), 400), 2'800, 2);
        arrivals.Next(milliseconds(400), 400);
        EXPECT_NEAR(arrivals.Next(milliseconds(600), 400), 6 * 240, 2);
    }
}

TEST(Market, NumbersAreWrittenForReading) {
    EXPECT_EQ(PriceText(120'450), "1,204.50");
    EXPECT_EQ(PriceText(7), "0.07");
    EXPECT_EQ(ChangeText(120), "+1.20");
    EXPECT_EQ(ChangeText(-35), "\u22120.35");
    EXPECT_EQ(ChangeText(0), "0.00");
    EXPECT_EQ(TimeOfDayText(34'200'125), "09:30:00.125");
    EXPECT_EQ(TimeOfDayText(0), "00:00:00.000");
}

} // namespace
} // namespace gallery
