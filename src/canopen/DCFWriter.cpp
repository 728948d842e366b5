// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DCFWriter.h"

#include "DcfStorage_p.h"

#include <QFileInfo>
#include <QHash>
#include <QStringMatcher>

#include <algorithm>
#include <vector>

namespace {

// The file's sections as the lookups see them, kept up to date with every edit
// so that a lookup costs no scan over the whole file.
class SectionIndex
{
public:
    // All spellings of one name regardless of case; `first` sorts first.
    struct Spellings
    {
        QString first;
        QStringList more;  // rare: the file spells one section several ways

        bool has(const QString &name) const { return first == name || more.contains(name); }
    };

    void reset(const QStringList &names)
    {
        m_byFold.clear();
        m_byFold.reserve(names.size());
        for (const QString &name : names)
            add(name);
    }

    void add(const QString &name)
    {
        if (name.isEmpty())
            return;
        auto it = m_byFold.find(name.toCaseFolded());
        if (it == m_byFold.end()) {
            m_byFold.insert(name.toCaseFolded(), Spellings{ name, {} });
        } else if (!it->has(name)) {
            if (name < it->first) {
                it->more.append(it->first);
                it->first = name;
            } else {
                it->more.append(name);
            }
        }
    }

    void remove(const QString &name)
    {
        auto it = m_byFold.find(name.toCaseFolded());
        if (it == m_byFold.end() || !it->has(name))
            return;
        if (it->first != name) {
            it->more.removeOne(name);
        } else if (it->more.isEmpty()) {
            m_byFold.erase(it);
        } else {
            auto next = std::min_element(it->more.begin(), it->more.end());
            it->first = *next;
            it->more.erase(next);
        }
    }

    // The spellings that match the name regardless of case, or null.
    const Spellings *find(const QString &name) const
    {
        const auto it = m_byFold.constFind(name.toCaseFolded());
        return it == m_byFold.constEnd() ? nullptr : &*it;
    }

private:
    QHash<QString, Spellings> m_byFold;
};

QString indexName(unsigned short index)
{
    return QStringLiteral("%1").arg(index, 4, 16, QLatin1Char('0'));
}

QString subName(unsigned short index, unsigned char subIndex)
{
    return QStringLiteral("%1sub%2").arg(index, 4, 16, QLatin1Char('0')).arg(subIndex, 1, 16, QLatin1Char('0'));
}

const QString commissioning = QStringLiteral("DeviceComissioning");
const QString optionalObjects = QStringLiteral("OptionalObjects");

}

class DCFWriterPrivate
{
public:
    // Earlier files stay open until the writer goes, so their edits still reach the disk.
    std::vector<std::unique_ptr<DcfStorage>> storages;
    DcfStorage *storage = nullptr;
    SectionIndex sections;
    quint64 seen = 0;  // the storage revision the sections were taken from

    // Another writer on the same file, or a save that took in a change on
    // disk, may have changed the sections.
    const SectionIndex &currentSections()
    {
        if (storage->revision() != seen) {
            sections.reset(storage->childGroups());
            seen = storage->revision();
        }
        return sections;
    }

    void write(const QString &path, const QVariant &value, const QString &section)
    {
        const bool current = storage->revision() == seen;
        storage->setValue(path, value);
        if (current) {
            sections.add(section);
            seen = storage->revision();
        }
    }

    void set(const QString &section, const QString &key, const QVariant &value)
    {
        write(section + QLatin1Char('/') + key, value, section);
    }

    void removeSection(const QString &section)
    {
        const bool current = storage->revision() == seen;
        storage->remove(section);
        if (current) {
            sections.remove(section);
            seen = storage->revision();
        }
    }
};

DCFWriter::DCFWriter(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<DCFWriterPrivate>())
{
}

DCFWriter::~DCFWriter()
{
    for (auto &storage : d->storages)
        storage->sync();
}

