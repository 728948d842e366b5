// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "QHexEdit.h"

#include "HexFindBar_p.h"
#include "QHexEditPrivate.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QUndoStack>

#include <cmath>

QHexEdit::QHexEdit(QWidget *parent)
    : QAbstractScrollArea(parent)
    , d(new QHexEditPrivate(this))
{
    viewport()->setObjectName(QStringLiteral("qt_hexedit_view"));
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setCursor(Qt::IBeamCursor);
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

QHexEdit::~QHexEdit()
{
    // The bar reports its hiding, which must not reach a half-destroyed editor.
    if (d->bar)
        d->bar->disconnect(this);
    delete d;
}

QByteArray QHexEdit::data() const
{
    return d->buffer.data();
}

void QHexEdit::setData(const QByteArray &data)
{
    d->setData(data);
}

int QHexEdit::size() const
{
    return d->size();
}

int QHexEdit::addressOffset() const
{
    return d->buffer.addressOffset();
}

void QHexEdit::setAddressOffset(int offset)
{
    QHexEditPrivate::ChangeScope scope(d);
    d->buffer.setAddressOffset(offset);
    d->updateLayout();
}

int QHexEdit::addressWidth() const
{
    return d->buffer.addressWidth();
}

void QHexEdit::setAddressWidth(int width)
{
    d->buffer.setAddressWidth(width);
    d->updateLayout();
}

bool QHexEdit::addressArea() const
{
    return d->addressArea;
}

void QHexEdit::setAddressArea(bool visible)
{
    d->addressArea = visible;
    d->updateLayout();
}

bool QHexEdit::hexArea() const
{
    return d->hexArea;
}

void QHexEdit::setHexArea(bool visible)
{
    d->hexArea = visible;
    if (!visible)
        d->cursor.ascii = true;
    d->setCursor(d->cursor);
    d->updateLayout();
}

bool QHexEdit::asciiArea() const
{
    return d->asciiArea;
}

void QHexEdit::setAsciiArea(bool visible)
{
    d->asciiArea = visible;
    if (!visible)
        d->cursor.ascii = false;
    d->updateLayout();
}

QColor QHexEdit::addressAreaColor() const
{
    return d->addressBackground();
}

void QHexEdit::setAddressAreaColor(const QColor &color)
{
    d->addressAreaColor = color;
    viewport()->update();
}

bool QHexEdit::highlighting() const
{
    return d->highlighting;
}

void QHexEdit::setHighlighting(bool on)
{
    d->highlighting = on;
    viewport()->update();
}

QColor QHexEdit::highlightingColor() const
{
    return d->changedBackground();
}

void QHexEdit::setHighlightingColor(const QColor &color)
{
    d->highlightingColor = color;
    viewport()->update();
}

QColor QHexEdit::selectionColor() const
{
    return d->selectionBackground();
}

void QHexEdit::setSelectionColor(const QColor &color)
{
    d->selectionColor = color;
    viewport()->update();
}

bool QHexEdit::overwriteMode() const
{
    return d->overwrite;
}

void QHexEdit::setOverwriteMode(bool overwrite)
{
    if (d->overwrite == overwrite)
        return;
    d->overwrite = overwrite;
    viewport()->update();
    Q_EMIT overwriteModeChanged(overwrite);
}

bool QHexEdit::isReadOnly() const
{
    return d->readOnly;
}

void QHexEdit::setReadOnly(bool readOnly)
{
    d->readOnly = readOnly;
    viewport()->update();
}

int QHexEdit::cursorPosition() const
{
    return d->cursor.byte();
}

void QHexEdit::setCursorPosition(int position)
{
    d->moveCursor(2 * position, false);
}

QRect QHexEdit::cursorRect() const
{
    return d->cursorRect();
}

int QHexEdit::maxSize() const
{
    return d->effectiveMaxSize();
}

void QHexEdit::setMaxSize(int size)
{
    d->maxSize = size;
    d->maxSizeSet = true;
    d->buffer.setMaximumSize(size);
}

int QHexEdit::bytesEnabled() const
{
    return d->buffer.bytesEnabled();
}

void QHexEdit::setBytesEnabled(int count)
{
    // Padding is configuration, not an edit: nothing to undo.
    QHexEditPrivate::ChangeScope scope(d);
    d->bytesEnabledSet = true;
    d->buffer.setBytesEnabled(std::min(count, hexLargestSize));
    d->cursor.clamp(d->size());
    d->updateLayout();
    Q_EMIT dataChanged();
}

bool QHexEdit::hasSelection() const
{
    return d->cursor.hasSelection();
}

int QHexEdit::selectionStart() const
{
    return d->cursor.selectionStart();
}

int QHexEdit::selectionEnd() const
{
    return d->cursor.selectionEnd();
}

void QHexEdit::setSelection(int start, int length)
{
    HexCursor next = d->cursor;
    next.select(start, int(std::min<qint64>(qint64(start) + std::max(length, 0), size())), size());
    d->setCursor(next);
}

QByteArray QHexEdit::selectedData() const
{
    return d->buffer.data().mid(selectionStart(), selectionEnd() - selectionStart());
}

QString QHexEdit::selectionToReadableString() const
{
    if (!hasSelection())
        return QString();
    return d->buffer.toRedableString(selectionStart(), selectionEnd());
}

QString QHexEdit::toReadableString() const
{
    return d->buffer.toRedableString(0, -1);
}

bool QHexEdit::isByteChanged(int index) const
{
    return d->buffer.dataChanged(index);
}

bool QHexEdit::isModified() const
{
    return !d->undoStack->isClean();
}

QUndoStack *QHexEdit::undoStack() const
{
    return d->undoStack;
}

int QHexEdit::indexOf(const QByteArray &bytes, int from) const
{
    return d->indexOf(bytes, from);
}

int QHexEdit::lastIndexOf(const QByteArray &bytes, int from) const
{
    return d->lastIndexOf(bytes, from);
}

bool QHexEdit::find(const QByteArray &bytes, FindFlags flags)
{
    return d->find(bytes, flags);
}

bool QHexEdit::isFindBarEnabled() const
{
    return d->findBarEnabled;
}

void QHexEdit::setFindBarEnabled(bool enabled)
{
    d->findBarEnabled = enabled;
    if (!enabled && d->bar)
        d->bar->hide();
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
    return QSize(int(std::ceil(d->layout.contentWidth())) + frame + verticalScrollBar()->sizeHint().width(),
                 int(20 * d->layout.rowHeight()) + frame);
}

QSize QHexEdit::minimumSizeHint() const
{
    const int frame = 2 * frameWidth();
    return QSize(int(20 * d->layout.cellWidth()) + frame + verticalScrollBar()->sizeHint().width(),
                 int(3 * d->layout.rowHeight()) + frame);
}

void QHexEdit::undo()
{
    d->perform(HexAction::Undo);
}

void QHexEdit::redo()
{
    d->perform(HexAction::Redo);
}

void QHexEdit::selectAll()
{
    d->perform(HexAction::SelectAll);
}

void QHexEdit::deselect()
{
    d->moveCursor(d->cursor.nibble, false);
}

void QHexEdit::copy()
{
    d->copy(QClipboard::Clipboard);
}

void QHexEdit::cut()
{
    d->perform(HexAction::Cut);
}

void QHexEdit::paste()
{
    d->paste(QClipboard::Clipboard);
}

void QHexEdit::ensureCursorVisible()
{
    d->ensureCursorVisible();
}

void QHexEdit::showFindBar()
{
    if (d->findBarEnabled)
        d->findBar()->open(HexFindBar::Find);
}

void QHexEdit::showGoToBar()
{
    if (d->findBarEnabled)
        d->findBar()->open(HexFindBar::GoTo);
}

bool QHexEdit::goToAddress(const QString &text)
{
    return d->goToAddress(text);
}

bool QHexEdit::event(QEvent *event)
{
    // Keys the editor acts on win over window shortcuts (Delete, Ctrl+Z, ...),
    // and Tab switches columns instead of moving the focus.
    if (event->type() == QEvent::ShortcutOverride && d->claimsKey(static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        auto key = static_cast<QKeyEvent *>(event);
        if ((key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) && d->claimsKey(key)) {
            d->keyPress(key);
            return true;
        }
    }
    return QAbstractScrollArea::event(event);
}

void QHexEdit::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    d->paint(painter, event->rect());
}

void QHexEdit::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    d->updateScrollBars();
    d->placeFindBar();
    if (d->scrollPending)
        d->ensureCursorVisible();
}

void QHexEdit::showEvent(QShowEvent *event)
{
    QAbstractScrollArea::showEvent(event);
    // The screen, and with it the device pixel ratio, is known now.
    if (!qFuzzyCompare(viewport()->devicePixelRatioF(), d->layout.options().devicePixelRatio))
        d->updateLayout();
    if (d->scrollPending)
        d->ensureCursorVisible();
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

void QHexEdit::mouseReleaseEvent(QMouseEvent *event)
{
    d->mouseRelease(event);
}

void QHexEdit::mouseDoubleClickEvent(QMouseEvent *event)
{
    d->mousePress(event);
}

void QHexEdit::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    d->restartBlink();
    viewport()->update();
}

void QHexEdit::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    d->restartBlink();
    viewport()->update();
}

void QHexEdit::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange
        || event->type() == QEvent::ScreenChangeInternal)
        d->updateLayout();
}

void QHexEdit::contextMenuEvent(QContextMenuEvent *event)
{
    d->contextMenu(event->globalPos());
}

void QHexEdit::scrollContentsBy(int, int)
{
    viewport()->update();
}
