// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "GenericViewSearch.h"

#include <QAction>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>
#include <QTreeView>
#include <QtTest>

#include <memory>

static const int SearchRole = 0x12345;
static const QString Red = QStringLiteral("QPushButton {background-color: red}");
static const QString Blue = QStringLiteral("QPushButton {background-color: blue}");

// Display texts differ from the searched texts, so a hit proves the role was read.
static QStandardItem *item(const QString &text)
{
    auto it = new QStandardItem("shown " + text.toUpper());
    it->setData(text, SearchRole);
    return it;
}

static void run(GenericViewSearch &search, bool all)
{
    all ? search.onSearchAll() : search.onSearchNext();
}

struct Fixture
{
    explicit Fixture(bool tree)
    {
        view.reset(tree ? static_cast<QAbstractItemView *>(new QTreeView) : new QTableView);
        view->setModel(&model);
        view->setSelectionBehavior(QAbstractItemView::SelectRows);
        view->resize(300, 200);
        search.reset(new GenericViewSearch(view.get(), &edit, &button));
    }

    void addRows(const QStringList &texts)
    {
        for (const QString &text : texts)
            model.appendRow({ item(text), new QStandardItem(QStringLiteral("second column")) });
    }

    void select(int row)
    {
        if (row >= 0)
            view->selectionModel()->select(model.index(row, 0), QItemSelectionModel::ClearAndSelect
                                                                   | QItemSelectionModel::Rows);
    }

    // Children written as "parent/child".
    QStringList selectedTexts() const
    {
        QStringList texts;
        for (const QModelIndex &index : view->selectionModel()->selectedRows(0)) {
            QString text = index.data(SearchRole).toString();
            if (index.parent().isValid())
                text.prepend(index.parent().data(SearchRole).toString() + QLatin1Char('/'));
            texts << text;
        }
        texts.sort();
        return texts;
    }

    QStandardItemModel model;
    std::unique_ptr<QAbstractItemView> view;
    QLineEdit edit;
    QPushButton button;
    std::unique_ptr<GenericViewSearch> search;
};

class tst_GenericViewSearch : public QObject
{
    Q_OBJECT

private slots:
    void menuActions_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QKeySequence>("shortcut");
        QTest::addColumn<bool>("checkable");
        QTest::newRow("next") << 0 << "Search next" << QKeySequence(QKeySequence::FindNext) << false;
        QTest::newRow("sub elements") << 1 << "Search sub elements" << QKeySequence() << true;
        QTest::newRow("all") << 2 << "Search all" << QKeySequence(Qt::Key_F4) << false;
    }
    void menuActions()
    {
        QFETCH(int, type);
        QFETCH(QString, text);
        QFETCH(QKeySequence, shortcut);
        QFETCH(bool, checkable);
        Fixture f(false);
        QAction *action = f.search->getMenuAction(GenericViewSearch::ActionType(type));
        QVERIFY(action);
        QCOMPARE(action->parent(), f.search.get());
        QCOMPARE(action->text(), text);
        QCOMPARE(action->shortcut(), shortcut);
        QCOMPARE(action->isCheckable(), checkable);
        QVERIFY(!action->isChecked());
        QVERIFY(!f.search->getMenuAction(GenericViewSearch::ActionType(3)));
    }
    void searchNext_data();
    void searchNext();
    void nextAfterAll_data();
    void nextAfterAll();
    void hitsForgottenWhenRowsChange_data();
    void hitsForgottenWhenRowsChange();
    void children_data();
    void children();
    void colourIsReset();
    void shortSearchShowsNoProgress();
    void slowSearchShowsProgress();
    void reentryIgnored_data();
    void reentryIgnored();
    void survivesDeletedWidgets();
    void deletedDuringScan();
};

static const QStringList rows = { "alpha", "Beta", "gamma", "beta two", "delta" };

