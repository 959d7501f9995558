// GTK 4: GtkColumnView, GtkTreeListModel, GtkDropDown and GtkListView, drawn by cairo. GTK paints on a clock
// of 60 frames a second; a step ends after the second frame from then, since a change of the layout may take
// two. Waiting for them costs no processor time.

#include <gtk/gtk.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "benchmarks/peers/comparison.h"

namespace tvok::comparison {
namespace {

void Nothing(int) {}

// A model of rows that nobody stores: an item is its number.

struct Item {
    GObject base;
    gint64 number;
};
struct ItemClass {
    GObjectClass base;
};
G_DEFINE_TYPE(Item, item, G_TYPE_OBJECT)
void item_class_init(ItemClass*) {}
void item_init(Item*) {}

struct Rows {
    GObject base;
    guint count;
    gint64 first;
};
struct RowsClass {
    GObjectClass base;
};
GType TypeOfItems(GListModel*) {
    return item_get_type();
}
guint CountOf(GListModel* model) {
    return reinterpret_cast<Rows*>(model)->count;
}
gpointer ItemOf(GListModel* model, guint position) {
    const auto* const rows = reinterpret_cast<Rows*>(model);
    if (position >= rows->count) return nullptr;
    auto* const made = static_cast<Item*>(g_object_new(item_get_type(), nullptr));
    made->number = rows->first + position;
    return made;
}
void rows_list(gpointer table, gpointer) {
    auto* const list = static_cast<GListModelInterface*>(table);
    list->get_item_type = TypeOfItems;
    list->get_n_items = CountOf;
    list->get_item = ItemOf;
}
G_DEFINE_TYPE_WITH_CODE(Rows, rows, G_TYPE_OBJECT, G_IMPLEMENT_INTERFACE(G_TYPE_LIST_MODEL, rows_list))
void rows_class_init(RowsClass*) {}
void rows_init(Rows*) {}

Rows* MakeRows(std::int64_t count, std::int64_t first = 0) {
    auto* const made = static_cast<Rows*>(g_object_new(rows_get_type(), nullptr));
    made->count = static_cast<guint>(count);
    made->first = first;
    return made;
}

// Cells.

using Maker = void (*)(GtkSignalListItemFactory*, GtkListItem*, gpointer);

GtkListItemFactory* Cells(Maker setup, Maker bind, int column = 0) {
    GtkListItemFactory* const made = gtk_signal_list_item_factory_new();
    g_signal_connect(made, "setup", reinterpret_cast<GCallback>(setup), nullptr);
    g_signal_connect(made, "bind", reinterpret_cast<GCallback>(bind), GINT_TO_POINTER(column));
    return made;
}

void SetupText(GtkSignalListItemFactory*, GtkListItem* cell, gpointer) {
    gtk_list_item_set_child(cell, gtk_inscription_new(nullptr));
}
void SetText(GtkWidget* inscription, const char* text) {
    gtk_inscription_set_text(reinterpret_cast<GtkInscription*>(inscription), text);
}
void BindRow(GtkSignalListItemFactory*, GtkListItem* cell, gpointer column) {
    const auto* const row = static_cast<Item*>(gtk_list_item_get_item(cell));
    SetText(gtk_list_item_get_child(cell), CellText(row->number, GPOINTER_TO_INT(column)).c_str());
}
void BindString(GtkSignalListItemFactory*, GtkListItem* cell, gpointer) {
    auto* const text = static_cast<GtkStringObject*>(gtk_list_item_get_item(cell));
    SetText(gtk_list_item_get_child(cell), gtk_string_object_get_string(text));
}

// A window, and its frames.

constexpr const char* cStyle = "* { font: 12px \"DejaVu Sans\"; }"
                               "row > cell { padding: 0 4px; min-height: 16px; }"
                               "listview > row { padding: 0 4px; min-height: 18px; }"
                               "columnview > header button { padding: 0 4px; min-height: 17px; }"
                               "treeexpander { min-height: 0; } expander { min-height: 12px; }";

class Window {
public:
    Window() {
        gtk_window_set_decorated(reinterpret_cast<GtkWindow*>(window_), FALSE);
        gtk_window_set_default_size(reinterpret_cast<GtkWindow*>(window_), cWidth, cHeight);
    }
    ~Window() { gtk_window_destroy(reinterpret_cast<GtkWindow*>(window_)); }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    void Show(GtkWidget* content) {
        gtk_window_set_child(reinterpret_cast<GtkWindow*>(window_), content);
        gtk_widget_realize(window_);
        clock_ = gtk_widget_get_frame_clock(window_);
        g_signal_connect_after(clock_, "after-paint", reinterpret_cast<GCallback>(Painted), this);
        gtk_widget_show(window_);
        Draw();
    }
    void ShowScrolled(GtkWidget* view) {
        GtkWidget* const around = gtk_scrolled_window_new();
        scrolled_ = reinterpret_cast<GtkScrolledWindow*>(around);
        gtk_scrolled_window_set_overlay_scrolling(scrolled_, FALSE);
        gtk_scrolled_window_set_kinetic_scrolling(scrolled_, FALSE);
        gtk_scrolled_window_set_child(scrolled_, view);
        gtk_widget_set_size_request(around, cWidth, cHeight);
        Show(around);
    }
    void Draw() {
        for (const int end = frames_ + 2; frames_ < end;) {
            gdk_frame_clock_request_phase(clock_, GDK_FRAME_CLOCK_PHASE_PAINT);
            g_main_context_iteration(nullptr, TRUE);
        }
        gdk_display_sync(gtk_widget_get_display(window_));
    }
    GtkAdjustment* bar() { return gtk_scrolled_window_get_vadjustment(scrolled_); }
    /// Of a row, as the view has laid them out.
    double Height(std::int64_t rows) { return gtk_adjustment_get_upper(bar()) / static_cast<double>(rows); }
    double Position() { return gtk_adjustment_get_value(bar()); }
    void ScrollTo(double pixels) {
        gtk_adjustment_set_value(bar(), pixels);
        Draw();
    }
    bool IsAtEnd() {
        return std::abs(gtk_adjustment_get_upper(bar()) - gtk_adjustment_get_page_size(bar()) - Position()) <
               1;
    }

private:
    static void Painted(GdkFrameClock*, gpointer window) { ++static_cast<Window*>(window)->frames_; }

