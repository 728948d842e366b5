// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "QHexEdit.h"

#include "QHexEditPrivate.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QUndoStack>

#include <limits>

// Cursor positions count nibbles in an int: twice the size must still fit.
static const int s_largestSize = (std::numeric_limits<int>::max() / 2) & ~15;

QHexEdit::QHexEdit(QWidget *parent)
    : QAbstractScrollArea(parent)
    , d(new QHexEditPrivate(this))
{
    setViewport(d);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // Platforms without a fixed-font setting hand out the proportional default.
    if (!QFontInfo(font).fixedPitch()) {
        font.setFamily(QStringLiteral("monospace"));
        font.setStyleHint(QFont::TypeWriter);
        font.setFixedPitch(true);
    }
    setFont(font);
    d->updateLayout();
}

QHexEdit::~QHexEdit() = default;

QByteArray QHexEdit::data() const
{
    return d->m_buffer.data();
}

void QHexEdit::setData(const QByteArray &data)
{
    // Unless the host fixed the count, every byte handed over is shown, also
    // beyond the buffer's default of 0xffffff (a 16 MiB image has one more).
    if (!d->m_bytesEnabledSet && data.size() > d->m_buffer.bytesEnabled())
        d->m_buffer.setBytesEnabled(std::min(data.size(), s_largestSize));
    else if (data.size() > s_largestSize && d->m_buffer.bytesEnabled() > s_largestSize)
        d->m_buffer.setBytesEnabled(s_largestSize);
    d->setData(data);
}

int QHexEdit::size() const
{
    return d->m_buffer.size();
}

int QHexEdit::addressOffset() const
{
    return d->m_buffer.addressOffset();
}

void QHexEdit::setAddressOffset(int offset)
{
    d->m_buffer.setAddressOffset(offset);
    d->updateLayout();
    const int address = cursorPosition() + offset;
    if (address != d->m_lastAddress) {
        d->m_lastAddress = address;
        Q_EMIT currentAddressChanged(address);
    }
}

int QHexEdit::addressWidth() const
{
    return d->m_buffer.addressWidth();
}

void QHexEdit::setAddressWidth(int width)
{
    d->m_buffer.setAddressWidth(width);
    d->updateLayout();
}

bool QHexEdit::addressArea() const
{
    return d->m_addressArea;
}

void QHexEdit::setAddressArea(bool visible)
{
    d->m_addressArea = visible;
    d->updateLayout();
}

bool QHexEdit::hexArea() const
{
    return d->m_hexArea;
}

void QHexEdit::setHexArea(bool visible)
{
    d->m_hexArea = visible;
    if (!visible)
        d->m_asciiFocus = true;
    d->updateLayout();
}

bool QHexEdit::asciiArea() const
{
    return d->m_asciiArea;
}

void QHexEdit::setAsciiArea(bool visible)
{
    d->m_asciiArea = visible;
    if (!visible)
        d->m_asciiFocus = false;
    d->updateLayout();
}

QColor QHexEdit::addressAreaColor() const
{
    return d->m_addressAreaColor;
}

void QHexEdit::setAddressAreaColor(const QColor &color)
{
    d->m_addressAreaColor = color;
    d->update();
}

bool QHexEdit::highlighting() const
{
    return d->m_highlighting;
}

void QHexEdit::setHighlighting(bool on)
{
    d->m_highlighting = on;
    d->update();
}

QColor QHexEdit::highlightingColor() const
{
    return d->m_highlightingColor;
}

void QHexEdit::setHighlightingColor(const QColor &color)
{
    d->m_highlightingColor = color;
    d->update();
}

QColor QHexEdit::selectionColor() const
{
    return d->m_selectionColor;
}

void QHexEdit::setSelectionColor(const QColor &color)
{
    d->m_selectionColor = color;
    d->update();
}

bool QHexEdit::overwriteMode() const
{
    return d->m_overwrite;
}

void QHexEdit::setOverwriteMode(bool overwrite)
{
    if (d->m_overwrite == overwrite)
        return;
    d->m_overwrite = overwrite;
    d->update();
    Q_EMIT overwriteModeChanged(overwrite);
}

bool QHexEdit::isReadOnly() const
{
    return d->m_readOnly;
}

void QHexEdit::setReadOnly(bool readOnly)
{
    d->m_readOnly = readOnly;
    d->update();
}

int QHexEdit::cursorPosition() const
{
    return d->m_cursor / 2;
}

void QHexEdit::setCursorPosition(int position)
{
    d->setCursorNibble(2 * position, false);
}

QRect QHexEdit::cursorRect() const
{
    return d->cursorCell();
}

int QHexEdit::maxSize() const
{
    return d->m_buffer.maxSize();
}

void QHexEdit::setMaxSize(int size)
{
    d->m_buffer.setMaximumSize(size);
}

int QHexEdit::bytesEnabled() const
{
    return d->m_buffer.bytesEnabled();
}

void QHexEdit::setBytesEnabled(int count)
{
    // Padding is configuration, not an edit: nothing to undo.
    d->m_bytesEnabledSet = true;
    d->m_buffer.setBytesEnabled(std::min(count, s_largestSize));
    d->updateLayout();
    const int size = d->m_buffer.size();
    d->m_cursor = std::min(d->m_cursor, 2 * size);
    d->setSelectionRange(std::min(d->m_selBegin, size), std::min(d->m_selEnd, size), d->m_selAnchor);
    Q_EMIT dataChanged();
    if (size != d->m_lastSize) {
        d->m_lastSize = size;
        Q_EMIT currentSizeChanged(size);
    }
}

