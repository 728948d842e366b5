// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include <CommonGUI/CommonGUITranslator.h>
#include <CommonGUI/DebugCrashHandler.h>
#include <CommonGUI/KorvilBaseApplication.h>

#include <cstdio>

int main(int argc, char **argv)
{
    KorvilBaseApplication app(argc, argv, QStringLiteral("Consumer"), QStringLiteral("0.9"));
    qInstallMessageHandler(noMessageOutput);
    std::printf("consumer ok %s Qt %s\n", qPrintable(QCoreApplication::applicationVersion()), qVersion());
    // The locale form QLocale::uiLanguages() gives must find the installed catalogue.
    CommonGUITranslator translator;
    if (translator.loadLanguage(QStringLiteral("de-DE")))
        std::printf("catalogue %s\n", qPrintable(translator.filePath()));
    return _emergencyMemory ? 0 : 1;
}
