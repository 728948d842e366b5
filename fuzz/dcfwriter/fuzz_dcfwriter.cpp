// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Arbitrary INI text through the DCF writer: the first four bytes choose the
// object (index, sub-index) and which edits run, the rest is the file. What a
// QSettings reader sees in the written file must equal what QSettings itself
// holds after the same edits.
#include "DCFWriter.h"
#include "TextCompat_p.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

QString section(QSettings &settings, quint16 index, quint8 subIndex)
{
    const QStringList groups = settings.childGroups();
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

// One file name each for every run, so that no run leaves a cache entry behind
// (which would send libFuzzer hunting for leaks after each run); a time stamp
// of its own per write makes QSettings read it anew all the same.
void stampUniquely(QFile &file)
{
    static qint64 stamp = 0;
    file.setFileTime(QDateTime::fromMSecsSinceEpoch(1000000000000 + 1000 * ++stamp, Qt::UTC), QFileDevice::FileModificationTime);
}

void writeBytes(const QString &name, const uint8_t *data, size_t size)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        abort();
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.flush();  // written now, or closing would stamp it with the time of day
    stampUniquely(file);
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
    static const QString theirs = dir.filePath(QStringLiteral("theirs.dcf"));
    writeBytes(ours, input + 4, size - 4);
    writeBytes(theirs, input + 4, size - 4);

    {
        DCFWriter writer;
        if (!writer.setDCFFile(ours))
            abort();
        writer.setParameterValue(index, subIndex, value, denotation);
        if (flags & 4)
            writer.setDenotation(quint16(index ^ 1), subIndex, QStringLiteral("second"));
        writer.writeFile();
    }
    {
        // Saves come faster than the file system's clock ticks: a file of the
        // same size saved within one tick would look unchanged to QSettings.
        QFile file(ours);
        if (!file.open(QIODevice::ReadWrite))
            abort();
        stampUniquely(file);
    }

    QSettings reference(theirs, QSettings::IniFormat);
    CommonGUICompat::useUtf8(reference);
    const QStringList keys = reference.allKeys();
    for (const QString &key : keys) {
        if (key.contains(QLatin1String("parametervalue"), Qt::CaseInsensitive)
            || key.contains(QLatin1String("denotation"), Qt::CaseInsensitive))
            reference.remove(key);
    }
    QString target = section(reference, index, subIndex);
    if (!target.isEmpty()) {
        if (!value.isEmpty())
            reference.setValue(target + QLatin1String("/ParameterValue"), value);
        if (!denotation.isEmpty())
            reference.setValue(target + QLatin1String("/Denotation"), denotation);
    }
    if (flags & 4) {
        target = section(reference, quint16(index ^ 1), subIndex);
        if (!target.isEmpty())
            reference.setValue(target + QLatin1String("/Denotation"), QStringLiteral("second"));
    }

    QSettings written(ours, QSettings::IniFormat);
    CommonGUICompat::useUtf8(written);
    const QStringList expected = reference.allKeys();
    const QStringList got = written.allKeys();
    if (expected != got)
        fail("keys differ", QString::number(got.size()), got, expected);
    for (const QString &key : expected) {
        if (written.value(key) != reference.value(key))
            fail("values differ", key, written.value(key), reference.value(key));
    }
    reference.sync();  // nothing left to write when it goes
    return 0;
}
