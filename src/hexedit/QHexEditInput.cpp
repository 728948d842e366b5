// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Keys and mouse: keys go through one table of standard key sequences.
#include "QHexEditPrivate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTimer>
#include <QUndoStack>

namespace {

const int s_bytesPerRow = HexLayout::bytesPerRow;

struct KeyBinding {
    QKeySequence::StandardKey key;
    HexAction action;
};

const KeyBinding s_bindings[] = {
    { QKeySequence::MoveToNextChar, HexAction::NextChar },
    { QKeySequence::MoveToPreviousChar, HexAction::PreviousChar },
    { QKeySequence::MoveToNextLine, HexAction::NextLine },
    { QKeySequence::MoveToPreviousLine, HexAction::PreviousLine },
    { QKeySequence::MoveToNextPage, HexAction::NextPage },
    { QKeySequence::MoveToPreviousPage, HexAction::PreviousPage },
    { QKeySequence::MoveToStartOfLine, HexAction::StartOfLine },
    { QKeySequence::MoveToEndOfLine, HexAction::EndOfLine },
    { QKeySequence::MoveToStartOfDocument, HexAction::StartOfDocument },
    { QKeySequence::MoveToEndOfDocument, HexAction::EndOfDocument },
    { QKeySequence::SelectNextChar, HexAction::SelectNextChar },
    { QKeySequence::SelectPreviousChar, HexAction::SelectPreviousChar },
    { QKeySequence::SelectNextLine, HexAction::SelectNextLine },
    { QKeySequence::SelectPreviousLine, HexAction::SelectPreviousLine },
    { QKeySequence::SelectNextPage, HexAction::SelectNextPage },
    { QKeySequence::SelectPreviousPage, HexAction::SelectPreviousPage },
    { QKeySequence::SelectStartOfLine, HexAction::SelectStartOfLine },
    { QKeySequence::SelectEndOfLine, HexAction::SelectEndOfLine },
    { QKeySequence::SelectStartOfDocument, HexAction::SelectStartOfDocument },
    { QKeySequence::SelectEndOfDocument, HexAction::SelectEndOfDocument },
    { QKeySequence::SelectAll, HexAction::SelectAll },
    { QKeySequence::Copy, HexAction::Copy },
    { QKeySequence::Cut, HexAction::Cut },
    { QKeySequence::Paste, HexAction::Paste },
    { QKeySequence::Undo, HexAction::Undo },
    { QKeySequence::Redo, HexAction::Redo },
    { QKeySequence::Delete, HexAction::Delete },
    { QKeySequence::Backspace, HexAction::Backspace },
    { QKeySequence::Find, HexAction::Find },
    { QKeySequence::FindNext, HexAction::FindNext },
    { QKeySequence::FindPrevious, HexAction::FindPrevious },
};

}

HexAction QHexEditPrivate::actionFor(QKeyEvent *event) const
{
    const int key = event->key();
    const Qt::KeyboardModifiers mods = event->modifiers() & ~Qt::KeypadModifier;
    // Before the table: some desktops bind Ctrl+G to find next too.
    if (key == Qt::Key_G && mods == Qt::ControlModifier)
        return HexAction::GoTo;
    for (const KeyBinding &binding : s_bindings) {
        if (event->matches(binding.key))
            return binding.action;
    }
    if (key == Qt::Key_Insert && mods == Qt::NoModifier)
        return HexAction::ToggleOverwrite;
    if ((key == Qt::Key_Tab && mods == Qt::NoModifier) || key == Qt::Key_Backtab)
        return HexAction::SwitchColumn;
    // Keys of the tables above on platforms that bind them differently.
    if (key == Qt::Key_Delete && mods == Qt::NoModifier)
        return HexAction::Delete;
    if (key == Qt::Key_Backspace && mods == Qt::NoModifier)
        return HexAction::Backspace;
    return HexAction::None;
}

bool QHexEditPrivate::isAvailable(HexAction action)
{
    switch (action) {
    case HexAction::None:
        return false;
    case HexAction::Cut:
        return !readOnly && cursor.hasSelection();
    case HexAction::Copy:
        return cursor.hasSelection();
    case HexAction::Paste:
    case HexAction::Delete:
    case HexAction::Backspace:
        return !readOnly;
    case HexAction::Undo:
        return !readOnly && undoStack->canUndo();
    case HexAction::Redo:
        return !readOnly && undoStack->canRedo();
    case HexAction::SwitchColumn:
        return hexArea && asciiArea;
    case HexAction::Find:
    case HexAction::GoTo:
        return findBarEnabled;
    case HexAction::FindNext:
    case HexAction::FindPrevious:
        return findBarEnabled && !lastFind.isEmpty();
    case HexAction::SelectAll:
        return size() > 0;
    default:
        return true;
    }
}

