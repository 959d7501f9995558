// The store of a property list against plain searches, with records that change in a handler's hands.
#include "tvok/controls/propertylist/ItemStore.h"

#include <gmock/gmock.h>
#include <optional>
#include <random>

#include "tests/support/FakeHost.h"

namespace tvok::test {
namespace {

using propertylist::ItemStore;

class PropertyStore : public ::testing::Test {
protected:
    PropertyStore() : before_(host::SetServices(&services_)) {}
    ~PropertyStore() override { host::SetServices(before_); }

    static elistdata Item(const std::string& key, const std::string& caption = "caption") {
        elistdata item;
        item.hItem.key = key;
        item.hItem.text = caption;
        return item;
    }
    std::int32_t Add(const elistdata& item) {
        const std::int32_t slot = store.Grow();
        store.Put(slot, item);
        return slot;
    }

private:
    FakeServices services_;
    host::Services* before_;

protected:
    ItemStore store;
};

/// All slots are looked at, one after the other.
std::int32_t PlainNextWithKey(const ItemStore& store, const std::string& key, std::int32_t from) {
    const host::Language& language = host::services().Language();
    for (std::int32_t slot = from; !key.empty() && slot <= store.UpperBound(); ++slot)
        if (language.LowerCase(store[slot].hItem.key) == language.LowerCase(key)) return slot;
    return 0;
}

std::int32_t PlainFirstFree(const ItemStore& store) {
    for (std::int32_t slot = 1; slot <= store.UpperBound(); ++slot)
        if (store[slot].bDelete) return slot;
    return 0;
}

std::vector<elistdata> Records(const ItemStore& store) {
    std::vector<elistdata> records;
    for (std::int32_t slot = 0; slot <= store.UpperBound(); ++slot) records.push_back(store[slot]);
    return records;
}

/// Record by record, over each gap in turn.
std::vector<elistdata> PlainSqueeze(std::vector<elistdata> records, std::int32_t& count) {
    std::size_t next = 0;
    for (std::size_t slot = 1; slot < records.size(); ++slot) {
        if (records[slot].bDelete) continue;
        if (++next == slot) continue;
        records[next] = records[slot];
        records[slot].bDelete = true;
    }
    count = static_cast<std::int32_t>(next);
    return records;
}

TEST_F(PropertyStore, BeginsAsABlankRecordAlone) {
    EXPECT_EQ(store.UpperBound(), 0);
    EXPECT_EQ(store[0].hItem, ZeroItem());
    EXPECT_EQ(store[0].item, ZeroItem());
    EXPECT_EQ(store.FirstFree(), 0);
    EXPECT_THROW(store[1], SubscriptError);
    EXPECT_THROW(store[-1], SubscriptError);
}

TEST_F(PropertyStore, AKeyThatAHandlerWritesIsFoundWhileTheRecordIsStillInItsHands) {
    const std::int32_t slot = Add(Item("old"));
    {
        const auto loan = store.Lend(slot);
        loan.record().hItem.key = "NEW";
        EXPECT_EQ(store.NextWithKey("new"), slot);
        EXPECT_EQ(store.NextWithKey("old"), 0);
        loan.record().hItem.key = "third";
    }
    EXPECT_EQ(store.NextWithKey("third"), slot);
    EXPECT_EQ(store.NextWithKey("new"), 0);
}

TEST_F(PropertyStore, ARecordThatAHandlerFreesIsGivenOutNext) {
    Add(Item("a"));
    const std::int32_t slot = Add(Item("b"));
    {
        const auto loan = store.Lend(slot);
        loan.record().bDelete = true;
        EXPECT_EQ(store.FirstFree(), slot);
        loan.record().bDelete = false;
    }
    EXPECT_EQ(store.FirstFree(), 0);
}

TEST_F(PropertyStore, ALentRecordStaysGoodWhileTheStoreGrowsAndIsClosedUp) {
    const std::int32_t first = Add(Item("first"));
    const std::int32_t slot = Add(Item("second"));
    const auto loan = store.Lend(slot);
    elistdata& record = loan.record();
    for (int i = 0; i < 1000; ++i) Add(Item("more"));
    EXPECT_EQ(&record, &store[slot]);
    store.Free(first);
    store.Squeeze();
    EXPECT_EQ(&record, &store[slot]) << "what lies at the slot now is what the handler sees";
    EXPECT_EQ(record.hItem.key, "more");
    EXPECT_EQ(store.NextWithKey("second"), first);
}

TEST_F(PropertyStore, ARecordLentBeforeAResetInAHandlerStaysGood) {
    const std::int32_t slot = Add(Item("kept"));
    const RunningEvent handler;
    const auto loan = store.Lend(slot);
    store.Reset();
    loan.record().hItem.key = "written after the reset";
    EXPECT_EQ(store.UpperBound(), 0);
    EXPECT_EQ(store.NextWithKey("written after the reset"), 0);
}

TEST_F(PropertyStore, OnlyWhatRowsAreMadeFromCountsAsAChange) {
    const std::int32_t slot = Add(Item("key"));
    const auto version = store.Version();
    {
        const auto loan = store.Lend(slot);
        loan.record().nData = Variant(7);
        loan.record().item.text = "shown";
        loan.record().hItem.vflag = vflag::Collapsed;
    }
    EXPECT_EQ(store.Version(), version);
    const auto stamp = store.CaptionStamp(slot);
    { store.Lend(slot).record().pKey = "parent"; }
    EXPECT_NE(store.Version(), version);
    EXPECT_EQ(store.CaptionStamp(slot), stamp);
    { store.Lend(slot).record().hItem.text = "other"; }
    EXPECT_NE(store.CaptionStamp(slot), stamp);
}

/// Random steps on a small store, so that keys and slots meet often.
class RandomStore {
public:
    RandomStore(ItemStore& store, unsigned seed) : store_(store), random_(seed) {}