    GtkWidget* window_ = gtk_window_new();
    GtkScrolledWindow* scrolled_ = nullptr;
    GdkFrameClock* clock_ = nullptr;
    int frames_ = 0;
};

void Finish(Run& run, bool right, const char* what) {
    run.Expect(right, what);
    SaveScreen(run);
}

GtkWidget* ColumnView(GtkSelectionModel* shown) {
    GtkWidget* const view = gtk_column_view_new(shown);
    gtk_column_view_set_show_row_separators(reinterpret_cast<GtkColumnView*>(view), TRUE);
    gtk_column_view_set_show_column_separators(reinterpret_cast<GtkColumnView*>(view), TRUE);
    return view;
}
void AddColumn(GtkWidget* view, const char* title, int width, GtkListItemFactory* cells) {
    GtkColumnViewColumn* const column = gtk_column_view_column_new(title, cells);
    gtk_column_view_column_set_fixed_width(column, width);
    gtk_column_view_append_column(reinterpret_cast<GtkColumnView*>(view), column);
    g_object_unref(column);
}

// The table.

struct Table : Window {
    Run& run;
    Rows* rows;
    GtkSingleSelection* selection;
    GtkWidget* view;

    explicit Table(Run& of) : run(of), rows(MakeRows(of.n)) {
        selection = gtk_single_selection_new(reinterpret_cast<GListModel*>(rows));
        view = ColumnView(reinterpret_cast<GtkSelectionModel*>(selection));
        for (int column = 0; column < cColumns; ++column)
            AddColumn(view, ("Column " + std::to_string(column + 1)).c_str(), cColumnWidth,
                      Cells(SetupText, BindRow, column));
        ShowScrolled(view);
    }
    double RowHeight() { return Height(rows->count); }
    std::int64_t Start() const { return StartRow(run.n); }
    void ScrollToRow(std::int64_t row) { ScrollTo(static_cast<double>(row) * RowHeight()); }
    /// After a jump by many rows the view shows nothing until it is scrolled once more.
    void JumpToStart() {
        ScrollToRow(Start() + 1);
        ScrollToRow(Start());
    }
    void Add(guint at) {
        ++rows->count;
        if (at == 0) --rows->first;
        g_list_model_items_changed(reinterpret_cast<GListModel*>(rows), at, 0, 1);
    }
};

void Open(Run& run) {
    auto table = std::make_unique<Table>(run);
    run.Tell(Measure(
                 3, [&](int) { table.reset(); }, [&](int) { table = std::make_unique<Table>(run); }),
             Unit::Milliseconds);
    Finish(run, table->Position() == 0 && table->RowHeight() > 10, "the first row is on top");
}

void Scroll(Run& run, bool byPage) {
    Table table(run);
    const int step =
        byPage ? static_cast<int>(gtk_adjustment_get_page_size(table.bar()) / table.RowHeight()) : 1;
    const int jump = StepsFromStart(run.n, step);
    std::int64_t at = 0;
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % jump != 0) return;
            table.JumpToStart();
            at = table.Start();
        },
        [&](int) { table.ScrollToRow(at += step); }));
    Finish(run, std::abs(table.Position() - static_cast<double>(at) * table.RowHeight()) < table.RowHeight(),
           "each step scrolled");
}
void ScrollByRow(Run& run) {
    Scroll(run, false);
}
void ScrollByPage(Run& run) {
    Scroll(run, true);
}

