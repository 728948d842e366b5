// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "XByteArray.h"

#include <algorithm>
#include <cstring>

namespace {

const char s_hexDigits[] = "0123456789abcdef";

QString addressText(qint64 value, int width)
{
    return QStringLiteral("%1").arg(value, width, 16, QChar('0'));
}

int hexDigitCount(quint64 value)
{
    int n = 1;
    while (value >>= 4)
        ++n;
    return n;
}

// Marks are written from position i on: fill any gap before it with "unchanged"
// instead of the blanks QByteArray would insert.
void padMarks(QByteArray &marks, int i)
{
    if (marks.size() < i)
        marks.append(QByteArray(i - marks.size(), '\0'));
}

}

XByteArray::XByteArray()
    : m_bytesEnabled(0xFFFFFF)
    , m_maximumSize(0xFFFFFF)
    , m_addressWidth(4)
    , m_addressOffset(0)
    , m_realAddressNumbers(0)
    , m_countedSize(-99)
{
}

QByteArray &XByteArray::data()
{
    return m_data;
}

const QByteArray &XByteArray::data() const
{
    return m_data;
}

void XByteArray::setData(QByteArray data)
{
    m_data = std::move(data);
    m_changeMarks = QByteArray(m_data.length(), '\0');
}

int XByteArray::size()
{
    return std::min(int(m_data.size()), m_bytesEnabled);
}

int XByteArray::maxSize() const
{
    return std::min(m_maximumSize, m_bytesEnabled);
}

void XByteArray::setMaximumSize(int size)
{
    m_maximumSize = size;
}

int XByteArray::bytesEnabled() const
{
    return m_bytesEnabled;
}

void XByteArray::setBytesEnabled(int count)
{
    m_bytesEnabled = std::max(count, 0);
    if (m_bytesEnabled > m_data.size())
        m_data.append(QByteArray(m_bytesEnabled - m_data.size(), '\0'));
}

int XByteArray::addressOffset()
{
    return m_addressOffset;
}

void XByteArray::setAddressOffset(int offset)
{
    m_addressOffset = offset;
}

int XByteArray::addressWidth()
{
    return m_addressWidth;
}

void XByteArray::setAddressWidth(int width)
{
    if (unsigned(width) < 7)
        m_addressWidth = width;
}

int XByteArray::realAddressNumbers()
{
    // m_countedSize is never updated on purpose: the digits follow every change
    // of size, offset and width without any invalidation.
    if (m_countedSize != size())
        m_realAddressNumbers = addressText(qint64(size()) + m_addressOffset, m_addressWidth).length();
    return m_realAddressNumbers;
}

bool XByteArray::dataChanged(int i)
{
    if (i < 0 || i >= m_changeMarks.size())
        return false;
    return m_changeMarks.at(i) != 0;
}

QByteArray XByteArray::dataChanged(int i, int len)
{
    return m_changeMarks.mid(i, len);
}

void XByteArray::setDataChanged(int i, bool state)
{
    if (i < 0)
        return;
    padMarks(m_changeMarks, i + 1);
    m_changeMarks[i] = char(state);
}

void XByteArray::setDataChanged(int i, const QByteArray &state)
{
    if (i < 0)
        return;
    const int len = std::min(state.length(), m_changeMarks.length() - i);
    if (len > 0)
        std::memcpy(m_changeMarks.data() + i, state.constData(), size_t(len));
}

char XByteArray::asciiChar(int index)
{
    if (index < 0 || index >= m_data.size())
        return '.';
    const char ch = m_data.at(index);
    return (ch >= 0x20 && ch <= 0x7e) ? ch : '.';
}

XByteArray &XByteArray::insert(int i, char ch)
{
    return insert(i, QByteArray(1, ch));
}

XByteArray &XByteArray::insert(int i, const QByteArray &ba)
{
    if (i < 0 || ba.isEmpty())
        return *this;
    // Beyond the end, pad with zero bytes rather than QByteArray's blanks.
    if (m_data.size() < i)
        m_data.append(QByteArray(i - m_data.size(), '\0'));
    m_data.insert(i, ba);
    padMarks(m_changeMarks, i);
    m_changeMarks.insert(i, QByteArray(ba.length(), 1));
    return *this;
}

