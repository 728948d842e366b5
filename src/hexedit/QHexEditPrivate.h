// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "HexCursor_p.h"
#include "HexLayout_p.h"
#include "QHexEdit.h"
#include "XByteArray.h"

#include <QClipboard>
#include <QColor>
#include <QPoint>
#include <QPointer>

#include <limits>

class HexFindBar;
class QKeyEvent;
class QMimeData;
class QMouseEvent;
class QPainter;
class QTimer;
class QUndoCommand;
class QUndoStack;

// Cursor positions count nibbles in an int: twice the size must still fit.
constexpr int hexLargestSize = (std::numeric_limits<int>::max() / 2) & ~15;

// Hex digit pairs as typed or pasted: blanks and commas between them, each
// group optionally behind "0x". False for anything else or nothing.
bool hexToBytes(const QString &text, QByteArray *bytes);

// Everything a key, the mouse or the clipboard can do to the editor.
enum class HexAction {
    None,
    NextChar, PreviousChar, NextLine, PreviousLine, NextPage, PreviousPage,
    StartOfLine, EndOfLine, StartOfDocument, EndOfDocument,
    SelectNextChar, SelectPreviousChar, SelectNextLine, SelectPreviousLine,
    SelectNextPage, SelectPreviousPage, SelectStartOfLine, SelectEndOfLine,
    SelectStartOfDocument, SelectEndOfDocument, SelectAll,
    Copy, Cut, Paste, Undo, Redo, Delete, Backspace, ToggleOverwrite,
    SwitchColumn, Find, FindNext, FindPrevious, GoTo,
};

// The state behind QHexEdit: buffer, undo stack, cursor, options and layout.
// QHexEdit is only its face. All notifications leave through publish(): every
// change runs inside a ChangeScope, and the outermost scope compares the state
// the host last saw with the present one and emits what differs.
class QHexEditPrivate
{
public:
    explicit QHexEditPrivate(QHexEdit *q);
    ~QHexEditPrivate();

    class ChangeScope
    {
    public:
        explicit ChangeScope(QHexEditPrivate *d) : d(d) { ++d->m_depth; }
        ~ChangeScope() { if (--d->m_depth == 0) d->publish(); }
        ChangeScope(const ChangeScope &) = delete;
        ChangeScope &operator=(const ChangeScope &) = delete;
    private:
        QHexEditPrivate *d;
    };

    int size() { return buffer.size(); }
    int effectiveMaxSize();
    int addressDigits();

    // Layout and scrolling (QHexEditView.cpp).
    void updateLayout();
    void updateScrollBars();
    int firstRow() const;
    int visibleRows() const;
    QRect cursorRect() const;
    void ensureCursorVisible();
    void paint(QPainter &painter, const QRect &exposed);
    QColor addressBackground() const;
    QColor changedBackground() const;
    QColor selectionBackground() const;

    // Cursor and selection.
    void setCursor(const HexCursor &next);
    void moveCursor(int nibble, bool select);
    void setData(const QByteArray &data);

    // Edits (QHexEditEditing.cpp); each is one undo step.
    bool insertBytes(int index, const QByteArray &bytes);
    bool removeBytes(int index, int length);
    bool replaceBytes(int index, const QByteArray &bytes);
    void typeText(const QString &text);
    bool putBytes(const QByteArray &bytes, const QString &undoText);
    void deleteSelectionOrByte(bool backwards);
    void refuse(const QString &reason);

    // Clipboard.
    QMimeData *selectionMimeData() const;
    void copy(QClipboard::Mode mode);
    bool paste(QClipboard::Mode mode);

    // Keys and mouse (QHexEditInput.cpp).
    HexAction actionFor(QKeyEvent *event) const;
    bool isAvailable(HexAction action);
    void perform(HexAction action);
    bool claimsKey(QKeyEvent *event);
    void keyPress(QKeyEvent *event);
    void mousePress(QMouseEvent *event);
    void mouseMove(QMouseEvent *event);
    void mouseRelease(QMouseEvent *event);
    void dragTo(const QPoint &pos);
    void autoScroll();
    void restartBlink();
    void contextMenu(const QPoint &globalPos);

    // Find and go to (QHexEditFind.cpp).
    int indexOf(const QByteArray &bytes, int from, bool caseInsensitive = false);
    int lastIndexOf(const QByteArray &bytes, int from, bool caseInsensitive = false);
    bool find(const QByteArray &bytes, QHexEdit::FindFlags flags);
    bool goToAddress(const QString &text);
    HexFindBar *findBar();
    void placeFindBar();

    void publish();
    void bufferChanged();

    QHexEdit *q;
    XByteArray buffer;
    QUndoStack *undoStack = nullptr;
    HexCursor cursor;
    HexLayout layout;

    bool overwrite = true;
    bool readOnly = false;
    bool addressArea = true;
    bool hexArea = true;
    bool asciiArea = true;
    bool highlighting = true;
    bool findBarEnabled = true;
    QColor addressAreaColor;   // invalid: taken from the palette
    QColor highlightingColor;
    QColor selectionColor;
    int maxSize = 0xFFFFFF;
    bool maxSizeSet = false;
    bool bytesEnabledSet = false;

    QTimer *blinkTimer = nullptr;
    QTimer *scrollTimer = nullptr;
    bool blinkOn = true;
    bool scrollPending = false;  // setCursorPosition() before the first show
    int pressByte = -1;          // left button down on this byte
    bool dragMoved = false;
    QPoint dragPos;
    QPointer<HexFindBar> bar;
    QByteArray lastFind;
    QHexEdit::FindFlags lastFindFlags;

private:
    struct State {
        int address = 0;
        int size = 0;
        int selectionStart = 0;
        int selectionEnd = 0;
        int nibble = 0;
        quint64 revision = 0;
    };
    State current();

    State m_published;
    int m_depth = 0;
    quint64 m_revision = 0;
    int m_lastIndex = 0;
    bool m_settingData = false;
    friend class ChangeScope;
};
