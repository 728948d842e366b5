// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "QHexEditPrivate.h"

#include "ArrayCommand.h"
#include "CharCommand.h"
#include "QHexEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QUndoStack>

#include <algorithm>

namespace {

const int s_bytesPerRow = 16;
const char s_hexDigits[] = "0123456789abcdef";

int hexValue(QChar c)
{
    const ushort u = c.unicode();
    if (u >= '0' && u <= '9')
        return u - '0';
    if (u >= 'a' && u <= 'f')
        return u - 'a' + 10;
    if (u >= 'A' && u <= 'F')
        return u - 'A' + 10;
    return -1;
}

// Hex text as copied: pairs separated by blanks, sixteen to a line. Any
// whitespace is accepted back; anything else refuses the whole text.
QString toHexText(const QByteArray &bytes)
{
    QString text;
    text.reserve(bytes.size() * 3);
    for (int i = 0; i < bytes.size(); ++i) {
        if (i > 0)
            text += (i % s_bytesPerRow == 0) ? QLatin1Char('\n') : QLatin1Char(' ');
        const uchar b = uchar(bytes.at(i));
        text += QLatin1Char(s_hexDigits[b >> 4]);
        text += QLatin1Char(s_hexDigits[b & 0xf]);
    }
    return text;
}

bool fromHexText(const QString &text, QByteArray *bytes)
{
    QByteArray out;
    out.reserve(text.size() / 2);
    int high = -1;
    for (const QChar c : text) {
        if (c.isSpace())
            continue;
        const int v = hexValue(c);
        if (v < 0)
            return false;
        if (high < 0) {
            high = v;
        } else {
            out.append(char((high << 4) | v));
            high = -1;
        }
    }
    if (high >= 0)
        return false;
    *bytes = out;
    return true;
}

enum ByteStyle { Plain, Changed, Selected };

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
    : QWidget(q)
    , q(q)
    , m_undoStack(new QUndoStack(this))
{
    setObjectName(QStringLiteral("qt_hexedit_view"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::IBeamCursor);
    m_addressAreaColor = palette().color(QPalette::AlternateBase).darker(104);
    m_highlightingColor = QColor(0xff, 0xf0, 0x9a);
    m_selectionColor = palette().color(QPalette::Highlight);
    connect(m_undoStack, &QUndoStack::indexChanged, this, &QHexEditPrivate::bufferChanged);
    connect(m_undoStack, &QUndoStack::canUndoChanged, q, &QHexEdit::undoAvailable);
    connect(m_undoStack, &QUndoStack::canRedoChanged, q, &QHexEdit::redoAvailable);
}

QHexEditPrivate::~QHexEditPrivate()
{
    // The commands point into m_buffer: let them go first, and quietly, since
    // the editor is already half destroyed.
    m_undoStack->disconnect();
    delete m_undoStack;
}

void QHexEditPrivate::setData(const QByteArray &data)
{
    m_settingData = true;
    m_buffer.setData(data);
    m_undoStack->clear();
    m_lastIndex = 0;
    m_settingData = false;
    m_cursor = 0;
    m_selBegin = m_selEnd = m_selAnchor = 0;
    updateLayout();
    q->verticalScrollBar()->setValue(0);
    q->horizontalScrollBar()->setValue(0);
    update();
    Q_EMIT q->dataChanged();
    if (m_lastSize != m_buffer.size()) {
        m_lastSize = m_buffer.size();
        Q_EMIT q->currentSizeChanged(m_lastSize);
    }
    Q_EMIT q->selectionChanged();
    emitCursorSignals();
}

void QHexEditPrivate::updateLayout()
{
    const QFontMetrics fm(q->font());
    m_charWidth = std::max(1, fm.horizontalAdvance(QLatin1Char('0')));
    m_lineHeight = std::max(1, fm.height() + 2);
    m_ascent = fm.ascent() + 1;
    m_addressDigits = std::max(m_buffer.realAddressNumbers(), m_buffer.addressWidth());
    int x = 0;
    if (m_addressArea)
        x += m_charWidth * (m_addressDigits + 1);
    m_hexStart = x;
    if (m_hexArea)
        x += m_charWidth * (1 + 3 * s_bytesPerRow);
    m_asciiStart = x;
    if (m_asciiArea)
        x += m_charWidth * (2 + s_bytesPerRow);
    m_contentWidth = x;
    updateScrollBars();
    q->updateGeometry();
    update();
}

int QHexEditPrivate::visibleRows() const
{
    return std::max(1, height() / m_lineHeight);
}

int QHexEditPrivate::firstRow() const
{
    return q->verticalScrollBar()->value();
}

void QHexEditPrivate::updateScrollBars()
{
    // The scroll bar counts rows, so its range stays small for any data size.
    const int rows = m_buffer.size() / s_bytesPerRow + 1;
    const int visible = visibleRows();
    QScrollBar *v = q->verticalScrollBar();
    v->setRange(0, std::max(0, rows - visible));
    v->setPageStep(visible);
    v->setSingleStep(1);
    QScrollBar *h = q->horizontalScrollBar();
    h->setRange(0, std::max(0, m_contentWidth - width()));
    h->setPageStep(width());
    h->setSingleStep(m_charWidth);
}

void QHexEditPrivate::paint(QPainter &painter, const QRect &exposed)
{
    const QPalette pal = palette();
    painter.fillRect(exposed, pal.color(QPalette::Base));
    painter.translate(-q->horizontalScrollBar()->value(), 0);
    painter.setFont(q->font());

    const int cw = m_charWidth;
    const int lh = m_lineHeight;
    const int size = m_buffer.size();
    const int top = firstRow();
    const int firstVisible = std::max(0, exposed.top() / lh);
    const int lastVisible = exposed.bottom() / lh;
    const QColor textColor = pal.color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text);
    const QColor selectedText = pal.color(QPalette::HighlightedText);
    const QColor changedText(0xb0, 0x10, 0x10);
    const QColor separator = pal.color(QPalette::Mid);

    if (m_addressArea)
        painter.fillRect(QRect(0, exposed.top(), m_hexStart, exposed.height()), m_addressAreaColor);
    painter.setPen(separator);
    if (m_addressArea && (m_hexArea || m_asciiArea))
        painter.drawLine(m_hexStart - 1, exposed.top(), m_hexStart - 1, exposed.bottom());
    if (m_hexArea && m_asciiArea)
        painter.drawLine(m_asciiStart, exposed.top(), m_asciiStart, exposed.bottom());

    const char *bytes = m_buffer.data().constData();
    QString run;
    for (int r = firstVisible; r <= lastVisible; ++r) {
        const qint64 row = qint64(top) + r;
        const qint64 rowStart = row * s_bytesPerRow;
        if (rowStart > size)
            break;
        const int y = r * lh;
        const int baseline = y + m_ascent;
        if (m_addressArea) {
            painter.setPen(pal.color(QPalette::Dark).darker(150));
            const qint64 address = rowStart + m_buffer.addressOffset();
            painter.drawText(cw / 2, baseline,
                             QStringLiteral("%1").arg(address, m_addressDigits, 16, QChar('0')));
        }
        const int count = int(std::min<qint64>(s_bytesPerRow, size - rowStart));
        int style[s_bytesPerRow];
        for (int k = 0; k < count; ++k) {
            const int i = int(rowStart) + k;
            if (i >= m_selBegin && i < m_selEnd)
                style[k] = Selected;
            else if (m_highlighting && m_buffer.dataChanged(i))
                style[k] = Changed;
            else
                style[k] = Plain;
        }
        // Runs of equal style: one background and one text call each.
        for (int k0 = 0; k0 < count;) {
            int k1 = k0 + 1;
            while (k1 < count && style[k1] == style[k0])
                ++k1;
            const int s = style[k0];
            const QColor bg = s == Selected ? m_selectionColor : m_highlightingColor;
            const QColor fg = s == Selected ? selectedText : (s == Changed ? changedText : textColor);
            if (m_hexArea) {
                if (s != Plain)
                    painter.fillRect(QRect(hexX(k0) - cw / 2, y, 3 * cw * (k1 - k0), lh), bg);
                run.clear();
                for (int k = k0; k < k1; ++k) {
                    const uchar b = uchar(bytes[rowStart + k]);
                    if (k > k0)
                        run += QLatin1Char(' ');
                    run += QLatin1Char(s_hexDigits[b >> 4]);
                    run += QLatin1Char(s_hexDigits[b & 0xf]);
                }
                painter.setPen(fg);
                painter.drawText(hexX(k0), baseline, run);
            }
            if (m_asciiArea) {
                if (s != Plain)
                    painter.fillRect(QRect(asciiX(k0), y, cw * (k1 - k0), lh), bg);
                run.clear();
                for (int k = k0; k < k1; ++k) {
                    const char c = bytes[rowStart + k];
                    run += QLatin1Char((c >= 0x20 && c <= 0x7e) ? c : '.');
                }
                painter.setPen(fg);
                painter.drawText(asciiX(k0), baseline, run);
            }
            k0 = k1;
        }
    }

    // Cursor: a block (overwrite) or a bar (insert) in the typing column, a frame
    // around the same byte in the other column and whenever the editor has no focus.
    if (!m_hexArea && !m_asciiArea)
        return;
    const int byte = m_cursor / 2;
    const int cursorRow = byte / s_bytesPerRow - top;
    if (cursorRow < firstVisible || cursorRow > lastVisible)
        return;
    const int col = byte % s_bytesPerRow;
    const int y = cursorRow * lh;
    const bool asciiCursor = m_asciiFocus || !m_hexArea;
    const QRect hexCell(hexX(col) + ((m_cursor & 1) && !asciiCursor ? cw : 0), y, cw, lh);
    const QRect hexByte(hexX(col), y, 2 * cw, lh);
    const QRect asciiCell(asciiX(col), y, cw, lh);
    const QRect primary = asciiCursor ? asciiCell : hexCell;
    const bool other = asciiCursor ? m_hexArea : m_asciiArea;
    painter.setPen(textColor);
    if (other)
        painter.drawRect((asciiCursor ? hexByte : asciiCell).adjusted(0, 0, -1, -1));
    if (!q->hasFocus()) {
        painter.drawRect(primary.adjusted(0, 0, -1, -1));
    } else if (m_blinkOn) {
        if (m_overwrite && byte < size) {
            painter.fillRect(primary, textColor);
            const uchar b = uchar(bytes[byte]);
            QChar c;
            if (asciiCursor)
                c = QLatin1Char((b >= 0x20 && b <= 0x7e) ? char(b) : '.');
            else
                c = QLatin1Char(s_hexDigits[(m_cursor & 1) ? (b & 0xf) : (b >> 4)]);
            painter.setPen(pal.color(QPalette::Base));
            painter.drawText(primary.left(), y + m_ascent, QString(c));
        } else {
            painter.fillRect(QRect(primary.left(), y, 2, lh), textColor);
        }
    }
}

QRect QHexEditPrivate::cursorCell() const
{
    const int byte = m_cursor / 2;
    const int row = byte / s_bytesPerRow - firstRow();
    const int col = byte % s_bytesPerRow;
    const int x = (m_asciiFocus || !m_hexArea) ? asciiX(col)
                                               : hexX(col) + ((m_cursor & 1) ? m_charWidth : 0);
    return QRect(x - q->horizontalScrollBar()->value(), row * m_lineHeight, m_charWidth, m_lineHeight);
}

void QHexEditPrivate::ensureCursorVisible()
{
    // Before the first show the viewport has no real size to scroll by.
    if (!q->isVisible())
        return;
    const int row = m_cursor / 2 / s_bytesPerRow;
    QScrollBar *v = q->verticalScrollBar();
    if (row < v->value())
        v->setValue(row);
    else if (row >= v->value() + visibleRows())
        v->setValue(row - visibleRows() + 1);
    const QRect cell = cursorCell();
    QScrollBar *h = q->horizontalScrollBar();
    if (cell.left() < 0)
        h->setValue(h->value() + cell.left() - m_charWidth);
    else if (cell.right() >= width())
        h->setValue(h->value() + cell.right() - width() + 2 * m_charWidth);
}

int QHexEditPrivate::nibbleAt(const QPoint &pos, bool *ascii)
{
    const int x = pos.x() + q->horizontalScrollBar()->value();
    const qint64 row = std::max<qint64>(0, qint64(firstRow()) + (pos.y() < 0 ? -1 : pos.y() / m_lineHeight));
    *ascii = m_asciiArea && (!m_hexArea || x >= m_asciiStart);
    int col = 0;
    int nibble = 0;
    if (*ascii) {
        col = std::clamp((x - asciiX(0)) / m_charWidth, 0, s_bytesPerRow - 1);
        if (x < asciiX(0))
            col = 0;
    } else {
        const int rel = x - hexX(0);
        if (rel > 0) {
            col = std::min(rel / (3 * m_charWidth), s_bytesPerRow - 1);
            nibble = (rel - col * 3 * m_charWidth) >= m_charWidth ? 1 : 0;
        }
    }
    const qint64 byte = row * s_bytesPerRow + col;
    if (byte >= m_buffer.size())
        return 2 * m_buffer.size();
    return int(2 * byte + nibble);
}

void QHexEditPrivate::emitCursorSignals()
{
    const int address = m_cursor / 2 + m_buffer.addressOffset();
    if (address != m_lastAddress) {
        m_lastAddress = address;
        Q_EMIT q->currentAddressChanged(address);
    }
}

void QHexEditPrivate::setCursorNibble(int nibble, bool select)
{
    const int size = m_buffer.size();
    nibble = std::clamp(nibble, 0, 2 * size);
    if (m_asciiFocus || !m_hexArea)
        nibble &= ~1;
    const int byte = nibble / 2;
    if (select) {
        if (m_selBegin == m_selEnd)
            m_selAnchor = m_cursor / 2;
        m_cursor = nibble;
        setSelectionRange(std::min(m_selAnchor, byte), std::max(m_selAnchor, byte), m_selAnchor);
    } else {
        m_cursor = nibble;
        m_selAnchor = byte;
        clearSelection();
    }
    m_blinkOn = true;
    if (m_blinkTimer.isActive() && QApplication::cursorFlashTime() > 0)
        m_blinkTimer.start(QApplication::cursorFlashTime() / 2, this);
    ensureCursorVisible();
    update();
    emitCursorSignals();
}

void QHexEditPrivate::setSelectionRange(int begin, int end, int anchor)
{
    const int size = m_buffer.size();
    begin = std::clamp(begin, 0, size);
    end = std::clamp(end, begin, size);
    m_selAnchor = anchor;
    if (begin == m_selBegin && end == m_selEnd)
        return;
    const bool had = m_selBegin != m_selEnd;
    m_selBegin = begin;
    m_selEnd = end;
    update();
    if (had || begin != end)
        Q_EMIT q->selectionChanged();
}

void QHexEditPrivate::clearSelection()
{
    setSelectionRange(m_cursor / 2, m_cursor / 2, m_cursor / 2);
}

void QHexEditPrivate::bufferChanged()
{
    if (m_settingData)
        return;
    const int size = m_buffer.size();
    // Undo and redo, also from a host's actions, show where they changed the data.
    const int index = m_undoStack->index();
    if (index != m_lastIndex) {
        const int pos = commandPosition(m_undoStack->command(index < m_lastIndex ? index : index - 1));
        m_lastIndex = index;
        if (pos >= 0)
            m_cursor = 2 * pos;
    }
    m_cursor = std::min(m_cursor, 2 * size);
    m_selBegin = std::min(m_selBegin, size);
    m_selEnd = std::min(m_selEnd, size);
    // Address digits follow the size (0xffff bytes need four, 0x10000 five).
    const int digits = std::max(m_buffer.realAddressNumbers(), m_buffer.addressWidth());
    if (digits != m_addressDigits)
        updateLayout();
    else
        updateScrollBars();
    update();
    Q_EMIT q->dataChanged();
    if (size != m_lastSize) {
        m_lastSize = size;
        Q_EMIT q->currentSizeChanged(size);
    }
    ensureCursorVisible();
    emitCursorSignals();
}

bool QHexEditPrivate::pushEdit(QUndoCommand *command)
{
    m_undoStack->push(command);
    return true;
}

bool QHexEditPrivate::insertBytes(int index, const QByteArray &bytes)
{
    const int size = m_buffer.size();
    if (index < 0 || index > size || bytes.isEmpty() || qint64(size) + bytes.size() > m_buffer.maxSize())
        return false;
    return pushEdit(new ArrayCommand(&m_buffer, ArrayCommand::insert, index, bytes));
}

bool QHexEditPrivate::removeBytes(int index, int length)
{
    const int size = m_buffer.size();
    if (index < 0 || index >= size || length <= 0)
        return false;
    length = int(std::min<qint64>(length, size - index));
    if (length == 1)
        return pushEdit(new CharCommand(&m_buffer, CharCommand::remove, index, 0));
    return pushEdit(new ArrayCommand(&m_buffer, ArrayCommand::remove, index, QByteArray(), length));
}

bool QHexEditPrivate::replaceBytes(int index, const QByteArray &bytes)
{
    const int size = m_buffer.size();
    if (index < 0 || index >= size || bytes.isEmpty())
        return false;
    const QByteArray run = bytes.left(size - index);
    return pushEdit(new ArrayCommand(&m_buffer, ArrayCommand::replace, index, run, run.size()));
}

void QHexEditPrivate::deleteSelectionOrByte(bool backwards)
{
    if (m_readOnly)
        return;
    int begin = m_selBegin;
    int end = m_selEnd;
    if (begin == end) {
        begin = m_cursor / 2;
        if (backwards && !((m_cursor & 1) && !m_asciiFocus))
            --begin;
        end = begin + 1;
        if (begin < 0 || begin >= m_buffer.size())
            return;
    }
    // Overwrite mode keeps the size: the bytes become zero instead of going away.
    if (m_overwrite) {
        if (end - begin == 1)
            pushEdit(new CharCommand(&m_buffer, CharCommand::replace, begin, 0));
        else
            replaceBytes(begin, QByteArray(end - begin, '\0'));
        setCursorNibble(2 * (m_selBegin != m_selEnd || backwards ? begin : end), false);
    } else {
        removeBytes(begin, end - begin);
        setCursorNibble(2 * begin, false);
    }
}

void QHexEditPrivate::copy()
{
    if (m_selBegin == m_selEnd)
        return;
    QApplication::clipboard()->setText(toHexText(m_buffer.data().mid(m_selBegin, m_selEnd - m_selBegin)));
}

bool QHexEditPrivate::paste()
{
    if (m_readOnly)
        return false;
    QByteArray bytes;
    if (!fromHexText(QApplication::clipboard()->text(), &bytes) || bytes.isEmpty())
        return false;
    const bool selection = m_selBegin != m_selEnd;
    const int pos = selection ? m_selBegin : m_cursor / 2;
    const int size = m_buffer.size();
    const int maxSize = m_buffer.maxSize();
    if (m_overwrite) {
        const int replaced = std::min(bytes.size(), size - pos);
        const QByteArray appended = bytes.mid(replaced).left(std::max(0, maxSize - size));
        if (replaced <= 0 && appended.isEmpty())
            return false;
        m_undoStack->beginMacro(QHexEdit::tr("Paste"));
        if (replaced > 0)
            replaceBytes(pos, bytes.left(replaced));
        if (!appended.isEmpty())
            insertBytes(size, appended);
        m_undoStack->endMacro();
        setCursorNibble(2 * (pos + std::max(replaced, 0) + appended.size()), false);
    } else {
        const int removed = m_selEnd - m_selBegin;
        const QByteArray inserted = bytes.left(std::max(0, maxSize - (size - removed)));
        if (inserted.isEmpty())
            return false;
        m_undoStack->beginMacro(QHexEdit::tr("Paste"));
        if (removed > 0)
            removeBytes(m_selBegin, removed);
        insertBytes(pos, inserted);
        m_undoStack->endMacro();
        setCursorNibble(2 * (pos + inserted.size()), false);
    }
    return true;
}

bool QHexEditPrivate::undo()
{
    if (m_readOnly || !m_undoStack->canUndo())
        return false;
    m_undoStack->undo();
    return true;
}

bool QHexEditPrivate::redo()
{
    if (m_readOnly || !m_undoStack->canRedo())
        return false;
    m_undoStack->redo();
    return true;
}

bool QHexEditPrivate::handlesShortcut(QKeyEvent *event) const
{
    static const QKeySequence::StandardKey keys[] = {
        QKeySequence::Undo, QKeySequence::Redo, QKeySequence::Copy, QKeySequence::Cut,
        QKeySequence::Paste, QKeySequence::SelectAll, QKeySequence::Delete,
    };
    for (const auto key : keys) {
        if (event->matches(key))
            return true;
    }
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_Insert:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        break;
    }
    const Qt::KeyboardModifiers mods = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return mods == Qt::NoModifier && !event->text().isEmpty() && event->text().at(0).isPrint();
}

