// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QString>

// The bytes a hex editor works on, with one change mark per byte and the
// numbers needed to print addresses. Plain value class; not thread-safe.
class COMMONGUI_EXPORT XByteArray
{
public:
    XByteArray();

    QByteArray &data();
    const QByteArray &data() const;
    // Replaces the bytes and clears every change mark.
    void setData(QByteArray data);

    // The smaller of the data size and bytesEnabled().
    int size();
    // The smaller of the maximum size and bytesEnabled(): how far an editor may grow the data.
    int maxSize() const;
    void setMaximumSize(int size);

    int bytesEnabled() const;
    // Pads the data with zero bytes up to count; the change marks stay as they are.
    void setBytesEnabled(int count);

    int addressOffset();
    void setAddressOffset(int offset);
    int addressWidth();
    // Accepts 0 to 6 only; anything else is ignored.
    void setAddressWidth(int width);
    // Hex digits needed for the highest address, at least addressWidth().
    int realAddressNumbers();

    bool dataChanged(int i);
    QByteArray dataChanged(int i, int len);
    void setDataChanged(int i, bool state);
    void setDataChanged(int i, const QByteArray &state);

    // The byte as a character when printable ASCII, else '.'.
    char asciiChar(int index);

    XByteArray &insert(int i, char ch);
    XByteArray &insert(int i, const QByteArray &ba);
    XByteArray &remove(int pos, int len);
    XByteArray &replace(int index, char ch);
    XByteArray &replace(int index, const QByteArray &ba);
    // Never extends the data: the run is cut at its end.
    XByteArray &replace(int index, int length, const QByteArray &ba);

    // Hex dump of the lines starting at start, start + 16, ... below end
    // (a negative end means the end of the data).
    QString toRedableString(int start = 0, int end = -1);

private:
    QByteArray m_data;
    QByteArray m_changeMarks;
    int m_bytesEnabled;
    int m_maximumSize;
    int m_addressWidth;
    int m_addressOffset;
    int m_realAddressNumbers;
    int m_countedSize;
};
