#include "IniDocument_p.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>

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

QByteArray trimmedLeft(const QByteArray &text)
{
    int i = 0;
    while (i < text.size() && isSpace(text.at(i)))
        ++i;
    return text.mid(i);
}

// An odd number of trailing backslashes escapes the line break: the entry goes on.
bool continues(const QByteArray &content)
{
    int n = 0;
    for (int i = content.size() - 1; i >= 0 && content.at(i) == '\\'; --i)
        ++n;
    return n % 2 == 1;
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
        bool ok = false;
        const int code = first + digits <= to ? raw.mid(first, digits).toInt(&ok, 16) : 0;
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
                result += QString::fromUcs4(&ch, 1).toUtf8();
            }
        }
    }
    if (needsQuotes || (!result.isEmpty() && (result.startsWith(' ') || result.endsWith(' ')))) {
        result.prepend('"');
        result += '"';
    }
    return result;
}

QString IniDocument::unescapedValue(const QByteArray &raw)
{
    QByteArray bytes;
    int keep = 0;  // bytes up to here survive trimming: quoted or not blank
    bool quoted = false;
    int i = 0;
    const int n = raw.size();
    while (i < n && isSpace(raw.at(i)))
        ++i;
    auto appendCode = [&](uint code) {
        bytes += QString::fromUcs4(&code, 1).toUtf8();
        keep = bytes.size();
    };
    while (i < n) {
        const char ch = raw.at(i);
        if (ch == '"') {
            quoted = !quoted;
            keep = bytes.size();
            ++i;
        } else if (ch == '\\' && i + 1 < n) {
            const char next = raw.at(i + 1);
            i += 2;
            switch (next) {
            case 'a': appendCode('\a'); break;
            case 'b': appendCode('\b'); break;
            case 'f': appendCode('\f'); break;
            case 'n': appendCode('\n'); break;
            case 'r': appendCode('\r'); break;
            case 't': appendCode('\t'); break;
            case 'v': appendCode('\v'); break;
            case '\n':
            case '\r':
                if (i < n && (raw.at(i) == '\n' || raw.at(i) == '\r') && raw.at(i) != next)
                    ++i;
                break;
            case 'x': {
                uint code = 0;
                int digits = 0;
                while (i < n && digits < 4 && isxdigit(uchar(raw.at(i)))) {
                    code = code * 16 + uint(QByteArray(1, raw.at(i)).toInt(nullptr, 16));
                    ++i;
                    ++digits;
                }
                appendCode(code);
                break;
            }
            default:
                if (next >= '0' && next <= '7') {
                    uint code = uint(next - '0');
                    int digits = 1;
                    while (i < n && digits < 3 && raw.at(i) >= '0' && raw.at(i) <= '7') {
                        code = code * 8 + uint(raw.at(i) - '0');
                        ++i;
                        ++digits;
                    }
                    appendCode(code);
                } else {
                    bytes += next;
                    keep = bytes.size();
                }
            }
        } else if (!quoted && (ch == ';' || ch == '\n' || ch == '\r')) {
            break;
        } else {
            bytes += ch;
            if (quoted || !isSpace(ch))
                keep = bytes.size();
            ++i;
        }
    }
    bytes.truncate(keep);
    QString value = QString::fromUtf8(bytes);
    if (value.startsWith(QLatin1String("@@")))
        value.remove(0, 1);
    return value;
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
    // Ends the physical line starting at `from`: returns the offset after its line break.
    auto lineEnd = [&](int from, int *contentEnd) {
        int i = from;
        while (i < size && data[i] != '\n' && data[i] != '\r')
            ++i;
        *contentEnd = i;
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
        int end = 0;
        int next = lineEnd(pos, &end);
        int begin = pos;
        while (begin < end && isSpace(data[begin]))
            ++begin;
        line.block = int(m_blocks.size()) - 1;
        if (begin < end && data[begin] == '[') {
            int close = begin + 1;
            while (close < end && data[close] != ']')
                ++close;
            const QByteArray name = QByteArray(data + begin + 1, close - begin - 1).trimmed();
            if (name.compare("general", Qt::CaseInsensitive) == 0)
                section.clear();
            else if (name.compare("%general", Qt::CaseInsensitive) == 0)
                section = QString::fromLatin1(name.mid(1));
            else
                section = unescapedKey(name);
            Block block;
            block.name = section;
            block.header = int(m_lines.size());
            block.first = block.header + 1;
            const int id = int(m_blocks.size());
            const auto last = lastBlock.constFind(section);
            if (last == lastBlock.constEnd())
                m_firstBlock.insert(section, id);
            else
                m_blocks[size_t(*last)].nextSameName = id;
            lastBlock.insert(section, id);
            if (section.contains(QLatin1Char('/')))
                m_slashedSections.insert(section);
            m_blocks.push_back(block);
            line.block = id;
            line.length = next - pos;
            m_lines.push_back(line);
            pos = next;
            continue;
        }
        int eq = begin;
        while (eq < end && data[eq] != '=')
            ++eq;
        if (begin < end && data[begin] != ';' && eq > begin && eq < end) {
            // An odd number of trailing backslashes carries the entry onto the next line.
            auto continues = [&](int contentEnd) {
                int n = 0;
                for (int i = contentEnd - 1; i >= pos && data[i] == '\\'; --i)
                    ++n;
                return n % 2 == 1;
            };
            while (continues(end) && next < size)
                next = lineEnd(next, &end);
            int keyEnd = eq;
            while (keyEnd > begin && isSpace(data[keyEnd - 1]))
                --keyEnd;
            line.keyBegin = begin - pos;
            line.keyLength = keyEnd - begin;
            line.key = line.keyLength > 0;
            line.plainKey = true;
            for (int i = begin; i < keyEnd && line.plainKey; ++i)
                line.plainKey = data[i] != '%' && data[i] != '\\';
        }
        line.length = next - pos;
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
    return line.plainKey ? QString::fromLatin1(raw) : unescapedKey(raw);
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
    int foundBlock = -1;
    int slash = -1;
    const int firstSlash = path.indexOf(QLatin1Char('/'));
    if (sectionBlock)
        *sectionBlock = -1;
    // A path may split into section and key at any slash, or be a key outside sections.
    do {
        const QString section = slash < 0 ? QString() : path.left(slash);
        const QString key = slash < 0 ? path : path.mid(slash + 1);
        if (slash >= 0 || !path.isEmpty()) {
            // Keys outside sections start in block 0, always.
            const int first = slash < 0 ? 0 : m_firstBlock.value(section, -1);
            for (int b = first; b >= 0; b = m_blocks[size_t(b)].nextSameName) {
                const Block &block = m_blocks[size_t(b)];
                if (sectionBlock && slash == firstSlash && !block.removed)
                    *sectionBlock = b;
                if (block.removed || block.liveKeys == 0)
                    continue;
                forEachLine(block, [&](int id) {
                    const Line &line = m_lines[size_t(id)];
                    if (line.key && !line.removed && keyEquals(line, key) && b >= foundBlock) {
                        found = id;
                        foundBlock = b;
                    }
                });
            }
        }
        slash = path.indexOf(QLatin1Char('/'), slash + 1);
    } while (slash >= 0);
    return found;
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

int IniDocument::newBlock(const QString &name)
{
    Block block;
    block.name = name;
    block.added = true;
    QByteArray header;
    if (name.isEmpty())
        header = "General";
    else if (name.compare(QLatin1String("general"), Qt::CaseInsensitive) == 0)
        header = '%' + name.toLatin1();
    else
        header = escapedKey(name);
    const int id = int(m_blocks.size());
    Line line;
    setText(line, '[' + header + ']' + m_eol);
    line.block = id;
    m_lines.push_back(line);
    block.header = int(m_lines.size()) - 1;
    int last = m_firstBlock.value(name, -1);
    if (last < 0) {
        m_firstBlock.insert(name, id);
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
    auto put = [&](const QByteArray &raw) {
        if (!atStart && !endsWithEol)
            out += m_eol;
        out += raw;
        atStart = false;
        endsWithEol = eolLength(raw) > 0;
        lastBlank = raw.trimmed().isEmpty();
    };
    for (const Block &block : m_blocks) {
        if (block.removed)
            continue;
        if (block.added && !atStart && !lastBlank)
            put(m_eol);
        if (block.header >= 0)
            put(rawLine(block.header));
        forEachLine(block, [&](int id) {
            if (!m_lines[size_t(id)].removed)
                put(rawLine(id));
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
                keys.insert(block.name.isEmpty() ? keyOf(line) : block.name + QLatin1Char('/') + keyOf(line));
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
        if (!block.name.isEmpty()) {
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
    const QByteArray raw = rawLine(id);
    return unescapedValue(raw.mid(raw.indexOf('=') + 1));
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
        const QByteArray key = rawKey(line);
        setText(line, key + '=' + escaped + eol);
        line.keyBegin = 0;
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
    line.block = blockId;
    m_lines.push_back(line);
    block.inserted.append(int(m_lines.size()) - 1);
    ++block.liveKeys;
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
        const QString section = slash < 0 ? QString() : path.left(slash);
        const QString key = slash < 0 ? path : path.mid(slash + 1);
        const QString prefix = key + QLatin1Char('/');
        for (int b = m_firstBlock.value(section, -1); b >= 0; b = m_blocks[size_t(b)].nextSameName) {
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
        for (int b = m_firstBlock.value(name, -1); b >= 0; b = m_blocks[size_t(b)].nextSameName) {
            if (!m_blocks[size_t(b)].removed) {
                any = any || m_blocks[size_t(b)].liveKeys > 0;
                removeBlock(b);
            }
        }
    }
    return any;
}

bool IniDocument::removeKeysIf(const std::function<bool(const QString &)> &accept)
{
    bool any = false;
    QString path;
    for (size_t b = 0; b < m_blocks.size(); ++b) {
        const Block &block = m_blocks[b];
        if (block.removed || block.liveKeys == 0)
            continue;
        const QString prefix = block.name.isEmpty() ? QString() : block.name + QLatin1Char('/');
        forEachLine(block, [&](int id) {
            const Line &line = m_lines[size_t(id)];
            if (!line.key || line.removed)
                return;
            // One buffer for all paths: no allocation per key.
            path.resize(0);
            path += prefix;
            if (line.plainKey)
                path += QLatin1String(base(line) + line.keyBegin, line.keyLength);
            else
                path += keyOf(line);
            if (accept(path)) {
                removeLine(id);
                any = true;
            }
        });
    }
    return any;
}
