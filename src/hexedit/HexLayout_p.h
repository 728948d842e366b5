// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QFont>
#include <QRawFont>
#include <QRectF>

// Where everything of the hex view sits, in viewport pixels of an unscrolled
// view: three areas side by side, rows of sixteen bytes, one cell per digit or
// character. Every glyph is drawn centred in its own cell, so the cell is the
// truth for painting, hit testing, selection and cursor. Computed once per
// font, device pixel ratio and column set; all edges lie on device pixels.
class HexLayout
{
public:
    static constexpr int bytesPerRow = 16;

    struct Options {
        QFont font;
        qreal devicePixelRatio = 1;
        int addressDigits = 4;
        bool addressArea = true;
        bool hexArea = true;
        bool asciiArea = true;
    };

    // What a point hits: a byte of a row (column 0 to 15), a nibble (hex
    // column only) and whether the point is in the character column.
    struct Hit {
        int row = 0;
        int column = 0;
        int nibble = 0;
        bool ascii = false;
    };

    HexLayout() = default;
    explicit HexLayout(const Options &options);

    const Options &options() const { return m_options; }
    const QRawFont &rawFont() const { return m_rawFont; }
    qreal cellWidth() const { return m_cell; }
    qreal rowHeight() const { return m_row; }
    qreal contentWidth() const { return m_width; }
    qreal addressEnd() const { return m_addressEnd; }
    qreal hexStart() const { return m_hexStart; }
    qreal asciiStart() const { return m_asciiStart; }
    // The x of the lines between the areas, -1 when there is none.
    qreal firstSeparator() const { return m_separator1; }
    qreal secondSeparator() const { return m_separator2; }

    QRectF rowRect(int row) const;
    QRectF addressCell(int row, int digit) const;
    QRectF hexCell(int row, int column, int nibble) const;
    QRectF hexByte(int row, int column) const;
    QRectF asciiCell(int row, int column) const;
    // Columns first to last (inclusive) of a row in one area, for selection runs.
    QRectF hexRun(int row, int first, int last) const;
    QRectF asciiRun(int row, int first, int last) const;

    Hit hitTest(const QPointF &pos) const;

    // The glyph for a printable ASCII character and the pen position that
    // centres its ink in a cell whose top left is at the origin.
    quint32 glyph(char c) const { return m_glyphs[uchar(c) & 0x7f]; }
    QPointF glyphOrigin(char c) const { return m_origins[uchar(c) & 0x7f]; }
    // The ink box of a character drawn in the cell at cellTopLeft.
    QRectF glyphBox(char c, const QPointF &cellTopLeft) const;

    qreal snap(qreal v) const;  // up to the next device pixel

private:
    Options m_options;
    QRawFont m_rawFont;
    quint32 m_glyphs[128] = {};
    QPointF m_origins[128];
    QRectF m_boxes[128];
    qreal m_cell = 8;
    qreal m_row = 16;
    qreal m_addressEnd = 0;
    qreal m_hexStart = 0;
    qreal m_asciiStart = 0;
    qreal m_width = 0;
    qreal m_separator1 = -1;
    qreal m_separator2 = -1;
};
