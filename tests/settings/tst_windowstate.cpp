// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "GuiHelper.h"

#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolBar>
#include <QtTest>

class tst_WindowState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void mainWindowRoundTrip_data();
    void mainWindowRoundTrip();
    void dialogRoundTrip();
    void nothingSaved();
    void widgetSettingsUntouched();

private:
    QString file() const { return m_dir.filePath(QStringLiteral("state.ini")); }
    QTemporaryDir m_dir;
};

namespace {
struct Window
{
    Window()
    {
        window.setObjectName(QStringLiteral("Main"));
        dock = new QDockWidget(QStringLiteral("Network"), &window);
        dock->setObjectName(QStringLiteral("dockNetwork"));
        dock->setWidget(new QLineEdit);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        bar = window.addToolBar(QStringLiteral("Files"));
        bar->setObjectName(QStringLiteral("tbrFiles"));
        bar->addAction(QStringLiteral("Open"));
        window.setCentralWidget(new QLineEdit);
    }
    QMainWindow window;
    QDockWidget *dock;
    QToolBar *bar;
};
}

void tst_WindowState::initTestCase()
{
    QVERIFY(m_dir.isValid());
}

void tst_WindowState::mainWindowRoundTrip_data()
{
    QTest::addColumn<bool>("dockVisible");
    QTest::addColumn<int>("barArea");
    QTest::addColumn<QSize>("size");
    QTest::newRow("dock hidden, bar at the bottom") << false << int(Qt::BottomToolBarArea) << QSize(640, 420);
    QTest::newRow("dock shown, bar on the right") << true << int(Qt::RightToolBarArea) << QSize(700, 500);
}

void tst_WindowState::mainWindowRoundTrip()
{
    QFETCH(bool, dockVisible);
    QFETCH(int, barArea);
    QFETCH(QSize, size);
    QFile::remove(file());
    {
        Window before;
        before.window.resize(size);
        before.window.show();
        before.window.addToolBar(Qt::ToolBarArea(barArea), before.bar);
        before.dock->setVisible(dockVisible);
        QVERIFY(QTest::qWaitForWindowExposed(&before.window));
        GuiHelper::saveWindowState(&before.window, QStringLiteral("Main"), file(), nullptr);
    }
    Window after;
    after.window.resize(300, 200);
    QVERIFY(GuiHelper::restoreWindowState(&after.window, QStringLiteral("Main"), file(), nullptr));
    after.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&after.window));
    QCOMPARE(after.window.size(), size);
    QCOMPARE(after.dock->isVisible(), dockVisible);
    QCOMPARE(int(after.window.toolBarArea(after.bar)), barArea);
}

void tst_WindowState::dialogRoundTrip()
{
    QSettings settings(file(), QSettings::IniFormat);
    {
        QDialog dialog;
        dialog.resize(480, 360);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        GuiHelper::saveWindowState(&dialog, QStringLiteral("Dialog"), QString(), &settings);
    }
    QVERIFY(settings.contains(QStringLiteral("Dialog/_windowGeometry")));
    QVERIFY(!settings.contains(QStringLiteral("Dialog/_windowState")));  // no docks in a dialog
    QDialog dialog;
    QVERIFY(GuiHelper::restoreWindowState(&dialog, QStringLiteral("Dialog"), QString(), &settings));
    QCOMPARE(dialog.size(), QSize(480, 360));
}

void tst_WindowState::nothingSaved()
{
    Window window;
    window.window.resize(333, 222);
    QVERIFY(!GuiHelper::restoreWindowState(&window.window, QStringLiteral("Never"), file(), nullptr));
    QCOMPARE(window.window.size(), QSize(333, 222));
    QVERIFY(!GuiHelper::restoreWindowState(nullptr, QStringLiteral("Main"), file(), nullptr));
}

// Window state and widget values share a group without touching each other.
void tst_WindowState::widgetSettingsUntouched()
{
    QFile::remove(file());
    Window window;
    auto edit = qobject_cast<QLineEdit *>(window.window.centralWidget());
    edit->setObjectName(QStringLiteral("edtName"));
    edit->setText(QStringLiteral("kept"));
    GuiHelper::saveSettings(&window.window, QStringLiteral("Main"), file(), nullptr);
    GuiHelper::saveWindowState(&window.window, QStringLiteral("Main"), file(), nullptr);
    edit->clear();
    GuiHelper::restoreSettings(&window.window, QStringLiteral("Main"), file(), nullptr);
    QCOMPARE(edit->text(), QStringLiteral("kept"));
    QSettings settings(file(), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Main"));
    QCOMPARE(settings.childKeys(), QStringList({ "_windowGeometry", "_windowState", "edtName" }));
}

QTEST_MAIN(tst_WindowState)
#include "tst_windowstate.moc"
