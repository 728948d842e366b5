// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Typing, deleting and the clipboard: every change is one undo step.
#include "QHexEditPrivate.h"

#include "ArrayCommand.h"
#include "CharCommand.h"

#include <QApplication>
#include <QMimeData>
#include <QUndoStack>

namespace {

const int s_bytesPerRow = HexLayout::bytesPerRow;
const char s_hexDigits[] = "0123456789abcdef";
const QString s_octetStream = QStringLiteral("application/octet-stream");

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

// Pairs separated by blanks, sixteen to a line.
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

}

bool hexToBytes(const QString &text, QByteArray *bytes)
{
    QByteArray out;
    out.reserve(text.size() / 2);
    int high = -1;
    bool groupStart = true;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isSpace() || c == QLatin1Char(',')) {
            groupStart = true;
            continue;
        }
        if (groupStart && high < 0 && c == QLatin1Char('0') && i + 1 < text.size()
            && (text.at(i + 1) == QLatin1Char('x') || text.at(i + 1) == QLatin1Char('X'))) {
            ++i;
            groupStart = false;
            continue;
        }
        groupStart = false;
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
    if (high >= 0 || out.isEmpty())
        return false;
    *bytes = out;
    return true;
}

namespace {

QString toCharacters(const QByteArray &bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    for (int i = 0; i < bytes.size(); ++i) {
        const uchar b = uchar(bytes.at(i));
        text[i] = QChar((b >= 0x20 && b <= 0x7e) || b >= 0xa0 ? ushort(b) : ushort('.'));
    }
    return text;
}

// The clipboard's content, made only when a client asks for it: a selection
// of hundreds of megabytes costs nothing until pasted.
class HexMimeData : public QMimeData
{
public:
    HexMimeData(QByteArray bytes, bool hex) : m_bytes(std::move(bytes)), m_hex(hex) {}
    QStringList formats() const override { return { QStringLiteral("text/plain"), s_octetStream }; }
    bool hasFormat(const QString &format) const override { return formats().contains(format); }

protected:
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    QVariant retrieveData(const QString &format, QMetaType type) const override
#else
    QVariant retrieveData(const QString &format, QVariant::Type type) const override
#endif
    {
        if (format == s_octetStream)
            return m_bytes;
        if (format == QLatin1String("text/plain"))
            return m_hex ? toHexText(m_bytes) : toCharacters(m_bytes);
        return QMimeData::retrieveData(format, type);
    }

private:
    QByteArray m_bytes;
    bool m_hex;
};

// Typing over a selection in insert mode: the selection goes and the typed
// byte comes as one step. Merges the second nibble like a CharCommand does.
class ReplaceSelectionCommand : public QUndoCommand
{
public:
    ReplaceSelectionCommand(XByteArray *buffer, int start, int length, char byte)
    {
        setText(QHexEdit::tr("Type"));
        new ArrayCommand(buffer, ArrayCommand::remove, start, QByteArray(), length, this);
        m_insert = new CharCommand(buffer, CharCommand::insert, start, byte, this);
    }
    int id() const override { return m_insert->id(); }
    bool mergeWith(const QUndoCommand *other) override { return m_insert->mergeWith(other); }

private:
    CharCommand *m_insert;
};

}

bool QHexEditPrivate::insertBytes(int index, const QByteArray &bytes)
{
    const int size = this->size();
    if (index < 0 || index > size || bytes.isEmpty() || qint64(size) + bytes.size() > effectiveMaxSize())
        return false;
    undoStack->push(new ArrayCommand(&buffer, ArrayCommand::insert, index, bytes));
    return true;
}

bool QHexEditPrivate::removeBytes(int index, int length)
{
    const int size = this->size();
    if (index < 0 || index >= size || length <= 0)
        return false;
    length = int(std::min<qint64>(length, size - index));
    if (length == 1)
        undoStack->push(new CharCommand(&buffer, CharCommand::remove, index, 0));
    else
        undoStack->push(new ArrayCommand(&buffer, ArrayCommand::remove, index, QByteArray(), length));
    return true;
}

bool QHexEditPrivate::replaceBytes(int index, const QByteArray &bytes)
{
    const int size = this->size();
    if (index < 0 || index >= size || bytes.isEmpty())
        return false;
    const QByteArray run = bytes.left(size - index);
    undoStack->push(new ArrayCommand(&buffer, ArrayCommand::replace, index, run, run.size()));
    return true;
}

void QHexEditPrivate::refuse(const QString &reason)
{
    Q_EMIT q->inputRefused(reason);
}

