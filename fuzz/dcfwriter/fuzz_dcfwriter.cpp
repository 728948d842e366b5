// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Arbitrary INI text through the DCF writer: the first four bytes choose the
// object (index, sub-index) and which edits run, the rest is the file. What a
// QSettings reader sees in the written file must equal what QSettings itself
// holds after the same edits (made here on what QSettings read, as it makes them).
#include "DCFWriter.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

using Keys = QMap<QString, QVariant>;  // "section/key" -> value, as QSettings reads them

// The first-level groups of the keys, as QSettings::childGroups() gives them.
QStringList childGroups(const Keys &keys)
{
    QStringList groups;
    for (auto it = keys.cbegin(); it != keys.cend(); ++it) {
        const int slash = it.key().indexOf(QLatin1Char('/'));
        if (slash >= 0 && (groups.isEmpty() || groups.last() != it.key().left(slash)))
            groups << it.key().left(slash);
    }
    groups.removeDuplicates();
    std::sort(groups.begin(), groups.end());
    return groups;
}

QString section(const Keys &keys, quint16 index, quint8 subIndex)
{
    const QStringList groups = childGroups(keys);
    const QString idx = QStringLiteral("%1").arg(index, 4, 16, QLatin1Char('0'));
    const QString sub = QString::number(subIndex, 16);
    QString candidate = idx + QLatin1String("sub") + sub;
    if (!groups.contains(candidate)) {
        candidate = idx.toUpper() + QLatin1String("sub") + sub.toUpper();
        if (!groups.contains(candidate) && subIndex == 0) {
            candidate = idx;
            if (!groups.contains(candidate))
                candidate = idx.toUpper();
        }
    }
    for (const QString &group : groups) {
        if (group.compare(candidate, Qt::CaseInsensitive) == 0)
            return group;
    }
    return QString();
}

// Keys as QSettings takes them from a caller: no empty parts between slashes.
QString normalized(const QString &key)
{
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/'));
}

// QSettings::remove(): the key and everything under it.
void removeKey(Keys &keys, const QString &rawKey)
{
    const QString key = normalized(rawKey);
    const QString under = key + QLatin1Char('/');
    for (auto it = keys.begin(); it != keys.end();) {
        if (it.key() == key || it.key().startsWith(under))
            it = keys.erase(it);
        else
            ++it;
    }
}

Keys readKeys(const QString &fileName)
{
    QSettings settings(fileName, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    Keys keys;
    const QStringList all = settings.allKeys();
    for (const QString &key : all)
        keys.insert(key, settings.value(key));
    return keys;
}

// One file name for every run, so that no run leaves a cache entry behind (which
// would send libFuzzer hunting for leaks after each run); a time stamp of its
// own per run makes QSettings read it anew all the same.
void writeBytes(const QString &name, const uint8_t *data, size_t size)
{
    static qint64 stamp = 0;
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        abort();
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.flush();  // written now, or closing would stamp it with the time of day
    file.setFileTime(QDateTime::fromMSecsSinceEpoch(1000000000000 + 1000 * ++stamp), QFileDevice::FileModificationTime);
}

void fail(const char *what, const QString &key, const QVariant &ours, const QVariant &theirs)
{
    fprintf(stderr, "%s: key \"%s\": ours \"%s\" (%s), QSettings \"%s\" (%s)\n", what, qPrintable(key),
            qPrintable(ours.toStringList().join(QLatin1Char('|'))), ours.typeName(),
            qPrintable(theirs.toStringList().join(QLatin1Char('|'))), theirs.typeName());
    abort();
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    // Memory-backed when there is such a folder: every run writes and replaces files.
    static QTemporaryDir dir(QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm/fuzz_dcfwriter-XXXXXX")
                                                                         : QDir::tempPath() + QStringLiteral("/fuzz_dcfwriter-XXXXXX"));
    if (size < 4)
        return 0;
    quint16 index;
    std::memcpy(&index, input, 2);
    const quint8 subIndex = input[2];
    const quint8 flags = input[3];
    const QString value = (flags & 1) ? QStringLiteral("0x7f, \"x\"") : QStringLiteral("1");
    const QString denotation = (flags & 2) ? QString() : QStringLiteral("Den ;=");

    static const QString ours = dir.filePath(QStringLiteral("ours.dcf"));
    writeBytes(ours, input + 4, size - 4);

    // What QSettings reads of the input, with the writer's edits made as QSettings makes them.
    Keys reference = readKeys(ours);
    for (const QString &key : reference.keys()) {
        if (key.contains(QLatin1String("parametervalue"), Qt::CaseInsensitive)
            || key.contains(QLatin1String("denotation"), Qt::CaseInsensitive))
            removeKey(reference, key);
    }
    QString target = section(reference, index, subIndex);
    if (!target.isEmpty()) {
        if (!value.isEmpty())
            reference.insert(normalized(target + QLatin1String("/ParameterValue")), value);
        if (!denotation.isEmpty())
            reference.insert(normalized(target + QLatin1String("/Denotation")), denotation);
    }
    if (flags & 4) {
        target = section(reference, quint16(index ^ 1), subIndex);
        if (!target.isEmpty())
            reference.insert(normalized(target + QLatin1String("/Denotation")), QStringLiteral("second"));
    }

    {
        DCFWriter writer;
        if (!writer.setDCFFile(ours))
            abort();
        writer.setParameterValue(index, subIndex, value, denotation);
        if (flags & 4)
            writer.setDenotation(quint16(index ^ 1), subIndex, QStringLiteral("second"));
        writer.writeFile();
    }

    const Keys written = readKeys(ours);
    if (written.keys() != reference.keys())
        fail("keys differ", QString::number(written.size()), QStringList(written.keys()), QStringList(reference.keys()));
    for (auto it = reference.cbegin(); it != reference.cend(); ++it) {
        // QSettings::value() looks a key up by its normalised form; what was
        // read for a key whose form is no key of its own stays as read.
        const QString form = normalized(it.key());
        const QVariant expected = reference.contains(form) ? reference.value(form) : it.value();
        if (written.value(it.key()) != expected)
            fail("values differ", it.key(), written.value(it.key()), expected);
    }
    return 0;
}
