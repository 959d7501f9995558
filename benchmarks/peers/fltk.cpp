// FLTK: Fl_Table_Row, Fl_Tree, Fl_Choice and Fl_Hold_Browser. Each step ends when the X server has drawn.

#include <FL/Fl.H>
#include <FL/Fl_Choice.H>
#include <FL/Fl_Double_Window.H>
#include <FL/Fl_Hold_Browser.H>
#include <FL/Fl_Table_Row.H>
#include <FL/Fl_Tree.H>
#include <FL/fl_draw.H>
#include <FL/x.H>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "benchmarks/peers/comparison.h"

namespace tvok::comparison {
namespace {

/// Paints what waits, and returns when the server has done it.
void Draw() {
    Fl::flush();
    XSync(fl_display, False);
}

/// Handles what the server has sent, and draws.
void Settle() {
    for (int i = 0; i < 4; ++i) Fl::wait(0);
    Draw();
}

/// Until the window is on the screen and painted; an exposure that has not come yet leaves it damaged.
void Show(Fl_Window& window) {
    window.show();
    while (!window.shown() || window.damage() != 0) Fl::wait(0.005);
    Draw();
}

void Press(Fl_Widget& widget, int key) {
    Fl::e_keysym = key;
    widget.handle(FL_KEYBOARD);
    Draw();
}

void Finish(Run& run, bool right, const char* what) {
    run.Expect(right, what);
    Draw();
    SaveScreen(run);
}

void Nothing(int) {}

// A table of rows that nobody stores.

class Rows : public Fl_Table_Row {
public:
    explicit Rows(int count) : Fl_Table_Row(0, 0, cWidth, cHeight) {
        type(SELECT_SINGLE);
        cols(cColumns);
        col_header(1);
        col_header_height(cRowHeight);
        col_width_all(cColumnWidth);
        // New rows get the height of the last one, at once; setting it for all later goes through all for
        // each.
        rows(1);
        row_height(0, cRowHeight);
        rows(count);
        end();
    }
    void Append() {
        rows(rows() + 1);
        redraw();
    }
    void Prepend() {
        --first_;
        Append(); // all rows are alike, so it is no matter where the new one's height stands
    }
    int Top() const { return toprow; }
    int Page() const { return tih / cRowHeight; }
    bool IsAtEnd() const { return vscrollbar->value() >= static_cast<int>(vscrollbar->maximum()); }
    int drawn = 0; ///< Cells.
    std::int64_t TextOnTop() const { return first_ + toprow; }

protected:
    void draw_cell(TableContext context, int row, int column, int x, int y, int w, int h) override {
        if (context == CONTEXT_STARTPAGE) fl_font(FL_HELVETICA, cFontPixels);
        if (context == CONTEXT_COL_HEADER) DrawHeader(column, x, y, w, h);
        if (context == CONTEXT_CELL) DrawCell(row, column, x, y, w, h);
    }

private:
    static void DrawHeader(int column, int x, int y, int w, int h) {
        const std::string caption = "Column " + std::to_string(column + 1);
        fl_push_clip(x, y, w, h);
        fl_draw_box(FL_THIN_UP_BOX, x, y, w, h, FL_BACKGROUND_COLOR);
        fl_color(FL_FOREGROUND_COLOR);
        fl_draw(caption.c_str(), x, y, w, h, FL_ALIGN_CENTER);
        fl_pop_clip();
    }
    void DrawCell(int row, int column, int x, int y, int w, int h) {
        ++drawn;
        const bool isSelected = row_selected(row) != 0;
        const Text text = CellText(first_ + row, column);
        fl_push_clip(x, y, w, h);
        fl_color(isSelected ? FL_SELECTION_COLOR : FL_BACKGROUND2_COLOR);
        fl_rectf(x, y, w, h);
        fl_color(FL_LIGHT2);
        fl_xyline(x, y + h - 1, x + w - 1, y);
        fl_color(isSelected ? FL_WHITE : FL_FOREGROUND_COLOR);
        fl_draw(text.c_str(), text.size(), x + 3, y + h - 5);
        fl_pop_clip();
    }

    std::int64_t first_ = 0;
};

struct Table {
    Run& run;
    Fl_Double_Window window{cWidth, cHeight};
    Rows rows;

