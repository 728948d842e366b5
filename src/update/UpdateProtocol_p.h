// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

// The parsers behind the update checkers and the TCP client, apart from their
// sockets and message boxes so that tests and fuzzers can feed them directly.
// Not installed; exported for the library's own tests and fuzzers only.

#include "commongui_export.h"

#include <QByteArray>
#include <QMap>
#include <QString>

class QIODevice;

namespace CommonGUI {
namespace UpdateProtocol {

// What a version file says about currentVersion.
struct VersionInfo
{
    enum Outcome { Invalid, Newer, Current };
    Outcome outcome = Invalid;
    QString serverVersion;  // capture 2 of the version line; empty when Invalid
};

// Evaluates the text of "<product>.info": "<productName>:<version>" on one line, where the
// name must match exactly and the versions compare as text, case-insensitively.
// currentVersion is taken as it is (the caller pads "2.4" to "2.4.0").
COMMONGUI_EXPORT VersionInfo readVersionInfo(const QByteArray &body, const QString &productName,
                                             const QString &currentVersion);

// Unframes a reply of the posted checker. True for a successful version list (status 1,
// code 0x200A); versionList then holds its product map, empty if the map is unreadable.
COMMONGUI_EXPORT bool readVersionList(QByteArray reply, QMap<QString, QString> *versionList);

struct VersionComparison
{
    bool comparable = false;      // both versions have three parts
    QString serverVersion;        // "major.minor.patch" of the encoded number
    bool newer = false;           // part by part
    bool newerByDigits = false;   // on the digit strings, the current one cut to 5 characters
};

// Compares currentVersion with the encoded version encodedServer. currentVersion gets
// ".0" appended when its first 5 characters hold fewer than 3 digits.
COMMONGUI_EXPORT VersionComparison compareVersions(QString &currentVersion, const QString &encodedServer);

// Takes the next message of a length-framed stream from device, at most one per call.
// blockSize carries the announced frame length between calls (0: none read yet).
// Returns true with message set when a message was taken; false when it waits for more
// bytes or dropped a broken frame. Frame lengths are compared, never allocated.
COMMONGUI_EXPORT bool takeFrame(QIODevice *device, qint64 &blockSize, QByteArray *message);

}
}
