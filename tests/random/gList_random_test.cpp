// Random operations on a property list beside a plain model of it: rows, current row, records, keys and the
// log of events have to agree after each step.
//
// TVOK_RANDOM_SEED=n repeats a run; the seed is printed. TVOK_RANDOM_STEPS=n makes it longer or shorter.
#include <iterator>
#include <map>
#include <random>

#include "tests/support/PropertyListDesktop.h"
#include "tests/support/PropertyListModel.h"
#include "tests/support/RandomRuns.h"

namespace tvok::test {
namespace {

const char* const cKeys[] = {"", "a", "A", "b", "c", "D", "e", "f", "g1", "g2", "G2", "g3"};
const char* const cParents[] = {"", "g1", "g2", "G2", "g3", "a"};
const char* const cTexts[] = {"", "x", "X", "y", "yy", "z", "Zed", "able"};
const char* const cTypes[] = {"",      ";own",  "b|1|2;ns",   ";ns", ";cs",   ";lt",
                              ";lt 2", ";li 1", "b|1|2;LI 3", ";li", "x;li 9"};

template<std::size_t N>
const char* OneOf(const char* const (&of)[N], std::uint32_t number) {
    return of[number % N];
}

std::string PopList(std::int32_t id) {
    if (id == 9) return "107=never an entry\r\n"; // so that it is asked for each time
    return "107=zero\r\n999\r\n106=1\r\n107=one\r\n109=2\r\n999\r\n998\r\n106=2\r\n107=two\r\n999\r\n";
}

/// What a host's handler does to the record in its hands: the same on both sides, by step and turn.
class SameEdits {
public:
    void Start(std::uint32_t seed) {
        seed_ = seed;
        turn_ = 0;
    }
    void operator()(elistdata& x) {
        std::uint32_t r = (seed_ + ++turn_ * 0x9E3779B9u) * 0x85EBCA6Bu;
        r ^= r >> 15;
        const std::uint32_t choice = r >> 8;
        switch (r % 40) {
        case 0: x.hItem.key = OneOf(cKeys, choice); break;
        case 1: x.pKey = OneOf(cParents, choice); break;
        case 2: x.hItem.text = OneOf(cTexts, choice); break;
        case 3: x.hItem.vflag ^= vflag::Collapsed; break;
        case 4: x.item.vflag ^= vflag::Editor; break;
        case 5: x.bDelete = true; break;
        case 6: x.bVisible = !x.bVisible; break;
        case 7: x.bParentItem = !x.bParentItem; break;
        case 8: x.xbuttons = OneOf(cTypes, choice); break;
        case 9: x.nData = static_cast<std::int32_t>(choice % 4); break;
        case 10: x.nData = OneOf(cTexts, choice); break;
        case 11: x.item.text = OneOf(cTexts, choice); break;
        default: break;
        }
    }

private:
    std::uint32_t seed_ = 0;
    std::uint32_t turn_ = 0;
};

class RandomRun {
public:
    explicit RandomRun(std::uint32_t seed)
        : random_(seed), colors_(at_.desktop.form().Add<xPopup>("colors", {0, 400, 9, 9})),
          model_({PopList, [this](std::int32_t color) { return colors_.GetColorDesc(color); },
                  [this](elistdata& x) { modelEdits_(x); }}) {
        for (const std::int32_t id : {1, 2, 3, 9}) at_.popLists[id] = PopList(id);
        at_.list->events.EnumItems = [this](elistdata& x, std::int32_t action) {
            at_.log.push_back("EnumItems(" + x.hItem.key + ", " + std::to_string(action) + ")");
            edits_(x);
        };
        at_.list->events.ExItemShowCov = [this](elistdata& x) { NoteAndEdit("ExItemShowCov(", x); };
        at_.list->events.ExEditorIni = [this](elistdata& x) { NoteAndEdit("ExEditorIni(", x); };
        at_.list->events.ExEditorHide = nullptr; // these follow from painting as well
        at_.list->events.ExEditorSetPosition = nullptr;
        at_.list->events.ExEditorShow = nullptr;
        at_.desktop.Focus(*at_.list);
    }

