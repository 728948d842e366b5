// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "XByteArray.h"

#include <QBasicTimer>
#include <QColor>
#include <QWidget>

class QHexEdit;
class QKeyEvent;
class QMouseEvent;
class QPainter;
class QUndoCommand;
class QUndoStack;

// The view behind QHexEdit: the scroll area's viewport. It owns the buffer and
// the undo stack, lays out and paints the visible rows and turns keys, mouse and
// clipboard into undo commands. Positions are kept in nibbles: byte = pos / 2.
class QHexEditPrivate : public QWidget
{
    Q_OBJECT

public:
    explicit QHexEditPrivate(QHexEdit *q);
    ~QHexEditPrivate() override;

    void setData(const QByteArray &data);
    void updateLayout();
    void updateScrollBars();

    void paint(QPainter &painter, const QRect &exposed);
    void keyPress(QKeyEvent *event);
    bool handlesShortcut(QKeyEvent *event) const;
    void mousePress(QMouseEvent *event);
    void mouseMove(QMouseEvent *event);
    void focusChanged(bool in);

    void setCursorNibble(int nibble, bool select);
    void setSelectionRange(int begin, int end, int anchor);
    void clearSelection();
    QRect cursorCell() const;
    void ensureCursorVisible();

    bool pushEdit(QUndoCommand *command);
    bool insertBytes(int index, const QByteArray &bytes);
    bool removeBytes(int index, int length);
    bool replaceBytes(int index, const QByteArray &bytes);
    void deleteSelectionOrByte(bool backwards);
    void copy();
    bool paste();
    bool undo();
    bool redo();

    QHexEdit *q;
    XByteArray m_buffer;
    QUndoStack *m_undoStack = nullptr;

    int m_cursor = 0;          // nibble position, 0 .. 2 * size
    bool m_asciiFocus = false;  // the cursor types into the character column
    int m_selBegin = 0;        // selected bytes: [m_selBegin, m_selEnd)
    int m_selEnd = 0;
    int m_selAnchor = 0;

    bool m_overwrite = true;
    bool m_readOnly = false;
    bool m_addressArea = true;
    bool m_hexArea = true;
    bool m_asciiArea = true;
    bool m_highlighting = true;
    QColor m_addressAreaColor;
    QColor m_highlightingColor;
    QColor m_selectionColor;

    // Layout in content pixels, refreshed by updateLayout().
    int m_charWidth = 8;
    int m_lineHeight = 16;
    int m_ascent = 12;
    int m_addressDigits = 4;
    int m_hexStart = 0;
    int m_asciiStart = 0;
    int m_contentWidth = 0;

    QBasicTimer m_blinkTimer;
    bool m_blinkOn = true;
    int m_lastSize = 0;
    int m_lastAddress = 0;
    bool m_settingData = false;
    bool m_bytesEnabledSet = false;
    int m_lastIndex = 0;  // undo stack index seen last

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void bufferChanged();
    void emitCursorSignals();
    int visibleRows() const;
    int firstRow() const;
    int nibbleAt(const QPoint &pos, bool *ascii);
    int hexX(int column) const { return m_hexStart + m_charWidth * (1 + 3 * column); }
    int asciiX(int column) const { return m_asciiStart + m_charWidth * (1 + column); }
};
