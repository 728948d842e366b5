// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CommonGUITranslator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>

#include <dlfcn.h>

namespace {
QString libraryDirectory()
{
    Dl_info info;
    if (dladdr(reinterpret_cast<void *>(&libraryDirectory), &info) == 0 || !info.dli_fname)
        return QString();
    return QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absolutePath();
}

QStringList searchFolders(const QString &directory)
{
    QStringList folders;
    if (!directory.isEmpty())
        folders << directory;
    const QString installed = CommonGUITranslator::installedCatalogueDirectory();
    if (!installed.isEmpty())
        folders << installed;
    folders << QStringLiteral(":/commongui/i18n");
    return folders;
}

QString qtTranslationsPath()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}
}

CommonGUITranslator::CommonGUITranslator(QObject *parent)
    : QTranslator(parent)
{
}

bool CommonGUITranslator::loadLanguage(const QString &language, const QString &directory)
{
    if (language.trimmed().isEmpty())
        return false;
    // QLocale reads "de", "de_AT" and "de-DE" alike; an unknown code gives "C".
    const QLocale locale(language.trimmed());
    if (locale.language() == QLocale::C)
        return false;
    return loadLocale(locale, directory);
}

bool CommonGUITranslator::loadLocale(const QLocale &locale, const QString &directory)
{
    if (locale.language() == QLocale::C)
        return false;
    const QStringList folders = searchFolders(directory);
    for (QString language : locale.uiLanguages()) {
        language.replace(QLatin1Char('-'), QLatin1Char('_'));
        // "de_Latn_DE" and "de_DE" fall back to "de", the catalogues' naming.
        QStringList candidates{language};
        for (int cut = language.lastIndexOf(QLatin1Char('_')); cut > 0;
             cut = language.lastIndexOf(QLatin1Char('_'), cut - 1))
            candidates << language.left(cut);
        for (const QString &candidate : qAsConst(candidates)) {
            for (const QString &folder : folders) {
                if (load(QStringLiteral("commongui_") + candidate, folder))
                    return true;
            }
        }
    }
    return false;
}

QString CommonGUITranslator::installedCatalogueDirectory()
{
    const QString libraryDir = libraryDirectory();
    if (libraryDir.isEmpty())
        return QString();
    return QDir::cleanPath(libraryDir + QLatin1Char('/') + QStringLiteral(COMMONGUI_LIB_TO_CATALOGUES));
}

QStringList CommonGUITranslator::installTranslations(QCoreApplication *app, const QLocale &locale,
                                                     const QString &directory)
{
    QStringList installed;
    if (!app)
        return installed;
    auto *own = new CommonGUITranslator(app);
    if (!own->loadLocale(locale, directory)) {
        delete own;
        return installed;
    }
    app->installTranslator(own);
    // The catalogue's file name tells which language matched.
    const QString language = QFileInfo(own->filePath()).completeBaseName().mid(int(qstrlen("commongui_")));
    installed << QStringLiteral("commongui_") + language;
    const QString qtDir = qtTranslationsPath();
    for (const char *base : {"qtbase", "qt_help"}) {
        auto *qt = new QTranslator(app);
        const QString name = QLatin1String(base) + QLatin1Char('_') + language;
        if (qt->load(name, qtDir)) {
            app->installTranslator(qt);
            installed << name;
        } else {
            delete qt;
        }
    }
    return installed;
}