    void Step() {
        const std::uint32_t seed = Number(0, INT32_MAX);
        edits_.Start(seed);
        modelEdits_.Start(seed);
        at_.log.clear();
        model_.log.clear();
        story_.clear();
        const std::uint32_t kind = Number(0, 99);
        if (model_.Live() > 24) {
            kind < 10 ? Clear() : Remove();
        } else if (kind < 60) {
            Call(kind);
        } else {
            Use(kind);
        }
        at_.desktop.Pump();
    }

    /// What does not agree, if anything.
    std::string Difference() {
        for (const std::string& line : model_.log) ++raised_[line.substr(0, line.find('('))];
        if (at_.log != model_.log) return "events:\n" + Joined(at_.log) + "model:\n" + Joined(model_.log);
        if (at_.list->Count() != model_.Count) return "the count of rows";
        if (at_.list->ListIndex() != model_.ListIndex) return "the current row";
        for (std::int32_t row = 1; row <= std::min(model_.Count, model_.UpperBound()); ++row)
            if (at_.SlotOfRow(row) != model_.SlotOfRow(row)) return "the slot of row " + std::to_string(row);
        if (!SameItem(OneOf(cKeys, Number(0, 99)), Index())) return "an item by its key or index";
        return ++steps_ % 16 == 0 ? DifferentRecord() : std::string();
    }
    const std::string& Story() const { return story_; }
    /// How often each event was raised.
    const std::map<std::string, std::uint32_t>& Raised() const { return raised_; }

private:
    std::uint32_t Number(std::uint32_t low, std::uint32_t high) {
        return std::uniform_int_distribution<std::uint32_t>(low, high)(random_);
    }
    bool OneIn(std::uint32_t times) { return Number(1, times) == 1; }
    void NoteAndEdit(const char* name, elistdata& x) {
        at_.log.push_back(name + x.hItem.key + ")");
        edits_(x);
    }
    static std::string Joined(const std::vector<std::string>& lines) {
        std::string text;
        for (const std::string& line : lines) text += "    " + line + "\n";
        return text;
    }

    /// A row, a slot, or somewhat beyond.
    std::int32_t Index() {
        const auto within = [&](std::int32_t most) {
            return static_cast<std::int32_t>(Number(0, static_cast<std::uint32_t>(most)));
        };
        switch (Number(0, 4)) {
        case 0: return 0;
        case 1: return within(model_.UpperBound() + 2);
        case 2: return within(model_.Count);
        default: return -within(model_.UpperBound() + 2);
        }
    }
    Variant Value() {
        switch (Number(0, 3)) {
        case 0: return {};
        case 1: return OneOf(cTexts, Number(0, 99));
        case 2: return std::to_string(Number(0, 3)) + ".50 m";
        default: return static_cast<std::int32_t>(Number(0, 4));
        }
    }
    elistdata Item() {
        elistdata item;
        item.bParentItem = OneIn(4);
        item.hItem.key = OneOf(cKeys, item.bParentItem ? Number(8, 11) : OneIn(3) ? 0 : Number(0, 7));
        item.pKey = OneOf(cParents, Number(0, 99));
        item.hItem.text = OneOf(cTexts, Number(0, 99));
        item.hItem.vflag = item.bParentItem && OneIn(3) ? vflag::Collapsed : 0;
        item.item.vflag = OneIn(2) ? vflag::Editor : 0;
        item.nData = Value();
        item.xbuttons = OneOf(cTypes, Number(0, 99));
        item.bDelete = OneIn(20);
        item.bVisible = !OneIn(6);
        return item;
    }