void AppendVisible(Run& run) {
    Table table(run);
    const auto toEnd = [&] {
        table.ScrollTo(gtk_adjustment_get_upper(table.bar()) - gtk_adjustment_get_page_size(table.bar()));
    };
    table.JumpToStart();
    table.ScrollTo(gtk_adjustment_get_upper(table.bar()) - 2 * gtk_adjustment_get_page_size(table.bar()));
    toEnd();
    // The bar has the new row once it is laid out.
    run.Tell(Measure(10, Nothing, [&](int) {
        table.Add(table.rows->count);
        table.Draw();
        toEnd();
    }));
    Finish(run, table.IsAtEnd(), "the end is in view");
}

/// The view keeps the reader's place by itself.
void PrependAway(Run& run) {
    Table table(run);
    table.JumpToStart();
    int added = 0;
    run.Tell(Measure(10, Nothing, [&](int) {
        ++added;
        table.Add(0);
        table.Draw();
    }));
    const double row = table.Position() / table.RowHeight();
    Finish(run, std::abs(row - static_cast<double>(table.Start() + added)) < 2, "the place is kept");
}

/// Programs cannot send a key, so the row is made the selected one by the call.
void KeyDown(Run& run) {
    Table table(run);
    guint row = 0;
    const auto select = [&](guint to) {
        gtk_single_selection_set_selected(table.selection, row = to);
        table.Draw();
    };
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % cStepsOnPage != 0) return;
            table.JumpToStart();
            select(static_cast<guint>(table.Start()));
        },
        [&](int) { select(row + 1); }));
    Finish(run, gtk_single_selection_get_selected(table.selection) == row, "each step moved");
}

// A tree of groups and properties.

/// The models of the groups' properties, kept: a group that is unfolded again gets the same one.
struct Groups {
    std::vector<GListModel*> properties;
    Groups(int count, int inFirst, int inOthers) {
        for (int group = 0, first = 0; group < count; ++group) {
            const int size = group == 0 ? inFirst : inOthers;
            properties.push_back(reinterpret_cast<GListModel*>(MakeRows(size, first)));
            first += size;
        }
    }
    /// For an item of the top level; properties have none.
    static GListModel* Below(gpointer item, gpointer groups) {
        const auto number = static_cast<Item*>(item)->number;
        auto& all = static_cast<Groups*>(groups)->properties;
        if (number >= 0) return nullptr;
        return static_cast<GListModel*>(g_object_ref(all[static_cast<std::size_t>(-number - 1)]));
    }
};

