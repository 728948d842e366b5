// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QLocale>
#include <QStringList>
#include <QTranslator>

class QCoreApplication;

// The library's own translations ("commongui_<language>.qm"). Install it next
// to the tool's translator:
//     auto translator = new CommonGUITranslator(&app);
//     if (translator->loadLocale())   // the user's locale
//         app.installTranslator(translator);
// or let installTranslations() do that and add Qt's own catalogues.
class COMMONGUI_EXPORT CommonGUITranslator : public QTranslator
{
    Q_OBJECT

public:
    explicit CommonGUITranslator(QObject *parent = nullptr);

    // Loads the catalogue of one language, given as "de", "de_AT" or "de-DE".
    // Looks in `directory` first when given, then in the installed catalogue
    // folder, then in the copy built into the library.
    bool loadLanguage(const QString &language, const QString &directory = QString());

    // Loads the catalogue of the first of locale.uiLanguages() that has one.
    bool loadLocale(const QLocale &locale = QLocale(), const QString &directory = QString());

    // Folder of the installed catalogues (<prefix>/share/commongui/translations),
    // found relative to the loaded library.
    static QString installedCatalogueDirectory();

    // Installs into `app` the library's catalogue for `locale` and, when they
    // are present in Qt's translations folder, Qt's own "qtbase" and "qt_help"
    // catalogues for the same language (standard buttons, help search texts).
    // The translators are children of `app`. Returns the names of the catalogues
    // installed, e.g. ("commongui_de", "qtbase_de", "qt_help_de"); empty when
    // the library has no catalogue for the locale.
    static QStringList installTranslations(QCoreApplication *app, const QLocale &locale = QLocale(),
                                           const QString &directory = QString());
};