void QHexEditPrivate::keyPress(QKeyEvent *event)
{
    const int size = m_buffer.size();
    const int byte = m_cursor / 2;
    const bool ascii = m_asciiFocus || !m_hexArea;
    const int step = ascii ? 2 : 1;
    const int rowStart = byte - byte % s_bytesPerRow;
    const int page = visibleRows() * s_bytesPerRow;

    // Plain movement (nibble-wise in the hex column).
    if (event->matches(QKeySequence::MoveToNextChar))
        setCursorNibble(m_cursor + step, false);
    else if (event->matches(QKeySequence::MoveToPreviousChar))
        setCursorNibble(m_cursor - step, false);
    else if (event->matches(QKeySequence::MoveToNextLine))
        setCursorNibble(std::min(m_cursor + 2 * s_bytesPerRow, 2 * size), false);
    else if (event->matches(QKeySequence::MoveToPreviousLine))
        setCursorNibble(m_cursor >= 2 * s_bytesPerRow ? m_cursor - 2 * s_bytesPerRow : m_cursor, false);
    else if (event->matches(QKeySequence::MoveToNextPage))
        setCursorNibble(int(std::min<qint64>(qint64(m_cursor) + 2 * page, 2 * size)), false);
    else if (event->matches(QKeySequence::MoveToPreviousPage))
        setCursorNibble(m_cursor - 2 * std::min(page, byte - byte % s_bytesPerRow), false);
    else if (event->matches(QKeySequence::MoveToStartOfLine))
        setCursorNibble(2 * rowStart, false);
    else if (event->matches(QKeySequence::MoveToEndOfLine))
        setCursorNibble(2 * std::min(rowStart + s_bytesPerRow - 1, size), false);
    else if (event->matches(QKeySequence::MoveToStartOfDocument))
        setCursorNibble(0, false);
    else if (event->matches(QKeySequence::MoveToEndOfDocument))
        setCursorNibble(2 * size, false);
    // Selection moves byte-wise; the selection runs from the anchor to the cursor.
    else if (event->matches(QKeySequence::SelectNextChar))
        setCursorNibble(2 * (byte + 1), true);
    else if (event->matches(QKeySequence::SelectPreviousChar))
        setCursorNibble(2 * ((m_cursor & 1) ? byte : byte - 1), true);
    else if (event->matches(QKeySequence::SelectNextLine))
        setCursorNibble(2 * std::min(byte + s_bytesPerRow, size), true);
    else if (event->matches(QKeySequence::SelectPreviousLine))
        setCursorNibble(2 * std::max(byte - s_bytesPerRow, 0), true);
    else if (event->matches(QKeySequence::SelectNextPage))
        setCursorNibble(2 * int(std::min<qint64>(qint64(byte) + page, size)), true);
    else if (event->matches(QKeySequence::SelectPreviousPage))
        setCursorNibble(2 * std::max(byte - page, 0), true);
    else if (event->matches(QKeySequence::SelectStartOfLine))
        setCursorNibble(2 * rowStart, true);
    else if (event->matches(QKeySequence::SelectEndOfLine))
        setCursorNibble(2 * std::min(rowStart + s_bytesPerRow, size), true);
    else if (event->matches(QKeySequence::SelectStartOfDocument))
        setCursorNibble(0, true);
    else if (event->matches(QKeySequence::SelectEndOfDocument))
        setCursorNibble(2 * size, true);
    else if (event->matches(QKeySequence::SelectAll))
        q->selectAll();
    else if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::Cut))
        q->cut();
    else if (event->matches(QKeySequence::Paste))
        paste();
    else if (event->matches(QKeySequence::Undo))
        undo();
    else if (event->matches(QKeySequence::Redo))
        redo();
    else if (event->key() == Qt::Key_Insert && event->modifiers() == Qt::NoModifier)
        q->setOverwriteMode(!m_overwrite);
    else if (event->key() == Qt::Key_Delete)
        deleteSelectionOrByte(false);
    else if (event->key() == Qt::Key_Backspace)
        deleteSelectionOrByte(true);
    else {
        const Qt::KeyboardModifiers mods = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
        const QString text = event->text();
        if (mods != Qt::NoModifier || text.isEmpty()) {
            event->ignore();
            return;
        }
        const QChar c = text.at(0);
        if (m_readOnly || (!ascii && hexValue(c) < 0) || (ascii && (c.unicode() < 0x20 || c.unicode() > 0x7e))) {
            event->ignore();
            return;
        }
        if (m_selBegin != m_selEnd)
            clearSelection();
        const bool append = byte >= size || (!m_overwrite && !(m_cursor & 1));
        if (append && size >= m_buffer.maxSize())
            return;  // full: the key is taken but changes nothing
        const char old = byte < size ? m_buffer.data().at(byte) : char(0);
        char value;
        if (ascii)
            value = char(c.unicode());
        else if (append)
            value = char(hexValue(c) << 4);
        else if (m_cursor & 1)
            value = char((old & 0xf0) | hexValue(c));
        else
            value = char((old & 0x0f) | (hexValue(c) << 4));
        const int next = ascii ? 2 * (byte + 1) : m_cursor + 1;
        // A second nibble replaces the same byte and merges into the first command.
        pushEdit(new CharCommand(&m_buffer, append ? CharCommand::insert : CharCommand::replace, byte, value));
        setCursorNibble(next, false);
    }
    event->accept();
}

