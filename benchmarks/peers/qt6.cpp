// Qt 6 Widgets: QTableView, QTreeView, QComboBox and QListWidget on the platform "offscreen", which paints
// into memory. Rows and items have one height, which is told to the views, as Qt advises for many of them.

#include <QtCore/QAbstractItemModel>
#include <QtCore/QAbstractTableModel>
#include <QtCore/QStringList>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

#include <memory>

#include "benchmarks/peers/comparison.h"

namespace tvok::comparison {
namespace {

QString TextOf(std::int64_t row, int column) {
    const Text text = CellText(row, column);
    return QString::fromLatin1(text.c_str(), text.size());
}

// The user, and what waits.

/// Handles all that waits, also the paints.
void Pump() {
    QCoreApplication::processEvents();
}
/// Also what that has asked for.
void Settle() {
    for (int i = 0; i < 4; ++i) Pump();
}

void Press(QWidget& widget, Qt::Key key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
    Pump();
}

void Focus(QWidget& widget) {
    widget.activateWindow();
    widget.setFocus();
    Settle();
}

/// Counts the paints of a widget.
class Paints : public QObject {
public:
    explicit Paints(QWidget& of) { of.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
    int count = 0;
};

void Finish(Run& run, QWidget& shown, bool right, const char* what) {
    run.Expect(right, what);
    if (!run.picture.empty()) shown.grab().save(QString::fromStdString(run.picture));
}

void Nothing(int) {}

// A table of rows that nobody stores.

class Rows : public QAbstractTableModel {
public:
    explicit Rows(int count) : count_(count) {}
    int rowCount(const QModelIndex& of) const override { return of.isValid() ? 0 : count_; }
    int columnCount(const QModelIndex& of) const override { return of.isValid() ? 0 : cColumns; }
    QVariant data(const QModelIndex& at, int role) const override {
        if (role != Qt::DisplayRole) return {};
        return TextOf(first_ + at.row(), at.column());
    }
    QVariant headerData(int section, Qt::Orientation, int role) const override {
        if (role != Qt::DisplayRole) return {};
        return QStringLiteral("Column %1").arg(section + 1);
    }
    void Append() {
        beginInsertRows({}, count_, count_);
        ++count_;
        endInsertRows();
    }
    void Prepend() {
        beginInsertRows({}, 0, 0);
        ++count_;
        --first_;
        endInsertRows();
    }

private:
    int count_;
    std::int64_t first_ = 0;
};

struct Table {
    Run& run;
    Rows rows;
    QTableView view;
    Paints paints{*view.viewport()};

    explicit Table(Run& of) : run(of), rows(of.rows()) {
        view.setFrameStyle(QFrame::NoFrame);
        view.setWordWrap(false);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        QHeaderView& heights = *view.verticalHeader();
        heights.hide();
        heights.setSectionResizeMode(QHeaderView::Fixed);
        heights.setMinimumSectionSize(1);
        heights.setDefaultSectionSize(cRowHeight);
        view.horizontalHeader()->setDefaultSectionSize(cColumnWidth);
        view.horizontalHeader()->setHighlightSections(false);
        view.setModel(&rows);
        view.resize(cWidth, cHeight);
        view.show();
        Pump();
    }
    QScrollBar& bar() { return *view.verticalScrollBar(); }
    int Top() const { return view.rowAt(0); }
    int Page() const { return view.viewport()->height() / cRowHeight; }
    int Start() const { return static_cast<int>(StartRow(run.n)); }
    void ScrollTo(int row) {
        bar().setValue(row);
        Pump();
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
    Finish(run, table->view, table->paints.count > 0 && table->Top() == 0, "the first row is on top");
}

void Scroll(Run& run, bool byPage) {
    Table table(run);
    const int step = byPage ? table.Page() : 1;
    const int jump = StepsFromStart(run.n, step);
    int at = 0;
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % jump == 0) table.ScrollTo(at = table.Start());
            table.paints.count = 0;
        },
        [&](int) { table.ScrollTo(at += step); }));
    Finish(run, table.view, table.Top() == at && table.paints.count > 0, "each step scrolled and painted");
}
void ScrollByRow(Run& run) {
    Scroll(run, false);
}
void ScrollByPage(Run& run) {
    Scroll(run, true);
}

void AppendVisible(Run& run) {
    Table table(run);
    table.view.scrollToBottom();
    Settle();
    run.Tell(Measure(10, Nothing, [&](int) {
        table.rows.Append();
        table.view.scrollToBottom();
        Pump();
    }));
    Finish(run, table.view, table.bar().value() == table.bar().maximum(), "the end is in view");
}

