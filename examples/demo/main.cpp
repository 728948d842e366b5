// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// A small CANopen tool of the family, built on CommonGUI like any other.
#include "DemoWindow.h"

#include "CommonGUITranslator.h"
#include "DebugCrashHandler.h"
#include "KorvilBaseApplication.h"

#include <QCommandLineParser>
#include <QTimer>

#include <cstdio>

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

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Demo tool of the CommonGUI library"));
    parser.addHelpOption();
    const QCommandLineOption screenshots(QStringLiteral("screenshots"),
            QStringLiteral("Render every window to PNG files in <dir> and exit."), QStringLiteral("dir"));
    const QCommandLineOption quitAfter(QStringLiteral("quit-after"),
            QStringLiteral("Quit after <ms> milliseconds (for smoke tests)."), QStringLiteral("ms"));
    parser.addOption(screenshots);
    parser.addOption(quitAfter);
    // The library's own switches (--debug-log, ...) and module switches pass through.
    for (const char *name : { "debug-log", "with-debug", "debug-detailed", "debug-standard",
                              "instrument-functions" })
        parser.addOption(QCommandLineOption(QString::fromLatin1(name), QStringLiteral("See the README.")));
    const QCommandLineOption lang(QStringLiteral("lang"), QStringLiteral("User interface language."),
                                  QStringLiteral("code"));
    parser.addOption(lang);
    parser.process(app);
    // The user's locale picks the language (the library's catalogue and Qt's own);
    // --lang overrides it.
    CommonGUITranslator::installTranslations(&app, parser.isSet(lang) ? QLocale(parser.value(lang)) : QLocale());

    DemoWindow window(app.arguments());
    if (parser.isSet(screenshots)) {
        const bool ok = window.writeScreenshots(parser.value(screenshots));
        std::printf("screenshots %s in %s\n", ok ? "written" : "FAILED",
                    qPrintable(parser.value(screenshots)));
        return ok ? 0 : 1;
    }
    window.show();
    if (parser.isSet(quitAfter))
        QTimer::singleShot(parser.value(quitAfter).toInt(), &window, &QWidget::close);
    return app.exec();
}