bool DCFWriter::setDCFFile(const QString &fileName)
{
    if (!QFileInfo::exists(fileName))
        return false;
    d->storages.push_back(createDocumentStorage(fileName));
    d->storage = d->storages.back().get();
    // Each such key goes as a path, with whatever lies under it.
    static const QStringMatcher value(QStringLiteral("parametervalue"), Qt::CaseInsensitive);
    static const QStringMatcher denotation(QStringLiteral("denotation"), Qt::CaseInsensitive);
    d->storage->removeKeysIf([](const QString &key) {
        return value.indexIn(key) >= 0 || denotation.indexIn(key) >= 0;
    });
    d->seen = 0;
    d->currentSections();
    return true;
}

bool DCFWriter::writeFile()
{
    if (d->storage)
        d->storage->sync();
    return true;
}

void DCFWriter::updateDeviceCommisioning(unsigned short baudrate, unsigned char netNumber,
                                         const QString &networkName, unsigned char nodeId,
                                         const QString &nodeName)
{
    d->set(commissioning, QStringLiteral("Baudrate"), int(baudrate));
    d->set(commissioning, QStringLiteral("NodeID"), int(nodeId));
    d->set(commissioning, QStringLiteral("NetNumber"), int(netNumber));
    d->set(commissioning, QStringLiteral("NetworkName"), networkName);
    d->set(commissioning, QStringLiteral("NodeName"), nodeName);
}

bool DCFWriter::addIndex(unsigned short index, CAN::CANopenDataType dataType,
                         CANopen::ObjectCode objectCode, QString parameterName,
                         unsigned char subNumber)
{
    Q_UNUSED(dataType)
    const QString section = indexName(index);
    d->set(section, QStringLiteral("ParameterName"), parameterName);
    d->set(section, QStringLiteral("ObjectType"), QString::number(int(objectCode)));
    d->set(section, QStringLiteral("SubNumber"), QString::number(subNumber));
    return true;
}

bool DCFWriter::addNVArray(unsigned short index, CAN::CANopenDataType dataType,
                           QString parameterName, unsigned char subNumber)
{
    Q_UNUSED(dataType)
    const QString section = indexName(index);
    d->set(section, QStringLiteral("ParameterName"), parameterName);
    d->set(section, QStringLiteral("ObjectType"), QStringLiteral("8"));
    d->set(section, QStringLiteral("SubNumber"), QString::number(subNumber));
    return true;
}

bool DCFWriter::addSub(unsigned short index, unsigned char subIndex, CAN::CANopenDataType dataType,
                       QString parameterName, QString accessType, bool pdoMapping, QString value)
{
    const QString section = subName(index, subIndex);
    d->set(section, QStringLiteral("ParameterName"), parameterName);
    d->set(section, QStringLiteral("ObjectType"), QStringLiteral("7"));
    d->set(section, QStringLiteral("Denotation"), parameterName);
    d->set(section, QStringLiteral("DataType"), QStringLiteral("0x") + QString::number(int(dataType), 16));
    d->set(section, QStringLiteral("PDOMapping"), pdoMapping ? QStringLiteral("0x1") : QStringLiteral("0x0"));
    d->set(section, QStringLiteral("AccessType"), accessType);
    if (!value.isEmpty()) {
        if (subIndex == 0)
            d->set(section, QStringLiteral("DefaultValue"), value);
        d->set(section, QStringLiteral("ParameterValue"), value);
    }
    return true;
}

bool DCFWriter::addNVSub(unsigned short index, unsigned char subIndex, CAN::CANopenDataType dataType,
                         QString parameterName, QString accessType, QString value)
{
    const QString section = subName(index, subIndex);
    d->set(section, QStringLiteral("ParameterName"), parameterName);
    d->set(section, QStringLiteral("ObjectType"), QStringLiteral("7"));
    d->set(section, QStringLiteral("Denotation"), parameterName);
    d->set(section, QStringLiteral("DataType"), QStringLiteral("0x") + QString::number(int(dataType), 16));
    d->set(section, QStringLiteral("PDOMapping"), subIndex != 0 ? QStringLiteral("0x1") : QStringLiteral("0x0"));
    d->set(section, QStringLiteral("AccessType"), accessType);
    if (!value.isEmpty())
        d->set(section, QStringLiteral("ParameterValue"), value);
    return true;
}