    explicit Table(Run& of) : run(of), rows(of.rows()) {
        window.end();
        Show(window);
    }
    int Start() const { return static_cast<int>(StartRow(run.n)); }
    void ScrollTo(int row) {
        rows.row_position(row);
        Draw();
    }
};

void Open(Run& run) {
    auto table = std::make_unique<Table>(run);
    run.Tell(Measure(
                 3,
                 [&](int) {
                     table.reset();
                     Settle();
                 },
                 [&](int) { table = std::make_unique<Table>(run); }),
             Unit::Milliseconds);
    Finish(run, table->rows.drawn > 0 && table->rows.Top() == 0, "the first row is on top");
}

void Scroll(Run& run, bool byPage) {
    Table table(run);
    Settle();
    const int step = byPage ? table.rows.Page() : 1;
    const int jump = StepsFromStart(run.n, step);
    int at = 0;
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % jump == 0) table.ScrollTo(at = table.Start());
            table.rows.drawn = 0;
        },
        [&](int) { table.ScrollTo(at += step); }));
    Finish(run, table.rows.Top() == at && table.rows.drawn > 0, "each step scrolled and painted");
}
void ScrollByRow(Run& run) {
    Scroll(run, false);
}
void ScrollByPage(Run& run) {
    Scroll(run, true);
}

void AppendVisible(Run& run) {
    Table table(run);
    const auto toEnd = [&] { table.rows.row_position(table.rows.rows() - table.rows.Page()); };
    toEnd();
    Settle();
    run.Tell(Measure(10, Nothing, [&](int) {
        table.rows.Append();
        toEnd();
        Draw();
    }));
    Finish(run, table.rows.IsAtEnd(), "the end is in view");
}

/// The table keeps its row number, so the program goes one row on for the reader to keep the text.
void PrependAway(Run& run) {
    Table table(run);
    table.ScrollTo(table.Start());
    Settle();
    const std::int64_t before = table.rows.TextOnTop();
    run.Tell(Measure(10, Nothing, [&](int) {
        table.rows.Prepend();
        table.ScrollTo(table.rows.Top() + 1);
    }));
    Finish(run, table.rows.TextOnTop() == before, "the place is kept");
}

/// The table's own cursor keys move one cell; a row moves as a whole by its own calls.
void KeyDown(Run& run) {
    Table table(run);
    table.rows.take_focus();
    Settle();
    int row = 0;
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % cStepsOnPage != 0) return;
            table.ScrollTo(row = table.Start());
            table.rows.select_all_rows(0);
            table.rows.select_row(row);
            Settle();
        },
        [&](int) {
            table.rows.select_row(++row);
            Draw();
        }));
    Finish(run, table.rows.row_selected(row) != 0 && table.rows.row_selected(row - 1) == 0, "each key moved");
}

// A tree: one column, so a property's value stands behind its name.

struct Tree {
    Fl_Double_Window window{cWidth, cHeight};
    Fl_Tree tree{0, 0, cWidth, cHeight};

    Tree(int groups, int inFirst, int inOthers) {
        tree.showroot(0);
        tree.item_labelsize(cFontPixels);
        tree.selectmode(FL_TREE_SELECT_SINGLE);
        int added = 0;
        for (int group = 0; group < groups; ++group) {
            Fl_Tree_Item* const item =
                tree.root()->add(tree.prefs(), ("Group " + std::to_string(group)).c_str());
            for (int i = 0; i < (group == 0 ? inFirst : inOthers); ++i, ++added) {
                const std::string label =
                    std::string(CellText(added, 1).View()) + "   " + CellText(added, 4).c_str();
                item->add(tree.prefs(), label.c_str());
            }
        }
        window.end();
        Show(window);
        tree.take_focus();
        Settle();
    }
    Fl_Tree_Item* Group() { return tree.root()->child(0); }
};

void NextProperty(Run& run) {
    Tree at(run.rows() / cFoldOthers, cFoldOthers, cFoldOthers);
    int row = 0;
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % cStepsOnPage != 0) return;
            Fl_Tree_Item* const first = at.Group()->child(row = 0);
            at.tree.set_item_focus(first);
            at.tree.select_only(first, 0);
            at.tree.vposition(0);
            Settle();
        },
        [&](int) {
            ++row;
            Fl::e_keysym = FL_Down;
            at.tree.handle(FL_KEYBOARD);
            at.tree.select_only(at.tree.get_item_focus(), 0);
            Draw();
        }));
    Finish(run, at.tree.get_item_focus() == at.Group()->child(row), "each key moved");
}

void FoldAndUnfold(Run& run) {
    Tree at(cFoldGroups, run.rows(), cFoldOthers);
    run.Tell(Measure(4, Nothing, [&](int) {
        at.tree.close(at.Group(), 0);
        at.tree.redraw();
        Draw();
        at.tree.open(at.Group(), 0);
        at.tree.redraw();
        Draw();
    }));
    Finish(run, at.Group()->is_open() != 0, "the group is open again");
}