void SetupName(GtkSignalListItemFactory*, GtkListItem* cell, gpointer) {
    GtkWidget* const expander = gtk_tree_expander_new();
    GtkWidget* const text = gtk_inscription_new(nullptr);
    gtk_widget_set_hexpand(text, TRUE);
    gtk_tree_expander_set_child(reinterpret_cast<GtkTreeExpander*>(expander), text);
    gtk_list_item_set_child(cell, expander);
}
Item* ItemIn(GtkTreeListRow* row) {
    return static_cast<Item*>(gtk_tree_list_row_get_item(row));
}
void BindName(GtkSignalListItemFactory*, GtkListItem* cell, gpointer) {
    auto* const row = static_cast<GtkTreeListRow*>(gtk_list_item_get_item(cell));
    auto* const expander = reinterpret_cast<GtkTreeExpander*>(gtk_list_item_get_child(cell));
    gtk_tree_expander_set_list_row(expander, row);
    Item* const shown = ItemIn(row);
    const bool isGroup = shown->number < 0;
    SetText(gtk_tree_expander_get_child(expander),
            isGroup ? Text().Put("Group ").Number(-shown->number - 1).c_str()
                    : CellText(shown->number, 1).c_str());
    g_object_unref(shown);
}
void BindValue(GtkSignalListItemFactory*, GtkListItem* cell, gpointer) {
    Item* const shown = ItemIn(static_cast<GtkTreeListRow*>(gtk_list_item_get_item(cell)));
    SetText(gtk_list_item_get_child(cell), shown->number < 0 ? "" : CellText(shown->number, 4).c_str());
    g_object_unref(shown);
}

struct Tree : Window {
    Groups groups;
    GtkTreeListModel* model;
    GtkSingleSelection* selection;

    Tree(int count, int inFirst, int inOthers) : groups(count, inFirst, inOthers) {
        // Groups have numbers below 0, properties none.
        GListStore* const top = g_list_store_new(item_get_type());
        for (int group = 0; group < count; ++group) {
            auto* const made = static_cast<Item*>(g_object_new(item_get_type(), nullptr));
            made->number = -group - 1;
            g_list_store_append(top, made);
            g_object_unref(made);
        }
        model = gtk_tree_list_model_new(reinterpret_cast<GListModel*>(top), FALSE, TRUE, Groups::Below,
                                        &groups, nullptr);
        selection = gtk_single_selection_new(reinterpret_cast<GListModel*>(model));
        GtkWidget* const view = ColumnView(reinterpret_cast<GtkSelectionModel*>(selection));
        AddColumn(view, "Name", cWidth / 2, Cells(SetupName, BindName));
        AddColumn(view, "Value", cWidth / 2 - 20, Cells(SetupText, BindValue));
        ShowScrolled(view);
    }
    guint Count() { return g_list_model_get_n_items(reinterpret_cast<GListModel*>(model)); }
    void Expand(bool open) {
        GtkTreeListRow* const group = gtk_tree_list_model_get_row(model, 0);
        gtk_tree_list_row_set_expanded(group, open ? TRUE : FALSE);
        g_object_unref(group);
        Draw();
    }
};

void NextProperty(Run& run) {
    Tree tree(run.rows() / cFoldOthers, cFoldOthers, cFoldOthers);
    guint row = 0;
    const auto select = [&](guint to) {
        gtk_single_selection_set_selected(tree.selection, row = to);
        tree.Draw();
    };
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % cStepsOnPage == 0) select(1);
        },
        [&](int) { select(row + 1); }));
    Finish(run, gtk_single_selection_get_selected(tree.selection) == row, "each step moved");
}

void FoldAndUnfold(Run& run) {
    Tree tree(cFoldGroups, run.rows(), cFoldOthers);
    const guint open = tree.Count();
    int wrong = 0;
    run.Tell(Measure(4, Nothing, [&](int) {
        tree.Expand(false);
        wrong += tree.Count() == open - static_cast<guint>(run.n) ? 0 : 1;
        tree.Expand(true);
        wrong += tree.Count() == open ? 0 : 1;
    }));
    Finish(run, wrong == 0, "each step folded and unfolded");
}

// A drop-down.

GtkStringList* Strings(std::int64_t count, std::string (*textOf)(std::int64_t)) {
    GtkStringList* const made = gtk_string_list_new(nullptr);
    for (std::int64_t i = 0; i < count; ++i) gtk_string_list_append(made, textOf(i).c_str());
    return made;
}
std::string NameOf(std::int64_t row) {
    return CellText(row, 1).c_str();
}