void QHexEditPrivate::perform(HexAction action)
{
    if (!isAvailable(action))
        return;
    ChangeScope scope(this);
    const int size = this->size();
    const int nibble = cursor.nibble;
    const int byte = cursor.byte();
    const int step = (cursor.ascii || !hexArea) ? 2 : 1;
    const int rowStart = byte - byte % s_bytesPerRow;
    const int page = visibleRows() * s_bytesPerRow;
    const auto clampByte = [size](qint64 b) { return int(std::clamp<qint64>(b, 0, size)); };
    switch (action) {
    case HexAction::NextChar: moveCursor(nibble + step, false); break;
    case HexAction::PreviousChar: moveCursor(nibble - step, false); break;
    case HexAction::NextLine: moveCursor(std::min(nibble + 2 * s_bytesPerRow, 2 * size), false); break;
    case HexAction::PreviousLine:
        moveCursor(nibble >= 2 * s_bytesPerRow ? nibble - 2 * s_bytesPerRow : nibble, false);
        break;
    case HexAction::NextPage: moveCursor(int(std::min<qint64>(qint64(nibble) + 2 * page, 2 * size)), false); break;
    case HexAction::PreviousPage: moveCursor(nibble - 2 * std::min(page, rowStart), false); break;
    case HexAction::StartOfLine: moveCursor(2 * rowStart, false); break;
    case HexAction::EndOfLine: moveCursor(2 * std::min(rowStart + s_bytesPerRow - 1, size), false); break;
    case HexAction::StartOfDocument: moveCursor(0, false); break;
    case HexAction::EndOfDocument: moveCursor(2 * size, false); break;
    case HexAction::SelectNextChar: moveCursor(2 * clampByte(byte + 1), true); break;
    case HexAction::SelectPreviousChar: moveCursor(2 * clampByte(byte - 1), true); break;
    case HexAction::SelectNextLine: moveCursor(2 * clampByte(byte + s_bytesPerRow), true); break;
    case HexAction::SelectPreviousLine: moveCursor(2 * clampByte(byte - s_bytesPerRow), true); break;
    case HexAction::SelectNextPage: moveCursor(2 * clampByte(qint64(byte) + page), true); break;
    case HexAction::SelectPreviousPage: moveCursor(2 * clampByte(byte - page), true); break;
    case HexAction::SelectStartOfLine: moveCursor(2 * rowStart, true); break;
    case HexAction::SelectEndOfLine: moveCursor(2 * clampByte(rowStart + s_bytesPerRow), true); break;
    case HexAction::SelectStartOfDocument: moveCursor(0, true); break;
    case HexAction::SelectEndOfDocument: moveCursor(2 * size, true); break;
    case HexAction::SelectAll: {
        HexCursor next = cursor;
        next.select(0, size, size);
        setCursor(next);
        break;
    }
    case HexAction::Copy: copy(QClipboard::Clipboard); break;
    case HexAction::Cut:
        copy(QClipboard::Clipboard);
        deleteSelectionOrByte(false);
        break;
    case HexAction::Paste: paste(QClipboard::Clipboard); break;
    case HexAction::Undo: undoStack->undo(); break;
    case HexAction::Redo: undoStack->redo(); break;
    case HexAction::Delete: deleteSelectionOrByte(false); break;
    case HexAction::Backspace: deleteSelectionOrByte(true); break;
    case HexAction::ToggleOverwrite: q->setOverwriteMode(!overwrite); break;
    case HexAction::SwitchColumn: {
        HexCursor next = cursor;
        next.ascii = !cursor.ascii;
        next.nibble &= ~1;
        setCursor(next);
        q->viewport()->update();
        break;
    }
    case HexAction::Find: q->showFindBar(); break;
    case HexAction::GoTo: q->showGoToBar(); break;
    case HexAction::FindNext: find(lastFind, lastFindFlags & ~QHexEdit::FindBackward); break;
    case HexAction::FindPrevious: find(lastFind, lastFindFlags | QHexEdit::FindBackward); break;
    case HexAction::None: break;
    }
}

bool QHexEditPrivate::claimsKey(QKeyEvent *event)
{
    const HexAction action = actionFor(event);
    if (action != HexAction::None)
        return isAvailable(action);
    const Qt::KeyboardModifiers mods = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return !readOnly && mods == Qt::NoModifier && !event->text().isEmpty() && event->text().at(0).isPrint();
}

void QHexEditPrivate::keyPress(QKeyEvent *event)
{
    const HexAction action = actionFor(event);
    if (action != HexAction::None) {
        if (!isAvailable(action)) {
            event->ignore();
            return;
        }
        perform(action);
        event->accept();
        return;
    }
    const Qt::KeyboardModifiers mods = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const QString text = event->text();
    if (readOnly || mods != Qt::NoModifier || text.isEmpty() || !text.at(0).isPrint()) {
        event->ignore();
        return;
    }
    typeText(text);
    event->accept();
}

