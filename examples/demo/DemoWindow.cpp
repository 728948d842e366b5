// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DemoWindow.h"

#include "DemoModule.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>

#include <algorithm>

QList<DemoModule> &demoModules()
{
    static QList<DemoModule> modules;
    return modules;
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
    m_log->setPlaceholderText(tr("Activity of the demo tool appears here."));
    setCentralWidget(m_log);
    resize(900, 600);

    QList<DemoModule> modules = demoModules();
    std::stable_sort(modules.begin(), modules.end(),
                     [](const DemoModule &a, const DemoModule &b) { return a.order < b.order; });
    for (const DemoModule &module : modules) {
        module.install(this);
        log(tr("Module loaded: %1").arg(module.name));
    }

    m_fileMenu->addSeparator();
    m_fileMenu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
    showStatus(tr("Ready"));
}

void DemoWindow::showStatus(const QString &text)
{
    statusBar()->showMessage(text);
}

void DemoWindow::log(const QString &text)
{
    m_log->appendPlainText(text);
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

void DemoWindow::closeEvent(QCloseEvent *event)
{
    for (const auto &hook : qAsConst(m_closeHooks))
        hook();
    event->accept();
}
