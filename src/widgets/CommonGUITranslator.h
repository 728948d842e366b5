// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QLocale>
#include <QStringList>
#include <QTranslator>

class QCoreApplication;

/**
 * A translator for the library's own texts, from the catalogues
 * "commongui_<language>.qm".
 *
 * Install it next to the tool's own translator:
 * \code
 * auto translator = new CommonGUITranslator(&app);
 * if (translator->loadLocale())   // the user's locale
 *     app.installTranslator(translator);
 * \endcode
 * or let installTranslations() do that and add Qt's own catalogues.
 */
class COMMONGUI_EXPORT CommonGUITranslator : public QTranslator
{
    Q_OBJECT

public:
    /** Constructs a translator with no catalogue loaded. */
    explicit CommonGUITranslator(QObject *parent = nullptr);

    /**
     * Loads the catalogue of @p language, given as "de", "de_AT" or "de-DE".
     * Looks in @p directory first when given, then in the installed catalogue
     * folder, then in the copy built into the library. Returns false when no
     * catalogue for the language exists; the translator is then empty.
     */
    bool loadLanguage(const QString &language, const QString &directory = QString());

    /**
     * Loads the catalogue of the first of @p locale's QLocale::uiLanguages()
     * that has one, looking as loadLanguage() does. Returns false when none has.
     */
    bool loadLocale(const QLocale &locale = QLocale(), const QString &directory = QString());

    /**
     * Returns the folder of the installed catalogues,
     * \<prefix\>/share/commongui/translations, found relative to the loaded
     * library so that a moved prefix keeps working.
     */
    static QString installedCatalogueDirectory();

    /**
     * Installs into @p app the library's catalogue for @p locale and, when they
     * are present in Qt's translations folder, Qt's own "qtbase" and "qt_help"
     * catalogues of the same language (standard buttons, help search texts).
     * The translators are children of @p app. Returns the names of the
     * catalogues installed, such as ("commongui_de", "qtbase_de", "qt_help_de");
     * the list is empty, and nothing is installed, when the library has no
     * catalogue for the locale.
     */
    static QStringList installTranslations(QCoreApplication *app, const QLocale &locale = QLocale(),
                                           const QString &directory = QString());
};
