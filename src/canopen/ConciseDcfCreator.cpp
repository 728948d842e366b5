// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ConciseDcfCreator.h"

#include "CANopenTypes.h"
#include "DCFWriter.h"
#include "DcfStorage_p.h"
#include "IniDocument_p.h"
#include "TextCompat_p.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstring>

static_assert(sizeof(ConciseDcfCreator::stDataItems) == 8, "entries are packed records");

namespace {

enum class Kind { Unsigned, Signed, Boolean, Real32, Real64, VisibleString, OctetString, UnicodeString, Domain };

struct TypeInfo
{
    const char *name;
    Kind kind;
    int bytes;  // fixed width; 0 for strings and domains
};

bool typeInfo(int dataType, TypeInfo *info)
{
    static const QMap<int, TypeInfo> types = {
        { CAN::BOOLEAN, { "BOOLEAN", Kind::Boolean, 1 } },
        { CAN::INTEGER8, { "INTEGER8", Kind::Signed, 1 } },
        { CAN::INTEGER16, { "INTEGER16", Kind::Signed, 2 } },
        { CAN::INTEGER24, { "INTEGER24", Kind::Signed, 3 } },
        { CAN::INTEGER32, { "INTEGER32", Kind::Signed, 4 } },
        { CAN::INTEGER40, { "INTEGER40", Kind::Signed, 5 } },
        { CAN::INTEGER48, { "INTEGER48", Kind::Signed, 6 } },
        { CAN::INTEGER56, { "INTEGER56", Kind::Signed, 7 } },
        { CAN::INTEGER64, { "INTEGER64", Kind::Signed, 8 } },
        { CAN::UNSIGNED8, { "UNSIGNED8", Kind::Unsigned, 1 } },
        { CAN::UNSIGNED16, { "UNSIGNED16", Kind::Unsigned, 2 } },
        { CAN::UNSIGNED24, { "UNSIGNED24", Kind::Unsigned, 3 } },
        { CAN::UNSIGNED32, { "UNSIGNED32", Kind::Unsigned, 4 } },
        { CAN::UNSIGNED40, { "UNSIGNED40", Kind::Unsigned, 5 } },
        { CAN::UNSIGNED48, { "UNSIGNED48", Kind::Unsigned, 6 } },
        { CAN::UNSIGNED56, { "UNSIGNED56", Kind::Unsigned, 7 } },
        { CAN::UNSIGNED64, { "UNSIGNED64", Kind::Unsigned, 8 } },
        { CAN::REAL32, { "REAL32", Kind::Real32, 4 } },
        { CAN::REAL64, { "REAL64", Kind::Real64, 8 } },
        // Six bytes on the bus (milliseconds and days); written as raw numbers.
        { CAN::TIME_OF_DAY, { "TIME_OF_DAY", Kind::Unsigned, 6 } },
        { CAN::TIME_DIFFERENCE, { "TIME_DIFFERENCE", Kind::Unsigned, 6 } },
        { CAN::VISIBLE_STRING, { "VISIBLE_STRING", Kind::VisibleString, 0 } },
        { CAN::OCTET_STRING, { "OCTET_STRING", Kind::OctetString, 0 } },
        { CAN::UNICODE_STRING, { "UNICODE_STRING", Kind::UnicodeString, 0 } },
        { CAN::DOMAIN, { "DOMAIN", Kind::Domain, 0 } },
    };
    const auto it = types.constFind(dataType);
    if (it == types.constEnd())
        return false;
    *info = *it;
    return true;
}

// A number as the data sheets write it: decimal, "0x" hex or leading-zero octal.
bool parseNumber(const QString &text, bool *negative, quint64 *magnitude, bool *raw)
{
    QString t = text.trimmed();
    *negative = false;
    *raw = false;
    if (t.startsWith(QLatin1Char('-'))) {
        *negative = true;
        t.remove(0, 1);
    }
    if (t.isEmpty())
        return false;
    bool ok = false;
    if (t.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        *raw = true;
        const QString digits = t.mid(2);
        if (digits.isEmpty())
            return false;
        *magnitude = digits.toULongLong(&ok, 16);
    } else if (t.size() > 1 && t.startsWith(QLatin1Char('0'))) {
        *raw = true;
        *magnitude = t.mid(1).toULongLong(&ok, 8);
    } else {
        *magnitude = t.toULongLong(&ok, 10);
    }
    // A sign goes with decimal numbers only; hex and octal are bit patterns.
    return ok && !(*negative && *raw) && !t.contains(QLatin1Char(' ')) && !t.contains(QLatin1Char('+'));
}

QByteArray littleEndian(quint64 value, int bytes)
{
    QByteArray out(bytes, '\0');
    for (int i = 0; i < bytes; ++i)
        out[i] = char((value >> (8 * i)) & 0xFF);
    return out;
}

const QRegularExpression &nodeIdPattern()
{
    static const QRegularExpression pattern(QStringLiteral("\\$nodeid"), QRegularExpression::CaseInsensitiveOption);
    return pattern;
}

// Encodes one value; on failure returns false with the reason.
bool encode(const QString &value, const TypeInfo &type, int nodeId, QByteArray *out, QString *reason)
{
    const QString quoted = QStringLiteral("\"%1\"").arg(value);
    switch (type.kind) {
    case Kind::VisibleString:
    case Kind::OctetString:
        *out = value.toUtf8();
        return true;
    case Kind::UnicodeString: {
        out->clear();
        for (const QChar c : value)
            *out += littleEndian(c.unicode(), 2);
        return true;
    }
    case Kind::Domain: {
        QString hex = value.trimmed();
        if (hex.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
            hex.remove(0, 2);
        hex.remove(QRegularExpression(QStringLiteral("\\s")));
        static const QRegularExpression hexOnly(QStringLiteral("^([0-9a-fA-F]{2})*$"));
        if (!hexOnly.match(hex).hasMatch()) {
            *reason = ConciseDcfCreator::tr("value %1 is not a hex string of whole bytes for DOMAIN").arg(quoted);
            return false;
        }
        *out = QByteArray::fromHex(hex.toLatin1());
        return true;
    }
    default:
        break;
    }

    QString text = value.trimmed();
    quint64 offset = 0;
    bool withNodeId = false;
    if (text.contains(nodeIdPattern())) {
        if (nodeId < 0) {
            *reason = ConciseDcfCreator::tr("value %1 uses $NODEID but the file has no node id").arg(quoted);
            return false;
        }
        withNodeId = true;
        text.remove(nodeIdPattern());
        text.remove(QLatin1Char(' '));
        if (text.startsWith(QLatin1Char('+')))
            text.remove(0, 1);
        else if (text.endsWith(QLatin1Char('+')))
            text.chop(1);
        else if (!text.isEmpty()) {
            *reason = ConciseDcfCreator::tr("value %1 is not a $NODEID formula").arg(quoted);
            return false;
        }
        if (text.isEmpty())
            text = QStringLiteral("0");
        offset = quint64(nodeId);
    }

    if (type.kind == Kind::Real32 || type.kind == Kind::Real64) {
        bool negative = false, raw = false;
        quint64 bits = 0;
        if (!withNodeId && parseNumber(text, &negative, &bits, &raw) && raw) {
            if (type.bytes == 4 && bits > 0xFFFFFFFFull) {
                *reason = ConciseDcfCreator::tr("value %1 is out of range for %2").arg(quoted, QLatin1String(type.name));
                return false;
            }
            *out = littleEndian(bits, type.bytes);
            return true;
        }
        bool ok = false;
        const double number = text.toDouble(&ok);
        if (withNodeId || !ok || !std::isfinite(number)) {
            *reason = ConciseDcfCreator::tr("value %1 cannot be read as %2").arg(quoted, QLatin1String(type.name));
            return false;
        }
        if (type.bytes == 4) {
            if (std::fabs(number) > double(FLT_MAX)) {
                *reason = ConciseDcfCreator::tr("value %1 is out of range for %2").arg(quoted, QLatin1String(type.name));
                return false;
            }
            const float f = float(number);
            quint32 b = 0;
            std::memcpy(&b, &f, sizeof b);
            *out = littleEndian(b, 4);
        } else {
            quint64 b = 0;
            std::memcpy(&b, &number, sizeof b);
            *out = littleEndian(b, 8);
        }
        return true;
    }

    bool negative = false, raw = false;
    quint64 magnitude = 0;
    if (!parseNumber(text, &negative, &magnitude, &raw)) {
        *reason = ConciseDcfCreator::tr("value %1 cannot be read as %2").arg(quoted, QLatin1String(type.name));
        return false;
    }
    const int bits = type.bytes * 8;
    const quint64 max = bits == 64 ? ~quint64(0) : (quint64(1) << bits) - 1;
    if (withNodeId) {
        if (negative || magnitude > max - offset) {
            *reason = ConciseDcfCreator::tr("value %1 is out of range for %2").arg(quoted, QLatin1String(type.name));
            return false;
        }
        magnitude += offset;
    }
    bool inRange = true;
    quint64 pattern = magnitude;
    if (type.kind == Kind::Boolean) {
        inRange = !negative && magnitude <= 1;
    } else if (type.kind == Kind::Unsigned || raw) {
        inRange = !negative && magnitude <= max;
    } else {
        const quint64 limit = quint64(1) << (bits - 1);
        inRange = negative ? magnitude <= limit : magnitude < limit;
        if (negative)
            pattern = (~magnitude + 1) & max;
    }
    if (!inRange) {
        *reason = ConciseDcfCreator::tr("value %1 is out of range for %2").arg(quoted, QLatin1String(type.name));
        return false;
    }
    *out = littleEndian(pattern, type.bytes);
    return true;
}

int numberWithBase(const QString &text, bool *ok)
{
    return text.trimmed().toInt(ok, 0);
}

}

ConciseDcfCreator::ConciseDcfCreator(QString fileName, QObject *parent)
    : QObject(nullptr)
    , m_fileName(std::move(fileName))
{
    Q_UNUSED(parent)
}

ConciseDcfCreator::~ConciseDcfCreator() = default;

bool ConciseDcfCreator::parseSectionForIndices(QVector<unsigned short> &indices, QString section)
{
    if (!m_settings) {
        m_settings = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
        CommonGUICompat::useUtf8(*m_settings);
    }
    m_settings->beginGroup(section);
    bool ok = false;
    int count = m_settings->value(QStringLiteral("SupportedObjects"), 0).toString().toInt(&ok, 0);
    if (!ok)
        count = 0;
    // A count beyond the keys present reads nothing more: only the keys that
    // exist are visited, so a bogus count costs no time.
    QVector<int> positions;
    const QStringList keys = m_settings->childKeys();
    if (count > keys.size()) {
        for (const QString &key : keys) {
            bool isNumber = false;
            const int n = key.toInt(&isNumber);
            if (isNumber && n >= 1 && n <= count && QString::number(n) == key)
                positions.append(n);
        }
        std::sort(positions.begin(), positions.end());
    } else {
        for (int i = 1; i <= count; ++i)
            positions.append(i);
    }
    for (const int i : qAsConst(positions)) {
        const QByteArray entry = m_settings->value(QString::number(i)).toString().toLocal8Bit();
        unsigned int index = 0;
        // Deliberately strict: only a literal lower-case "0x" prefix is accepted.
        if (std::sscanf(entry.constData(), "0x%x", &index) == 1)
            indices.append(static_cast<unsigned short>(index & 0xFFFF));
    }
    m_settings->endGroup();
    return true;
}

QVector<unsigned short> ConciseDcfCreator::prepare()
{
    m_settings = std::make_unique<QSettings>(m_fileName, QSettings::IniFormat);
    CommonGUICompat::useUtf8(*m_settings);

    QVector<unsigned short> indices;
    parseSectionForIndices(indices, QStringLiteral("MandatoryObjects"));
    parseSectionForIndices(indices, QStringLiteral("OptionalObjects"));
    parseSectionForIndices(indices, QStringLiteral("ManufacturerObjects"));
    std::sort(indices.begin(), indices.end());

    for (unsigned short index : qAsConst(indices)) {
        const QString section = QString::number(index, 16);
        m_settings->beginGroup(section);
        if (!m_settings->contains(QStringLiteral("ParameterName"))) {
            m_settings->endGroup();
            m_settings->beginGroup(section.toUpper());
        }
        m_settings->endGroup();
    }
    return indices;
}

bool ConciseDcfCreator::convert(QString outputName)
{
    Q_UNUSED(outputName)
    prepare();
    return false;
}

void ConciseDcfCreator::addItem(const stDataItems &item, const QByteArray &data)
{
    if (item.index < 0x2000) {
        m_communicationItems.append(item);
        m_communicationData += data;
    } else if (item.index < 0x6000) {
        m_manufacturerItems.append(item);
        m_manufacturerData += data;
    } else {
        m_profileItems.append(item);
        m_profileData += data;
    }
}

QList<ConciseDcfCreator::stDataItems> ConciseDcfCreator::dataItems() const
{
    return m_communicationItems + m_manufacturerItems + m_profileItems;
}

bool ConciseDcfCreator::writeConciseDcf(const QString &outputName)
{
    m_errors.clear();
    m_communicationItems.clear();
    m_manufacturerItems.clear();
    m_profileItems.clear();
    m_communicationData.clear();
    m_manufacturerData.clear();
    m_profileData.clear();

    QVector<unsigned short> indices = prepare();
    indices.erase(std::unique(indices.begin(), indices.end()), indices.end());

    IniDocument sheet;
    QString error;
    if (!readDocument(m_fileName, &sheet, &error)) {
        m_errors << tr("Cannot read %1: %2").arg(m_fileName, error);
        return false;
    }

    bool nodeIdOk = false;
    int nodeId = numberWithBase(sheet.value(QStringLiteral("DeviceComissioning/NodeID")), &nodeIdOk);
    if (!nodeIdOk || nodeId < 1 || nodeId > 127)
        nodeId = -1;

    // Object sections in any spelling; the first of the sorted list wins, as in the writer.
    static const QRegularExpression object(QStringLiteral("^([0-9a-f]{1,4})(?:sub([0-9a-f]{1,2}))?$"),
                                           QRegularExpression::CaseInsensitiveOption);
    QMap<quint16, QString> heads;
    QMap<quint16, QMap<quint8, QString>> subs;
    const QStringList groups = sheet.childGroups();
    for (const QString &group : groups) {
        const auto match = object.match(group);
        if (!match.hasMatch())
            continue;
        const quint16 index = quint16(match.captured(1).toUInt(nullptr, 16));
        if (match.captured(2).isEmpty()) {
            if (!heads.contains(index))
                heads.insert(index, group);
        } else {
            QMap<quint8, QString> &entries = subs[index];
            const quint8 sub = quint8(match.captured(2).toUInt(nullptr, 16));
            if (!entries.contains(sub))
                entries.insert(sub, group);
        }
    }

    static const QStringList writable = { QStringLiteral("rw"), QStringLiteral("wo"), QStringLiteral("rww"),
                                          QStringLiteral("rwr") };
    auto consider = [&](const QString &section, quint16 index, quint8 sub) {
        const QString prefix = section + QLatin1Char('/');
        if (!sheet.contains(prefix + QLatin1String("ParameterValue")))
            return;
        if (!writable.contains(sheet.value(prefix + QLatin1String("AccessType")).trimmed().toLower()))
            return;
        const QString where = QStringLiteral("0x%1sub%2 [%3]")
                                  .arg(index, 4, 16, QLatin1Char('0')).arg(sub, 0, 16).arg(section);
        const QString value = sheet.value(prefix + QLatin1String("ParameterValue"));
        bool ok = false;
        const QString typeText = sheet.value(prefix + QLatin1String("DataType"));
        const int dataType = numberWithBase(typeText, &ok);
        TypeInfo type;
        if (!ok || !typeInfo(dataType, &type)) {
            m_errors << tr("%1: data type \"%2\" is not supported").arg(where, typeText);
            return;
        }
        QByteArray data;
        QString reason;
        if (!encode(value, type, nodeId, &data, &reason)) {
            m_errors << tr("%1: %2").arg(where, reason);
            return;
        }
        addItem({ index, sub, 0, quint32(data.size()) }, data);
    };

    for (unsigned short index : qAsConst(indices)) {
        const auto subList = subs.constFind(index);
        if (subList != subs.constEnd()) {
            for (auto it = subList->cbegin(); it != subList->cend(); ++it)
                consider(it.value(), index, it.key());
            continue;
        }
        const QString head = heads.value(index);
        if (head.isEmpty())
            continue;
        const QString objectType = sheet.value(head + QLatin1String("/ObjectType"));
        bool ok = false;
        if (!objectType.isEmpty() && (numberWithBase(objectType, &ok) != CANopen::VAR || !ok))
            continue;
        consider(head, index, 0);
    }

    if (!m_errors.isEmpty()) {
        m_communicationItems.clear();
        m_manufacturerItems.clear();
        m_profileItems.clear();
        return false;
    }

    const QList<stDataItems> items = dataItems();
    QByteArray out = littleEndian(quint32(items.size()), 4);
    const QByteArray data = m_communicationData + m_manufacturerData + m_profileData;
    int offset = 0;
    for (const stDataItems &item : items) {
        out += littleEndian(item.index, 2);
        out += littleEndian(item.subIndex, 1);
        out += littleEndian(item.size, 4);
        out += data.mid(offset, int(item.size));
        offset += int(item.size);
    }

    QSaveFile file(outputName);
    if (!file.open(QIODevice::WriteOnly) || file.write(out) != out.size() || !file.commit()) {
        m_errors << tr("Cannot write %1: %2").arg(outputName, file.errorString());
        return false;
    }
    return true;
}

bool ConciseDcfCreator::writeConciseDcf(const QString &outputName,
                                        const std::function<void(DCFWriter &)> &configure)
{
    m_errors.clear();
    // Outside the output's folder and removed with the directory on every path.
    QTemporaryDir work;
    const QString copy = work.filePath(QStringLiteral("configured.dcf"));
    if (!work.isValid() || !QFile::copy(m_fileName, copy)) {
        m_errors << tr("Cannot read %1").arg(m_fileName);
        return false;
    }
    QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
    {
        DCFWriter writer;
        if (!writer.setDCFFile(copy)) {
            m_errors << tr("Cannot read %1").arg(m_fileName);
            return false;
        }
        if (configure)
            configure(writer);
        writer.writeFile();
    }
    const QString original = m_fileName;
    m_fileName = copy;
    const bool written = writeConciseDcf(outputName);
    m_fileName = original;
    m_settings.reset();
    return written;
}

bool ConciseDcfCreator::checkValue(int dataType, const QString &value, int nodeId, QString *reason)
{
    TypeInfo type;
    QString why;
    QByteArray data;
    if (!typeInfo(dataType, &type))
        why = tr("data type 0x%1 is not supported").arg(dataType, 0, 16);
    else if (encode(value, type, nodeId, &data, &why))
        return true;
    if (reason)
        *reason = why;
    return false;
}

bool ConciseDcfCreator::readConciseDcf(const QByteArray &bytes, QList<ConciseEntry> *entries, QString *error)
{
    auto fail = [error](const QString &text) {
        if (error)
            *error = text;
        return false;
    };
    QList<ConciseEntry> result;
    if (bytes.size() < 4)
        return fail(tr("Truncated concise DCF: %n byte(s), no entry count", nullptr, bytes.size()));
    const uchar *data = reinterpret_cast<const uchar *>(bytes.constData());
    const quint32 count = qFromLittleEndian<quint32>(data);
    const qint64 size = bytes.size();
    // Every entry takes at least seven bytes: a bogus count is caught before anything is allocated.
    if (qint64(count) > (size - 4) / 7)
        return fail(tr("Inconsistent concise DCF: %1 entries cannot fit in %2 bytes").arg(count).arg(size));
    qint64 pos = 4;
    for (quint32 i = 0; i < count; ++i) {
        if (size - pos < 7)
            return fail(tr("Truncated concise DCF: entry %1 of %2 is cut short").arg(i + 1).arg(count));
        ConciseEntry entry;
        entry.index = qFromLittleEndian<quint16>(data + pos);
        entry.subIndex = data[pos + 2];
        const quint32 length = qFromLittleEndian<quint32>(data + pos + 3);
        pos += 7;
        if (qint64(length) > size - pos)
            return fail(tr("Truncated concise DCF: entry %1 (0x%2sub%3) declares %4 bytes, %5 left")
                            .arg(i + 1)
                            .arg(entry.index, 4, 16, QLatin1Char('0'))
                            .arg(entry.subIndex, 0, 16)
                            .arg(length)
                            .arg(size - pos));
        entry.data = bytes.mid(int(pos), int(length));
        pos += length;
        result.append(entry);
    }
    if (pos != size)
        return fail(tr("Inconsistent concise DCF: %1 bytes after the last entry").arg(size - pos));
    if (entries)
        *entries = result;
    return true;
}
