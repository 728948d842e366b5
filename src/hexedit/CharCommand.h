// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QUndoCommand>

class XByteArray;

/**
 * An undo command that inserts, removes or replaces one byte of an XByteArray.
 *
 * Undo restores the byte and its change mark. The buffer is not owned and must
 * outlive the command. Consecutive character commands share one id(), so that a
 * QUndoStack offers them to mergeWith().
 */
class COMMONGUI_EXPORT CharCommand : public QUndoCommand
{
public:
    /** What the command does. */
    enum Cmd {
        insert,   //!< Inserts the new byte before the position.
        remove,   //!< Removes the byte at the position.
        replace,  //!< Sets the byte at the position to the new byte.
    };

    /**
     * Constructs a command of @p kind on @p xData at @p position with
     * @p newByte (not used by remove). Nothing changes until redo().
     */
    CharCommand(XByteArray *xData, CharCommand::Cmd kind, int position, char newByte,
                QUndoCommand *parent = nullptr);
    /** Destroys the command; the buffer stays. */
    ~CharCommand() override;

    /** Restores the byte and its change mark as they were before redo(). */
    void undo() override;
    /** Applies the edit; the changed byte is marked. */
    void redo() override;
    /** Returns 1234, the id shared by all character commands. */
    int id() const override;
    /**
     * Takes over the new byte of @p command when it replaces the same position
     * and this command is no remove, so that the two nibbles of one typed byte
     * undo as one step. Returns whether it merged.
     */
    bool mergeWith(const QUndoCommand *command) override;

    /** Returns the index of the byte the command edits. */
    int position() const { return m_position; }

private:
    XByteArray *m_xData;
    int m_position;
    bool m_markBefore = false;
    char m_newByte;
    char m_oldByte = 0;
    Cmd m_kind;
};
