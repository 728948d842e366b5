// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Arbitrary INI text through the concise DCF preparation and output, and the
// same bytes through the binary reader. Whatever is written must read back as
// the entries the creator reports.
#include "ConciseDcfCreator.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    // Memory-backed when there is such a folder: every run writes files.
    static QTemporaryDir dir(QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm/fuzz_concisedcf-XXXXXX")
                                                                         : QDir::tempPath() + QStringLiteral("/fuzz_concisedcf-XXXXXX"));
    const QByteArray bytes(reinterpret_cast<const char *>(input), int(size));

    QList<ConciseDcfCreator::ConciseEntry> entries;
    QString error;
    // A failure always says why; a success says nothing.
    if (ConciseDcfCreator::readConciseDcf(bytes, &entries, &error) != error.isEmpty())
        abort();

    // One file name for every run, so that no run leaves a cache entry behind (which
    // would send libFuzzer hunting for leaks after each run); a time stamp of its
    // own per run makes QSettings read it anew all the same.
    static const QString sheet = dir.filePath(QStringLiteral("sheet.dcf"));
    static const QString output = dir.filePath(QStringLiteral("out.bin"));
    static qint64 stamp = 0;
    {
        QFile file(sheet);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            abort();
        file.write(bytes);
        file.flush();  // written now, or closing would stamp it with the time of day
        file.setFileTime(QDateTime::fromMSecsSinceEpoch(1000000000000 + 1000 * ++stamp, Qt::UTC), QFileDevice::FileModificationTime);
    }
    QFile::remove(output);

    ConciseDcfCreator creator(sheet);
    QVector<unsigned short> indices;
    creator.parseSectionForIndices(indices, QStringLiteral("OptionalObjects"));
    creator.parseSectionForIndices(indices, QStringLiteral("ManufacturerObjects"));
    if (creator.convert(output))
        abort();
    if (creator.writeConciseDcf(output)) {
        QFile file(output);
        if (!file.open(QIODevice::ReadOnly))
            abort();
        entries.clear();
        error.clear();
        if (!ConciseDcfCreator::readConciseDcf(file.readAll(), &entries, &error))
            abort();
        const QList<ConciseDcfCreator::stDataItems> items = creator.dataItems();
        if (items.size() != entries.size())
            abort();
        for (int i = 0; i < items.size(); ++i) {
            if (items.at(i).index != entries.at(i).index || items.at(i).subIndex != entries.at(i).subIndex
                || items.at(i).size != quint32(entries.at(i).data.size()))
                abort();
        }
    } else if (creator.errors().isEmpty()) {
        abort();
    }
    return 0;
}