void QHexEditPrivate::mousePress(QMouseEvent *event)
{
    if (!hexArea && !asciiArea)
        return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    const QPointF pos = event->position() + QPointF(q->horizontalScrollBar()->value(), 0);
#else
    const QPointF pos = event->localPos() + QPointF(q->horizontalScrollBar()->value(), 0);
#endif
    const HexLayout::Hit hit = layout.hitTest(pos);
    const qint64 byte = (qint64(firstRow()) + hit.row) * s_bytesPerRow + hit.column;
    ChangeScope scope(this);
    if (event->button() == Qt::MiddleButton) {
        // X11 habit: a middle click pastes the primary selection where it lands.
        if (readOnly || !QApplication::clipboard()->supportsSelection())
            return;
        HexCursor next = cursor;
        next.ascii = hit.ascii;
        next.moveTo(int(2 * std::clamp<qint64>(byte, 0, size())), false, size());
        setCursor(next);
        paste(QClipboard::Selection);
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    if (event->modifiers() & Qt::ShiftModifier) {
        // Extends like a drag from the selection's anchor (or the cursor).
        pressByte = cursor.hasSelection() ? (cursor.anchor == cursor.selectionEnd() ? cursor.anchor - 1 : cursor.anchor)
                                          : cursor.byte();
        dragMoved = true;
        dragTo(event->pos());
        return;
    }
    HexCursor next = cursor;
    next.ascii = hit.ascii;
    const int nibble = byte >= size() ? 2 * size() : int(2 * byte + (hit.ascii ? 0 : hit.nibble));
    next.nibble = nibble;
    next.anchor = nibble / 2;
    setCursor(next);
    pressByte = cursor.byte();
    dragMoved = false;
}

void QHexEditPrivate::dragTo(const QPoint &viewportPos)
{
    if (pressByte < 0)
        return;
    dragPos = viewportPos;
    const int height = q->viewport()->height();
    const QPointF pos(viewportPos.x() + q->horizontalScrollBar()->value(),
                      std::clamp<qreal>(viewportPos.y(), 0, height - 1));
    const HexLayout::Hit hit = layout.hitTest(pos);
    const int size = this->size();
    const int byte = int(std::clamp<qint64>((qint64(firstRow()) + hit.row) * s_bytesPerRow + hit.column, 0, size));
    if (byte == pressByte && !dragMoved)
        return;  // a click that wobbles inside one byte selects nothing
    dragMoved = true;
    // Both the pressed byte and the byte under the mouse are in; the cursor
    // sits at the far end, as keyboard selection leaves it.
    HexCursor next = cursor;
    if (byte >= pressByte)
        next.select(pressByte, std::min(byte + 1, size), size);
    else
        next.select(std::min(pressByte + 1, size), byte, size);
    setCursor(next);
}

void QHexEditPrivate::mouseMove(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton) || pressByte < 0)
        return;
    ChangeScope scope(this);
    dragTo(event->pos());
    // Past the top or bottom edge the view keeps scrolling while the button is down.
    const int y = event->pos().y();
    if (y < 0 || y >= q->viewport()->height())
        scrollTimer->start();
    else
        scrollTimer->stop();
}

void QHexEditPrivate::mouseRelease(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        pressByte = -1;
        scrollTimer->stop();
    }
}

void QHexEditPrivate::autoScroll()
{
    if (pressByte < 0) {
        scrollTimer->stop();
        return;
    }
    const int height = q->viewport()->height();
    const int y = dragPos.y();
    const int rows = 1 + std::abs(y < 0 ? y : y - height) / int(std::max<qreal>(1, layout.rowHeight()));
    QScrollBar *v = q->verticalScrollBar();
    v->setValue(v->value() + (y < 0 ? -rows : rows));
    ChangeScope scope(this);
    dragTo(dragPos);
}

void QHexEditPrivate::contextMenu(const QPoint &globalPos)
{
    QMenu menu(q);
    const auto add = [this, &menu](const QString &text, HexAction action, QKeySequence key) {
        QAction *a = menu.addAction(text, q, [this, action] { perform(action); });
        a->setShortcut(key);
        a->setEnabled(isAvailable(action));
    };
    add(QHexEdit::tr("&Undo"), HexAction::Undo, QKeySequence::Undo);
    add(QHexEdit::tr("&Redo"), HexAction::Redo, QKeySequence::Redo);
    menu.addSeparator();
    add(QHexEdit::tr("Cu&t"), HexAction::Cut, QKeySequence::Cut);
    add(QHexEdit::tr("&Copy"), HexAction::Copy, QKeySequence::Copy);
    add(QHexEdit::tr("&Paste"), HexAction::Paste, QKeySequence::Paste);
    add(QHexEdit::tr("&Delete"), HexAction::Delete, QKeySequence::Delete);
    menu.addSeparator();
    add(QHexEdit::tr("Select &All"), HexAction::SelectAll, QKeySequence::SelectAll);
    if (findBarEnabled) {
        menu.addSeparator();
        add(QHexEdit::tr("&Find..."), HexAction::Find, QKeySequence::Find);
        add(QHexEdit::tr("&Go to Address..."), HexAction::GoTo, QKeySequence(Qt::CTRL | Qt::Key_G));
    }
    menu.exec(globalPos);
}
