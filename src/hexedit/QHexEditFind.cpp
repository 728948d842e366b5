// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Searching the bytes, and going to an address.
#include "QHexEditPrivate.h"

#include "HexFindBar_p.h"

#include <QScrollBar>

#include <cstring>

namespace {

char fold(char c)
{
    return (c >= 'A' && c <= 'Z') ? char(c + ('a' - 'A')) : c;
}

bool hasLetters(const QByteArray &bytes)
{
    for (const char c : bytes) {
        if (fold(c) >= 'a' && fold(c) <= 'z')
            return true;
    }
    return false;
}

bool equalFolded(const char *a, const char *b, int n)
{
    for (int i = 0; i < n; ++i) {
        if (fold(a[i]) != fold(b[i]))
            return false;
    }
    return true;
}

// The first match starting at or after from, -1 if none.
qint64 searchForward(const char *data, qint64 size, const QByteArray &pattern, qint64 from, bool caseInsensitive)
{
    const qint64 n = pattern.size();
    if (from < 0 || n == 0 || from + n > size)
        return -1;
    if (!caseInsensitive || !hasLetters(pattern)) {
        // The C library's search runs at memory speed.
        const void *hit = memmem(data + from, size_t(size - from), pattern.constData(), size_t(n));
        return hit ? static_cast<const char *>(hit) - data : -1;
    }
    const char first = fold(pattern.at(0));
    const char *p = pattern.constData();
    for (qint64 i = from, last = size - n; i <= last; ++i) {
        if (fold(data[i]) == first && equalFolded(data + i + 1, p + 1, int(n - 1)))
            return i;
    }
    return -1;
}

// The last match starting at or before lastStart, -1 if none.
qint64 searchBackward(const char *data, qint64 size, const QByteArray &pattern, qint64 lastStart, bool caseInsensitive)
{
    const qint64 n = pattern.size();
    lastStart = std::min(lastStart, size - n);
    if (n == 0 || lastStart < 0)
        return -1;
    const char *p = pattern.constData();
    if (!caseInsensitive || !hasLetters(pattern)) {
        for (qint64 end = lastStart + 1; end > 0;) {
            const void *hit = memrchr(data, p[0], size_t(end));
            if (!hit)
                return -1;
            const qint64 i = static_cast<const char *>(hit) - data;
            if (std::memcmp(data + i, p, size_t(n)) == 0)
                return i;
            end = i;
        }
        return -1;
    }
    const char first = fold(p[0]);
    for (qint64 i = lastStart; i >= 0; --i) {
        if (fold(data[i]) == first && equalFolded(data + i + 1, p + 1, int(n - 1)))
            return i;
    }
    return -1;
}

}

// Same answers as QByteArray::indexOf(), edge cases included.
int QHexEditPrivate::indexOf(const QByteArray &bytes, int from, bool caseInsensitive)
{
    const int size = this->size();
    if (bytes.isEmpty())
        return from;
    if (bytes.size() > 1 && (from > size || bytes.size() + from > size))
        return -1;
    if (from < 0) {
        from += size;
        // Longer patterns may start before the data as long as they would end in it.
        if (bytes.size() > 1 && from + bytes.size() < 0)
            return -1;
        from = std::max(from, 0);
    }
    return int(searchForward(buffer.data().constData(), size, bytes, from, caseInsensitive));
}

// Same answers as QByteArray::lastIndexOf(), edge cases included.
int QHexEditPrivate::lastIndexOf(const QByteArray &bytes, int from, bool caseInsensitive)
{
    const int size = this->size();
    if (bytes.size() == 1) {
        if (from < 0)
            from += size;
        else if (from > size)
            from = size - 1;
        // QByteArray looks at its terminating zero when asked from its size.
        if (from == size && bytes.at(0) == '\0')
            return size;
        return from < 0 ? -1 : int(searchBackward(buffer.data().constData(), size, bytes, from, caseInsensitive));
    }
    const int delta = size - bytes.size();
    if (from < 0)
        from = delta;
    if (from < 0 || from > size)
        return -1;
    if (from > delta)
        from = delta;
    if (bytes.isEmpty())
        return from;
    return int(searchBackward(buffer.data().constData(), size, bytes, from, caseInsensitive));
}

bool QHexEditPrivate::find(const QByteArray &bytes, QHexEdit::FindFlags flags)
{
    if (bytes.isEmpty())
        return false;
    lastFind = bytes;
    lastFindFlags = flags;
    const char *data = buffer.data().constData();
    const int size = this->size();
    const bool caseInsensitive = flags & QHexEdit::FindCaseInsensitive;
    qint64 pos;
    if (flags & QHexEdit::FindBackward) {
        const int from = cursor.selectionStart();
        pos = searchBackward(data, size, bytes, from - 1, caseInsensitive);
        if (pos < 0 && (flags & QHexEdit::FindWrapAround))
            pos = searchBackward(data, size, bytes, size, caseInsensitive);
    } else {
        const int from = cursor.selectionEnd();
        pos = searchForward(data, size, bytes, from, caseInsensitive);
        if (pos < 0 && (flags & QHexEdit::FindWrapAround))
            pos = searchForward(data, size, bytes, 0, caseInsensitive);
    }
    if (pos < 0)
        return false;
    ChangeScope scope(this);
    HexCursor next = cursor;
    next.select(int(pos), int(pos) + bytes.size(), size);
    setCursor(next);
    // Show the start of the match, even where the cursor at its end is a row lower.
    QScrollBar *v = q->verticalScrollBar();
    const int row = int(pos / HexLayout::bytesPerRow);
    if (q->isVisible() && (row < v->value() || row >= v->value() + visibleRows()))
        v->setValue(row - visibleRows() / 2);
    return true;
}

bool QHexEditPrivate::goToAddress(const QString &input)
{
    QString text = input.trimmed();
    int sign = 0;
    if (text.startsWith(QLatin1Char('+')) || text.startsWith(QLatin1Char('-'))) {
        sign = text.startsWith(QLatin1Char('+')) ? 1 : -1;
        text = text.mid(1).trimmed();
    }
    int base = 16;
    if (text.startsWith(QLatin1Char('#'))) {
        base = 10;
        text = text.mid(1);
    } else if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        text = text.mid(2);
    }
    bool ok = false;
    const qint64 value = text.toLongLong(&ok, base);
    if (!ok || value < 0) {
        refuse(QHexEdit::tr("Not an address: %1").arg(input));
        return false;
    }
    const qint64 target = sign != 0 ? cursor.byte() + sign * value : value - buffer.addressOffset();
    if (target < 0 || target > size()) {
        refuse(QHexEdit::tr("Address out of range: %1").arg(input));
        return false;
    }
    ChangeScope scope(this);
    moveCursor(int(2 * target), false);
    return true;
}

HexFindBar *QHexEditPrivate::findBar()
{
    if (!bar) {
        bar = new HexFindBar(q);
        QObject::connect(bar, &HexFindBar::visibilityChanged, q, [this] { placeFindBar(); });
    }
    return bar;
}

void QHexEditPrivate::placeFindBar()
{
    const int height = bar && bar->isVisible() ? bar->sizeHint().height() : 0;
    q->setViewportMargins(0, 0, 0, height);
    if (height > 0) {
        const QRect vp = q->viewport()->geometry();
        bar->setGeometry(vp.left(), vp.bottom() + 1, vp.width(), height);
        bar->raise();
    }
}
