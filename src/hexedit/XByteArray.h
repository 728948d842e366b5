// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QString>

/**
 * The bytes a hex editor works on, with one change mark per byte and the
 * numbers needed to print addresses.
 *
 * A change mark means "changed since the last setData()". Two limits of its own
 * let a tool show and edit a fixed-length memory image: bytesEnabled(), the
 * bytes that count as present, and maxSize(), how far an editor may grow the
 * data; both default to 0xFFFFFF. Positions are not range-checked beyond what
 * each function states: a single-byte write past the end enlarges the arrays.
 * A plain value class, not thread-safe. QHexEdit owns one and changes it only
 * through CharCommand and ArrayCommand.
 */
class COMMONGUI_EXPORT XByteArray
{
public:
    /** Constructs an empty buffer: address width 4, offset 0, both limits 0xFFFFFF. */
    XByteArray();

    /** Returns the bytes themselves, for reading and writing; writing here sets no change marks. */
    QByteArray &data();
    /** Returns the bytes themselves. */
    const QByteArray &data() const;
    /** Replaces the bytes with @p data and clears every change mark. */
    void setData(QByteArray data);

    /** Returns the number of bytes present: the smaller of the data's size and bytesEnabled(). */
    int size();
    /** Returns how far an editor may grow the data: the smaller of the maximum size and bytesEnabled(). */
    int maxSize() const;
    /** Sets the maximum size to @p size bytes. */
    void setMaximumSize(int size);

    /** Returns the number of bytes that count as present. */
    int bytesEnabled() const;
    /**
     * Sets the number of bytes that count as present to @p count, padding the
     * data with zero bytes up to it. The change marks are not extended: the
     * padding reads as unchanged.
     */
    void setBytesEnabled(int count);

    /** Returns the number added to every position when an address is printed. */
    int addressOffset();
    /** Sets the number added to every position when an address is printed to @p offset. */
    void setAddressOffset(int offset);
    /** Returns the minimum number of hex digits of a printed address. */
    int addressWidth();
    /** Sets the minimum number of address digits to @p width, 0 to 6; other values are ignored. */
    void setAddressWidth(int width);
    /**
     * Returns the number of hex digits of the highest address (size() plus the
     * offset), at least addressWidth(). It is computed anew on every call.
     */
    int realAddressNumbers();

    /** Returns whether byte @p i changed since setData(); false past the end of the marks. */
    bool dataChanged(int i);
    /** Returns the change marks of @p len bytes from @p i, one byte each, non-zero for changed. */
    QByteArray dataChanged(int i, int len);
    /** Sets the change mark of byte @p i to @p state; a position past the end enlarges the marks. */
    void setDataChanged(int i, bool state);
    /** Overwrites the change marks from @p i with @p state, cut at the end of the marks. */
    void setDataChanged(int i, const QByteArray &state);

    /** Returns the byte at @p index when it is printable ASCII (0x20 to 0x7e), otherwise '.', also past the end. */
    char asciiChar(int index);

    /** Inserts @p ch before @p i, marked as changed. */
    XByteArray &insert(int i, char ch);
    /** Inserts @p ba before @p i, marked as changed. */
    XByteArray &insert(int i, const QByteArray &ba);
    /** Removes @p len bytes and their marks from @p pos. */
    XByteArray &remove(int pos, int len);
    /** Sets the byte at @p index to @p ch and marks it; an index past the end enlarges the data. */
    XByteArray &replace(int index, char ch);
    /** Replaces the bytes from @p index with @p ba, as replace(index, ba.length(), ba). */
    XByteArray &replace(int index, const QByteArray &ba);
    /**
     * Replaces @p length bytes from @p index with the first bytes of @p ba and
     * marks them. The data never grows: a run past the end is cut there.
     */
    XByteArray &replace(int index, int length, const QByteArray &ba);

    /**
     * Returns a hex dump of the lines starting at @p start, @p start + 16, ...
     * below @p end (a negative @p end means size()): per line the address, the
     * bytes in hex and as characters, ending in "\n". Empty when @p end is not
     * past @p start. The name's spelling is kept for existing callers.
     */
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