void tst_GenericViewSearch::searchNext_data()
{
    QTest::addColumn<bool>("tree");
    QTest::addColumn<bool>("all");
    QTest::addColumn<int>("selected");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QString>("style");
    for (bool tree : { false, true }) {
        const auto row = [tree](const char *tag, bool all, int selected, const char *text, const QStringList &hits,
                                const QString &style) {
            QTest::addRow("%s: %s", tree ? "tree" : "table", tag) << tree << all << selected << QString(text) << hits << style;
        };
        row("first hit from nothing selected", false, -1, "beta", { "Beta" }, "");
        row("skips the selected row's own text", false, 1, "beta", { "beta two" }, "");
        row("wraps to the top", false, 3, "beta", { "Beta" }, "");
        row("case ignored, anywhere in the text", false, -1, "ETA TW", { "beta two" }, "");
        row("no hit: red, selection cleared", false, 0, "zeta", {}, Red);
        row("only the selected row holds it", false, 2, "gamma", {}, Red);
        row("display text not searched", false, -1, "shown", {}, Red);
        // Search all gives no colour feedback, even without hits.
        row("all: two hits", true, 2, "BETA", { "Beta", "beta two" }, "");
        row("all: every row", true, 2, "a", { "Beta", "alpha", "beta two", "delta", "gamma" }, "");
        row("all: no hit clears the selection", true, 2, "zeta", {}, "");
    }
    // Empty text: reported red at once, no scan.
    QTest::newRow("empty text, next") << false << false << 1 << "" << QStringList() << Red;
    QTest::newRow("empty text, all") << false << true << 1 << "" << QStringList() << Red;
}

void tst_GenericViewSearch::searchNext()
{
    QFETCH(bool, tree);
    QFETCH(bool, all);
    QFETCH(int, selected);
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    QFETCH(QString, style);
    Fixture f(tree);
    f.addRows(rows);
    f.select(selected);
    QSignalSpy stop(f.search.get(), &GenericViewSearch::stopAutoscroll);

    f.edit.setText(text);
    if (all)
        f.search->getMenuAction(GenericViewSearch::SearchAll)->trigger();
    else
        QTest::keyClick(&f.edit, Qt::Key_Return);

    QCOMPARE(f.selectedTexts(), expected);
    QCOMPARE(f.button.styleSheet(), style);
    QCOMPARE(stop.count(), text.isEmpty() ? 0 : 1);
}

void tst_GenericViewSearch::nextAfterAll_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("style");
    QTest::newRow("first hit below row 0, every time") << QStringList{ "x1", "y", "x2", "x3" } << "x2" << "";
    QTest::newRow("hit in row 0 is passed over") << QStringList{ "x1", "x2", "y" } << "x2" << "";
    QTest::newRow("only row 0: falls back, blue") << QStringList{ "x1", "y", "z" } << "x1" << Blue;
}

void tst_GenericViewSearch::nextAfterAll()
{
    QFETCH(QStringList, texts);
    QFETCH(QString, expected);
    QFETCH(QString, style);
    Fixture f(false);
    f.addRows(texts);
    f.edit.setText("x");
    f.search->onSearchAll();
    // Rows edited after the search all: a new scan would see them, the kept hits do not.
    f.model.item(texts.size() - 1)->setData("x9", SearchRole);

    for (int press = 0; press < 3; ++press) {
        f.search->onSearchNext();
        QCOMPARE(f.selectedTexts(), QStringList{ expected });
        QCOMPARE(f.button.styleSheet(), style);
    }
}

void tst_GenericViewSearch::hitsForgottenWhenRowsChange_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("expected");
    // A new scan from the top finds row 0; stale hits would pick a later row.
    QTest::newRow("row removed: scans again") << "remove" << "x1";
    QTest::newRow("row inserted above: scans again") << "insert" << "x1";
    QTest::newRow("model reset: scans again") << "reset" << "x1";
    QTest::newRow("row appended: kept hits used") << "append" << "x3";
    // Old hits sat in rows 0, 2 and 3 of the old model.
    QTest::newRow("model replaced: scans the new one") << "replace" << "x2";
    QTest::newRow("model deleted, then replaced") << "delete" << "x2";
}

