// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <cstring>

template<unsigned Base>
inline ushort *writeTraceNumber(ushort *out, quint64 value, int width)
{
    ushort digits[24];
    int n = 0;
    do {
        digits[n++] = ushort("0123456789ABCDEF"[value % Base]);
        value /= Base;
    } while (value || n < width);
    while (n)
        *out++ = digits[--n];
    return out;
}

// The search text of one frame, "<seconds> <id> <type> <length> <bytes>", for
// example "1.000250 0x181 PDO 8 0A 1B 2C 3D 4E 5F 60 71". The view search reads
// it for every row, so it is written straight into one buffer: built with
// QString::arg, number() and toUpper() it cost twenty times as much. The text
// goes into the caller's string, whose buffer is reused once the previous
// text has been let go: a model can keep one string for all rows.
inline void writeTraceSearchText(QString &text, quint64 micros, quint16 cobId, const QString &type,
                                 int length, const quint8 *data)
{
    static const char hex[] = "0123456789ABCDEF";
    text.resize(64 + type.size());
    ushort *out = reinterpret_cast<ushort *>(text.data());
    out = writeTraceNumber<10>(out, micros / 1000000, 1);
    *out++ = '.';
    out = writeTraceNumber<10>(out, micros % 1000000, 6);
    *out++ = ' ';
    *out++ = '0';
    *out++ = 'x';
    out = writeTraceNumber<16>(out, cobId, 3);
    *out++ = ' ';
    std::memcpy(out, type.constData(), size_t(type.size()) * sizeof(ushort));
    out += type.size();
    *out++ = ' ';
    out = writeTraceNumber<10>(out, quint64(qMax(length, 0)), 1);
    *out++ = ' ';
    for (int i = 0; i < qMin(length, 8); ++i) {
        if (i)
            *out++ = ' ';
        *out++ = ushort(hex[data[i] >> 4]);
        *out++ = ushort(hex[data[i] & 15]);
    }
    text.resize(int(out - reinterpret_cast<const ushort *>(text.constData())));
}
