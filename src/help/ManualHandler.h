// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QMap>
#include <QObject>
#include <QString>

class QAction;
class QMenu;

// Builds a "Manuals" submenu from the PDF files of a directory and opens the
// chosen one in the desktop's viewer.
class COMMONGUI_EXPORT ManualHandler : public QObject
{
    Q_OBJECT

public:
    explicit ManualHandler(QObject *parent = nullptr);
    // Leaves a menu it has handed out alone: whoever inserted it into a menu
    // bar frees it, and its entries, which keep working, with it.
    ~ManualHandler() override;

    void setManualsPath(const QString &path);
    // Refills the menu; null when the directory holds no manual.
    QMenu *getManualsMenu();

    // Menu titles by manual base name ("handbook_tarvet_de" -> "Handbuch (de)").
    static const QMap<QString, QString> mFileNameToDisplayName;

public Q_SLOTS:
    void actionTriggered();

private:
    void createMenu();
    static void openManual(const QAction *action);

    QString manualsPath;
    QMenu *manualsMenu;
    bool m_menuHandedOut = false;
};