void tst_GenericViewSearch::hitsForgottenWhenRowsChange()
{
    QFETCH(QString, change);
    QFETCH(QString, expected);
    Fixture f(false);
    auto old = new QStandardItemModel(f.view.get());
    const auto fill = [old](const QStringList &texts) { for (const QString &t : texts) old->appendRow(item(t)); };
    fill({ "x1", "y", "x3", "x4" });
    f.view->setModel(old);
    f.edit.setText("x");
    f.search->onSearchAll();
    QCOMPARE(f.view->selectionModel()->selectedRows().size(), 3);
    old->item(2)->setData("x2", SearchRole);  // seen only by a new scan
    f.view->selectionModel()->clearSelection();
    if (change == "remove") {
        old->removeRow(1);
    } else if (change == "insert") {
        old->insertRow(1, item("y0"));
    } else if (change == "reset") {
        old->clear();
        fill({ "x1", "y", "x2", "x4" });
    } else if (change == "append") {
        fill({ "z" });
        old->item(2)->setData("x3", SearchRole);
    } else {
        if (change == "delete")
            delete old;
        f.addRows({ "y", "x2", "y", "x5" });
        f.view->setModel(&f.model);
    }

    f.search->onSearchNext();

    QCOMPARE(f.selectedTexts(), QStringList{ expected });
}

void tst_GenericViewSearch::children_data()
{
    QTest::addColumn<bool>("withChildren");
    QTest::addColumn<bool>("all");
    QTest::addColumn<QString>("selectedChild");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("next, off: children never match") << false << false << "" << "child" << QStringList();
    QTest::newRow("next, on: the child itself") << true << false << "" << "child" << QStringList{ "node one/child x" };
    QTest::newRow("next, on: parent hit comes first") << true << false << "" << "one" << QStringList{ "node one" };
    QTest::newRow("next, on: from a child to its next sibling") << true << false << "child x" << "child"
                                                                 << QStringList{ "node one/child beta" };
    QTest::newRow("next, on: from the last child to the next row") << true << false << "child beta" << "beta"
                                                                    << QStringList{ "beta top" };
    QTest::newRow("all, off") << false << true << "" << "beta" << QStringList{ "beta top" };
    QTest::newRow("all, on: parent and child") << true << true << "" << "o" << QStringList{ "beta top", "node one", "other", "other/gone too" };
}

void tst_GenericViewSearch::children()
{
    QFETCH(bool, withChildren);
    QFETCH(bool, all);
    QFETCH(QString, selectedChild);
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    Fixture f(true);
    f.addRows({ "node one", "other", "beta top" });
    f.model.item(0)->appendRow(item("child x"));
    f.model.item(0)->appendRow(item("child beta"));
    f.model.item(1)->appendRow(item("gone too"));
    if (!selectedChild.isEmpty()) {
        const QModelIndex child = f.model.match(f.model.index(0, 0, f.model.index(0, 0)), SearchRole,
                                                selectedChild).value(0);
        QVERIFY(child.isValid());
        f.view->selectionModel()->select(child, QItemSelectionModel::ClearAndSelect);
    }
    if (withChildren)
        f.search->getMenuAction(GenericViewSearch::SearchSubElements)->trigger();

    f.edit.setText(text);
    run(*f.search, all);
    QCOMPARE(f.selectedTexts(), expected);
}

void tst_GenericViewSearch::colourIsReset()
{
    Fixture f(false);
    f.addRows(rows);
    f.edit.setText("nowhere");
    f.search->onSearchNext();
    QCOMPARE(f.button.styleSheet(), Red);
    QTRY_COMPARE(f.button.styleSheet(), QString());

    f.search->searchResult(GenericViewSearch::Wrapped);
    QCOMPARE(f.button.styleSheet(), Blue);
    QTRY_COMPARE(f.button.styleSheet(), QString());
}

struct ShowCounter : QObject
{
    int shows = 0;
    bool eventFilter(QObject *, QEvent *event) override { shows += event->type() == QEvent::Show; return false; }
};

