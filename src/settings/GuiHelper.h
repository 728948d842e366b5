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

/**
 * Keeps the input widgets of a window in QSettings, keyed by their object
 * names, and offers the common message boxes and small widget chores.
 *
 * The widgets below the given one are found by type: QLineEdit (unless
 * read-only), QCheckBox, QSpinBox, QComboBox (by item data under
 * "<name>_data" when the item has Qt::UserRole data, else by text), QHexEdit,
 * QPlainTextEdit, checkable QGroupBox, and QTableWidget when it carries the
 * dynamic property "SaveTable". A widget with the dynamic property
 * "ExcludeSaving" (whatever its value) or without an object name is skipped.
 * Subclasses count as their base type, so a QDoubleSpinBox is not saved.
 *
 * Every operation picks its store the same way: @p settings when given (the
 * caller keeps it); else the INI file @p fileName; else
 * QSettings(organizationName, the application's "AppNameWithVersion"
 * property), so each tool version keeps its own settings. A store created here
 * is synced and freed before the call returns.
 */
class COMMONGUI_EXPORT GuiHelper
{
public:
    /** Constructs a helper; all operations are static. */
    GuiHelper() = default;

    /** Saves the input widgets below @p widget into @p group, one key per widget, and syncs the store. */
    static void saveSettings(QWidget *widget, QString group, QString fileName, QSettings *settings);
    /**
     * Restores the input widgets below @p widget from @p group; a missing key
     * leaves its widget as it is, and a missing group all of them. The widgets
     * emit their usual change signals, and checkable group boxes also clicked().
     * Returns false always, also after a successful restore.
     */
    static bool restoreSettings(QWidget *widget, QString group, QString fileName,
                                QSettings *settings);
    /** Stores @p value under @p key in @p group. */
    static void saveSetting(QString group, QString key, QVariant value, QString fileName,
                            QSettings *settings);
    /** Returns the value of @p key in @p group, or an invalid QVariant when the key is missing. */
    static QVariant restoreSetting(QString group, QString key, QString fileName,
                                   QSettings *settings);

    /**
     * Saves the cell texts of @p table under a group named after the table
     * inside the current group of @p settings, which it leaves as it found it.
     */
    static void saveTable(QTableWidget *table, QSettings &settings);
    /** Restores the cell texts saved by saveTable(); a table never saved stays as it is. */
    static void restoreTable(QTableWidget *table, QSettings &settings);

    /**
     * Shows a modal message box with @p title, @p text, @p informativeText,
     * @p buttons and @p icon, centred on @p parent when given, and returns the
     * standard button pressed.
     */
    static int showMessageBox(QWidget *parent, QString title, QString text,
                              QString informativeText, QMessageBox::StandardButtons buttons,
                              QMessageBox::Icon icon);
    /**
     * Shows a modeless message box owned by @p parent and centred on it, and
     * returns -1 at once: the caller does not learn the button pressed. Without
     * a parent nothing is shown.
     */
    static int showNonBlockingMessageBox(QWidget *parent, QString title, QString text,
                                         QString informativeText,
                                         QMessageBox::StandardButtons buttons,
                                         QMessageBox::Icon icon);
    /** Makes the text of @p label bold, or normal when @p bold is false. */
    static void makeLabelBold(QLabel *label, bool bold);
    /**
     * Selects the first item of @p combo whose Qt::UserRole data equals @p value
     * and returns true, storing its position in @p index when given. Without a
     * match the current item stays, @p index receives the item count (not -1)
     * and the result is false; a null @p combo gives false.
     */
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
