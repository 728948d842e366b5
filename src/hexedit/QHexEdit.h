// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QAbstractScrollArea>
#include <QByteArray>
#include <QColor>

class QHexEditPrivate;
class QUndoStack;

/**
 * An editable hex and character view of a byte array, with address column,
 * overwrite and insert mode, undo, change marks, selection, clipboard, find and
 * go to.
 *
 * Typing edits one nibble at a time in the hex column and one byte in the
 * character column. Every edit, also through insert(), remove() and replace(),
 * is an undo command on undoStack(). Bytes changed since the last setData() are
 * marked with highlightingColor(). Only the visible rows are laid out and
 * painted, so images of hundreds of megabytes stay responsive.
 *
 * Addresses shown and reported are byte indexes plus addressOffset(). Sizes and
 * indexes are in bytes.
 */
class COMMONGUI_EXPORT QHexEdit : public QAbstractScrollArea
{
    Q_OBJECT
    /** The bytes shown; setting it replaces them as setData() does. */
    Q_PROPERTY(QByteArray data READ data WRITE setData NOTIFY dataChanged)
    /** The address of the first byte, added to every shown and reported address; 0 by default. */
    Q_PROPERTY(int addressOffset READ addressOffset WRITE setAddressOffset)
    /** The minimum number of address digits, 0 to 6; other values are ignored. */
    Q_PROPERTY(int addressWidth READ addressWidth WRITE setAddressWidth)
    /** Whether the address column is shown; true by default. */
    Q_PROPERTY(bool addressArea READ addressArea WRITE setAddressArea)
    /** Whether the hex column is shown; true by default. */
    Q_PROPERTY(bool hexArea READ hexArea WRITE setHexArea)
    /** Whether the character column is shown; true by default. */
    Q_PROPERTY(bool asciiArea READ asciiArea WRITE setAsciiArea)
    /** The background of the address column; invalid by default, which takes the palette's colour. */
    Q_PROPERTY(QColor addressAreaColor READ addressAreaColor WRITE setAddressAreaColor)
    /** Whether bytes changed since the last setData() get the highlighting colour; true by default. */
    Q_PROPERTY(bool highlighting READ highlighting WRITE setHighlighting)
    /** The background of changed bytes; invalid by default, which takes a colour from the palette. */
    Q_PROPERTY(QColor highlightingColor READ highlightingColor WRITE setHighlightingColor)
    /** The background of selected bytes; invalid by default, which takes the palette's highlight. */
    Q_PROPERTY(QColor selectionColor READ selectionColor WRITE setSelectionColor)
    /** Whether typing overwrites bytes (true, the default) or inserts them. Insert toggles it. */
    Q_PROPERTY(bool overwriteMode READ overwriteMode WRITE setOverwriteMode NOTIFY overwriteModeChanged)
    /** Whether the bytes are protected from editing; navigation, selection and copying still work. */
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    /** The byte index of the cursor, from 0 to size(); size() is the append position. */
    Q_PROPERTY(int cursorPosition READ cursorPosition WRITE setCursorPosition)
    /** The largest size typing and pasting may grow the data to; existing data is never cut. */
    Q_PROPERTY(int maxSize READ maxSize WRITE setMaxSize)
    /** The number of bytes that count as present; see setBytesEnabled(). */
    Q_PROPERTY(int bytesEnabled READ bytesEnabled WRITE setBytesEnabled)
    /** Whether the bytes differ from the last setData(); false again after undoing back to it. */
    Q_PROPERTY(bool modified READ isModified)
    /** Whether the built-in find bar and go-to bar are available; true by default. */
    Q_PROPERTY(bool findBarEnabled READ isFindBarEnabled WRITE setFindBarEnabled)

public:
    /** Options of find(). */
    enum FindFlag {
        FindBackward = 0x1,         //!< Searches towards the start.
        FindWrapAround = 0x2,       //!< Continues at the other end when nothing is found.
        FindCaseInsensitive = 0x4,  //!< Ignores the case of ASCII letters only.
    };
    /** A combination of FindFlag values. */
    Q_DECLARE_FLAGS(FindFlags, FindFlag)
    Q_FLAG(FindFlags)

    /** Constructs an empty editor. */
    explicit QHexEdit(QWidget *parent = nullptr);
    /** Destroys the editor and its undo stack. */
    ~QHexEdit() override;

    /** Returns the bytes, with all edits applied. */
    QByteArray data() const;
    /** Returns the number of bytes shown and editable: the data's size, cut to bytesEnabled(). */
    int size() const;

    /** Returns the address of the first byte. */
    int addressOffset() const;
    /** Sets the address of the first byte to @p offset. */
    void setAddressOffset(int offset);
    /** Returns the minimum number of address digits. */
    int addressWidth() const;
    /** Sets the minimum number of address digits to @p width, 0 to 6; other values are ignored. */
    void setAddressWidth(int width);