/// The table keeps its row number, so the program goes one row on for the reader to keep the text.
void PrependAway(Run& run) {
    Table table(run);
    table.ScrollTo(table.Start());
    Settle();
    const auto textOnTop = [&] { return table.rows.data(table.rows.index(table.Top(), 0), Qt::DisplayRole); };
    const QVariant before = textOnTop();
    run.Tell(Measure(10, Nothing, [&](int) {
        table.rows.Prepend();
        table.bar().setValue(table.bar().value() + 1);
        Pump();
    }));
    Finish(run, table.view, textOnTop() == before, "the place is kept");
}

void KeyDown(Run& run) {
    Table table(run);
    Focus(table.view);
    int row = 0;
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % cStepsOnPage != 0) return;
            table.ScrollTo(row = table.Start());
            table.view.setCurrentIndex(table.rows.index(row, 0));
            Settle();
        },
        [&](int) {
            ++row;
            Press(table.view, Qt::Key_Down);
        }));
    Finish(run, table.view, table.view.currentIndex().row() == row, "each key moved");
}

// A tree of groups and properties that nobody stores either.

class Groups : public QAbstractItemModel {
public:
    Groups(int groups, int inFirst, int inOthers) : groups_(groups), first_(inFirst), others_(inOthers) {}
    QModelIndex index(int row, int column, const QModelIndex& of) const override {
        // A group's id is 0, a property's the number of its group from 1 on.
        return createIndex(row, column, of.isValid() ? static_cast<quintptr>(of.row()) + 1 : 0);
    }
    QModelIndex parent(const QModelIndex& at) const override {
        if (at.internalId() == 0) return {};
        return createIndex(static_cast<int>(at.internalId()) - 1, 0, quintptr{0});
    }
    int rowCount(const QModelIndex& of) const override {
        if (!of.isValid()) return groups_;
        if (of.internalId() != 0 || of.column() != 0) return 0;
        return of.row() == 0 ? first_ : others_;
    }
    int columnCount(const QModelIndex&) const override { return 2; }
    Qt::ItemFlags flags(const QModelIndex& at) const override {
        const Qt::ItemFlags flags = QAbstractItemModel::flags(at);
        return at.internalId() == 0 ? flags : flags | Qt::ItemNeverHasChildren;
    }
    QVariant data(const QModelIndex& at, int role) const override {
        if (role != Qt::DisplayRole) return {};
        if (at.internalId() == 0)
            return at.column() == 0 ? QStringLiteral("Group %1").arg(at.row()) : QVariant();
        const auto group = static_cast<std::int64_t>(at.internalId()) - 1;
        return TextOf((group == 0 ? 0 : first_ + (group - 1) * others_) + at.row(), at.column() == 0 ? 1 : 4);
    }

private:
    int groups_, first_, others_;
};

class FixedHeight : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& at) const override {
        return {QStyledItemDelegate::sizeHint(option, at).width(), cRowHeight};
    }
};

struct Tree {
    Groups groups;
    QTreeView view;

    Tree(int count, int inFirst, int inOthers) : groups(count, inFirst, inOthers) {
        view.setUniformRowHeights(true);
        view.setItemDelegate(new FixedHeight(&view));
        view.setModel(&groups);
        view.setColumnWidth(0, cWidth / 2);
        view.expandToDepth(0); // the groups, and not each property as well
        view.resize(cWidth, cHeight);
        view.show();
        Settle();
        Focus(view);
    }
    QModelIndex Group(int number) const { return groups.index(number, 0, {}); }
};

void NextProperty(Run& run) {
    Tree tree(run.rows() / cFoldOthers, cFoldOthers, cFoldOthers);
    int row = 0;
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % cStepsOnPage != 0) return;
            tree.view.setCurrentIndex(tree.groups.index(row = 0, 0, tree.Group(0)));
            tree.view.scrollToTop();
            Settle();
        },
        [&](int) {
            ++row;
            Press(tree.view, Qt::Key_Down);
        }));
    Finish(run, tree.view, tree.view.currentIndex().row() == row, "each key moved");
}

void FoldAndUnfold(Run& run) {
    Tree tree(cFoldGroups, run.rows(), cFoldOthers);
    Paints paints(*tree.view.viewport());
    int wrong = 0;
    const auto expand = [&](bool open) {
        paints.count = 0;
        tree.view.setExpanded(tree.Group(0), open);
        // Where the layout waits for a timer, nothing has been painted after the first turn.
        for (int turn = 0; paints.count == 0 && turn < 1000; ++turn) Pump();
        wrong += paints.count > 0 && tree.view.isExpanded(tree.Group(0)) == open ? 0 : 1;
    };
    run.Tell(Measure(6, Nothing, [&](int) {
        expand(false);
        expand(true);
    }));
    Finish(run, tree.view, wrong == 0, "each step folded, unfolded and painted");
}

// A combo box.

