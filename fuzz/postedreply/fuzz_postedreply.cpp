// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// A reply of the posted update check, as its reply parser sees it: the first byte gives
// the length of the running version, which follows; the rest is the reply.
#include "UpdateProtocol_p.h"

#include <QRegularExpression>

#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // No input of 64 KiB may make the parser take more than a few MiB at once.
    static char limit[] = "-malloc_limit_mb=64";
    static char *args[64];
    int n = 0;
    for (; n < *argc && n < 62; ++n)
        args[n] = (*argv)[n];
    args[n++] = limit;
    args[n] = nullptr;
    *argc = n;
    *argv = args;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    if (size < 1)
        return 0;
    const size_t versionLength = qMin<size_t>(input[0] % 16, size - 1);
    QString currentVersion = QString::fromLatin1(reinterpret_cast<const char *>(input + 1), int(versionLength));
    const QByteArray reply(reinterpret_cast<const char *>(input + 1 + versionLength),
                           int(size - 1 - versionLength));

    QMap<QString, QString> versionList;
    const bool ok = CommonGUI::UpdateProtocol::readVersionList(reply, &versionList);
    if (!ok && !versionList.isEmpty() && reply.size() < 12 + 2 + 4 + 1 + 4)
        __builtin_trap();  // too short to hold a map
    const QString before = currentVersion;
    const CommonGUI::UpdateProtocol::VersionComparison comparison
            = CommonGUI::UpdateProtocol::compareVersions(currentVersion, versionList.value(QStringLiteral("1350-10")));

    // The version only ever grows by ".0"; the server's is always three numbers.
    if (currentVersion != before && currentVersion != before + QStringLiteral(".0"))
        __builtin_trap();
    static const QRegularExpression threeNumbers(QStringLiteral("^\\d+\\.\\d{1,3}\\.\\d{1,3}$"));
    if (!threeNumbers.match(comparison.serverVersion).hasMatch())
        __builtin_trap();
    if (!comparison.comparable && (comparison.newer || comparison.newerByDigits))
        __builtin_trap();
    return 0;
}