void PopupOpen(Run& run) {
    Window window;
    GtkWidget* const field =
        gtk_drop_down_new(reinterpret_cast<GListModel*>(Strings(run.n, NameOf)), nullptr);
    gtk_widget_set_size_request(field, 200, 24);
    GtkWidget* const page = gtk_fixed_new();
    gtk_fixed_put(reinterpret_cast<GtkFixed*>(page), field, 20, 20);
    gtk_widget_set_size_request(page, cWidth, cHeight);
    window.Show(page);
    GtkWidget* const popover = gtk_widget_get_last_child(field);
    auto* const button = reinterpret_cast<GtkToggleButton*>(gtk_widget_get_first_child(field));
    std::vector<double> opened;
    int wrong = 0;
    const auto both = Measure(10, Nothing, [&](int i) {
        const double start = ProcessorTime();
        gtk_toggle_button_set_active(button, TRUE);
        window.Draw();
        opened.push_back(ProcessorTime() - start);
        wrong += gtk_widget_get_mapped(popover) != FALSE ? 0 : 1;
        if (i == 0) SaveScreen(run);
        gtk_toggle_button_set_active(button, FALSE);
        window.Draw();
        wrong += gtk_widget_get_mapped(popover) == FALSE ? 0 : 1;
    });
    run.Tell(both);
    run.Tell(opened, Unit::Microseconds, "popup_open_only");
    run.Expect(wrong == 0, "each opened and closed");
}

// A list that keeps its items.

struct List : Window {
    GtkSortListModel* sorted;
    explicit List(GtkStringList* strings) {
        sorted = gtk_sort_list_model_new(reinterpret_cast<GListModel*>(strings), nullptr);
        auto* const selection = gtk_single_selection_new(reinterpret_cast<GListModel*>(sorted));
        ShowScrolled(
            gtk_list_view_new(reinterpret_cast<GtkSelectionModel*>(selection), Cells(SetupText, BindString)));
    }
    std::string TextAt(guint position) {
        gpointer const object = g_list_model_get_item(reinterpret_cast<GListModel*>(sorted), position);
        std::string text = gtk_string_object_get_string(static_cast<GtkStringObject*>(object));
        g_object_unref(object);
        return text;
    }
};

void FlatOpen(Run& run) {
    std::unique_ptr<List> list;
    run.Tell(Measure(
                 3, [&](int) { list.reset(); },
                 [&](int) { list = std::make_unique<List>(Strings(run.n, NameOf)); }),
             Unit::Milliseconds);
    Finish(run, list->Height(run.n) > 10, "the items are laid out");
}

void FlatSort(Run& run) {
    List list(Strings(run.n, SortText));
    GtkSorter* const byText = reinterpret_cast<GtkSorter*>(
        gtk_string_sorter_new(gtk_property_expression_new(GTK_TYPE_STRING_OBJECT, nullptr, "string")));
    const auto sort = [&](GtkSorter* sorter) {
        gtk_sort_list_model_set_sorter(list.sorted, sorter);
        list.Draw();
    };
    run.Tell(Measure(
                 3, [&](int) { sort(nullptr); }, [&](int) { sort(byText); }),
             Unit::Milliseconds);
    Finish(run, list.TextAt(0) < list.TextAt(static_cast<guint>(run.n) - 1), "the first is before the last");
}

void FlatScrollByRow(Run& run) {
    List list(Strings(run.n, NameOf));
    const double height = list.Height(run.n);
    const int jump = StepsFromStart(run.n, 1);
    double at = 0;
    run.Tell(Measure(
        10,
        [&](int i) {
            if (i % jump == 0) list.ScrollTo(at = static_cast<double>(StartRow(run.n)) * height);
        },
        [&](int) { list.ScrollTo(at += height); }));
    Finish(run, std::abs(list.Position() - at) < height, "each step scrolled");
}

void Style() {
    GtkCssProvider* const style = gtk_css_provider_new();
    gtk_css_provider_load_from_data(style, cStyle, -1);
    gtk_style_context_add_provider_for_display(gdk_display_get_default(),
                                               reinterpret_cast<GtkStyleProvider*>(style),
                                               GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_set(gtk_settings_get_default(), "gtk-enable-animations", FALSE, nullptr);
}

} // namespace
} // namespace tvok::comparison

int main(int count, char** arguments) {
    using namespace tvok::comparison;
    // The X server at hand has no graphics processor.
    setenv("GSK_RENDERER", "cairo", 1);
    setenv("GDK_BACKEND", "x11", 1);
    setenv("GTK_A11Y", "none", 1); // nor a bus for those who read the screen aloud
    if (gtk_init_check() == FALSE) return 1;
    Style();
    RunOne("gtk4", count, arguments,
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
            {"flat_sort", FlatSort},
            {"flat_scroll_row", FlatScrollByRow}});
}