// A choice, whose menu has a loop of its own while it is open.

struct Menu {
    int painted = 0;
    double paintedAt = 0;

    /// Once the menu's window is painted: closes it by Escape.
    static void Watch(void* data) {
        auto& menu = *static_cast<Menu*>(data);
        Fl_Window* const window = Fl::grab();
        if (window == nullptr || !window->shown() || window->damage() != 0)
            return Fl::repeat_timeout(0.001, Watch, data);
        Draw();
        ++menu.painted;
        menu.paintedAt = ProcessorTime();
        Fl::e_keysym = FL_Escape;
        window->handle(FL_KEYBOARD);
    }
};

void PopupOpen(Run& run) {
    Fl_Double_Window window(cWidth, cHeight);
    Fl_Choice choice(20, 300, 200, 24);
    for (int i = 0; i < run.rows(); ++i) choice.add(CellText(i, 1).c_str());
    choice.textsize(cFontPixels);
    choice.value(0);
    window.end();
    Show(window);
    Menu menu;
    std::vector<double> opened;
    const auto both = Measure(
        20, [&](int) { Settle(); },
        [&](int) {
            const double start = ProcessorTime();
            Fl::add_timeout(0.001, Menu::Watch, &menu);
            choice.menu()->pulldown(choice.x(), choice.y(), choice.w(), choice.h(), choice.mvalue(), &choice);
            Draw();
            opened.push_back(menu.paintedAt - start);
        });
    run.Tell(both);
    run.Tell(opened, Unit::Microseconds, "popup_open_only");
    Finish(run, menu.painted == static_cast<int>(opened.size()), "each menu was painted");
}

// A list that keeps its items.

class Browser : public Fl_Hold_Browser {
public:
    Browser() : Fl_Hold_Browser(0, 0, cWidth, cHeight) { textsize(cFontPixels); }
    int LineHeight() const { return item_height(item_first()); }
};

struct List {
    Fl_Double_Window window{cWidth, cHeight};
    Browser browser;

    explicit List(Run& run) {
        for (int i = 0; i < run.rows(); ++i) browser.add(CellText(i, 1).c_str());
        window.end();
        Show(window);
    }
};

void FlatOpen(Run& run) {
    std::unique_ptr<List> list;
    run.Tell(Measure(
                 3,
                 [&](int) {
                     list.reset();
                     Settle();
                 },
                 [&](int) { list = std::make_unique<List>(run); }),
             Unit::Milliseconds);
    Finish(run, list->browser.size() == run.rows(), "all items are there");
}

void FlatScrollByRow(Run& run) {
    List list(run);
    const int line = list.browser.LineHeight();
    const int jump = StepsFromStart(run.n, 1);
    int at = 0;
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % jump != 0) return;
            list.browser.position(at = static_cast<int>(StartRow(run.n)) * line);
            Settle();
        },
        [&](int) {
            list.browser.position(at += line);
            Draw();
        }));
    Finish(run, list.browser.position() == at, "each step scrolled");
}

void FlatKeyDown(Run& run) {
    List list(run);
    list.browser.take_focus();
    int row = 0;
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % cStepsOnPage != 0) return;
            list.browser.topline(row = static_cast<int>(StartRow(run.n)));
            list.browser.value(row);
            Settle();
        },
        [&](int) {
            ++row;
            Press(list.browser, FL_Down);
        }));
    Finish(run, list.browser.value() == row, "each key moved");
}

} // namespace
} // namespace tvok::comparison

int main(int count, char** arguments) {
    using namespace tvok::comparison;
    // Else libX11 reads its table of composed letters again for each window that is the only one: 10 ms.
    setenv("XCOMPOSEFILE", "/dev/null", 1);
    Fl::set_font(FL_HELVETICA, cFont);
    Fl::visual(FL_DOUBLE | FL_RGB);
    RunOne("fltk", count, arguments,
           {{"open", Open},
            {"scroll_row", ScrollByRow},
            {"scroll_page", ScrollByPage},
            {"append_visible", AppendVisible},
            {"prepend_away", PrependAway},
            {"key_down", KeyDown},
            {"props_move", NextProperty},
            {"props_fold", FoldAndUnfold},
            {"popup_open", PopupOpen},
            {"flat_open", FlatOpen},
            {"flat_scroll_row", FlatScrollByRow},
            {"flat_key_down", FlatKeyDown}});
}
