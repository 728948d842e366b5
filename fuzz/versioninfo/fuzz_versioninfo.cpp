// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The text of a version file: the first byte gives the length of the running version,
// the second that of the product name, both follow; the rest is the body.
#include "UpdateProtocol_p.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    if (size < 2)
        return 0;
    const char *bytes = reinterpret_cast<const char *>(input);
    size_t at = 2;
    const size_t versionLength = qMin<size_t>(input[0] % 16, size - at);
    const QString currentVersion = QString::fromLatin1(bytes + at, int(versionLength));
    at += versionLength;
    const size_t nameLength = qMin<size_t>(input[1] % 16, size - at);
    const QString productName = QString::fromLatin1(bytes + at, int(nameLength));
    at += nameLength;
    const QByteArray body(bytes + at, int(size - at));

    const CommonGUI::UpdateProtocol::VersionInfo info
            = CommonGUI::UpdateProtocol::readVersionInfo(body, productName, currentVersion);
    if (info.outcome == CommonGUI::UpdateProtocol::VersionInfo::Invalid) {
        if (!info.serverVersion.isEmpty())
            __builtin_trap();
        return 0;
    }
    // A version is made of the characters '*' to '9' and stands in the body behind the name.
    for (const QChar c : info.serverVersion) {
        if (c < QLatin1Char('*') || c > QLatin1Char('9'))
            __builtin_trap();
    }
    // (No match at all counts as an empty name with an empty version.)
    const QByteArray line = productName.toLatin1() + ':' + info.serverVersion.toLatin1();
    if (!(productName.isEmpty() && info.serverVersion.isEmpty()) && !body.contains(line))
        __builtin_trap();
    return 0;
}