    /** Returns whether the address column is shown. */
    bool addressArea() const;
    /** Shows or hides the address column. */
    void setAddressArea(bool visible);
    /** Returns whether the hex column is shown. */
    bool hexArea() const;
    /** Shows or hides the hex column. */
    void setHexArea(bool visible);
    /** Returns whether the character column is shown. */
    bool asciiArea() const;
    /** Shows or hides the character column. */
    void setAsciiArea(bool visible);

    /** Returns the background of the address column. */
    QColor addressAreaColor() const;
    /** Sets the background of the address column; an invalid @p color takes the palette's. */
    void setAddressAreaColor(const QColor &color);
    /** Returns whether changed bytes are marked. */
    bool highlighting() const;
    /** Switches the marking of bytes changed since the last setData() on or off. */
    void setHighlighting(bool on);
    /** Returns the background of changed bytes. */
    QColor highlightingColor() const;
    /** Sets the background of changed bytes; an invalid @p color takes the palette's. */
    void setHighlightingColor(const QColor &color);
    /** Returns the background of selected bytes. */
    QColor selectionColor() const;
    /** Sets the background of selected bytes; an invalid @p color takes the palette's highlight. */
    void setSelectionColor(const QColor &color);

    /** Returns whether typing overwrites (true) or inserts bytes. */
    bool overwriteMode() const;
    /** Returns whether the bytes are protected from editing. */
    bool isReadOnly() const;
    /** Protects the bytes from editing, or allows it again. */
    void setReadOnly(bool readOnly);

    /** Returns the byte index of the cursor, from 0 to size(). */
    int cursorPosition() const;
    /** Moves the cursor to the byte at @p position, clamped to 0 to size(), and clears the selection. */
    void setCursorPosition(int position);
    /** Returns the cursor's cell in viewport coordinates. */
    QRect cursorRect() const;

    /** Returns the largest size typing and pasting may grow the data to. */
    int maxSize() const;
    /** Sets the largest size typing and pasting may grow the data to; existing data is never cut. */
    void setMaxSize(int size);
    /** Returns the number of bytes that count as present. */
    int bytesEnabled() const;
    /**
     * Sets the number of bytes that count as present to @p count: a smaller
     * count hides the bytes past it, a larger one pads the data with zeros.
     * Until it is set, the count grows to the size of any data given to setData().
     * Emits dataChanged(); the change is not undoable.
     */
    void setBytesEnabled(int count);

    /** Returns whether any bytes are selected. */
    bool hasSelection() const;
    /** Returns the index of the first selected byte. */
    int selectionStart() const;
    /** Returns the index one past the last selected byte. */
    int selectionEnd() const;
    /** Selects @p length bytes from @p start, cut at the end of the data. */
    void setSelection(int start, int length);
    /** Returns the selected bytes; empty without a selection. */
    QByteArray selectedData() const;
    /** Returns a hex dump (address, hex and characters per line) of the lines that hold the selection. */
    QString selectionToReadableString() const;
    /** Returns a hex dump (address, hex and characters per line) of all bytes. */
    QString toReadableString() const;

    /** Returns whether the byte at @p index was inserted or overwritten since the last setData(). */
    bool isByteChanged(int index) const;
    /** Returns whether the bytes differ from the last setData(); false after undoing back to it. */
    bool isModified() const;
    /** Returns the undo stack of the edits; owned by the editor and cleared by setData(). */
    QUndoStack *undoStack() const;

    /**
     * Returns the index of the first occurrence of @p bytes at or after @p from
     * among the shown bytes, or -1 when there is none. A negative @p from counts
     * from the end, as in QByteArray.
     */
    int indexOf(const QByteArray &bytes, int from = 0) const;
    /**
     * Returns the index of the last occurrence of @p bytes at or before @p from
     * among the shown bytes, or -1 when there is none; -1 searches from the end.
     */
    int lastIndexOf(const QByteArray &bytes, int from = -1) const;
    /**
     * Finds @p bytes from the end of the selection (or the cursor), or with
     * FindBackward before its start; selects the match with the cursor at its
     * end and scrolls to it. Returns false, keeping the selection, when there
     * is no match.
     */
    bool find(const QByteArray &bytes, QHexEdit::FindFlags flags = QHexEdit::FindFlags());

    /** Returns whether the built-in find bar and go-to bar are available. */
    bool isFindBarEnabled() const;
    /**
     * Makes the built-in find bar (Ctrl+F, F3, Shift+F3) and go-to bar (Ctrl+G)
     * available, or hides them and frees their keys for the tool.
     */
    void setFindBarEnabled(bool enabled);