void QHexEditPrivate::mousePress(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || (!m_hexArea && !m_asciiArea))
        return;
    bool ascii = false;
    const int nibble = nibbleAt(event->pos(), &ascii);
    if (event->modifiers() & Qt::ShiftModifier) {
        const int anchor = m_selBegin == m_selEnd ? m_cursor / 2 : m_selAnchor;
        m_selAnchor = anchor;
        m_selBegin = m_selEnd;  // start from the anchor again
        mouseMove(event);
        return;
    }
    m_asciiFocus = ascii;
    setCursorNibble(nibble, false);
}

void QHexEditPrivate::mouseMove(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton) || (!m_hexArea && !m_asciiArea))
        return;
    // Dragging past the top or bottom edge scrolls one row per move.
    QScrollBar *v = q->verticalScrollBar();
    if (event->pos().y() < 0)
        v->setValue(v->value() - 1);
    else if (event->pos().y() >= height())
        v->setValue(v->value() + 1);
    bool ascii = false;
    const QPoint pos(event->pos().x(), std::clamp(event->pos().y(), 0, height() - 1));
    const int nibble = nibbleAt(pos, &ascii) & ~1;
    const int byte = nibble / 2;
    const int anchor = m_selAnchor;
    if (byte == anchor && m_selBegin == m_selEnd)
        return;  // a click that wobbles inside one byte selects nothing
    // Both the anchor byte and the byte under the mouse are selected.
    const int begin = std::min(anchor, byte);
    const int end = std::min(std::max(anchor, byte) + 1, m_buffer.size());
    m_cursor = nibble;
    setSelectionRange(begin, end, anchor);
    update();
    emitCursorSignals();
}

void QHexEditPrivate::focusChanged(bool in)
{
    if (in && QApplication::cursorFlashTime() > 0)
        m_blinkTimer.start(QApplication::cursorFlashTime() / 2, this);
    else
        m_blinkTimer.stop();
    m_blinkOn = true;
    update();
}

void QHexEditPrivate::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_blinkTimer.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    m_blinkOn = !m_blinkOn;
    update(cursorCell());
}
