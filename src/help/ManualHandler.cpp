// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ManualHandler.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>
#include <QUrl>

const QMap<QString, QString> ManualHandler::mFileNameToDisplayName = {
    { QStringLiteral("handbook_tarvet_de"), QStringLiteral("Handbuch (de)") },
    { QStringLiteral("handbook_tarvet_en"), QStringLiteral("Manual (en)") },
    { QStringLiteral("manual_tarvet_de"), QStringLiteral("Benutzerhandbuch (de)") },
    { QStringLiteral("manual_tarvet_en"), QStringLiteral("User Manual (en)") },
    { QStringLiteral("extension_tarvet_de"), QStringLiteral("Erweiterungshandbuch - Vendor (de)") },
    { QStringLiteral("extension_tarvet_en"), QStringLiteral("Extension Manual - Vendor (en)") },
    { QStringLiteral("handbook_brisca_de"), QStringLiteral("Handbuch Brisca (de)") },
    { QStringLiteral("handbook_brisca_en"), QStringLiteral("Brisca Manual (en)") },
    { QStringLiteral("extension_brisca_de"), QStringLiteral("Erweiterungshandbuch - Brisca (de)") },
    { QStringLiteral("extension_brisca_en"), QStringLiteral("Extension Manual - Brisca (en)") },
    { QStringLiteral("scripting_reference_de"), QStringLiteral("Skript-API (de)") },
    { QStringLiteral("scripting_reference"), QStringLiteral("Script API (en)") },
};

ManualHandler::ManualHandler(QObject *parent)
    : QObject(parent)
    , manualsMenu(nullptr)
{
    createMenu();
}

void ManualHandler::createMenu()
{
    manualsMenu = new QMenu(QStringLiteral("Manuals"));
    m_menuHandedOut = false;
    // The host may free the menu while the handler lives on.
    connect(manualsMenu, &QObject::destroyed, this, [this] { manualsMenu = nullptr; });
}

ManualHandler::~ManualHandler()
{
    if (!m_menuHandedOut)
        delete manualsMenu;
}

void ManualHandler::setManualsPath(const QString &path)
{
    manualsPath = path;
}

QMenu *ManualHandler::getManualsMenu()
{
    if (!manualsMenu)
        createMenu();
    // Entries belong to the menu: clearing deletes them.
    manualsMenu->clear();

    // QDir reads an empty path as the working directory, which holds no manuals.
    const QFileInfoList entries = manualsPath.isEmpty()
            ? QFileInfoList()
            : QDir(manualsPath).entryInfoList({ QStringLiteral("*.pdf") });
    for (const QFileInfo &entry : entries) {
        const QString baseName = entry.baseName();
        const QString title = mFileNameToDisplayName.value(baseName, baseName);
        auto action = new QAction(title, manualsMenu);
        action->setData(entry.absoluteFilePath());
        connect(action, &QAction::triggered, this, &ManualHandler::actionTriggered);
        // The menu may outlive the handler: the entry then opens its manual itself.
        connect(action, &QAction::triggered, action, [action, alive = QPointer<ManualHandler>(this)] {
            if (!alive)
                openManual(action);
        });
        manualsMenu->addAction(action);
    }
    if (manualsMenu->actions().isEmpty())
        return nullptr;
    m_menuHandedOut = true;
    return manualsMenu;
}

void ManualHandler::actionTriggered()
{
    if (auto action = qobject_cast<QAction *>(sender()))
        openManual(action);
}

void ManualHandler::openManual(const QAction *action)
{
    QDesktopServices::openUrl(QUrl(QStringLiteral("file:///") + action->data().toString()));
}
