// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Arbitrary INI text through the concise DCF preparation and output, and the
// same bytes through the binary reader. Whatever is written must read back as
// the entries the creator reports.
#include "ConciseDcfCreator.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *input, size_t size)
{
    static QTemporaryDir dir;
    const QByteArray bytes(reinterpret_cast<const char *>(input), int(size));

    QList<ConciseDcfCreator::ConciseEntry> entries;
    QString error;
    // A failure always says why; a success says nothing.
    if (ConciseDcfCreator::readConciseDcf(bytes, &entries, &error) != error.isEmpty())
        abort();

    // New names every run: QSettings caches a file it has seen by name, size and time.
    static int run = 0;
    ++run;
    const QString sheet = dir.filePath(QStringLiteral("sheet%1.dcf").arg(run));
    const QString output = dir.filePath(QStringLiteral("out%1.bin").arg(run));
    {
        QFile file(sheet);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            abort();
        file.write(bytes);
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
    QFile::remove(sheet);
    QFile::remove(output);
    return 0;
}
