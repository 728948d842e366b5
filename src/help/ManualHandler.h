// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QMap>
#include <QObject>
#include <QString>

class QAction;
class QMenu;

/**
 * Builds a "Manuals" submenu from the PDF files of a directory and opens the
 * chosen one in the desktop's PDF viewer.
 *
 * Each "*.pdf" file becomes an entry titled by mFileNameToDisplayName, or by its
 * base name when the table does not know it. The menu's title "Manuals" is not
 * translated.
 */
class COMMONGUI_EXPORT ManualHandler : public QObject
{
    Q_OBJECT

public:
    /** Constructs a handler without a manuals directory. */
    explicit ManualHandler(QObject *parent = nullptr);
    /**
     * Destroys the handler but leaves a menu it has handed out alone: whoever
     * inserted it into a menu bar frees it, and its entries keep working until then.
     */
    ~ManualHandler() override;

    /** Sets the directory searched for manuals to @p path. */
    void setManualsPath(const QString &path);
    /**
     * Refills the menu from the manuals directory and returns it, or null when
     * the directory is missing or holds no PDF file. Insert the menu into a menu
     * bar or menu; whoever does so frees it.
     */
    QMenu *getManualsMenu();

    /**
     * The menu titles of the maker's manuals by base name, the file name up to
     * its first dot, compared case-sensitively: "handbook_tarvet_de" gives
     * "Handbuch (de)".
     */
    static const QMap<QString, QString> mFileNameToDisplayName;

public Q_SLOTS:
    /** Opens the manual of the menu entry that sent the signal; a failure is not reported. */
    void actionTriggered();

private:
    void createMenu();
    static void openManual(const QAction *action);

    QString manualsPath;
    QMenu *manualsMenu;
    bool m_menuHandedOut = false;
};
