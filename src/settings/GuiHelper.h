// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QMessageBox>
#include <QString>
#include <QVariant>

class QComboBox;
class QLabel;
class QSettings;
class QTableWidget;
class QWidget;

// Keeps the input widgets of a window in QSettings, keyed by object name, and
// offers the common message boxes.
//
// Store selection for every operation: `settings` if given (the caller keeps it);
// else an INI file `fileName`; else QSettings(organizationName, the application's
// "AppNameWithVersion" property). A store created here is synced and freed before
// the call returns.
class COMMONGUI_EXPORT GuiHelper
{
public:
    GuiHelper() = default;

    static void saveSettings(QWidget *widget, QString group, QString fileName, QSettings *settings);
    // Returns false always, also after a successful restore.
    static bool restoreSettings(QWidget *widget, QString group, QString fileName,
                                QSettings *settings);
    static void saveSetting(QString group, QString key, QVariant value, QString fileName,
                            QSettings *settings);
    // An invalid QVariant when the key is missing.
    static QVariant restoreSetting(QString group, QString key, QString fileName,
                                   QSettings *settings);

    // Cell contents of tables marked "SaveTable"; `settings` stays in the caller's group.
    static void saveTable(QTableWidget *table, QSettings &settings);
    static void restoreTable(QTableWidget *table, QSettings &settings);

    // Modal, centred on `parent`; returns the button pressed.
    static int showMessageBox(QWidget *parent, QString title, QString text,
                              QString informativeText, QMessageBox::StandardButtons buttons,
                              QMessageBox::Icon icon);
    // Modeless, owned by `parent`; always -1 (nothing is shown without a parent).
    static int showNonBlockingMessageBox(QWidget *parent, QString title, QString text,
                                         QString informativeText,
                                         QMessageBox::StandardButtons buttons,
                                         QMessageBox::Icon icon);
    static void makeLabelBold(QLabel *label, bool bold);
    // Selects the first item whose Qt::UserRole data equals `value`. Without a match
    // the current item stays and *index receives the item count, not -1.
    static bool setComboboxValue(QComboBox *combo, QVariant value, int *index);

    /**
     * Saves the size and position of @p window and, for a QMainWindow, the
     * layout of its docks and tool bars, under the keys "_windowGeometry" and
     * "_windowState" in @p group, with the same store selection as saveSettings().
     */
    static void saveWindowState(QWidget *window, QString group, QString fileName, QSettings *settings);
    /**
     * Restores what saveWindowState() saved; call it once the window's docks and
     * tool bars exist. Returns false, leaving the window as it is, when nothing
     * was saved for @p group.
     */
    static bool restoreWindowState(QWidget *window, QString group, QString fileName,
                                   QSettings *settings);
};
