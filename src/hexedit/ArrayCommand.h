// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QUndoCommand>

class XByteArray;

/**
 * An undo command that inserts, removes or replaces a run of bytes of an
 * XByteArray.
 *
 * Undo restores the bytes and their change marks. Array commands never merge.
 * The buffer is not owned and must outlive the command.
 */
class COMMONGUI_EXPORT ArrayCommand : public QUndoCommand
{
public:
    /** What the command does. */
    enum Cmd {
        insert,   //!< Inserts the new bytes before the start.
        remove,   //!< Removes the given number of bytes from the start.
        replace,  //!< Overwrites bytes from the start with the new bytes, never growing the data.
    };

    /**
     * Constructs a command of @p kind on @p xData from @p start. @p newBytes is
     * used by insert and replace, @p length by remove and replace. Nothing
     * changes until redo().
     */
    ArrayCommand(XByteArray *xData, ArrayCommand::Cmd kind, int start, QByteArray newBytes,
                 int length = 0, QUndoCommand *parent = nullptr);
    /** Destroys the command; the buffer stays. */
    ~ArrayCommand() override;

    /** Restores the bytes and their change marks as they were before redo(). */
    void undo() override;
    /** Applies the edit; inserted and replaced bytes are marked. */
    void redo() override;

    /** Returns the index of the first byte the command edits. */
    int start() const { return m_start; }

private:
    Cmd m_kind;
    XByteArray *m_xData;
    int m_start;
    int m_length;
    QByteArray m_marksBefore;
    QByteArray m_newBytes;
    QByteArray m_oldBytes;
};
