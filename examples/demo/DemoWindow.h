// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QMainWindow>
#include <QStringList>

#include <functional>

class QLabel;
class QLineEdit;
class QMenu;

// The demo tool's main window. Modules add menu entries, status text and
// windows for the --screenshots mode.
class DemoWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit DemoWindow(const QStringList &arguments, QWidget *parent = nullptr);

    QMenu *fileMenu() const { return m_fileMenu; }
    QMenu *toolsMenu() const { return m_toolsMenu; }
    QMenu *helpMenu() const { return m_helpMenu; }
    const QStringList &arguments() const { return m_arguments; }
    bool screenshotMode() const;

    // The permanent status text ("Ready"); menus hovering over it do not wipe it.
    void showStatus(const QString &text);
    // Adds a page of the central log view: what happened, for the user to see.
    void log(const QString &text);

    // A window that --screenshots renders to "<name>.png". The factory creates it
    // (with no parent) and may fill it with sample data; the screenshot mode deletes it.
    void addScreenshot(const QString &name, std::function<QWidget *()> factory);
    // Renders the main window and every registered window into `dir`; returns false
    // if a file could not be written.
    bool writeScreenshots(const QString &dir);

    // Hooks run before the window closes (for saving state).
    void onClose(std::function<void()> hook) { m_closeHooks.append(std::move(hook)); }

    // Questions and tips shown once the window is on screen, one after the other:
    // a step calls `done` when its dialog is gone.
    using StartupStep = std::function<void(std::function<void()> done)>;
    void addStartupStep(StartupStep step) { m_startupSteps.append(std::move(step)); }

    // Ctrl+F in `window` puts the cursor into `field`.
    static void addFindShortcut(QWidget *window, QLineEdit *field);
    // Size, position and (main windows) docks and tool bars kept in the tool's settings.
    static void keepWindowState(QWidget *window, const QString &group);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void runNextStartupStep();
    void findInLog();

    QStringList m_arguments;
    QMenu *m_fileMenu = nullptr;
    QMenu *m_toolsMenu = nullptr;
    QMenu *m_helpMenu = nullptr;
    class QPlainTextEdit *m_log = nullptr;
    QLineEdit *m_find = nullptr;
    QLabel *m_status = nullptr;
    QList<QPair<QString, std::function<QWidget *()>>> m_screenshots;
    QList<std::function<void()>> m_closeHooks;
    QList<StartupStep> m_startupSteps;
    bool m_started = false;
};