void QHexEditPrivate::typeText(const QString &text)
{
    ChangeScope scope(this);
    for (const QChar c : text) {
        if (readOnly) {
            refuse(QHexEdit::tr("The editor is read-only"));
            return;
        }
        const bool ascii = cursor.ascii || !hexArea;
        if (ascii ? (c.unicode() < 0x20 || c.unicode() > 0xff || (c.unicode() >= 0x7f && c.unicode() < 0xa0))
                  : hexValue(c) < 0) {
            refuse(ascii ? QHexEdit::tr("Not a Latin-1 character") : QHexEdit::tr("Not a hex digit"));
            return;
        }
        const int digit = hexValue(c);
        if (cursor.hasSelection()) {
            const int start = cursor.selectionStart();
            const int length = cursor.selectionEnd() - start;
            if (!overwrite) {
                const char value = ascii ? char(c.unicode()) : char(digit << 4);
                undoStack->push(new ReplaceSelectionCommand(&buffer, start, length, value));
                moveCursor(ascii ? 2 * (start + 1) : 2 * start + 1, false);
                continue;
            }
            moveCursor(2 * start, false);
        }
        const int size = this->size();
        const int byte = cursor.byte();
        const bool odd = cursor.nibble & 1;
        const bool append = byte >= size || (!overwrite && !odd);
        if (append && size >= effectiveMaxSize()) {
            refuse(QHexEdit::tr("The data has reached its maximum size"));
            return;
        }
        const char old = byte < size ? buffer.data().at(byte) : char(0);
        char value;
        if (ascii)
            value = char(c.unicode());
        else if (append)
            value = char(digit << 4);
        else if (odd)
            value = char((old & 0xf0) | digit);
        else
            value = char((old & 0x0f) | (digit << 4));
        // A second nibble replaces the same byte and merges into the first command.
        undoStack->push(new CharCommand(&buffer, append ? CharCommand::insert : CharCommand::replace, byte, value));
        moveCursor(ascii ? 2 * (byte + 1) : cursor.nibble + 1, false);
    }
}

bool QHexEditPrivate::putBytes(const QByteArray &bytes, const QString &undoText)
{
    ChangeScope scope(this);
    const bool selection = cursor.hasSelection();
    const int start = selection ? cursor.selectionStart() : cursor.byte();
    const int size = this->size();
    const int maxSize = effectiveMaxSize();
    int end = start;
    if (overwrite) {
        const int replaced = std::max(0, std::min(int(bytes.size()), size - start));
        const QByteArray appended = bytes.mid(replaced).left(std::max(0, maxSize - size));
        if (replaced == 0 && appended.isEmpty()) {
            refuse(QHexEdit::tr("The data has reached its maximum size"));
            return false;
        }
        undoStack->beginMacro(undoText);
        if (replaced > 0)
            replaceBytes(start, bytes.left(replaced));
        if (!appended.isEmpty())
            insertBytes(size, appended);
        undoStack->endMacro();
        end = start + replaced + appended.size();
    } else {
        const int removed = cursor.selectionEnd() - cursor.selectionStart();
        const QByteArray inserted = bytes.left(std::max(0, maxSize - (size - removed)));
        if (inserted.isEmpty()) {
            refuse(QHexEdit::tr("The data has reached its maximum size"));
            return false;
        }
        undoStack->beginMacro(undoText);
        if (removed > 0)
            removeBytes(start, removed);
        insertBytes(start, inserted);
        undoStack->endMacro();
        end = start + inserted.size();
    }
    if (end - start < bytes.size())
        refuse(QHexEdit::tr("Only %n byte(s) fit", nullptr, end - start));
    moveCursor(2 * end, false);
    return true;
}

void QHexEditPrivate::deleteSelectionOrByte(bool backwards)
{
    if (readOnly)
        return;
    ChangeScope scope(this);
    int begin = cursor.selectionStart();
    int end = cursor.selectionEnd();
    const bool selection = begin != end;
    if (!selection) {
        const bool inByte = (cursor.nibble & 1) && !cursor.ascii && hexArea;
        begin = cursor.byte() - (backwards && !inByte ? 1 : 0);
        end = begin + 1;
        if (begin < 0 || begin >= size())
            return;
    }
    // Overwrite mode keeps the size: the bytes become zero instead of going away.
    if (overwrite) {
        if (end - begin == 1)
            undoStack->push(new CharCommand(&buffer, CharCommand::replace, begin, 0));
        else
            replaceBytes(begin, QByteArray(end - begin, '\0'));
        moveCursor(2 * (selection || backwards ? begin : end), false);
    } else {
        removeBytes(begin, end - begin);
        moveCursor(2 * begin, false);
    }
}

QMimeData *QHexEditPrivate::selectionMimeData() const
{
    const int start = cursor.selectionStart();
    const QByteArray bytes = buffer.data().mid(start, cursor.selectionEnd() - start);
    return new HexMimeData(bytes, hexArea && !cursor.ascii);
}

void QHexEditPrivate::copy(QClipboard::Mode mode)
{
    if (!cursor.hasSelection())
        return;
    QApplication::clipboard()->setMimeData(selectionMimeData(), mode);
}

bool QHexEditPrivate::paste(QClipboard::Mode mode)
{
    if (readOnly) {
        refuse(QHexEdit::tr("The editor is read-only"));
        return false;
    }
    const QMimeData *mime = QApplication::clipboard()->mimeData(mode);
    if (!mime) {
        refuse(QHexEdit::tr("The clipboard is empty"));
        return false;
    }
    QByteArray bytes;
    if (mime->hasFormat(s_octetStream))
        bytes = mime->data(s_octetStream);
    if (bytes.isEmpty()) {
        const QString text = mime->text();
        if (hexArea && !cursor.ascii) {
            if (!hexToBytes(text, &bytes)) {
                refuse(QHexEdit::tr("The clipboard holds no hex bytes"));
                return false;
            }
        } else {
            for (const QChar c : text) {
                if (c.unicode() > 0xff) {
                    refuse(QHexEdit::tr("The clipboard text is not Latin-1"));
                    return false;
                }
            }
            bytes = text.toLatin1();
        }
    }
    if (bytes.isEmpty()) {
        refuse(QHexEdit::tr("The clipboard is empty"));
        return false;
    }
    return putBytes(bytes, QHexEdit::tr("Paste"));
}
