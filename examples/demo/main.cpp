// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// A small CANopen tool of the family, built on CommonGUI like any other.
#include "DemoWindow.h"

#include "CommonGUITranslator.h"
#include "DebugCrashHandler.h"
#include "KorvilBaseApplication.h"

#include <QCommandLineParser>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <cstdio>

namespace {

const QStringList languages = { QStringLiteral("en"), QStringLiteral("de") };

// "--lang xx" or "--lang=xx" before the parser runs: its own texts are translated too.
QString requestedLanguage(const QStringList &arguments)
{
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == QLatin1String("--lang") && i + 1 < arguments.size())
            return arguments.at(i + 1);
        if (argument.startsWith(QLatin1String("--lang=")))
            return argument.mid(7);
    }
    return QString();
}

// The first of the user's languages that the tool has; English otherwise.
QString systemLanguage()
{
    const QStringList wanted = QLocale().uiLanguages();
    for (const QString &name : wanted) {
        const QString language = name.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
        if (languages.contains(language))
            return language;
    }
    return QStringLiteral("en");
}

void installTranslators(QCoreApplication &app, const QString &language)
{
    // The library's catalogue and Qt's own, then the demo's (English: plural forms only).
    if (language != QLatin1String("en"))
        CommonGUITranslator::installTranslations(&app, QLocale(language));
    auto demo = new QTranslator(&app);
    if (demo->load(QStringLiteral("commongui-demo_") + language, QStringLiteral(":/demo/i18n")))
        app.installTranslator(demo);
}

}

int main(int argc, char **argv)
{
    // Without a display the tool still runs, offscreen.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    KorvilBaseApplication app(argc, argv, QStringLiteral("CommonGUI Demo"), QStringLiteral("0.9.0"));
    app.setOrganizationName(QStringLiteral("Korvil"));
    app.setProperty("AppNameWithVersion", QStringLiteral("CommonGUI Demo 0.9.0"));
    qInstallMessageHandler(messageHandler);

    const QString requested = requestedLanguage(app.arguments());
    QString language = requested.isEmpty() ? systemLanguage() : requested.toLower();
    const bool knownLanguage = languages.contains(language);
    if (!knownLanguage)
        language = QStringLiteral("en");
    installTranslators(app, language);

    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate("main", "Demo tool of the CommonGUI library"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption screenshots(QStringLiteral("screenshots"),
            QCoreApplication::translate("main", "Render every window to PNG files in <dir> and exit."),
            QStringLiteral("dir"));
    const QCommandLineOption quitAfter(QStringLiteral("quit-after"),
            QCoreApplication::translate("main", "Quit after <ms> milliseconds (for smoke tests)."), QStringLiteral("ms"));
    parser.addOption(screenshots);
    parser.addOption(quitAfter);
    // The library's own switches; the application object acts on them.
    parser.addOption({ QStringLiteral("debug-log"),
                       QCoreApplication::translate("main", "Keep the debug log of this run (it is deleted at exit otherwise).") });
    parser.addOption({ QStringLiteral("with-debug"),
                       QCoreApplication::translate("main", "Print debug messages on the console as well.") });
    parser.addOption({ QStringLiteral("debug-detailed"),
                       QCoreApplication::translate("main", "Give every debug message its file, line and function.") });
    parser.addOption({ QStringLiteral("debug-standard"),
                       QCoreApplication::translate("main", "Leave debug messages to Qt's standard handling.") });
    parser.addOption({ QStringLiteral("instrument-functions"),
                       QCoreApplication::translate("main", "Allow Tools > Diagnostics > Record function trace.") });
    const QCommandLineOption lang(QStringLiteral("lang"),
            QCoreApplication::translate("main", "User interface language: en or de (default: the system's)."),
            QStringLiteral("code"));
    parser.addOption(lang);
    parser.process(app);
    if (!knownLanguage) {
        std::fprintf(stderr, "%s\n", qPrintable(QCoreApplication::translate("main",
                "commongui-demo: no translation for language \"%1\" (available: %2); using English.")
                .arg(requested, languages.join(QStringLiteral(", ")))));
    }

    DemoWindow window(app.arguments());
    if (parser.isSet(screenshots)) {
        const bool ok = window.writeScreenshots(parser.value(screenshots));
        std::printf("screenshots %s in %s\n", ok ? "written" : "FAILED",
                    qPrintable(parser.value(screenshots)));
        return ok ? 0 : 1;
    }
    if (!knownLanguage)
        window.log(QCoreApplication::translate("main", "No translation for language \"%1\"; the tool runs in English.")
                       .arg(requested));
    window.show();
    if (parser.isSet(quitAfter))
        QTimer::singleShot(parser.value(quitAfter).toInt(), &window, &QWidget::close);
    return app.exec();
}
