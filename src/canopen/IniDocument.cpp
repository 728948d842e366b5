// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "IniDocument_p.h"

#include <QDataStream>
#include <QFile>
#include <QRect>
#include <QSaveFile>
#include <QSize>

#include <algorithm>
#include <functional>

namespace {

bool isSpace(char c)
{
    return c == ' ' || c == '\t';
}

// Length of the line ending at the end of raw (0, 1 or 2 bytes).
int eolLength(const QByteArray &raw)
{
    if (raw.endsWith("\r\n"))
        return 2;
    if (raw.endsWith('\n') || raw.endsWith('\r'))
        return 1;
    return 0;
}

QString normalizedPath(const QString &path)
{
    if (!path.startsWith(QLatin1Char('/')) && !path.endsWith(QLatin1Char('/'))
        && !path.contains(QLatin1String("//")))
        return path;
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/'));
}

QString firstSegment(const QString &path)
{
    return path.section(QLatin1Char('/'), 0, 0);
}

const char hexDigits[] = "0123456789ABCDEF";

}

QString IniDocument::unescapedKey(const QByteArray &raw)
{
    QString result;
    result.reserve(raw.size());
    int i = 0;
    const int to = raw.size();
    while (i < to) {
        const uchar ch = uchar(raw.at(i));
        if (ch == '\\') {
            result += QLatin1Char('/');
            ++i;
            continue;
        }
        if (ch != '%' || i == to - 1) {
            result += QLatin1Char(char(ch));
            ++i;
            continue;
        }
        int digits = 2;
        int first = i + 1;
        if (raw.at(i + 1) == 'U') {
            ++first;
            digits = 4;
        }
        // Signed, as QSettings reads it: "%-1" is U+FFFF.
        bool ok = false;
        const ushort code = first + digits <= to ? ushort(raw.mid(first, digits).toInt(&ok, 16)) : 0;
        if (!ok) {
            result += QLatin1Char('%');
            ++i;
            continue;
        }
        result += QChar(code);
        i = first + digits;
    }
    return result;
}

