// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include <CommonGUI/DebugCrashHandler.h>
#include <CommonGUI/KorvilBaseApplication.h>

#include <cstdio>

int main(int argc, char **argv)
{
    KorvilBaseApplication app(argc, argv, QStringLiteral("Consumer"), QStringLiteral("0.9"));
    qInstallMessageHandler(noMessageOutput);
    std::printf("consumer ok %s\n", qPrintable(QCoreApplication::applicationVersion()));
    return _emergencyMemory ? 0 : 1;
}
