// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DataSheet.h"

#include "CANopenTypes.h"
#include "ConciseDcfCreator.h"
#include "DcfStorage_p.h"
#include "IniDocument_p.h"

#include <QCoreApplication>
#include <QMap>
#include <QRegularExpression>

namespace {

// Invalid sequences decode to U+FFFD and so do not survive the round trip.
bool isUtf8(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

// Data sheets have no quoting: the text after '=' is the value. The INI layer
// reads values as settings do (commas make lists, quotes vanish), so each value
// goes to it quoted, and it hands back exactly what the file holds.
QByteArray quotedValues(const QByteArray &text)
{
    QByteArray out;
    out.reserve(text.size() + text.size() / 8);
    const QList<QByteArray> lines = text.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        QByteArray line = lines.at(i);
        if (line.endsWith('\r'))
            line.chop(1);
        const QByteArray trimmed = line.trimmed();
        const int equals = line.indexOf('=');
        if (equals > 0 && !trimmed.startsWith('[') && !trimmed.startsWith(';') && !trimmed.startsWith('#')) {
            QByteArray value = line.mid(equals + 1).trimmed();
            value.replace('\\', "\\\\").replace('"', "\\\"");
            line = line.left(equals) + "=\"" + value + '"';
        }
        out += line;
        if (i + 1 < lines.size())
            out += '\n';
    }
    return out;
}

int number(const QString &text, bool *ok)
{
    return text.trimmed().toInt(ok, 0);
}

}

bool DataSheetObject::isWritable() const
{
    static const QStringList writable = { QStringLiteral("rw"), QStringLiteral("wo"), QStringLiteral("rww"),
                                          QStringLiteral("rwr") };
    return writable.contains(accessType);
}

DataSheet::DataSheet()
    : m_document(std::make_unique<IniDocument>())
{
}

DataSheet::~DataSheet() = default;

bool DataSheet::load(const QString &fileName, QString *error)
{
    QByteArray bytes;
    const bool read = readText(fileName, &bytes, error);
    parse(bytes);
    return read;
}

void DataSheet::parse(const QByteArray &bytes)
{
    m_latin1 = !isUtf8(bytes);
    const QByteArray text = m_latin1 ? QString::fromLatin1(bytes).toUtf8() : bytes;
    m_document->parse(quotedValues(text));
    m_paths.clear();
    m_sections.clear();
    m_sectionOrder = m_document->childGroups();
    for (const QString &section : qAsConst(m_sectionOrder)) {
        const QString lower = section.toLower();
        if (!m_sections.contains(lower))
            m_sections.insert(lower, section);
    }
    const QStringList keys = m_document->allKeys();
    for (const QString &key : keys) {
        const int slash = key.indexOf(QLatin1Char('/'));
        if (slash < 0)
            continue;
        const QString lower = key.left(slash + 1) + key.mid(slash + 1).toLower();
        if (!m_paths.contains(lower))
            m_paths.insert(lower, key);
    }
}

QStringList DataSheet::sections() const
{
    return m_sectionOrder;
}

QString DataSheet::path(const QString &section, const QString &key) const
{
    const QString spelled = m_paths.contains(section + QLatin1Char('/') + key.toLower())
                                ? section
                                : m_sections.value(section.toLower());
    return m_paths.value(spelled + QLatin1Char('/') + key.toLower());
}

bool DataSheet::contains(const QString &section, const QString &key) const
{
    return !path(section, key).isEmpty();
}

QString DataSheet::value(const QString &section, const QString &key, const QString &defaultValue) const
{
    const QString found = path(section, key);
    return found.isEmpty() ? defaultValue : m_document->value(found, defaultValue);
}

QList<DataSheetObject> DataSheet::objects() const
{
    static const QRegularExpression object(QStringLiteral("^([0-9a-f]{1,4})(?:sub([0-9a-f]{1,2}))?$"),
                                           QRegularExpression::CaseInsensitiveOption);
    QMap<quint32, DataSheetObject> found;
    for (const QString &section : m_sectionOrder) {
        const auto match = object.match(section);
        if (!match.hasMatch() || !contains(section, QStringLiteral("DataType")))
            continue;
        const bool isSub = !match.captured(2).isEmpty();
        bool ok = false;
        const QString objectType = value(section, QStringLiteral("ObjectType"));
        // ARRAY and RECORD heads, type definitions: their values are in the sub-objects.
        if (!isSub && !objectType.isEmpty() && (number(objectType, &ok) != CANopen::VAR || !ok))
            continue;
        DataSheetObject entry;
        entry.index = quint16(match.captured(1).toUInt(nullptr, 16));
        entry.subIndex = isSub ? quint8(match.captured(2).toUInt(nullptr, 16)) : 0;
        const quint32 key = (quint32(entry.index) << 8) | entry.subIndex;
        if (found.contains(key))
            continue;
        entry.section = section;
        entry.name = value(section, QStringLiteral("ParameterName"));
        entry.dataTypeText = value(section, QStringLiteral("DataType"));
        entry.dataType = number(entry.dataTypeText, &ok);
        if (!ok)
            entry.dataType = -1;
        entry.accessType = value(section, QStringLiteral("AccessType")).trimmed().toLower();
        entry.defaultValue = value(section, QStringLiteral("DefaultValue"));
        entry.parameterValue = value(section, QStringLiteral("ParameterValue"));
        entry.denotation = value(section, QStringLiteral("Denotation"));
        found.insert(key, entry);
    }
    return found.values();
}

int DataSheet::nodeId() const
{
    bool ok = false;
    const int id = number(value(QStringLiteral("DeviceComissioning"), QStringLiteral("NodeID")), &ok);
    return ok && id >= 1 && id <= 127 ? id : -1;
}

QString DataSheet::checkValue(const DataSheetObject &object, const QString &value, int nodeId)
{
    if (object.dataType < 0)
        return QCoreApplication::translate("DataSheet", "the data type \"%1\" is not a number").arg(object.dataTypeText);
    QString reason;
    if (ConciseDcfCreator::checkValue(object.dataType, value, nodeId, &reason))
        return QString();
    return reason;
}
