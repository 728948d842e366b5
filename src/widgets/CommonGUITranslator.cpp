// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CommonGUITranslator.h"

#include <QFileInfo>

#include <dlfcn.h>

namespace {
QString libraryDirectory()
{
    Dl_info info;
    if (dladdr(reinterpret_cast<void *>(&libraryDirectory), &info) == 0 || !info.dli_fname)
        return QString();
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
}
}

CommonGUITranslator::CommonGUITranslator(QObject *parent)
    : QTranslator(parent)
{
}

bool CommonGUITranslator::loadLanguage(const QString &language, const QString &directory)
{
    const QString name = QStringLiteral("commongui_") + language;
    QStringList folders;
    if (!directory.isEmpty())
        folders << directory;
    const QString libraryDir = libraryDirectory();
    if (!libraryDir.isEmpty())
        folders << libraryDir;
    folders << QStringLiteral(":/commongui/i18n");
    for (const QString &folder : qAsConst(folders)) {
        if (load(name, folder))
            return true;
    }
    return false;
}
