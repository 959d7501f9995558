// The property list among other toolkits' trees: folding a group, going to the next property, and building,
// as benchmarks/peers/comparison.h tells.

#include <memory>
#include <string>

#include "benchmarks/peers/comparison.h"
#include "tvok/engine/dgi.h"
#include "tvok/tvok.h"

namespace tvok::comparison {
namespace {

constexpr int cEach = 100; ///< Properties of a group, but where one is folded.

/// A window full of properties.
class Properties {
public:
    explicit Properties(Run& run)
        : run_(run), desktop_({.display = DesktopOptions::Display::Headless,
                               .fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
                               .language = "en"}),
          form_(desktop_.AddForm("properties", cWidth, cHeight)),
          list_(form_.Add<gList>("list1", {0, 0, cWidth, cHeight})) {
        list_.ItemHeight(cRowHeight);
        list_.Sorted(false); // as the others are: in the order of adding
        list_.ListMode(1);
    }

    void AddGroup(int number, int properties) {
        elistdata group = list_.DefaultItem();
        group.bParentItem = true;
        group.hItem.key = "g" + std::to_string(number);
        group.hItem.text = "Group " + std::to_string(number);
        list_.AddItem(group);
        for (int i = 0; i < properties; ++i) {
            elistdata item = list_.DefaultItem();
            item.pKey = group.hItem.key;
            item.hItem.key = "p" + std::to_string(added_);
            item.hItem.text = CellText(added_, 1).View();
            item.item.text = CellText(added_, 4).View();
            item.nData = Variant(item.item.text);
            list_.AddItem(item);
            ++added_;
        }
    }
    /// So many groups of `cEach`.
    void AddGroups(int groups) {
        for (int group = 0; group < groups; ++group) AddGroup(group, cEach);
        Show();
    }
    void Show() {
        list_.BuiltList();
        Pump();
    }

    void Pump() { desktop_.ProcessEvents({}); }
    void Select(std::int32_t row) {
        list_.ListIndex(row);
        Pump();
    }
    /// By a press on the first group's box.
    void Toggle() {
        const tvok_Rect client = dgi::GetClientScreenRect(form_.ComponentOf(list_).hWnd());
        desktop_.Input().MouseMove(client.Left + 6, client.Top + 8);
        desktop_.Input().MouseDown(desktop::MouseButton::Left);
        desktop_.Input().MouseUp(desktop::MouseButton::Left);
        Pump();
    }
    std::int32_t Count() const { return list_.Count(); }
    std::int32_t Current() const { return list_.ListIndex(); }
    void Finish(bool right, const char* what) {
        run_.Expect(right, what);
        if (!run_.picture.empty()) desktop_.SaveScreen(run_.picture);
    }

private:
    Run& run_;
    Desktop desktop_;
    Form& form_;
    gList& list_;
    int added_ = 0;
};

void Build(Run& run) {
    std::unique_ptr<Properties> properties;
    run.Tell(Measure(
                 2, [&](int) { properties.reset(); },
                 [&](int) {
                     properties = std::make_unique<Properties>(run);
                     properties->AddGroups(run.rows() / cEach);
                 }),
             Unit::Milliseconds);
    properties->Finish(properties->Count() == run.rows() / cEach * (cEach + 1), "all rows are there");
}

void Move(Run& run) {
    Properties properties(run);
    properties.AddGroups(run.rows() / cEach);
    std::int32_t row = 2;
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % cStepsOnPage == 0) properties.Select(row = 2);
        },
        [&](int) { properties.Select(++row); }));
    properties.Finish(properties.Current() == row, "each step moved");
}

/// Folds or unfolds the first group of so many properties.
class Folding {
public:
    Folding(Properties& properties, int inGroup)
        : properties_(properties), inGroup_(inGroup), open_(properties.Count()) {}
    void Step() {
        properties_.Toggle();
        isOpen_ = !isOpen_;
        if (properties_.Count() != (isOpen_ ? open_ : open_ - inGroup_)) isRight_ = false;
    }
    void Finish() { properties_.Finish(isRight_, "each press folded or unfolded"); }

private:
    Properties& properties_;
    std::int32_t inGroup_, open_;
    bool isOpen_ = true, isRight_ = true;
};

void Toggle(Run& run) {
    Properties properties(run);
    properties.AddGroups(run.rows() / cEach);
    Folding folding(properties, cEach);
    run.Tell(Measure(
        6, [](int) {}, [&](int) { folding.Step(); }));
    folding.Finish();
}

void FoldAndUnfold(Run& run) {
    Properties properties(run);
    properties.AddGroup(0, run.rows());
    for (int group = 1; group < cFoldGroups; ++group) properties.AddGroup(group, cFoldOthers);
    properties.Show();
    Folding folding(properties, run.rows());
    run.Tell(Measure(
        6, [](int) {},
        [&](int) {
            folding.Step();
            folding.Step();
        }));
    folding.Finish();
}

} // namespace
} // namespace tvok::comparison

int main(int count, char** arguments) {
    using namespace tvok::comparison;
    RunOne("tvok", count, arguments,
           {{"props_build", Build},
            {"props_move", Move},
            {"props_toggle", Toggle},
            {"props_fold", FoldAndUnfold}});
}
