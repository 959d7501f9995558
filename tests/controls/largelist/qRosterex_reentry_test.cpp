/// Everything that paints a row meets every deed of an `EnumDATA` handler: the list stays whole, goes on, and
/// no error comes out but the handler's own.
#include <exception>

#include "tests/support/FakeLargeList.h"

namespace tvok::test {
namespace {

/// What a handler throws; it is no error of the library, so none of those can pass for it.
struct HandlersOwn : std::exception {};

struct Deed {
    const char* name;
    std::function<void(FakeLargeList&)> act;
    bool calls = false; ///< Calls the list several times, so also after it has ended.
    bool atEnd = false; ///< Starts on the last page.
};

const std::vector<Deed>& Deeds() {
    static const std::vector<Deed> deeds = {
        {"throw", [](FakeLargeList&) { throw HandlersOwn(); }},
        {"add at the top", [](FakeLargeList& f) { f.list.AddItemTop(1); }},
        {"add at the bottom", [](FakeLargeList& f) { f.list.AddItemButtom(1); }},
        {"clear", [](FakeLargeList& f) { f.list.Clear(); }},
        {"one row", [](FakeLargeList& f) { f.list.Count(1); }},
        {"many rows", [](FakeLargeList& f) { f.list.Count(5000); }},
        {"no columns", [](FakeLargeList& f) { f.list.HeaderClear(); }},
        {"fewer columns", [](FakeLargeList& f) { f.list.HeaderCount(0); }},
        {"more columns",
         [](FakeLargeList& f) {
             for (int i = 0; i < 40; ++i) f.list.HeaderAdd(0, "more", 70);
             f.list.Refresh();
         }},
        {"widths", [](FakeLargeList& f) { f.list.HeaderWidths("30-400"); }},
        {"tiny rows", [](FakeLargeList& f) { f.list.ItemHeight(1); }},
        {"huge rows", [](FakeLargeList& f) { f.list.ItemHeight(500); }},
        {"larger cache", [](FakeLargeList& f) { f.list.CacheSize(900); }},
        {"smaller cache",
         [](FakeLargeList& f) {
             f.list.CacheSize(900);
             f.list.CacheSize(129);
         }},
        {"new file", [](FakeLargeList& f) { f.list.FileBufCreate(5000); }},
        {"selection", [](FakeLargeList& f) { f.list.ListIndex(f.list.Count() / 2); }},
        {"other path", [](FakeLargeList& f) { f.list.MultiSelect(1 - f.list.MultiSelect()); }},
        {"lock", [](FakeLargeList& f) { f.list.LockedPaint(true); }},
        {"other direction", [](FakeLargeList& f) { f.list.ViewMode(f.list.ViewMode() == 0 ? 1 : 0); }},
        {"scroll", [](FakeLargeList& f) { f.hook().ScrollValue(f.hook().ScrollValue() + 3); }},
        {"end", [](FakeLargeList& f) { f.list.Terminate(); }},
    };
    return deeds;
}

void WithPending(FakeLargeList& f, std::int32_t rows) {
    f.list.BufAddItemOnly(true);
    for (std::int32_t i = 0; i < rows; ++i) f.list.AddItemButtom(i);
    f.list.BufAddItemOnly(false);
}

const std::vector<Deed>& Occasions() {
    static const std::vector<Deed> occasions = {
        {"PaintAll", [](FakeLargeList& f) { f.list.PaintAll(); }},
        {"DrawItem", [](FakeLargeList& f) { f.list.DrawItem(3); }},
        {"WM_PAINT",
         [](FakeLargeList& f) {
             f.PaintMessage({0, 0, 200, 100});
         }},
        {"Refresh", [](FakeLargeList& f) { f.list.Refresh(); }},
        {"Refresh with pending rows at the end",
         [](FakeLargeList& f) {
             WithPending(f, 3);
             f.list.Refresh();
         },
         false, true},
        {"an add with pending rows at the end",
         [](FakeLargeList& f) {
             WithPending(f, 3);
             f.list.AddItemButtom(2);
         },
         false, true},
        {"the end of a thumb drag",
         [](FakeLargeList& f) {
             WithPending(f, 3);
             f.hook().events.EndScroll(0);
         },
         false, true},
        {"AddItemTop", [](FakeLargeList& f) { f.list.AddItemTop(4); }},
        {"AddItemButtom at the end", [](FakeLargeList& f) { f.list.AddItemButtom(4); }, false, true},
        {"adds to a short list",
         [](FakeLargeList& f) {
             f.list.Clear();
             for (int i = 0; i < 3; ++i) f.list.AddItemTop(4);
             for (int i = 0; i < 4; ++i) f.list.AddItemButtom(4);
         },
         true},
        {"a scroll", [](FakeLargeList& f) { f.hook().ScrollValue(2); }},
        {"a far scroll", [](FakeLargeList& f) { f.hook().ScrollValue(60); }},
        {"Count", [](FakeLargeList& f) { f.list.Count(30); }},
        {"ClearItemData", [](FakeLargeList& f) { f.list.ClearItemData(7); }},
        {"CacheSize", [](FakeLargeList& f) { f.list.CacheSize(400); }},
        {"ListIndex", [](FakeLargeList& f) { f.list.ListIndex(40); }},
        {"ItemHeight", [](FakeLargeList& f) { f.list.ItemHeight(11); }},
        {"HeaderWidths", [](FakeLargeList& f) { f.list.HeaderWidths("50"); }},
        {"BackColor", [](FakeLargeList& f) { f.list.BackColor(0x102030); }},
        {"ClearSelected", [](FakeLargeList& f) { f.list.ClearSelected(); }},
        {"Resize", [](FakeLargeList& f) { f.list.Resize(); }},
        {"focus",
         [](FakeLargeList& f) {
             f.list.GotFocus();
             f.list.LostFocus();
         }},
        {"a click",
         [](FakeLargeList& f) {
             f.PressSlot(2);
             f.Release(50, 30);
             f.DoubleClick(50, 30);
         }},
        {"keys",
         [](FakeLargeList& f) {
             for (const std::int32_t key : {40, 34, 38, 35, 36}) f.Key(key);
         }},
        {"a range by keys",
         [](FakeLargeList& f) {
             f.list.MultiSelect(1);
             for (const std::int32_t key : {40, 40, 35, 36}) f.Key(key, 1);
             f.Key(40);
         },
         true},
        {"a range by the mouse",
         [](FakeLargeList& f) {
             f.list.MultiSelect(1);
             f.PressSlot(2);
             f.MoveToSlot(3);
             f.MoveToSlot(5);
             f.list.AddItemTop(1);
             f.Release(50, 90);
             f.PressSlot(4, 4);
             f.PressSlot(1);
         },
         true},
    };
    return occasions;
}

class LargeListHandlers : public testing::TestWithParam<std::size_t> {};

TEST_P(LargeListHandlers, MayDoTheWorstWhileAnythingPaints) {
    const Deed& occasion = Occasions()[GetParam()];
    for (const Deed& deed : Deeds()) {
        for (const int nth : {1, 3}) {
            SCOPED_TRACE(std::string(occasion.name) + ": " + deed.name + " at row " + std::to_string(nth));
            FakeLargeList f({.height = 110, .GridlineWidth = 1}, 100);
            f.list.FileBufCreate(10);
            f.list.HeaderHeight(8);
            f.list.Refresh();
            if (occasion.atEnd) f.hook().ScrollValue(f.hook().ScrollMax());
            int row = 0;
            bool done = false;
            f.fill = [&](std::int32_t& number, qrosterdata& record) {
                record = {.text = "row\t" + std::to_string(number), .ItemData = 7};
                if (++row == nth) {
                    done = true;
                    deed.act(f);
                }
            };
            const bool throws = std::string(deed.name) == "throw";
            const bool ends = std::string(deed.name) == "end";
            try {
                if (f.owner) occasion.act(f);
            } catch (const HandlersOwn&) {
                EXPECT_TRUE(throws);
            } catch (const ObjectError& error) {
                // What a host calls on a list that has ended has no hook any more.
                EXPECT_TRUE(ends && done && occasion.calls) << error.what();
            }
            EXPECT_EQ(f.log().LiveObjects(), 0u);
            EXPECT_EQ(f.log().Slips(), 0);
            if (ends && done) continue;
            f.fill = [](std::int32_t&, qrosterdata& record) { record = {.text = "x"}; };
            f.list.LockedPaint(false);
            f.list.Clear();
            f.list.HeaderAdd(0, "again", 60);
            f.list.ItemHeight(20);
            f.list.Count(3);
            f.TakeAsked();
            f.list.ViewMode(1);
            f.list.PaintAll();
            EXPECT_EQ(f.TakeAsked(), (Rows{1, 2, 3}));
            f.list.AddItemButtom(9);
            EXPECT_EQ(f.list.Count(), 4);
            EXPECT_EQ(f.list.FileBufValue(4), 9);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Occasions, LargeListHandlers, testing::Range(std::size_t{0}, Occasions().size()));

} // namespace
} // namespace tvok::test
