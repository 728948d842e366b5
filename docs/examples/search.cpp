// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Searching a trace table from a line edit, a find button and menu actions.
#include <CommonGUI/GenericViewSearch.h>

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QToolBar>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QMainWindow window;

    // The search reads role 0x12345 of column 0, never the display text.
    QStandardItemModel model;
    const QStringList frames = { "0x181 TPDO1 8 01 02", "0x701 Heartbeat 1 05", "0x581 TSDO 8 43 00 10" };
    for (const QString &frame : frames) {
        auto item = new QStandardItem(frame.section(QLatin1Char(' '), 0, 0));
        item->setData(frame, GenericViewSearch::SearchRole);
        model.appendRow(item);
    }
    auto view = new QTableView(&window);
    view->setModel(&model);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    window.setCentralWidget(view);

    auto edit = new QLineEdit;
    auto find = new QPushButton(QObject::tr("Find"));
    QToolBar *bar = window.addToolBar(QObject::tr("Search"));
    bar->addWidget(edit);
    bar->addWidget(find);

    // Return in the line edit searches the next hit; the button only shows the outcome
    // by colour, so connect its click yourself.
    auto search = new GenericViewSearch(view, edit, find, &window);
    QObject::connect(find, &QPushButton::clicked, search, &GenericViewSearch::onSearchNext);

    QMenu *menu = window.menuBar()->addMenu(QObject::tr("&Search"));
    menu->addAction(search->getMenuAction(GenericViewSearch::SearchNext));  // F3
    menu->addAction(search->getMenuAction(GenericViewSearch::SearchAll));   // F4
    menu->addAction(search->getMenuAction(GenericViewSearch::SearchSubElements));

    // A view that follows new frames should stop following once hits are shown.
    QObject::connect(search, &GenericViewSearch::stopAutoscroll, view, [] { /* autoscroll off */ });

    window.show();
    return app.exec();
}