bool QHexEdit::hasSelection() const
{
    return d->m_selBegin != d->m_selEnd;
}

int QHexEdit::selectionStart() const
{
    return d->m_selBegin;
}

int QHexEdit::selectionEnd() const
{
    return d->m_selEnd;
}

void QHexEdit::setSelection(int start, int length)
{
    const qint64 end = qint64(start) + std::max(length, 0);
    d->setSelectionRange(start, int(std::min<qint64>(end, size())), start);
}

QByteArray QHexEdit::selectedData() const
{
    return d->m_buffer.data().mid(d->m_selBegin, d->m_selEnd - d->m_selBegin);
}

QString QHexEdit::selectionToReadableString() const
{
    if (!hasSelection())
        return QString();
    return d->m_buffer.toRedableString(d->m_selBegin, d->m_selEnd);
}

QString QHexEdit::toReadableString() const
{
    return d->m_buffer.toRedableString(0, -1);
}

bool QHexEdit::isByteChanged(int index) const
{
    return d->m_buffer.dataChanged(index);
}

bool QHexEdit::isModified() const
{
    return !d->m_undoStack->isClean();
}

QUndoStack *QHexEdit::undoStack() const
{
    return d->m_undoStack;
}

bool QHexEdit::insert(int index, const QByteArray &bytes)
{
    return d->insertBytes(index, bytes);
}

bool QHexEdit::remove(int index, int length)
{
    return d->removeBytes(index, length);
}

bool QHexEdit::replace(int index, const QByteArray &bytes)
{
    return d->replaceBytes(index, bytes);
}

QSize QHexEdit::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return QSize(d->m_contentWidth + frame + verticalScrollBar()->sizeHint().width(),
                 20 * d->m_lineHeight + frame);
}

QSize QHexEdit::minimumSizeHint() const
{
    const int frame = 2 * frameWidth();
    return QSize(20 * d->m_charWidth + frame + verticalScrollBar()->sizeHint().width(),
                 3 * d->m_lineHeight + frame);
}

void QHexEdit::undo()
{
    d->undo();
}

void QHexEdit::redo()
{
    d->redo();
}

void QHexEdit::selectAll()
{
    d->m_cursor = 2 * size();
    d->setSelectionRange(0, size(), 0);
    d->ensureCursorVisible();
    d->update();
}

void QHexEdit::deselect()
{
    d->clearSelection();
}

void QHexEdit::copy()
{
    d->copy();
}

void QHexEdit::cut()
{
    if (d->m_readOnly || !hasSelection())
        return;
    d->copy();
    d->deleteSelectionOrByte(false);
}

void QHexEdit::paste()
{
    d->paste();
}

void QHexEdit::ensureCursorVisible()
{
    d->ensureCursorVisible();
}

bool QHexEdit::event(QEvent *event)
{
    // Keys the editor acts on win over window shortcuts (Delete, Ctrl+Z, ...).
    if (event->type() == QEvent::ShortcutOverride && d->handlesShortcut(static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

void QHexEdit::paintEvent(QPaintEvent *event)
{
    QPainter painter(d);
    d->paint(painter, event->rect());
}

void QHexEdit::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    d->updateScrollBars();
}

void QHexEdit::keyPressEvent(QKeyEvent *event)
{
    d->keyPress(event);
}

void QHexEdit::mousePressEvent(QMouseEvent *event)
{
    d->mousePress(event);
}

void QHexEdit::mouseMoveEvent(QMouseEvent *event)
{
    d->mouseMove(event);
}

void QHexEdit::mouseDoubleClickEvent(QMouseEvent *event)
{
    d->mousePress(event);
}

void QHexEdit::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    d->focusChanged(true);
}

void QHexEdit::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    d->focusChanged(false);
}

void QHexEdit::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        d->updateLayout();
}

void QHexEdit::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    const bool editable = !d->m_readOnly;
    menu.addAction(tr("&Undo"), this, &QHexEdit::undo, QKeySequence::Undo)
        ->setEnabled(editable && d->m_undoStack->canUndo());
    menu.addAction(tr("&Redo"), this, &QHexEdit::redo, QKeySequence::Redo)
        ->setEnabled(editable && d->m_undoStack->canRedo());
    menu.addSeparator();
    menu.addAction(tr("Cu&t"), this, &QHexEdit::cut, QKeySequence::Cut)->setEnabled(editable && hasSelection());
    menu.addAction(tr("&Copy"), this, &QHexEdit::copy, QKeySequence::Copy)->setEnabled(hasSelection());
    menu.addAction(tr("&Paste"), this, &QHexEdit::paste, QKeySequence::Paste)->setEnabled(editable);
    menu.addSeparator();
    menu.addAction(tr("Select &All"), this, &QHexEdit::selectAll, QKeySequence::SelectAll)
        ->setEnabled(size() > 0);
    menu.exec(event->globalPos());
}

void QHexEdit::scrollContentsBy(int, int)
{
    d->update();
}
