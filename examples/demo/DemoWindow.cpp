// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DemoWindow.h"

#include "DemoModule.h"

#include "GuiHelper.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include <algorithm>

QList<DemoModule> &demoModules()
{
    static QList<DemoModule> modules;
    return modules;
}

namespace {

// Saves a window's state when it closes, whoever closes it.
class WindowStateKeeper : public QObject
{
public:
    WindowStateKeeper(QWidget *window, const QString &group)
        : QObject(window), m_window(window), m_group(group)
    {
        window->installEventFilter(this);
        if (GuiHelper::restoreWindowState(window, group, QString(), nullptr))
            window->setProperty("demoPlaced", true);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_window && event->type() == QEvent::Close)
            GuiHelper::saveWindowState(m_window, m_group, QString(), nullptr);
        return false;
    }

private:
    QWidget *m_window;
    QString m_group;
};

}

DemoWindow::DemoWindow(const QStringList &arguments, QWidget *parent)
    : QMainWindow(parent)
    , m_arguments(arguments)
{
    setObjectName(QStringLiteral("DemoWindow"));
    setWindowTitle(QStringLiteral("%1 %2").arg(QApplication::applicationName(),
                                              QApplication::applicationVersion()));
    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_toolsMenu = menuBar()->addMenu(tr("&Tools"));
    m_helpMenu = menuBar()->addMenu(tr("&Help"));

    m_log = new QPlainTextEdit(this);
    m_log->setObjectName(QStringLiteral("edtActivityLog"));
    m_log->setReadOnly(true);
    m_log->setTabChangesFocus(true);
    m_log->setPlaceholderText(tr("Activity of the demo tool appears here."));
    setCentralWidget(m_log);
    m_status = new QLabel(this);
    statusBar()->addWidget(m_status, 1);
    resize(900, 600);

    QList<DemoModule> modules = demoModules();
    std::stable_sort(modules.begin(), modules.end(),
                     [](const DemoModule &a, const DemoModule &b) { return a.order < b.order; });
    for (const DemoModule &module : modules) {
        module.install(this);
        log(tr("Module loaded: %1").arg(QCoreApplication::translate("DemoModule", module.name.toUtf8().constData())));
    }

    // Searching the log: the main window's view, like every other window's.
    QToolBar *findBar = addToolBar(tr("Find"));
    findBar->setObjectName(QStringLiteral("tbrFind"));
    m_find = new QLineEdit(findBar);
    m_find->setObjectName(QStringLiteral("edtFindInLog"));
    m_find->setProperty("ExcludeSaving", true);
    m_find->setPlaceholderText(tr("Find in the log (Ctrl+F)"));
    m_find->setClearButtonEnabled(true);
    m_find->setMaximumWidth(240);
    findBar->addWidget(m_find);
    connect(m_find, &QLineEdit::returnPressed, this, &DemoWindow::findInLog);
    addFindShortcut(this, m_find);

    m_fileMenu->addSeparator();
    QAction *quit = m_fileMenu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
    // From any window of the tool, not only this one.
    quit->setShortcutContext(Qt::ApplicationShortcut);
    showStatus(tr("Ready"));
    if (!screenshotMode()) {
        keepWindowState(this, objectName());
        qApp->installEventFilter(this);
    }
}

// Windows the tool opens without a place of their own (hex editor, trace) come
// up over the main window, not wherever the window manager puts them.
bool DemoWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show || !watched->isWidgetType())
        return false;
    auto window = static_cast<QWidget *>(watched);
    const Qt::WindowType type = window->windowType();
    if (window == this || !window->isWindow() || (type != Qt::Window && type != Qt::Dialog)
        || window->property("demoPlaced").isValid())
        return false;
    window->setProperty("demoPlaced", true);
    // Dialogs with a parent are centred by Qt, or placed by whoever opened them.
    if (qobject_cast<QDialog *>(window) && window->parentWidget())
        return false;
    QRect placed(QPoint(), window->frameGeometry().size());
    placed.moveCenter(frameGeometry().center());
    if (QScreen *screen = this->screen()) {
        const QRect available = screen->availableGeometry();
        placed.moveTopLeft(QPoint(qMax(placed.left(), available.left()), qMax(placed.top(), available.top())));
    }
    window->move(placed.topLeft());
    return false;
}

bool DemoWindow::screenshotMode() const
{
    return std::any_of(m_arguments.cbegin(), m_arguments.cend(), [](const QString &argument) {
        return argument.startsWith(QLatin1String("--screenshots"));
    });
}

void DemoWindow::showStatus(const QString &text)
{
    m_status->setText(text);
}

void DemoWindow::log(const QString &text)
{
    m_log->appendPlainText(text);
}

void DemoWindow::findInLog()
{
    const QString text = m_find->text();
    if (text.isEmpty())
        return;
    if (!m_log->find(text)) {
        m_log->moveCursor(QTextCursor::Start);  // wrap around
        if (!m_log->find(text))
            statusBar()->showMessage(tr("\"%1\" is not in the log").arg(text), 3000);
    }
}

void DemoWindow::addFindShortcut(QWidget *window, QLineEdit *field)
{
    auto shortcut = new QShortcut(QKeySequence::Find, window);
    connect(shortcut, &QShortcut::activated, field, [field] {
        field->setFocus(Qt::ShortcutFocusReason);
        field->selectAll();
    });
}

void DemoWindow::keepWindowState(QWidget *window, const QString &group)
{
    new WindowStateKeeper(window, group);
}

void DemoWindow::addScreenshot(const QString &name, std::function<QWidget *()> factory)
{
    m_screenshots.append({ name, std::move(factory) });
}

bool DemoWindow::writeScreenshots(const QString &dir)
{
    QDir().mkpath(dir);
    bool ok = true;
    show();
    QApplication::processEvents();
    ok &= grab().save(QDir(dir).filePath(QStringLiteral("main-window.png")));
    for (const auto &entry : qAsConst(m_screenshots)) {
        QWidget *widget = entry.second();
        if (!widget)
            continue;
        widget->show();
        QApplication::processEvents();
        ok &= widget->grab().save(QDir(dir).filePath(entry.first + QStringLiteral(".png")));
        widget->close();
        delete widget;
    }
    return ok;
}

void DemoWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (m_started || screenshotMode())
        return;
    m_started = true;
    // Once the window manager has placed the window, so dialogs centre on it.
    QTimer::singleShot(300, this, &DemoWindow::runNextStartupStep);
}

void DemoWindow::runNextStartupStep()
{
    if (m_startupSteps.isEmpty())
        return;
    const StartupStep step = m_startupSteps.takeFirst();
    QPointer<DemoWindow> self(this);
    step([self] {
        if (self)
            QTimer::singleShot(0, self, &DemoWindow::runNextStartupStep);
    });
}

void DemoWindow::closeEvent(QCloseEvent *event)
{
    for (const auto &hook : qAsConst(m_closeHooks))
        hook();
    event->accept();
    // The tool ends with its main window: other windows (hex editor, trace) close too.
    const QList<QWidget *> windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window != this && window->isVisible())
            window->close();
    }
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
}