XByteArray &XByteArray::remove(int pos, int len)
{
    m_data.remove(pos, len);
    m_changeMarks.remove(pos, len);
    return *this;
}

XByteArray &XByteArray::replace(int index, char ch)
{
    if (index < 0)
        return *this;
    if (m_data.size() <= index)
        m_data.append(QByteArray(index + 1 - m_data.size(), '\0'));
    m_data[index] = ch;
    setDataChanged(index, true);
    return *this;
}

XByteArray &XByteArray::replace(int index, const QByteArray &ba)
{
    return replace(index, ba.length(), ba);
}

XByteArray &XByteArray::replace(int index, int length, const QByteArray &ba)
{
    int len = length;
    if (qint64(index) + length > m_data.length())
        len = m_data.length() - index;
    // A short ba must not shrink the data either.
    len = std::min(len, int(ba.length()));
    if (index < 0 || len <= 0)
        return *this;
    std::memcpy(m_data.data() + index, ba.constData(), size_t(len));
    padMarks(m_changeMarks, index + len);
    std::memset(m_changeMarks.data() + index, 1, size_t(len));
    return *this;
}

QString XByteArray::toRedableString(int start, int end)
{
    const int aw = std::max(realAddressNumbers(), m_addressWidth);
    const int sz = size();
    if (end < 0)
        end = sz;
    // Lines wholly before the data would only repeat blanks: they are left out.
    // Lines past the data are printed as blank address lines.
    qint64 first = start;
    if (first < -15)
        first += (-15 - first + 15) / 16 * 16;
    if (end <= first)
        return QString();

    const qint64 lines = (end - first + 15) / 16;
    const qint64 lastAddress = first + (lines - 1) * 16 + m_addressOffset;
    const bool negative = first + m_addressOffset < 0;
    const int addressMax = negative ? std::max(aw, 18)
                                    : std::max(aw, hexDigitCount(quint64(lastAddress)));
    const int lineMax = addressMax + 1 + 48 + 2 + 17 + 1;
    // A dump larger than a QString can hold has no defined text.
    if (lines * lineMax > (qint64(1) << 29))
        return QString();

    QString result;
    result.resize(int(lines * lineMax));
    QChar *out = result.data();
    const char *bytes = m_data.constData();
    for (qint64 i = first; i < end; i += 16) {
        const qint64 address = i + m_addressOffset;
        if (address >= 0) {
            const int digits = hexDigitCount(quint64(address));
            for (int p = digits; p < aw; ++p)
                *out++ = QLatin1Char('0');
            for (int p = digits - 1; p >= 0; --p)
                *out++ = QLatin1Char(s_hexDigits[(address >> (4 * p)) & 0xf]);
        } else {
            const QString text = addressText(address, aw);
            std::copy(text.constBegin(), text.constEnd(), out);
            out += text.size();
        }
        *out++ = QLatin1Char(' ');
        QChar *hex = out;
        QChar *chars = out + 48 + 2;
        std::fill(out, out + 48 + 2 + 17, QLatin1Char(' '));
        int appended = 0;
        for (int j = 0; j < 16; ++j) {
            const qint64 index = i + j;
            if (index >= sz)
                break;
            if (index < 0)
                continue;
            const uchar b = uchar(bytes[index]);
            hex[3 * appended + 1] = QLatin1Char(s_hexDigits[b >> 4]);
            hex[3 * appended + 2] = QLatin1Char(s_hexDigits[b & 0xf]);
            chars[appended] = QLatin1Char((b >= 0x20 && b <= 0x7e) ? char(b) : '.');
            ++appended;
        }
        out += 48 + 2 + 17;
        *out++ = QLatin1Char('\n');
    }
    result.truncate(int(out - result.constData()));
    return result;
}
