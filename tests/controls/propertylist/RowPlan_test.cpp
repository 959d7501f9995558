// What rows are made from, against the double loop over all items; and captions measured once each.
#include "tvok/controls/propertylist/RowPlan.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <random>

#include "tests/support/FakeHost.h"
#include "tvok/controls/propertylist/CaptionWidths.h"
#include "tvok/controls/propertylist/mSort.h"

namespace tvok::test {
namespace {

using propertylist::CaptionWidths;
using propertylist::ItemStore;
using propertylist::RowPlan;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PropertyRows : public ::testing::Test {
protected:
    PropertyRows() : before_(host::SetServices(&services_)) {}
    ~PropertyRows() override { host::SetServices(before_); }

    std::int32_t Add(const elistdata& item) {
        const std::int32_t slot = store.Grow();
        store.Put(slot, item);
        return slot;
    }
    std::int32_t AddCaption(const std::string& caption) {
        elistdata item{.bVisible = true};
        item.hItem.text = caption;
        return Add(item);
    }

private:
    FakeServices services_;
    host::Services* before_;

protected:
    ItemStore store;
    RowPlan plan;
};

std::vector<std::int32_t> Rows(const RowPlan& plan, const ItemStore& store) {
    std::vector<std::int32_t> rows;
    for (const auto& group : plan.Groups()) {
        if (group.parent != 0) rows.push_back(group.parent);
        if (group.parent != 0 && (store[group.parent].hItem.vflag & vflag::Collapsed) != 0) continue;
        rows.insert(rows.end(), group.children.begin(), group.children.end());
    }
    return rows;
}

/// Each open group walks the whole order for its children.
std::vector<std::int32_t> PlainRows(const ItemStore& store, bool sorted, bool grouped) {
    const std::int32_t count = store.UpperBound();
    Array<std::string> texts(count);
    Array<std::int32_t> order(count);
    for (std::int32_t slot = 1; slot <= count; ++slot) {
        texts[slot] = store[slot].hItem.text;
        order[slot] = slot;
    }
    if (sorted) mSort::SortKeyIndex(texts, order, 1, count, true, true);
    std::vector<std::int32_t> rows;
    for (std::int32_t i = 1; i <= count; ++i) {
        const elistdata& item = store[order[i]];
        if (!item.bVisible || item.bParentItem != grouped) continue;
        rows.push_back(order[i]);
        if (!grouped || (item.hItem.vflag & vflag::Collapsed) != 0) continue;
        for (std::int32_t j = 1; j <= count; ++j)
            if (!store[order[j]].bParentItem && store[order[j]].pKey == item.hItem.key)
                rows.push_back(order[j]);
    }
    return rows;
}

TEST_F(PropertyRows, AreThoseOfTheDoubleLoop) {
    std::mt19937 random(11);
    const auto below = [&](unsigned end) { return static_cast<unsigned>(random() % end); };
    for (int round = 0; round < 200 && !HasFailure(); ++round) {
        store.Reset();
        const unsigned count = below(60);
        for (unsigned i = 0; i < count; ++i) {
            elistdata item{.bVisible = below(4) != 0, .bParentItem = below(4) == 0};
            item.hItem.text = std::string(1, static_cast<char>('A' + below(8)));
            item.hItem.key = std::string(below(2), static_cast<char>('a' + below(4)));
            item.pKey = std::string(below(2), static_cast<char>('a' + below(4)));
            item.hItem.vflag = below(4) == 0 ? vflag::Collapsed : 0;
            Add(item);
        }
        for (const bool sorted : {true, false}) {
            for (const bool grouped : {true, false}) {
                plan.Make(store, store.UpperBound(), sorted, grouped);
                EXPECT_EQ(Rows(plan, store), PlainRows(store, sorted, grouped)) << round;
            }
        }
    }
}

TEST_F(PropertyRows, AreMadeAnewOnlyAfterAChange) {
    AddCaption("b");
    AddCaption("a");
    EXPECT_TRUE(plan.Make(store, 2, true, false));
    EXPECT_THAT(Rows(plan, store), ElementsAre(2, 1));
    EXPECT_FALSE(plan.Make(store, 2, true, false));
    EXPECT_TRUE(plan.Make(store, 2, false, false));
    EXPECT_THAT(Rows(plan, store), ElementsAre(1, 2));
    { store.Lend(1).record().bVisible = false; }
    EXPECT_TRUE(plan.Make(store, 2, false, false));
    EXPECT_THAT(Rows(plan, store), ElementsAre(2));
    store.Reset();
    EXPECT_TRUE(plan.Make(store, 0, false, false));
    EXPECT_THAT(Rows(plan, store), IsEmpty());
}

TEST_F(PropertyRows, OnlyOpenGroupsAreMeasuredAndEachChildOnce) {
    elistdata group{.bVisible = true, .bParentItem = true};
    group.hItem.key = "g";
    Add(group);
    elistdata child;
    child.pKey = "g";
    child.hItem.text = "wide caption";
    const std::int32_t slot = Add(child);
    plan.Make(store, 2, true, true);
    std::vector<std::int32_t> asked;
    const auto measure = [&](std::int32_t of) {
        asked.push_back(of);
        return 120;
    };
    EXPECT_EQ(plan.Widest({false}, measure), 0);
    EXPECT_THAT(asked, IsEmpty());
    EXPECT_EQ(plan.Widest({true}, measure), 120);
    EXPECT_EQ(plan.Widest({true}, measure), 120);
    EXPECT_EQ(plan.Widest({false}, measure), 0);
    EXPECT_THAT(asked, ElementsAre(slot));
    plan.ForgetWidths();
    EXPECT_EQ(plan.Widest({true}, measure), 120);
    EXPECT_THAT(asked, ElementsAre(slot, slot));
}

/// Counts what it is asked to measure: ten twips for each byte of the text and point of the font.
class Measured {
public:
    explicit Measured(CaptionWidths& widths) : widths_(widths) {}
    std::int32_t Of(std::int32_t slot) {
        return widths_.Of(slot, [this](const std::string& caption) {
            texts.push_back(caption);
            return static_cast<std::int32_t>(caption.size()) * 10;
        });
    }
    std::vector<std::string> texts;

private:
    CaptionWidths& widths_;
};

TEST_F(PropertyRows, EachDistinctCaptionIsMeasuredOnceInEachFont) {
    CaptionWidths widths(store);
    Measured measured(widths);
    const std::int32_t a = AddCaption("same");
    const std::int32_t b = AddCaption("same");
    const std::int32_t c = AddCaption("another");
    EXPECT_TRUE(widths.Use({.Name = "Sans"}, 15));
    EXPECT_FALSE(widths.Use({.Name = "Sans"}, 15));
    for (const auto slot : {a, b, c, b, a}) EXPECT_EQ(measured.Of(slot), slot == c ? 70 : 40);
    EXPECT_THAT(measured.texts, ElementsAre("same", "another"));
    EXPECT_TRUE(widths.Use({.Name = "Serif"}, 15));
    measured.Of(a);
    EXPECT_TRUE(widths.Use({.Name = "Sans"}, 15));
    measured.Of(b);
    EXPECT_THAT(measured.texts, ElementsAre("same", "another", "same"));
}

TEST_F(PropertyRows, AChangedCaptionIsMeasuredAnewAndAMovedOneIsNot) {
    CaptionWidths widths(store);
    Measured measured(widths);
    widths.Use({}, 15);
    const std::int32_t a = AddCaption("one");
    const std::int32_t b = AddCaption("three");
    measured.Of(a);
    measured.Of(b);
    { store.Lend(a).record().hItem.text = "seven"; }
    store.Version();
    EXPECT_EQ(measured.Of(a), 50);
    EXPECT_THAT(measured.texts, ElementsAre("one", "three", "seven"));
    store.Free(a);
    store.Squeeze();
    EXPECT_EQ(measured.Of(a), 50) << "now the second item";
    EXPECT_THAT(measured.texts, ElementsAre("one", "three", "seven"));
}

TEST_F(PropertyRows, WidthsStayRightWhileCaptionsComeAndGo) {
    CaptionWidths widths(store);
    Measured measured(widths);
    widths.Use({}, 15);
    std::mt19937 random(3);
    for (int i = 0; i < 40; ++i) AddCaption("start");
    for (int step = 0; step < 20000 && !HasFailure(); ++step) {
        const auto slot = static_cast<std::int32_t>(1 + random() % 40);
        if (random() % 2 == 0) {
            store.Lend(slot).record().hItem.text =
                std::string(random() % 50, 'x') + std::to_string(random() % 7);
            store.Version();
        }
        EXPECT_EQ(measured.Of(slot), static_cast<std::int32_t>(store[slot].hItem.text.size()) * 10);
    }
    EXPECT_LT(measured.texts.size(), 20000u);
}

} // namespace
} // namespace tvok::test