QByteArray IniDocument::escapedKey(const QString &key)
{
    QByteArray result;
    result.reserve(key.size() * 3 / 2);
    for (const QChar qc : key) {
        const ushort ch = qc.unicode();
        if (ch == '/') {
            result += '\\';
        } else if ((ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || (ch >= '0' && ch <= '9')
                   || ch == '_' || ch == '-' || ch == '.') {
            result += char(ch);
        } else if (ch <= 0xFF) {
            result += '%';
            result += hexDigits[ch / 16];
            result += hexDigits[ch % 16];
        } else {
            result += "%U";
            for (int shift = 12; shift >= 0; shift -= 4)
                result += hexDigits[(ch >> shift) & 0xF];
        }
    }
    return result;
}

QByteArray IniDocument::escapedValue(const QString &value)
{
    const QString str = value.startsWith(QLatin1Char('@')) ? QLatin1Char('@') + value : value;
    QByteArray result;
    result.reserve(str.size() * 3 / 2);
    bool needsQuotes = false;
    bool escapeNextIfDigit = false;
    const QVector<uint> codes = str.toUcs4();
    for (const uint ch : codes) {
        if (ch == ';' || ch == ',' || ch == '=')
            needsQuotes = true;
        if (escapeNextIfDigit
            && ((ch >= '0' && ch <= '9') || (ch >= 'a' && ch <= 'f') || (ch >= 'A' && ch <= 'F'))) {
            result += "\\x" + QByteArray::number(ch, 16);
            continue;
        }
        escapeNextIfDigit = false;
        switch (ch) {
        case '\0': result += "\\0"; escapeNextIfDigit = true; break;
        case '\a': result += "\\a"; break;
        case '\b': result += "\\b"; break;
        case '\f': result += "\\f"; break;
        case '\n': result += "\\n"; break;
        case '\r': result += "\\r"; break;
        case '\t': result += "\\t"; break;
        case '\v': result += "\\v"; break;
        case '"':
        case '\\':
            result += '\\';
            result += char(ch);
            break;
        default:
            if (ch <= 0x1F) {
                result += "\\x" + QByteArray::number(ch, 16);
                escapeNextIfDigit = true;
            } else if (ch < 0x80) {
                result += char(ch);
            } else {
                const char32_t code = ch;
                result += QString::fromUcs4(&code, 1).toUtf8();
            }
        }
    }
    if (needsQuotes || (!result.isEmpty() && (result.startsWith(' ') || result.endsWith(' ')))) {
        result.prepend('"');
        result += '"';
    }
    return result;
}

QVariant IniDocument::parsedValue(const QByteArray &raw)
{
    const char *str = raw.constData();
    const int to = raw.size();
    QString result;
    QStringList list;
    bool isList = false;
    bool inQuotes = false;
    bool quoted = false;
    int i = 0;
    auto skipSpaces = [&] {
        while (i < to && isSpace(str[i]))
            ++i;
    };
    // Blanks before this point are kept: they came from an escape or quotes.
    int chopLimit = 0;
    auto chop = [&] {
        int n = result.size();
        while (n > chopLimit && (result.at(n - 1) == QLatin1Char(' ') || result.at(n - 1) == QLatin1Char('\t')))
            --n;
        result.truncate(n);
    };
    auto isHex = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    skipSpaces();
    bool atEnd = false;  // input ran out inside an escape: no trailing blanks are chopped
    while (i < to && !atEnd) {
        const char ch = str[i];
        if (ch == '\\') {
            ++i;
            if (i >= to) {
                atEnd = true;
                break;
            }
            const char next = str[i++];
            static const char codes[][2] = { { 'a', '\a' }, { 'b', '\b' }, { 'f', '\f' }, { 'n', '\n' },
                                             { 'r', '\r' }, { 't', '\t' }, { 'v', '\v' }, { '"', '"' },
                                             { '?', '?' }, { '\'', '\'' }, { '\\', '\\' } };
            bool mapped = false;
            for (const auto &code : codes) {
                if (next == code[0]) {
                    result += QLatin1Char(code[1]);
                    mapped = true;
                    break;
                }
            }
            if (mapped) {
                chopLimit = result.size();
                continue;
            }
            const bool hex = next == 'x';
            if (hex || (next >= '0' && next <= '7')) {
                if (hex && i >= to) {
                    atEnd = true;
                    break;
                }
                if (hex && !isHex(str[i])) {
                    // "\x" without digits stands for nothing, but keeps the blanks before it.
                    chopLimit = result.size();
                    continue;
                }
                quint16 code = hex ? 0 : quint16(next - '0');
                while (i < to && (hex ? isHex(str[i]) : (str[i] >= '0' && str[i] <= '7'))) {
                    const char d = str[i++];
                    const int digit = d <= '9' ? d - '0' : (d | 0x20) - 'a' + 10;
                    code = quint16((code << (hex ? 4 : 3)) + digit);
                }
                result += QChar(code);
                if (i >= to) {
                    atEnd = true;
                    break;
                }
                chopLimit = result.size();
                continue;
            }
            if ((next == '\n' || next == '\r') && i < to && (str[i] == '\n' || str[i] == '\r') && str[i] != next)
                ++i;
            // Any other escaped character is dropped; the blanks before it stay.
            chopLimit = result.size();
        } else if (ch == '"') {
            ++i;
            quoted = true;
            inQuotes = !inQuotes;
            if (!inQuotes) {
                skipSpaces();
                chopLimit = result.size();
            }
        } else if (ch == ',' && !inQuotes) {
            if (!quoted)
                chop();
            isList = true;
            list.append(result);
            result.clear();
            quoted = false;
            ++i;
            skipSpaces();
            chopLimit = 0;
        } else {
            int j = i + 1;
            while (j < to && str[j] != '\\' && str[j] != '"' && str[j] != ',')
                ++j;
            result += QString::fromUtf8(str + i, j - i);
            i = j;
        }
    }
    if (!atEnd && !quoted)
        chop();
    if (!isList)
        return typedValue(result);
    list.append(result);
    for (const QString &item : qAsConst(list)) {
        if (item.startsWith(QLatin1Char('@'))) {
            QVariantList variants;
            for (const QString &entry : qAsConst(list))
                variants.append(typedValue(entry));
            return variants;
        }
    }
    return list;
}

// The "@Type(...)" forms the reader turns into other types than text.
QVariant IniDocument::typedValue(const QString &text)
{
    if (!text.startsWith(QLatin1Char('@')))
        return text;
    if (text.endsWith(QLatin1Char(')'))) {
        if (text.startsWith(QLatin1String("@ByteArray(")))
            return QStringView(text).mid(11, text.size() - 12).toLatin1();
        if (text.startsWith(QLatin1String("@String(")))
            return text.mid(8, text.size() - 9);
        if (text.startsWith(QLatin1String("@Variant(")) || text.startsWith(QLatin1String("@DateTime("))) {
            const bool dateTime = text.at(1) == QLatin1Char('D');
            QByteArray bytes = QStringView(text).mid(dateTime ? 10 : 9).toLatin1();
            QDataStream stream(&bytes, QIODevice::ReadOnly);
            stream.setVersion(dateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0);
            QVariant result;
            stream >> result;
            return result;
        }
        const int args = text.count(QLatin1Char(' ')) + text.count(QLatin1Char(')'));
        if (text.startsWith(QLatin1String("@Rect(")) && args == 4)
            return QRect();
        if ((text.startsWith(QLatin1String("@Size(")) || text.startsWith(QLatin1String("@Point("))) && args == 2)
            return QSize();
        if (text == QLatin1String("@Invalid()"))
            return QVariant();
    }
    if (text.startsWith(QLatin1String("@@")))
        return text.mid(1);
    return text;
}

void IniDocument::parse(const QByteArray &input)
{
    m_lines.clear();
    m_blocks.clear();
    m_extra.clear();
    m_firstBlock.clear();
    m_slashedSections.clear();
    m_eol = "\n";
    m_source = input;
    m_bom = m_source.startsWith("\xEF\xBB\xBF");
    m_openEnd = QByteArray();
    m_openLine = -1;

    // Sections are about a tenth of the lines: sized once, no rehashing.
    const int expected = int(m_source.count('[')) + 1;
    m_blocks.reserve(size_t(expected));
    m_lines.reserve(size_t(m_source.count('\n')) + 1);
    m_firstBlock.reserve(expected);
    m_blocks.push_back(Block());
    m_firstBlock.insert(QString(), 0);
    QHash<QString, int> lastBlock;
    lastBlock.reserve(expected);
    lastBlock.insert(QString(), 0);

    const char *data = m_source.constData();
    const int size = m_source.size();
    bool eolSeen = false;
    QString section;
    int pos = m_bom ? 3 : 0;
    // The offset after the line break of the physical line holding `at`.
    auto physicalEnd = [&](int at) {
        int i = at;
        while (i < size && data[i] != '\n' && data[i] != '\r')
            ++i;
        if (i < size) {
            const int eolStart = i;
            if (data[i] == '\r' && i + 1 < size && data[i + 1] == '\n')
                ++i;
            ++i;
            if (!eolSeen) {
                m_eol = m_source.mid(eolStart, i - eolStart);
                eolSeen = true;
            }
        }
        return i;
    };
    while (pos < size) {
        Line line;
        line.offset = pos;
        line.block = int(m_blocks.size()) - 1;
        int begin = pos;
        while (begin < size && isSpace(data[begin]))
            ++begin;
        // An entry ends at a line break or a comment outside quotes; quotes and
        // backslashes carry it over line breaks, as the settings reader does.
        int equals = -1;
        int end = begin;
        bool inQuotes = false;
        bool escapedEnd = false;
        bool loneBackslash = false;
        bool escapedBreak = false;
        if (begin < size && data[begin] != ';' && data[begin] != '\n' && data[begin] != '\r') {
            while (end < size) {
                const char ch = data[end++];
                if (ch == '=') {
                    if (!inQuotes && equals < 0)
                        equals = end - 1;
                } else if (ch == '\n' || ch == '\r' || ch == ';') {
                    if (!inQuotes) {
                        --end;
                        break;
                    }
                } else if (ch == '\\') {
                    loneBackslash = end >= size;
                    escapedBreak = false;
                    if (end < size) {
                        const char escaped = data[end++];
                        escapedBreak = escaped == '\n' || escaped == '\r';
                        if (end < size) {
                            const char after = data[end];
                            if ((escaped == '\n' && after == '\r') || (escaped == '\r' && after == '\n'))
                                ++end;
                        }
                    }
                    escapedEnd = end >= size && (loneBackslash || escapedBreak);
                } else if (ch == '"') {
                    inQuotes = !inQuotes;
                }
            }
        }
        const int next = physicalEnd(end);
        line.length = next - pos;
        if (end >= size && (inQuotes || escapedEnd)) {
            // Anything after this entry would become part of it: what closes it
            // without changing what it says. A lone backslash at the end escapes
            // nothing; "\\x" without digits stands for nothing either.
            const bool lone = loneBackslash;
            m_openEnd = lone ? QByteArray(equals >= 0 ? "x" : " ") : QByteArray();
            if (inQuotes)
                m_openEnd += '"';
            else if (!lone)
                // The same break again: another kind would pair with the
                // escaped one ("\n\r") and carry the entry on.
                m_openEnd = QByteArray(1, data[size - 1]);
            m_openLine = int(m_lines.size());
        }
        if (begin < end && data[begin] == '[') {
            const int close = m_source.indexOf(']', begin);
            const QByteArray name = (close < 0 || close >= end)
                ? QByteArray(data + begin + 1, end - begin - 1).trimmed()
                : QByteArray(data + begin + 1, close - begin - 1).trimmed();
            // Keys of a section are "name/key", outside sections just "key";
            // "[]" is a section of its own, its keys "/key".
            if (name.compare("general", Qt::CaseInsensitive) == 0)
                section.clear();
            else if (name.compare("%general", Qt::CaseInsensitive) == 0)
                section = QString::fromLatin1(name.mid(1));
            else
                section = unescapedKey(name);
            const bool general = name.compare("general", Qt::CaseInsensitive) == 0;
            Block block;
            block.name = section;
            block.prefix = general ? QString() : section + QLatin1Char('/');
            block.header = int(m_lines.size());
            block.first = block.header + 1;
            const int id = int(m_blocks.size());
            const auto last = lastBlock.constFind(block.prefix);
            if (last == lastBlock.constEnd())
                m_firstBlock.insert(block.prefix, id);
            else
                m_blocks[size_t(*last)].nextSameName = id;
            lastBlock.insert(block.prefix, id);
            if (section.contains(QLatin1Char('/')))
                m_slashedSections.insert(section);
            m_blocks.push_back(block);
            line.block = id;
            m_lines.push_back(line);
            pos = next;
            continue;
        }
        if (equals >= 0) {
            // The reader takes a byte order mark into the first key outside sections.
            line.bomKey = m_bom && pos == 3;
            if (line.bomKey)
                begin = pos;
            int keyEnd = equals;
            while (keyEnd > begin && isSpace(data[keyEnd - 1]))
                --keyEnd;
            line.keyBegin = begin - pos;
            line.keyLength = keyEnd - begin;
            line.equals = equals - pos;
            line.valueEnd = end - pos;
            line.key = true;
            line.plainKey = true;
            for (int i = begin; i < keyEnd && line.plainKey; ++i)
                line.plainKey = data[i] != '%' && data[i] != '\\';
            line.plainKey = line.plainKey && !line.bomKey;
        }
        m_lines.push_back(line);
        Block &block = m_blocks[size_t(line.block)];
        ++block.count;
        if (line.key)
            ++block.liveKeys;
        pos = next;
    }
}

void IniDocument::setText(Line &line, const QByteArray &text)
{
    line.extra = true;
    line.offset = m_extra.size();
    line.length = text.size();
    m_extra += text;
}

const char *IniDocument::base(const Line &line) const
{
    return (line.extra ? m_extra.constData() : m_source.constData()) + line.offset;
}

QByteArray IniDocument::rawLine(int id) const
{
    const Line &line = m_lines[size_t(id)];
    return QByteArray::fromRawData(base(line), line.length);
}

QByteArray IniDocument::rawKey(const Line &line) const
{
    return QByteArray(base(line) + line.keyBegin, line.keyLength);
}

QString IniDocument::keyOf(const Line &line) const
{
    const QByteArray raw = rawKey(line);
    if (line.bomKey)
        return QString::fromLatin1("\xEF\xBB\xBF") + unescapedKey(raw);
    return line.plainKey ? QString::fromLatin1(raw.constData(), raw.size()) : unescapedKey(raw);
}

void IniDocument::pathOf(const Block &block, const Line &line, QString *path) const
{
    // Into the caller's buffer: no allocation per key.
    path->resize(0);
    *path += block.prefix;
    if (line.plainKey)
        *path += QLatin1String(base(line) + line.keyBegin, line.keyLength);
    else
        *path += keyOf(line);
}

bool IniDocument::keyEquals(const Line &line, const QString &key) const
{
    if (!line.plainKey)
        return keyOf(line) == key;
    if (line.keyLength != key.size())
        return false;
    return QLatin1String(base(line) + line.keyBegin, line.keyLength) == key;
}

bool IniDocument::keyStartsWith(const Line &line, const QString &prefix) const
{
    return keyOf(line).startsWith(prefix);
}

// The line QSettings reads for a path: the last one in file order.
int IniDocument::findLine(const QString &path, int *sectionBlock) const
{
    int found = -1;
    int slash = -1;
    const int firstSlash = path.indexOf(QLatin1Char('/'));
    if (sectionBlock)
        *sectionBlock = -1;
    // A path may split into section and key at any slash, or be a key outside sections.
    do {
        const QString key = slash < 0 ? path : path.mid(slash + 1);
        if (slash >= 0 || !path.isEmpty()) {
            // Keys outside sections start in block 0, always.
            const int first = slash < 0 ? 0 : m_firstBlock.value(path.left(slash + 1), -1);
            for (int b = first; b >= 0; b = m_blocks[size_t(b)].nextSameName) {
                const Block &block = m_blocks[size_t(b)];
                if (sectionBlock && slash == firstSlash && !block.removed)
                    *sectionBlock = b;
                if (block.removed || block.liveKeys == 0)
                    continue;
                // Later blocks of one name, and longer section names, override.
                const int id = lastLineOf(block, key);
                if (id >= 0)
                    found = id;
            }
        }
        slash = path.indexOf(QLatin1Char('/'), slash + 1);
    } while (slash >= 0);
    return found;
}

int IniDocument::lastLineOf(const Block &block, const QString &key) const
{
    int found = -1;
    if (block.count + block.inserted.size() <= 16) {
        forEachLine(block, [&](int id) {
            const Line &line = m_lines[size_t(id)];
            if (line.key && !line.removed && keyEquals(line, key))
                found = id;
        });
        return found;
    }
    if (!block.indexed) {
        block.keyIndex.clear();
        forEachLine(block, [&](int id) {
            const Line &line = m_lines[size_t(id)];
            if (line.key)
                block.keyIndex[keyOf(line)].append(id);
        });
        block.indexed = true;
    }
    const auto it = block.keyIndex.constFind(key);
    if (it == block.keyIndex.constEnd())
        return -1;
    // Key lines after the insertion point were removed before anything was
    // added: appending added lines keeps the order among live ones.
    for (int i = it->size() - 1; i >= 0; --i) {
        if (!m_lines[size_t(it->at(i))].removed)
            return it->at(i);
    }
    return -1;
}

void IniDocument::removeLine(int id)
{
    Line &line = m_lines[size_t(id)];
    if (line.removed)
        return;
    line.removed = true;
    if (line.key)
        --m_blocks[size_t(line.block)].liveKeys;
}

void IniDocument::removeBlock(int id)
{
    Block &block = m_blocks[size_t(id)];
    if (block.removed || block.header < 0)
        return;
    block.removed = true;
    m_lines[size_t(block.header)].removed = true;
    forEachLine(block, [this](int line) { removeLine(line); });
}

QByteArray IniDocument::headerText(const QString &name)
{
    if (name.isEmpty())
        return "[General]";
    // QSettings writes any spelling of this name so; it reads back as "General".
    if (name.compare(QLatin1String("general"), Qt::CaseInsensitive) == 0)
        return "[%General]";
    return '[' + escapedKey(name) + ']';
}

int IniDocument::newBlock(const QString &name)
{
    Block block;
    block.name = name;
    block.prefix = name.isEmpty() ? QString() : name + QLatin1Char('/');
    block.added = true;
    const int id = int(m_blocks.size());
    Line line;
    setText(line, headerText(name) + m_eol);
    line.block = id;
    m_lines.push_back(line);
    block.header = int(m_lines.size()) - 1;
    int last = m_firstBlock.value(block.prefix, -1);
    if (last < 0) {
        m_firstBlock.insert(block.prefix, id);
    } else {
        while (m_blocks[size_t(last)].nextSameName >= 0)
            last = m_blocks[size_t(last)].nextSameName;
        m_blocks[size_t(last)].nextSameName = id;
    }
    if (name.contains(QLatin1Char('/')))
        m_slashedSections.insert(name);
    m_blocks.push_back(block);
    return id;
}

QByteArray IniDocument::toBytes() const
{
    QByteArray out;
    out.reserve(m_source.size() + 1024);
    if (m_bom)
        out += "\xEF\xBB\xBF";
    bool atStart = true;
    bool endsWithEol = true;
    bool lastBlank = true;
    int openAt = -1;  // where an entry that runs to the end of the loaded text starts
    auto put = [&](const QByteArray &raw, int id) {
        if (openAt >= 0) {
            // Something follows the entry that ran to the end: close it first.
            const Line &open = m_lines[size_t(m_openLine)];
            if (m_blocks[size_t(open.block)].header == m_openLine) {
                out.truncate(openAt);
                const Block &block = m_blocks[size_t(open.block)];
                out += block.prefix.isEmpty() || !block.name.isEmpty() ? headerText(block.name) : QByteArray("[]");
                endsWithEol = false;
            } else {
                out += m_openEnd;
                endsWithEol = eolLength(m_openEnd) > 0;
            }
            openAt = -1;
        }
        if (!atStart && !endsWithEol)
            out += m_eol;
        // Right after a byte order mark the reader takes it into a key outside
        // sections: a key that was not there first gets a blank line before it.
        if (atStart && m_bom && id >= 0 && m_lines[size_t(id)].key && m_lines[size_t(id)].block == 0
            && !m_lines[size_t(id)].bomKey)
            out += m_eol;
        if (id >= 0 && id == m_openLine)
            openAt = out.size();
        out += raw;
        atStart = false;
        endsWithEol = eolLength(raw) > 0;
        lastBlank = raw.trimmed().isEmpty();
    };
    for (const Block &block : m_blocks) {
        if (block.removed)
            continue;
        if (block.added && !atStart && !lastBlank)
            put(m_eol, -1);
        if (block.header >= 0)
            put(rawLine(block.header), block.header);
        forEachLine(block, [&](int id) {
            if (!m_lines[size_t(id)].removed)
                put(rawLine(id), id);
        });
    }
    return out;
}

bool IniDocument::load(const QString &fileName, QString *error)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        if (error)
            *error = file.errorString();
        parse(QByteArray());
        return false;
    }
    parse(file.readAll());
    return true;
}

