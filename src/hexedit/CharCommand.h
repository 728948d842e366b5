// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QUndoCommand>

class XByteArray;

// Inserts, removes or replaces one byte of an XByteArray; undo restores the
// byte and its change mark. The buffer must outlive the command.
class COMMONGUI_EXPORT CharCommand : public QUndoCommand
{
public:
    enum Cmd { insert, remove, replace };

    CharCommand(XByteArray *xData, CharCommand::Cmd kind, int position, char newByte,
                QUndoCommand *parent = nullptr);
    ~CharCommand() override;

    void undo() override;
    void redo() override;
    int id() const override;
    // Folds a following replace of the same byte into this command, so the
    // two nibbles of one byte undo as one step.
    bool mergeWith(const QUndoCommand *command) override;

    int position() const { return m_position; }

private:
    XByteArray *m_xData;
    int m_position;
    bool m_markBefore = false;
    char m_newByte;
    char m_oldByte = 0;
    Cmd m_kind;
};