    void Step() {
        switch (Below(9)) {
        case 0: store_.Put(store_.Grow(), Record()); break;
        case 1:
            if (const auto slot = store_.FirstFree()) store_.Put(slot, Record());
            break;
        case 2: store_.Put(Slot(), Record()); break;
        case 3:
        case 4: store_.Free(Slot()); break;
        case 5: Edit(store_.Lend(Slot()).record()); break;
        case 6: EditTwo(); break;
        case 7: Squeeze(); break;
        default:
            if (Below(20) == 0) store_.FreeAll();
        }
    }

    void Compare() {
        EXPECT_EQ(store_.FirstFree(), PlainFirstFree(store_));
        for (const char* key : {"a", "A", "b", "bb", "\xC3\xA4", "\xC3\x84", "", "none"}) {
            const auto from = Below(store_.UpperBound() + 1) + 1;
            EXPECT_EQ(store_.NextWithKey(key, from), PlainNextWithKey(store_, key, from)) << key;
        }
    }

private:
    std::int32_t Below(std::int32_t end) {
        return static_cast<std::int32_t>(random_() % static_cast<unsigned>(end));
    }
    std::int32_t Slot() {
        if (store_.UpperBound() == 0) store_.Put(store_.Grow(), Record());
        return 1 + Below(store_.UpperBound());
    }
    void Edit(elistdata& record) {
        static constexpr const char* keys[] = {"a", "A", "b", "B", "bb", "\xC3\xA4", "\xC3\x84", ""};
        record.hItem.key = keys[Below(8)];
        record.hItem.text = keys[Below(8)];
        record.bDelete = Below(3) == 0;
    }
    elistdata Record() {
        elistdata record;
        Edit(record);
        return record;
    }
    /// One record inside the handler of another, with questions in between.
    void EditTwo() {
        const auto outer = store_.Lend(Slot());
        Edit(outer.record());
        const auto inner = store_.Lend(Slot());
        Edit(inner.record());
        Compare();
        if (Below(2) == 0) Squeeze();
        Edit(outer.record());
        Compare();
    }
    void Squeeze() {
        std::int32_t count = 0;
        const auto wanted = PlainSqueeze(Records(store_), count);
        EXPECT_EQ(store_.Squeeze(), count);
        EXPECT_EQ(Records(store_), wanted);
    }

    ItemStore& store_;
    std::mt19937 random_;
};

TEST_F(PropertyStore, FindsAndClosesUpAsPlainSearchesDo) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        store.Reset();
        RandomStore steps(store, seed);
        for (int step = 0; step < 400 && !HasFailure(); ++step) {
            steps.Step();
            steps.Compare();
        }
    }
}

} // namespace
} // namespace tvok::test