void tst_GenericViewSearch::shortSearchShowsNoProgress()
{
    Fixture f(false);
    f.addRows(rows);
    f.view->show();
    auto dialog = f.view->findChild<QProgressDialog *>();
    QVERIFY(dialog);
    ShowCounter counter;
    dialog->installEventFilter(&counter);

    f.edit.setText("nowhere");
    f.search->onSearchNext();
    // The colour goes back after a second, long after the 200 ms check has run.
    QTRY_COMPARE(f.button.styleSheet(), QString());
    QCOMPARE(counter.shows, 0);
    QVERIFY(!dialog->isVisible());
}

// A model whose row 1500 takes long to read, as a slow data source would.
class SlowModel : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex &parent = QModelIndex()) const override { return parent.isValid() ? 0 : 5000; }
    int columnCount(const QModelIndex &parent = QModelIndex()) const override { return parent.isValid() ? 0 : 1; }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != SearchRole)
            return QVariant();
        if (index.row() == 1500) {
            QElapsedTimer timer;
            timer.start();
            while (timer.elapsed() < 300) { }
        }
        if (index.row() == 2500 && dialog) {
            visibleLater = dialog->isVisible();
            label = dialog->labelText();
        }
        return QStringLiteral("row %1").arg(index.row());
    }
    QProgressDialog *dialog = nullptr;
    mutable bool visibleLater = false;
    mutable QString label;
};

void tst_GenericViewSearch::slowSearchShowsProgress()
{
    SlowModel model;
    QTableView view;
    view.setModel(&model);
    view.show();
    GenericViewSearch search(&view, nullptr, nullptr);
    model.dialog = view.findChild<QProgressDialog *>();
    QVERIFY(model.dialog);

    search.searchAllOccurrence("row 4999");

    QVERIFY(model.visibleLater);  // shown by the events run at row 2000
    QCOMPARE(model.label, QString("Searching..."));
    QVERIFY(!model.dialog->isVisible());
    QCOMPARE(view.selectionModel()->selectedRows().value(0).row(), 4999);
}

void tst_GenericViewSearch::reentryIgnored_data()
{
    QTest::addColumn<bool>("all");
    QTest::newRow("search next during a scan") << false;
    QTest::newRow("search all during a scan") << true;
}

void tst_GenericViewSearch::reentryIgnored()
{
    QFETCH(bool, all);
    Fixture f(false);
    f.addRows(rows);
    QSignalSpy stop(f.search.get(), &GenericViewSearch::stopAutoscroll);
    f.edit.setText("beta");
    // Runs inside the scan's own event processing.
    QTimer::singleShot(0, f.search.get(), [&] {
        f.edit.setText("delta");
        run(*f.search, all);
    });

    f.search->searchAllOccurrence("beta");

    QCOMPARE(stop.count(), 1);
    QCOMPARE(f.selectedTexts(), (QStringList{ "Beta", "beta two" }));
}

void tst_GenericViewSearch::survivesDeletedWidgets()
{
    Fixture f(false);
    f.addRows(rows);
    auto edit = new QLineEdit;
    auto button = new QPushButton;
    GenericViewSearch search(f.view.get(), edit, button);
    edit->setText("zeta");
    delete edit;
    delete button;
    search.onSearchNext();  // red on a deleted button: nothing to colour
    search.searchAllOccurrence("beta");
    QCOMPARE(f.selectedTexts(), (QStringList{ "Beta", "beta two" }));
}

void tst_GenericViewSearch::deletedDuringScan()
{
    Fixture f(false);
    f.addRows(rows);
    GenericViewSearch *search = f.search.release();
    QSignalSpy stop(search, &GenericViewSearch::stopAutoscroll);
    // An event handler closes the window that owns the search while it scans.
    QTimer::singleShot(0, [search] { delete search; });
    search->searchAllOccurrence("beta");
    QCOMPARE(stop.count(), 0);
    QCOMPARE(f.selectedTexts(), QStringList());
}

QTEST_MAIN(tst_GenericViewSearch)
#include "tst_genericviewsearch.moc"