bool IniDocument::save(const QString &fileName, QString *error) const
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    const QByteArray bytes = toBytes();
    if (file.write(bytes) != bytes.size() || !file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

QStringList IniDocument::allKeys() const
{
    QSet<QString> keys;
    for (const Block &block : m_blocks) {
        if (block.removed || block.liveKeys == 0)
            continue;
        forEachLine(block, [&](int id) {
            const Line &line = m_lines[size_t(id)];
            if (line.key && !line.removed)
                keys.insert(block.prefix + keyOf(line));
        });
    }
    QStringList sorted = keys.values();
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

QStringList IniDocument::childGroups() const
{
    QStringList groups;
    groups.reserve(int(m_blocks.size()));
    for (const Block &block : m_blocks) {
        if (block.removed || block.liveKeys == 0)
            continue;
        if (!block.prefix.isEmpty()) {
            groups.append(block.name.contains(QLatin1Char('/')) ? firstSegment(block.name) : block.name);
            continue;
        }
        forEachLine(block, [&](int id) {
            const Line &line = m_lines[size_t(id)];
            if (line.key && !line.removed && keyOf(line).contains(QLatin1Char('/')))
                groups.append(firstSegment(keyOf(line)));
        });
    }
    std::sort(groups.begin(), groups.end());
    groups.erase(std::unique(groups.begin(), groups.end()), groups.end());
    return groups;
}

bool IniDocument::contains(const QString &path) const
{
    return findLine(normalizedPath(path)) >= 0;
}

QString IniDocument::value(const QString &path, const QString &defaultValue) const
{
    const int id = findLine(normalizedPath(path));
    if (id < 0)
        return defaultValue;
    return lineValue(id).toString();
}

QVariant IniDocument::variantValue(const QString &path, const QVariant &defaultValue) const
{
    const int id = findLine(normalizedPath(path));
    return id < 0 ? defaultValue : lineValue(id);
}

QVariant IniDocument::lineValue(int id) const
{
    const Line &line = m_lines[size_t(id)];
    return parsedValue(QByteArray::fromRawData(base(line) + line.equals + 1, line.valueEnd - line.equals - 1));
}

void IniDocument::setValue(const QString &rawPath, const QString &value)
{
    const QString path = normalizedPath(rawPath);
    if (path.isEmpty())
        return;
    const QByteArray escaped = escapedValue(value);
    int lastBlock = -1;
    const int existing = findLine(path, &lastBlock);
    if (existing >= 0) {
        // Only the occurrence QSettings reads (the last) is rewritten.
        Line &line = m_lines[size_t(existing)];
        const QByteArray old = rawLine(existing);
        const QByteArray eol(old.constData() + old.size() - eolLength(old), eolLength(old));
        // The key as written; a blank after a final backslash stays, or the
        // backslash would escape the '='.
        QByteArray key(base(line) + line.keyBegin, line.keyLength);
        int backslashes = 0;
        while (backslashes < key.size() && key.at(key.size() - 1 - backslashes) == '\\')
            ++backslashes;
        if (backslashes % 2 == 1)
            key += ' ';
        setText(line, key + '=' + escaped + eol);
        line.equals = key.size();
        line.keyBegin = 0;
        line.valueEnd = line.length - eol.size();
        if (existing == m_openLine)
            m_openLine = -1;
        return;
    }
    const int slash = path.indexOf(QLatin1Char('/'));
    const QString section = slash < 0 ? QString() : path.left(slash);
    const QString key = slash < 0 ? path : path.mid(slash + 1);
    int blockId = lastBlock;
    if (blockId < 0)
        blockId = newBlock(section);
    Block &block = m_blocks[size_t(blockId)];
    if (block.inserted.isEmpty()) {
        // After the last key as loaded: blank lines and comments that close the section stay last.
        block.insertAt = -1;
        for (int i = block.count - 1; i >= 0; --i) {
            const Line &other = m_lines[size_t(block.first + i)];
            if (other.key && !other.removed) {
                block.insertAt = i;
                break;
            }
        }
    }
    const QByteArray rawKeyText = escapedKey(key);
    Line line;
    setText(line, rawKeyText + '=' + escaped + m_eol);
    line.key = true;
    line.plainKey = !rawKeyText.contains('%') && !rawKeyText.contains('\\');
    line.keyLength = rawKeyText.size();
    line.equals = rawKeyText.size();
    line.valueEnd = line.length - m_eol.size();
    line.block = blockId;
    m_lines.push_back(line);
    const int id = int(m_lines.size()) - 1;
    block.inserted.append(id);
    ++block.liveKeys;
    if (block.indexed)
        block.keyIndex[key].append(id);
}

bool IniDocument::removeKeysIf(const std::function<bool(const QString &)> &accept, QStringList *removed)
{
    QString path;
    QStringList listed;
    for (size_t b = 0; b < m_blocks.size(); ++b) {
        const Block &block = m_blocks[b];
        if (block.removed || block.liveKeys == 0)
            continue;
        forEachLine(block, [&](int id) {
            const Line &line = m_lines[size_t(id)];
            if (!line.key || line.removed)
                return;
            pathOf(block, line, &path);
            if (!accept(path))
                return;
            // Removing a path removes what lies under it too, and a path the reader
            // would normalise is another path: every one is removed by path, after
            // the listing, as the reader removes each key it listed.
            listed << path;
        });
    }
    if (removed)
        *removed = listed;
    return removeAll(listed);
}

bool IniDocument::removeAll(const QStringList &rawPaths)
{
    QSet<QString> paths;
    for (const QString &raw : rawPaths) {
        const QString path = normalizedPath(raw);
        if (!path.isEmpty())
            paths.insert(path);
    }
    if (paths.isEmpty())
        return false;
    // A path goes with everything under it: the path itself or any of its
    // leading parts listed.
    auto covered = [&paths](const QString &full) {
        if (paths.contains(full))
            return true;
        for (int slash = full.indexOf(QLatin1Char('/')); slash >= 0; slash = full.indexOf(QLatin1Char('/'), slash + 1)) {
            // A view of the leading part, not a copy of it.
            if (paths.contains(QString::fromRawData(full.constData(), slash)))
                return true;
        }
        return false;
    };
    QString full;  // one buffer for every key's path
    bool any = false;
    for (size_t b = 0; b < m_blocks.size(); ++b) {
        const Block &block = m_blocks[b];
        if (block.removed)
            continue;
        if (!block.prefix.isEmpty() && block.header >= 0 && covered(block.name)) {
            any = any || block.liveKeys > 0;
            removeBlock(int(b));
            continue;
        }
        if (block.liveKeys == 0)
            continue;
        forEachLine(block, [&](int id) {
            const Line &line = m_lines[size_t(id)];
            if (!line.key || line.removed)
                return;
            pathOf(block, line, &full);
            if (covered(full)) {
                removeLine(id);
                any = true;
            }
        });
    }
    return any;
}

bool IniDocument::remove(const QString &rawPath)
{
    const QString path = normalizedPath(rawPath);
    if (path.isEmpty())
        return false;
    bool any = false;
    int slash = -1;
    // Every split into section and key (and no section at all) can hold keys of the path.
    do {
        const QString key = slash < 0 ? path : path.mid(slash + 1);
        const QString prefix = key + QLatin1Char('/');
        const int first = slash < 0 ? 0 : m_firstBlock.value(path.left(slash + 1), -1);
        for (int b = first; b >= 0; b = m_blocks[size_t(b)].nextSameName) {
            const Block &block = m_blocks[size_t(b)];
            if (block.removed || block.liveKeys == 0)
                continue;
            forEachLine(block, [&](int id) {
                const Line &line = m_lines[size_t(id)];
                if (line.key && !line.removed && (keyEquals(line, key) || keyStartsWith(line, prefix))) {
                    removeLine(id);
                    any = true;
                }
            });
        }
        slash = path.indexOf(QLatin1Char('/'), slash + 1);
    } while (slash >= 0);
    // The group itself: its sections go with all their lines.
    QStringList sections{ path };
    const QString prefix = path + QLatin1Char('/');
    for (const QString &name : qAsConst(m_slashedSections)) {
        if (name.startsWith(prefix))
            sections << name;
    }
    for (const QString &name : qAsConst(sections)) {
        for (int b = m_firstBlock.value(name + QLatin1Char('/'), -1); b >= 0; b = m_blocks[size_t(b)].nextSameName) {
            if (!m_blocks[size_t(b)].removed) {
                any = any || m_blocks[size_t(b)].liveKeys > 0;
                removeBlock(b);
            }
        }
    }
    return any;
}