bool DCFWriter::delIndex(unsigned short index)
{
    const QString section = indexName(index);
    d->removeSection(section);
    d->removeSection(section.toUpper());
    return true;
}

bool DCFWriter::delSub(unsigned short index, unsigned char subIndex)
{
    const QString section = subName(index, subIndex);
    d->removeSection(section);
    d->removeSection(section.toUpper());
    d->removeSection(indexName(index).toUpper() + QLatin1String("sub")
                     + QString::number(subIndex, 16).toUpper());
    return true;
}

void DCFWriter::updateOtherSettings(QString group, QString key, QString value)
{
    const QString path = group + QLatin1Char('/') + key;
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    d->write(path, value, parts.size() > 1 ? parts.first() : QString());
}

QString DCFWriter::existingSection(unsigned short index, unsigned char subIndex) const
{
    const QString idx = tr("%1").arg(index, 4, 16, QLatin1Char('0'));
    const QString sub = QString::number(subIndex, 16);
    // Exact spellings first, then the first spelling regardless of case. Both
    // sub spellings share one entry of the index, so one lookup serves them.
    const QString lower = tr("%1sub%2").arg(idx, sub);
    const SectionIndex &sections = d->currentSections();
    const SectionIndex::Spellings *subSpellings = sections.find(lower);
    if (subSpellings && (subSpellings->has(lower)
                         || subSpellings->has(idx.toUpper() + tr("sub%2").arg(sub.toUpper()))))
        return subSpellings->first;
    if (subIndex != 0)
        return subSpellings ? subSpellings->first : QString();
    // A VAR object has no sub sections: its value lives in the index section.
    const SectionIndex::Spellings *varSpellings = sections.find(idx);
    return varSpellings ? varSpellings->first : QString();
}

bool DCFWriter::setParameterValue(unsigned short index, unsigned char subIndex, QString value,
                                  QString denotation)
{
    const QString section = existingSection(index, subIndex);
    if (section.isEmpty())
        return true;
    // The section exists: no need to record it again.
    if (!value.isEmpty())
        d->write(section + QLatin1String("/ParameterValue"), value, section);
    if (!denotation.isEmpty())
        d->write(section + QLatin1String("/Denotation"), denotation, section);
    return true;
}

bool DCFWriter::setDenotation(unsigned short index, unsigned char subIndex, QString denotation)
{
    const QString section = existingSection(index, subIndex);
    if (!section.isEmpty() && !denotation.isEmpty())
        d->write(section + QLatin1String("/Denotation"), denotation, section);
    return true;
}

bool DCFWriter::existIndex(unsigned short index)
{
    return d->currentSections().find(indexName(index)) != nullptr;
}

bool DCFWriter::existSub(unsigned short index, unsigned char subIndex)
{
    return d->currentSections().find(subName(index, subIndex)) != nullptr;
}

void DCFWriter::updateOptionalObjects(QList<unsigned short> indices)
{
    const QString prefix = optionalObjects + QLatin1Char('/');
    const quint16 stale = quint16(d->storage->value(prefix + QLatin1String("SupportedObjects"), 0).toInt());
    // One pass for all stale keys: a removal each would scan the file each time.
    QStringList staleKeys;
    staleKeys.reserve(stale);
    for (int i = 1; i <= stale; ++i)
        staleKeys << prefix + QString::number(i);
    if (!staleKeys.isEmpty())
        d->storage->removeAll(staleKeys);

    QList<unsigned short> sorted = indices;
    std::sort(sorted.begin(), sorted.end());
    QList<unsigned short> unique;
    for (unsigned short index : qAsConst(sorted)) {
        if (unique.isEmpty() || unique.last() != index)
            unique.append(index);
    }
    for (int i = 0; i < unique.size(); ++i)
        d->set(optionalObjects, QString::number(i + 1),
               QStringLiteral("0x%1").arg(unique.at(i), 4, 16, QLatin1Char('0')));
    d->set(optionalObjects, QStringLiteral("SupportedObjects"), unique.size());
}