void PopupOpen(Run& run) {
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    QWidget window;
    window.resize(cWidth, cHeight);
    QComboBox box(&window);
    for (int i = 0; i < run.rows(); ++i) box.addItem(TextOf(i, 1));
    box.setMaxVisibleItems(run.rows());
    box.setGeometry(20, 20, 200, 24);
    window.show();
    Focus(box);
    Paints paints(*box.view()->viewport());
    std::vector<double> opened;
    int wrong = 0;
    const auto both = Measure(
        20, [&](int) { Settle(); },
        [&](int i) {
            const double start = ProcessorTime();
            paints.count = 0;
            box.showPopup();
            for (int turn = 0; paints.count == 0 && turn < 1000; ++turn) Pump();
            opened.push_back(ProcessorTime() - start);
            wrong += paints.count > 0 ? 0 : 1;
            if (i == 0) Finish(run, *box.view()->window(), true, "");
            box.hidePopup();
            Pump();
        });
    run.Tell(both);
    run.Tell(opened, Unit::Microseconds, "popup_open_only");
    run.Expect(wrong == 0, "each popup painted its list");
}

// A list that keeps its items.

struct List {
    QListWidget view;

    List() {
        view.setUniformItemSizes(true);
        view.setItemDelegate(new FixedHeight(&view));
        view.resize(cWidth, cHeight);
    }
    template<class TextOf>
    void Fill(int count, TextOf&& textOf) {
        view.clear();
        QStringList texts;
        texts.reserve(count);
        for (int i = 0; i < count; ++i) texts.append(textOf(i));
        view.addItems(texts);
        view.show();
        Pump();
    }
    void FillByName(Run& run) {
        Fill(run.rows(), [](int i) { return TextOf(i, 1); });
    }
    QScrollBar& bar() { return *view.verticalScrollBar(); }
    /// What the bar moves by for one row: it counts rows or pixels.
    int Unit() { return view.verticalScrollMode() == QAbstractItemView::ScrollPerPixel ? cRowHeight : 1; }
};

void FlatOpen(Run& run) {
    std::unique_ptr<List> list;
    run.Tell(Measure(
                 3,
                 [&](int) {
                     list.reset();
                     Settle();
                 },
                 [&](int) {
                     list = std::make_unique<List>();
                     list->FillByName(run);
                 }),
             Unit::Milliseconds);
    Finish(run, list->view, list->view.count() == run.rows(), "all items are there");
}

void FlatSort(Run& run) {
    List list;
    std::vector<QString> texts;
    texts.reserve(static_cast<std::size_t>(run.rows()));
    for (int i = 0; i < run.rows(); ++i) texts.push_back(QString::fromStdString(SortText(i)));
    run.Tell(Measure(
                 3,
                 [&](int) {
                     list.Fill(run.rows(), [&](int i) { return texts[static_cast<std::size_t>(i)]; });
                     Settle();
                 },
                 [&](int) {
                     list.view.sortItems();
                     Pump();
                 }),
             Unit::Milliseconds);
    Finish(run, list.view, list.view.item(0)->text() < list.view.item(run.rows() - 1)->text(),
           "the first is before the last");
}

void FlatScrollByRow(Run& run) {
    List list;
    list.FillByName(run);
    const int jump = StepsFromStart(run.n, 1);
    int at = 0;
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % jump != 0) return;
            list.bar().setValue(at = static_cast<int>(StartRow(run.n)) * list.Unit());
            Settle();
        },
        [&](int) {
            list.bar().setValue(at += list.Unit());
            Pump();
        }));
    Finish(run, list.view, list.bar().value() == at, "each step scrolled");
}

void FlatKeyDown(Run& run) {
    List list;
    list.FillByName(run);
    Focus(list.view);
    int row = 0;
    run.Tell(Measure(
        20,
        [&](int i) {
            if (i % cStepsOnPage != 0) return;
            list.view.setCurrentRow(row = static_cast<int>(StartRow(run.n)));
            list.view.scrollToItem(list.view.item(row), QAbstractItemView::PositionAtTop);
            Settle();
        },
        [&](int) {
            ++row;
            Press(list.view, Qt::Key_Down);
        }));
    Finish(run, list.view, list.view.currentRow() == row, "each key moved");
}

} // namespace
} // namespace tvok::comparison

int main(int count, char** arguments) {
    using namespace tvok::comparison;
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    int none = 1;
    const QApplication application(none, arguments);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setCursorFlashTime(0);
    QFont font(QString::fromLatin1(cFont));
    font.setPixelSize(cFontPixels);
    QApplication::setFont(font);
    RunOne("qt6", count, arguments,
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
            {"flat_scroll_row", FlatScrollByRow},
            {"flat_key_down", FlatKeyDown}});
}
