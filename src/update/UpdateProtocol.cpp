// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "UpdateProtocol_p.h"

#include <QDataStream>
#include <QIODevice>
#include <QRegularExpression>
#include <QStringList>
#include <QtEndian>

namespace CommonGUI {
namespace UpdateProtocol {

namespace {
constexpr qint16 versionListAnswer = 0x200A;
constexpr qint16 mapFlag = 0x2000;
constexpr int frameHeader = 12;  // qint64 frame length + the message's 32-bit length
constexpr qint64 fieldHeader = 4;  // a QByteArray field's 32-bit length
constexpr quint32 nullField = 0xFFFFFFFFu;

QString withoutDots(const QString &text)
{
    return QString(text).remove(QLatin1Char('.'));
}

// With a negative frame length the message field alone makes the frame: it is taken
// once it is complete, so a well-formed message still gets through.
bool takeField(QIODevice *device, qint64 &blockSize, QByteArray *message)
{
    const QByteArray head = device->peek(fieldHeader);
    if (head.size() < fieldHeader)
        return false;
    const quint32 length = qFromBigEndian<quint32>(head.constData());
    if (length != nullField && qint64(length) > device->bytesAvailable() - fieldHeader)
        return false;
    device->skip(fieldHeader);
    *message = length == nullField ? QByteArray() : device->read(length);
    blockSize = 0;
    return true;
}
}

VersionInfo readVersionInfo(const QByteArray &body, const QString &productName, const QString &currentVersion)
{
    const int nul = body.indexOf('\0');
    const QString text = QString::fromLatin1(nul < 0 ? body : body.left(nul));
    // "[*-9]" is a character range on purpose: it lets "+", ",", "-", "." and "/" through.
    static const QRegularExpression pattern(QStringLiteral("(.*):([0-9]*\\.*[0-9]*\\.*[*-9]*)"));
    const QRegularExpressionMatch match = pattern.match(text);
    VersionInfo info;
    if (match.captured(1) != productName)
        return info;
    info.serverVersion = match.captured(2);
    // Textual on purpose: "1.10.0" sorts below "1.9.0".
    info.outcome = QString::compare(currentVersion, info.serverVersion, Qt::CaseInsensitive) < 0
            ? VersionInfo::Newer
            : VersionInfo::Current;
    return info;
}

bool readVersionList(QByteArray reply, QMap<QString, QString> *versionList)
{
    versionList->clear();
    // The frame length and the message's own length are not needed to read on.
    reply.remove(0, frameHeader);
    QDataStream in(reply);
    in.setVersion(QDataStream::Qt_5_1);
    qint16 code = 0;
    QByteArray inner;
    in >> code >> inner;

    // A broken block reads as empty: a status that cannot be read is not 1, and a
    // payload that cannot be read gives an empty map.
    QDataStream innerIn(inner);
    innerIn.setVersion(QDataStream::Qt_5_1);
    qint8 status = 0;
    QByteArray payload;
    innerIn >> status >> payload;

    if (code & mapFlag) {
        QDataStream mapIn(payload);
        mapIn.setVersion(QDataStream::Qt_5_1);
        mapIn >> *versionList;
        if (mapIn.status() != QDataStream::Ok)
            versionList->clear();
    }
    return status == 1 && code == versionListAnswer;
}

VersionComparison compareVersions(QString &currentVersion, const QString &encodedServer)
{
    VersionComparison result;
    if (withoutDots(currentVersion.left(5)).size() < 3)
        currentVersion.append(QStringLiteral(".0"));
    const QStringList currentParts = currentVersion.split(QLatin1Char('.'));
    // Cut to 5 characters: "2.4.17" counts as 241.
    const uint currentNumber = withoutDots(currentVersion.left(5)).toUInt();

    const uint value = encodedServer.toUInt();
    result.serverVersion = QString::asprintf("%d.%d.%d", int(value / 1000000), int(value / 1000 % 1000),
                                             int(value % 1000));
    const QStringList serverParts = result.serverVersion.split(QLatin1Char('.'));
    if (currentParts.size() < 3 || serverParts.size() < 3)
        return result;
    result.comparable = true;

    for (int i = 0; i < 3; ++i) {
        const uint server = serverParts.at(i).toUInt();
        const uint current = currentParts.at(i).toUInt();
        if (i == 2 || server != current) {
            result.newer = server > current;
            break;
        }
    }
    result.newerByDigits = currentNumber < withoutDots(result.serverVersion).toUInt();
    return result;
}

bool takeFrame(QIODevice *device, qint64 &blockSize, QByteArray *message)
{
    QDataStream in(device);
    in.setVersion(QDataStream::Qt_5_1);
    if (blockSize == 0) {
        if (device->bytesAvailable() < qint64(sizeof(qint64)))
            return false;
        in >> blockSize;
    }
    if (blockSize < 0)
        return takeField(device, blockSize, message);
    // A length that never arrives leaves us waiting; it is only compared, never allocated.
    if (blockSize > device->bytesAvailable())
        return false;

    // The frame is cut by its own length, so a malformed message cannot swallow the next frame.
    const qint64 frameSize = blockSize;
    blockSize = 0;
    if (frameSize < fieldHeader) {
        device->skip(frameSize);
        return false;
    }
    quint32 length = 0;
    in >> length;
    const qint64 rest = frameSize - fieldHeader;
    QByteArray data;
    if (length != nullField) {
        if (length > rest) {
            device->skip(rest);
            return false;
        }
        data = device->read(length);
    }
    device->skip(rest - data.size());
    *message = data;
    return true;
}

}
}
