// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QAbstractScrollArea>
#include <QByteArray>
#include <QColor>

class QHexEditPrivate;
class QUndoStack;

// An editable hex/ASCII view of a byte array: address, hex and character
// columns, nibble-wise typing, overwrite and insert mode, selection, clipboard,
// find and go to. Every edit, also through insert()/remove()/replace(), is an
// undo command on undoStack(). Only the visible rows are laid out and painted,
// so images of hundreds of megabytes stay responsive.
class COMMONGUI_EXPORT QHexEdit : public QAbstractScrollArea
{
    Q_OBJECT
    Q_PROPERTY(QByteArray data READ data WRITE setData NOTIFY dataChanged)
    Q_PROPERTY(int addressOffset READ addressOffset WRITE setAddressOffset)
    Q_PROPERTY(int addressWidth READ addressWidth WRITE setAddressWidth)
    Q_PROPERTY(bool addressArea READ addressArea WRITE setAddressArea)
    Q_PROPERTY(bool hexArea READ hexArea WRITE setHexArea)
    Q_PROPERTY(bool asciiArea READ asciiArea WRITE setAsciiArea)
    Q_PROPERTY(QColor addressAreaColor READ addressAreaColor WRITE setAddressAreaColor)
    Q_PROPERTY(bool highlighting READ highlighting WRITE setHighlighting)
    Q_PROPERTY(QColor highlightingColor READ highlightingColor WRITE setHighlightingColor)
    Q_PROPERTY(QColor selectionColor READ selectionColor WRITE setSelectionColor)
    Q_PROPERTY(bool overwriteMode READ overwriteMode WRITE setOverwriteMode NOTIFY overwriteModeChanged)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(int cursorPosition READ cursorPosition WRITE setCursorPosition)
    Q_PROPERTY(int maxSize READ maxSize WRITE setMaxSize)
    Q_PROPERTY(int bytesEnabled READ bytesEnabled WRITE setBytesEnabled)
    Q_PROPERTY(bool modified READ isModified)
    Q_PROPERTY(bool findBarEnabled READ isFindBarEnabled WRITE setFindBarEnabled)

public:
    enum FindFlag {
        FindBackward = 0x1,
        FindWrapAround = 0x2,
        FindCaseInsensitive = 0x4,  // ASCII letters only
    };
    Q_DECLARE_FLAGS(FindFlags, FindFlag)
    Q_FLAG(FindFlags)

    explicit QHexEdit(QWidget *parent = nullptr);
    ~QHexEdit() override;

    QByteArray data() const;
    // Bytes shown and editable: the data size, cut to bytesEnabled().
    int size() const;

    int addressOffset() const;
    void setAddressOffset(int offset);
    // Minimum number of address digits, 0 to 6; other values are ignored.
    int addressWidth() const;
    void setAddressWidth(int width);

    bool addressArea() const;
    void setAddressArea(bool visible);
    bool hexArea() const;
    void setHexArea(bool visible);
    bool asciiArea() const;
    void setAsciiArea(bool visible);

    QColor addressAreaColor() const;
    void setAddressAreaColor(const QColor &color);
    // Background of bytes changed since the last setData().
    bool highlighting() const;
    void setHighlighting(bool on);
    QColor highlightingColor() const;
    void setHighlightingColor(const QColor &color);
    QColor selectionColor() const;
    void setSelectionColor(const QColor &color);

    bool overwriteMode() const;
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

    // Byte index of the cursor (0 to size(); size() is the append position).
    int cursorPosition() const;
    void setCursorPosition(int position);
    // The cursor's cell in viewport coordinates.
    QRect cursorRect() const;

    // Largest size typing and pasting may grow the data to; existing data is never cut.
    int maxSize() const;
    void setMaxSize(int size);
    // Number of bytes that count as present; a larger count pads the data with zeros.
    // Until set, it grows to the size of any data given to setData().
    int bytesEnabled() const;
    void setBytesEnabled(int count);

    bool hasSelection() const;
    int selectionStart() const;
    // One past the last selected byte.
    int selectionEnd() const;
    void setSelection(int start, int length);
    QByteArray selectedData() const;
    // Hex dump of the lines holding the selection: address, hex and characters.
    QString selectionToReadableString() const;
    QString toReadableString() const;

    // True when the byte was inserted or overwritten since the last setData().
    bool isByteChanged(int index) const;
    // False right after setData() and after undoing back to it.
    bool isModified() const;
    // Owned by the editor; cleared by setData().
    QUndoStack *undoStack() const;

    // QByteArray::indexOf() and lastIndexOf() over the shown bytes (size()).
    int indexOf(const QByteArray &bytes, int from = 0) const;
    int lastIndexOf(const QByteArray &bytes, int from = -1) const;
    // Searches from the end of the selection (or the cursor), backwards from its
    // start; selects the match with the cursor at its end and scrolls to it.
    // Without a match the selection stays and the result is false.
    bool find(const QByteArray &bytes, QHexEdit::FindFlags flags = QHexEdit::FindFlags());

    // The built-in find bar (Ctrl+F, F3, Shift+F3) and go-to bar (Ctrl+G); on by default.
    bool isFindBarEnabled() const;
    void setFindBarEnabled(bool enabled);

    // Programmatic edits, undoable like typing; false when out of range or past maxSize().
    bool insert(int index, const QByteArray &bytes);
    bool remove(int index, int length);
    bool replace(int index, const QByteArray &bytes);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    // Replaces the bytes, clears the change marks, the undo stack and the selection.
    void setData(const QByteArray &data);
    void setOverwriteMode(bool overwrite);
    void undo();
    void redo();
    void selectAll();
    void deselect();
    void copy();
    void cut();
    void paste();
    void ensureCursorVisible();
    void showFindBar();
    void showGoToBar();
    // An address as typed in the go-to bar: hex ("1f00", "0x1f00") or decimal
    // ("#7936"), absolute or relative to the cursor with a leading + or -.
    bool goToAddress(const QString &text);

Q_SIGNALS:
    // The cursor's address: its byte index plus addressOffset().
    void currentAddressChanged(int address);
    void currentSizeChanged(int size);
    void dataChanged();
    void overwriteModeChanged(bool overwriteMode);
    void selectionChanged();
    void undoAvailable(bool available);
    void redoAvailable(bool available);
    // Typed or pasted input that was not taken, with a short reason for a status line.
    void inputRefused(const QString &reason);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent *event) override;

private:
    QHexEditPrivate *d;
    friend class QHexEditPrivate;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(QHexEdit::FindFlags)
