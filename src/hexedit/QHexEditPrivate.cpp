// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "QHexEditPrivate.h"

#include "ArrayCommand.h"
#include "CharCommand.h"

#include <QApplication>
#include <QScrollBar>
#include <QTimer>
#include <QUndoStack>


namespace {

const int s_oldDefaultMaxSize = 0xFFFFFF;

// Where a command (or the first command of a macro) edits, -1 if unknown.
int commandPosition(const QUndoCommand *command)
{
    if (command && command->childCount() > 0)
        command = command->child(0);
    if (auto c = dynamic_cast<const CharCommand *>(command))
        return c->position();
    if (auto a = dynamic_cast<const ArrayCommand *>(command))
        return a->start();
    return -1;
}

}

QHexEditPrivate::QHexEditPrivate(QHexEdit *q)
    : q(q)
    , undoStack(new QUndoStack(q))
    , blinkTimer(new QTimer(q))
    , scrollTimer(new QTimer(q))
{
    QObject::connect(undoStack, &QUndoStack::indexChanged, q, [this] { bufferChanged(); });
    QObject::connect(undoStack, &QUndoStack::canUndoChanged, q, &QHexEdit::undoAvailable);
    QObject::connect(undoStack, &QUndoStack::canRedoChanged, q, &QHexEdit::redoAvailable);
    QObject::connect(blinkTimer, &QTimer::timeout, q, [this] {
        blinkOn = !blinkOn;
        this->q->viewport()->update(cursorRect().adjusted(-2, -2, 2, 2));
    });
    scrollTimer->setInterval(40);
    QObject::connect(scrollTimer, &QTimer::timeout, q, [this] { autoScroll(); });
}

QHexEditPrivate::~QHexEditPrivate()
{
    // The commands point into the buffer: let them go first, and quietly,
    // since the editor is already half destroyed.
    undoStack->disconnect();
    delete undoStack;
}

int QHexEditPrivate::effectiveMaxSize()
{
    if (bytesEnabledSet)
        return std::min(maxSize, buffer.bytesEnabled());
    // Without a limit from the host, images past the old default may grow freely.
    if (!maxSizeSet && buffer.data().size() > s_oldDefaultMaxSize)
        return hexLargestSize;
    return maxSize;
}

int QHexEditPrivate::addressDigits()
{
    return std::max(buffer.realAddressNumbers(), buffer.addressWidth());
}

QHexEditPrivate::State QHexEditPrivate::current()
{
    State s;
    s.address = cursor.byte() + buffer.addressOffset();
    s.size = size();
    s.selectionStart = cursor.selectionStart();
    s.selectionEnd = cursor.selectionEnd();
    s.nibble = cursor.nibble;
    s.revision = m_revision;
    return s;
}

void QHexEditPrivate::publish()
{
    const State was = m_published;
    const State now = current();
    m_published = now;
    const bool selectionChanged = was.selectionStart != now.selectionStart || was.selectionEnd != now.selectionEnd;
    const bool hadSelection = was.selectionStart != was.selectionEnd;
    const bool hasSelection = now.selectionStart != now.selectionEnd;
    if (was.nibble != now.nibble || selectionChanged || was.revision != now.revision) {
        restartBlink();
        if (was.nibble != now.nibble)
            ensureCursorVisible();
        q->viewport()->update();
    }
    if (was.revision != now.revision)
        Q_EMIT q->dataChanged();
    if (was.size != now.size)
        Q_EMIT q->currentSizeChanged(now.size);
    if (selectionChanged && (hadSelection || hasSelection)) {
        // As Qt's text widgets do: whatever is selected is the primary selection.
        if (hasSelection && QApplication::clipboard()->supportsSelection())
            copy(QClipboard::Selection);
        Q_EMIT q->selectionChanged();
    }
    if (was.address != now.address)
        Q_EMIT q->currentAddressChanged(now.address);
}

void QHexEditPrivate::setData(const QByteArray &data)
{
    ChangeScope scope(this);
    m_settingData = true;
    buffer.setData(data);
    // Unless the host fixed the count, every byte handed over is shown, also
    // beyond the buffer's default of 0xffffff. Set after the data, so that the
    // old bytes are not padded first.
    if (!bytesEnabledSet && data.size() > buffer.bytesEnabled())
        buffer.setBytesEnabled(std::min(int(data.size()), hexLargestSize));
    else if (data.size() > hexLargestSize && buffer.bytesEnabled() > hexLargestSize)
        buffer.setBytesEnabled(hexLargestSize);
    undoStack->clear();
    m_lastIndex = 0;
    m_settingData = false;
    ++m_revision;
    cursor.nibble = cursor.anchor = 0;
    updateLayout();
    q->verticalScrollBar()->setValue(0);
    q->horizontalScrollBar()->setValue(0);
}

void QHexEditPrivate::bufferChanged()
{
    if (m_settingData)
        return;
    ChangeScope scope(this);
    ++m_revision;
    // Grown past the enabled count by an edit: the count follows unless fixed.
    if (!bytesEnabledSet && buffer.data().size() > buffer.bytesEnabled())
        buffer.setBytesEnabled(std::min(int(buffer.data().size()), hexLargestSize));
    // Undo and redo, also from a host's actions, show where they changed the data.
    const int index = undoStack->index();
    if (index != m_lastIndex) {
        const int pos = commandPosition(undoStack->command(index < m_lastIndex ? index : index - 1));
        m_lastIndex = index;
        if (pos >= 0)
            cursor.moveTo(2 * pos, false, size());
    }
    cursor.clamp(size());
    if (addressDigits() != layout.options().addressDigits)
        updateLayout();
    else
        updateScrollBars();
}

void QHexEditPrivate::setCursor(const HexCursor &next)
{
    ChangeScope scope(this);
    cursor = next;
    cursor.clamp(size());
    if (cursor.ascii || !hexArea)
        cursor.nibble &= ~1;
}

void QHexEditPrivate::moveCursor(int nibble, bool select)
{
    HexCursor next = cursor;
    next.ascii = cursor.ascii || !hexArea;
    next.moveTo(nibble, select, size());
    setCursor(next);
}

void QHexEditPrivate::restartBlink()
{
    blinkOn = true;
    if (q->hasFocus() && QApplication::cursorFlashTime() > 0)
        blinkTimer->start(QApplication::cursorFlashTime() / 2);
    else
        blinkTimer->stop();
}
