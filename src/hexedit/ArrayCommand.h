// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QByteArray>
#include <QUndoCommand>

class XByteArray;

// Inserts, removes or replaces a run of bytes of an XByteArray; undo restores
// the bytes and their change marks. Never merges. The buffer must outlive the command.
class COMMONGUI_EXPORT ArrayCommand : public QUndoCommand
{
public:
    enum Cmd { insert, remove, replace };

    // newBytes is used by insert and replace, length by remove and replace.
    ArrayCommand(XByteArray *xData, ArrayCommand::Cmd kind, int start, QByteArray newBytes,
                 int length = 0, QUndoCommand *parent = nullptr);
    ~ArrayCommand() override;

    void undo() override;
    void redo() override;

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
