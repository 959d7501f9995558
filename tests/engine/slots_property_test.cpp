#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>

#include "tvok/engine/ItemSlots.h"

namespace tvok {
namespace {

constexpr std::int32_t cInUse = vflag::InUse;

std::int32_t PlainFirstFree(const ItemSlots& items, std::int32_t start) {
    for (std::int32_t slot = start; slot <= items.UpperBound(); ++slot)
        if ((items[slot].vflag & cInUse) == 0) return slot;
    return -1;
}

qrosterdata Used(const std::string& text) {
    return {.text = text, .vflag = cInUse};
}

TEST(ItemSlots, StartWithADefaultItemThatIsFree) {
    ItemSlots items;
    EXPECT_EQ(items.UpperBound(), 0);
    EXPECT_EQ(items[0], qrosterdata{});
    EXPECT_EQ(items.FirstFree(0), 0);
    EXPECT_EQ(items.FirstFree(1), -1);
    EXPECT_THROW(items[1], SubscriptError);
    EXPECT_THROW(items[-1], SubscriptError);
    EXPECT_THROW(items.Put(1, {}), SubscriptError);
    EXPECT_THROW(items.PutFlags(1, 0), SubscriptError);
    EXPECT_THROW(items.Lend(1), SubscriptError);
}

TEST(ItemSlots, GrowAndNeverShrinkByResize) {
    ItemSlots items;
    items.Resize(3000);
    items.Put(3000, Used("last"));
    items.Resize(10);
    EXPECT_EQ(items.UpperBound(), 3000);
    EXPECT_EQ(items[3000].text, "last");
    EXPECT_EQ(items[2999], qrosterdata{});
}

TEST(ItemSlots, AnswerTheFirstFreeSlotLikeAPlainSearch) {
    std::mt19937 random(5);
    const auto below = [&](std::int32_t bound) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(bound));
    };
    ItemSlots items;
    for (int step = 0; step < 60000; ++step) {
        const auto slot = below(items.UpperBound() + 1);
        switch (random() % 8) {
        case 0:
            if (items.UpperBound() < 20000) items.Resize(items.UpperBound() + below(40));
            break;
        case 1: items.PutFlags(slot, below(2) == 0 ? 0 : vflag::Bold); break;
        case 2:
            if (step % 5000 < 2) items.Reset();
            break;
        case 3: items.Lend(slot).record().vflag = below(2) == 0 ? 0 : cInUse; break;
        default:
            for (auto used = slot; used <= items.UpperBound() && used < slot + below(90); ++used)
                items.Put(used, Used("x"));
        }
        const auto start = below(items.UpperBound() + 2);
        if (step % 16 != 0) continue;
        ASSERT_EQ(items.FirstFree(start), PlainFirstFree(items, start)) << "step " << step;
    }
}

TEST(ItemSlots, AnswerTheFirstFreeSlotLikeAPlainSearchWhileRecordsAreLent) {
    std::mt19937 random(6);
    ItemSlots items;
    items.Resize(500);
    for (std::int32_t slot = 0; slot <= 500; ++slot) items.PutFlags(slot, cInUse);
    std::map<unsigned, std::unique_ptr<ItemSlots::Loan>> loans;
    for (int step = 0; step < 5000; ++step) {
        const auto id = static_cast<unsigned>(random() % 6);
        const auto slot = static_cast<std::int32_t>(random() % 501);
        if (loans[id] == nullptr)
            loans[id].reset(new ItemSlots::Loan(items, slot));
        else if (random() % 3 == 0)
            loans[id].reset();
        else
            loans[id]->record().vflag ^= cInUse;
        ASSERT_EQ(items.FirstFree(slot), PlainFirstFree(items, slot)) << "step " << step;
    }
}

TEST(ItemSlots, KeepALentRecordWhereItIsWhileTheyGrow) {
    ItemSlots items;
    items.Resize(1);
    auto loan = items.Lend(1);
    qrosterdata& record = loan.record();
    items.Resize(100000);
    record.text = "edited";
    EXPECT_EQ(items[1].text, "edited");
}

TEST(ItemSlots, KeepALentRecordAliveThroughAReset) {
    ItemSlots items;
    items.Resize(2000);
    items.Put(1500, Used("lent"));
    {
        auto loan = items.Lend(1500);
        items.Reset();
        items.Resize(1500);
        items.Put(1500, Used("new"));
        EXPECT_EQ(loan.record().text, "lent");
        loan.record().text = "edited too late";
        loan.record().vflag = 0;
        EXPECT_EQ(items[1500].text, "new");
    }
    EXPECT_EQ(items[1500].vflag, cInUse);
    EXPECT_EQ(items.FirstFree(1500), -1);
}

TEST(ItemSlots, LetALoanOutliveThem) {
    auto items = std::make_unique<ItemSlots>();
    items->Put(0, Used("blank"));
    auto loan = std::make_unique<ItemSlots::Loan>(*items, 0);
    items.reset();
    EXPECT_EQ(loan->record().text, "blank");
    loan->record().text = "still good";
    loan.reset();
}

TEST(ItemSlots, HonourFlagsThatWereEditedInPlace) {
    ItemSlots items;
    items.Resize(3);
    for (std::int32_t slot = 0; slot <= 3; ++slot) items.Put(slot, Used("x"));
    {
        auto loan = items.Lend(2);
        EXPECT_EQ(items.FirstFree(0), -1);
        loan.record().vflag = 0;
        EXPECT_EQ(items.FirstFree(0), 2);
        loan.record().vflag = cInUse;
        EXPECT_EQ(items.FirstFree(0), -1);
        loan.record().vflag = 0;
    }
    EXPECT_EQ(items.FirstFree(0), 2);
}

TEST(ItemSlots, LendOneRecordSeveralTimes) {
    ItemSlots items;
    auto first = std::make_unique<ItemSlots::Loan>(items, 0);
    auto second = std::make_unique<ItemSlots::Loan>(items, 0);
    auto third = std::make_unique<ItemSlots::Loan>(items, 0);
    second.reset();
    first->record().vflag = cInUse;
    EXPECT_EQ(items.FirstFree(0), -1);
    third.reset();
    first->record().vflag = 0;
    first.reset();
    EXPECT_EQ(items.FirstFree(0), 0);
}

TEST(ItemSlots, TakeARecordOfTheirOwn) {
    ItemSlots items;
    items.Resize(1);
    items.Put(1, Used("own"));
    items.Put(1, items[1]);
    items.Put(0, items[1]);
    EXPECT_EQ(items[1].text, "own");
    EXPECT_EQ(items[0].text, "own");
}

} // namespace
} // namespace tvok