    /**
     * Inserts @p bytes before @p index (0 to size()) as one undoable edit.
     * Returns false, and changes nothing, when @p index is out of range,
     * @p bytes is empty or the data would grow past maxSize(). Read-only mode
     * protects only against the user, not against these calls.
     */
    bool insert(int index, const QByteArray &bytes);
    /**
     * Removes @p length bytes from @p index as one undoable edit; a range past
     * the end is cut to the end. Returns false, and changes nothing, when
     * @p index is not a byte of the data or @p length is not positive.
     */
    bool remove(int index, int length);
    /**
     * Overwrites the bytes from @p index with @p bytes as one undoable edit;
     * bytes that would reach past the end are dropped, the size never changes.
     * Returns false, and changes nothing, when @p index is not a byte of the
     * data or @p bytes is empty.
     */
    bool replace(int index, const QByteArray &bytes);

    /** Returns a size that shows all columns and 20 lines. */
    QSize sizeHint() const override;
    /** Returns a size of 20 characters and 3 lines. */
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /** Replaces the bytes and clears the change marks, the undo stack and the selection. */
    void setData(const QByteArray &data);
    /** Sets whether typing overwrites (true) or inserts bytes; emits overwriteModeChanged() on a change. */
    void setOverwriteMode(bool overwrite);
    /** Undoes the last edit, if any. */
    void undo();
    /** Redoes the last undone edit, if any. */
    void redo();
    /** Selects all bytes. */
    void selectAll();
    /** Clears the selection; the cursor stays. */
    void deselect();
    /**
     * Copies the selection to the clipboard as raw bytes and as text: hex digits
     * from the hex column, the characters from the character column. Without a
     * selection nothing is copied.
     */
    void copy();
    /** Copies the selection to the clipboard and removes it; does nothing when read-only or without a selection. */
    void cut();
    /**
     * Inserts or, in overwrite mode, writes the clipboard's bytes at the cursor:
     * raw bytes when present, otherwise the text, read as hex digits in the hex
     * column or as Latin-1 characters in the character column. Input that is
     * refused (read-only, no hex, not Latin-1, past maxSize()) changes nothing
     * and is reported by inputRefused().
     */
    void paste();
    /** Scrolls so that the cursor is visible. */
    void ensureCursorVisible();
    /** Shows the find bar with the focus in its field; does nothing when the bars are disabled. */
    void showFindBar();
    /** Shows the go-to bar with the focus in its field; does nothing when the bars are disabled. */
    void showGoToBar();
    /**
     * Moves the cursor to the address @p text, as typed in the go-to bar: hex
     * ("1f00", "0x1f00") or decimal ("#7936"), absolute or relative to the
     * cursor with a leading + or -. Returns false, leaving the cursor and
     * emitting inputRefused(), when the text is no address or the address lies
     * outside the data.
     */
    bool goToAddress(const QString &text);

Q_SIGNALS:
    /** This signal is emitted when the cursor moves, with its @p address: byte index plus addressOffset(). */
    void currentAddressChanged(int address);
    /** This signal is emitted when the number of bytes changes, with the new @p size. */
    void currentSizeChanged(int size);
    /** This signal is emitted once per change of the bytes: an edit, an undo or redo, setData() or setBytesEnabled(). */
    void dataChanged();
    /** This signal is emitted when the overwrite mode changes, by setOverwriteMode() or the Insert key. */
    void overwriteModeChanged(bool overwriteMode);
    /** This signal is emitted when the selection changes, also when it is cleared. */
    void selectionChanged();
    /** This signal is emitted when undo becomes @p available or unavailable. */
    void undoAvailable(bool available);
    /** This signal is emitted when redo becomes @p available or unavailable. */
    void redoAvailable(bool available);
    /**
     * This signal is emitted when typed or pasted input is not taken (not a hex
     * digit, read-only, past maxSize()), with a short @p reason for a status line.
     */
    void inputRefused(const QString &reason);

protected:
    /** \reimp */
    bool event(QEvent *event) override;
    /** \reimp */
    void paintEvent(QPaintEvent *event) override;
    /** \reimp */
    void resizeEvent(QResizeEvent *event) override;
    /** \reimp */
    void keyPressEvent(QKeyEvent *event) override;
    /** \reimp */
    void mousePressEvent(QMouseEvent *event) override;
    /** \reimp */
    void mouseMoveEvent(QMouseEvent *event) override;
    /** \reimp */
    void mouseReleaseEvent(QMouseEvent *event) override;
    /** \reimp */
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    /** \reimp */
    void focusInEvent(QFocusEvent *event) override;
    /** \reimp */
    void focusOutEvent(QFocusEvent *event) override;
    /** \reimp */
    void changeEvent(QEvent *event) override;
    /** \reimp */
    void contextMenuEvent(QContextMenuEvent *event) override;
    /** \reimp */
    void scrollContentsBy(int dx, int dy) override;
    /** \reimp */
    void showEvent(QShowEvent *event) override;

private:
    QHexEditPrivate *d;
    friend class QHexEditPrivate;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(QHexEdit::FindFlags)