    void Call(std::uint32_t kind);
    void Use(std::uint32_t kind);
    void Add();
    void Remove();
    void Clear();
    void SetData();
    void Enumerate();
    void Press(bool head);
    void DoubleClick(bool head);
    bool SameItem(const std::string& key, std::int32_t index);
    std::string DifferentRecord();

    /// Of the page: four rows and part of a fifth.
    std::uint32_t PageRow() { return Number(1, 5); }
    std::int32_t RowAt(std::uint32_t pageRow) const {
        return at_.hook->ScrollValue() + static_cast<std::int32_t>(pageRow);
    }

    std::mt19937 random_;
    PropertyListDesktop at_{{.place = {10, 10, 160, 90}}};
    xPopup& colors_;
    SameEdits edits_;
    SameEdits modelEdits_;
    PropertyListModel model_;
    std::string story_; ///< What the step did.
    bool down_ = false; ///< The mouse button.
    std::uint32_t steps_ = 0;
    std::map<std::string, std::uint32_t> raised_;
};

void RandomRun::Add() {
    const elistdata item = Item();
    const std::int32_t index = OneIn(3) ? Index() : 0;
    story_ = "AddItem at " + std::to_string(index) + " with key " + item.hItem.key;
    EXPECT_EQ(at_.list->AddItem(item, index), model_.AddItem(item, index));
    if (!OneIn(3)) return;
    at_.list->BuiltList();
    model_.BuiltList();
}

void RandomRun::Remove() {
    const std::int32_t index = Index();
    story_ = "RemoveItem " + std::to_string(index);
    bool subscript = false;
    bool expected = false;
    try {
        at_.list->RemoveItem(index);
    } catch (const SubscriptError&) {
        subscript = true;
    }
    model_.RemoveItem(index, expected);
    EXPECT_EQ(subscript, expected) << story_;
}

void RandomRun::Clear() {
    story_ = "Clear";
    at_.list->Clear(OneIn(2));
    model_.Clear();
}

void RandomRun::SetData() {
    const Variant value = Value();
    const std::string key = OneIn(2) ? OneOf(cKeys, Number(0, 99)) : "";
    const std::int32_t index = Index();
    story_ = "SetData of " + key + " at " + std::to_string(index);
    at_.list->SetData(value, key, index);
    model_.SetData(value, key, index);
}

void RandomRun::Enumerate() {
    const std::string key = OneIn(2) ? OneOf(cKeys, Number(0, 99)) : "";
    story_ = "ReqEnumItems of " + key;
    at_.list->ReqEnumItems(4, key);
    model_.ReqEnumItems(4, key);
}

void RandomRun::Call(std::uint32_t kind) {
    if (kind < 22) return Add();
    if (kind < 27) return Remove();
    if (kind < 37) return SetData();
    if (kind < 42) return Enumerate();
    if (kind < 45) {
        story_ = "BuiltList";
        at_.list->BuiltList();
        model_.BuiltList();
    } else if (kind < 47) {
        const bool on = OneIn(2);
        story_ = on ? "sort" : "do not sort";
        at_.list->Sorted(on);
        model_.WriteSorted(on);
    } else if (kind < 49) {
        const auto mode = static_cast<std::int32_t>(Number(0, 2));
        story_ = "ListMode " + std::to_string(mode);
        at_.list->ListMode(mode);
        model_.WriteListMode(mode);
    } else if (kind < 53) {
        const std::int32_t row = Index();
        story_ = "ListIndex " + std::to_string(row);
        at_.list->ListIndex(row);
        model_.WriteListIndex(row);
    } else if (kind < 56) {
        const std::string key = OneOf(cKeys, Number(0, 99));
        story_ = "ShowItem " + key;
        at_.list->ShowItem(key);
        model_.ShowItem(key);
    } else if (kind < 59) {
        const Variant value = Value();
        story_ = "VarData";
        at_.list->VarData(value);
        model_.WriteVarData(value);
    } else if (OneIn(10)) {
        Clear();
    }
}

void RandomRun::Press(bool head) {
    const std::uint32_t row = PageRow();
    story_ = "press page row " + std::to_string(row) + (head ? " in the head band" : "");
    model_.Press(RowAt(row), head);
    at_.PressRow(static_cast<std::int32_t>(row), head ? 7 : 20);
    down_ = true;
}

void RandomRun::DoubleClick(bool head) {
    const std::uint32_t row = PageRow();
    story_ = "double click on page row " + std::to_string(row) + (head ? " in the head band" : "");
    model_.Press(RowAt(row), head);
    model_.Release();
    model_.DoubleClick();
    model_.Release();
    at_.DoubleClickRow(static_cast<std::int32_t>(row), head ? 7 : 20);
}

void RandomRun::Use(std::uint32_t kind) {
    if (kind < 78) {
        if (down_ && OneIn(2)) {
            const std::uint32_t row = PageRow();
            story_ = "drag to page row " + std::to_string(row);
            model_.Drag(RowAt(row));
            at_.desktop.MoveTo(*at_.list, 20, at_.RowMiddle(static_cast<std::int32_t>(row)));
        } else if (down_) {
            story_ = "release";
            down_ = false;
            model_.Release();
            at_.desktop.Release();
        } else {
            Press(OneIn(2));
        }
    } else if (kind < 82 && !down_) {
        DoubleClick(OneIn(2));
    } else if (kind < 92) {
        static constexpr std::int32_t keys[] = {host::VK_UP,    host::VK_DOWN,  host::VK_LEFT,
                                                host::VK_RIGHT, host::VK_HOME,  host::VK_END,
                                                host::VK_NEXT,  host::VK_PRIOR, 'A'};
        const std::int32_t key = keys[Number(0, 8)];
        story_ = "key " + std::to_string(key);
        model_.Key(key, 4);
        OneIn(2) ? at_.desktop.Key(key) : at_.list->KeyIn(static_cast<std::int16_t>(key));
    } else if (kind < 96) {
        at_.hook->ScrollValue(static_cast<std::int32_t>(Number(0, 20)));
    } else {
        at_.desktop.Wheel(OneIn(2) ? 1 : -1);
    }
}

bool RandomRun::SameItem(const std::string& key, std::int32_t index) {
    elistdata found;
    elistdata expected;
    const std::int32_t slot = at_.list->GetItem(found, key, index);
    return slot == model_.GetItem(expected, key, index) && found == expected &&
           (slot == 0 || at_.list->GetData(key, index) == expected.nData);
}

std::string RandomRun::DifferentRecord() {
    for (const char* key : cKeys)
        if (!SameItem(key, 0)) return "the item with the key " + std::string(key);
    for (std::int32_t index = -model_.UpperBound() - 1; index <= model_.UpperBound() + 1; ++index)
        if (!SameItem("", index)) return "the item at " + std::to_string(index);
    return {};
}

TEST(gListRandom, AgreesWithThePlainModelAfterEachOfManySteps) {
    const std::uint32_t seed = FromEnvironment("TVOK_RANDOM_SEED", 41);
    const std::uint32_t steps = FromEnvironment("TVOK_RANDOM_STEPS", 100'000);
    std::printf("TVOK_RANDOM_SEED=%u\n", seed);
    RandomRun run(seed);
    for (std::uint32_t step = 0; step < steps; ++step) {
        run.Step();
        ASSERT_EQ(run.Difference(), "") << "step " << step << ", seed " << seed << ": " << run.Story();
        ASSERT_FALSE(testing::Test::HasFailure()) << "step " << step << ": " << run.Story();
    }
    EXPECT_EQ(run.Raised().size(), 8u);
    for (const auto& [name, times] : run.Raised()) EXPECT_GT(times, steps / 500) << name;
}

} // namespace
} // namespace tvok::test
