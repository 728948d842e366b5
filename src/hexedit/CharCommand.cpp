// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CharCommand.h"

#include "XByteArray.h"

namespace {
// Shared by all character commands so that QUndoStack offers them for merging.
const int s_charCommandId = 1234;

char byteAt(const XByteArray *xData, int position)
{
    const QByteArray &data = xData->data();
    return (position >= 0 && position < data.size()) ? data.at(position) : char(0);
}
}

CharCommand::CharCommand(XByteArray *xData, CharCommand::Cmd kind, int position, char newByte,
                         QUndoCommand *parent)
    : QUndoCommand(parent)
    , m_xData(xData)
    , m_position(position)
    , m_newByte(newByte)
    , m_kind(kind)
{
}

CharCommand::~CharCommand() = default;

void CharCommand::undo()
{
    switch (m_kind) {
    case insert:
        m_xData->remove(m_position, 1);
        break;
    case remove:
        m_xData->insert(m_position, m_oldByte);
        m_xData->setDataChanged(m_position, m_markBefore);
        break;
    case replace:
        m_xData->replace(m_position, m_oldByte);
        m_xData->setDataChanged(m_position, m_markBefore);
        break;
    }
}

void CharCommand::redo()
{
    switch (m_kind) {
    case insert:
        m_xData->insert(m_position, m_newByte);
        break;
    case remove:
        m_oldByte = byteAt(m_xData, m_position);
        m_markBefore = m_xData->dataChanged(m_position);
        m_xData->remove(m_position, 1);
        break;
    case replace:
        m_oldByte = byteAt(m_xData, m_position);
        m_markBefore = m_xData->dataChanged(m_position);
        m_xData->replace(m_position, m_newByte);
        break;
    }
}

int CharCommand::id() const
{
    return s_charCommandId;
}

bool CharCommand::mergeWith(const QUndoCommand *command)
{
    if (command->id() != s_charCommandId)
        return false;
    const auto next = static_cast<const CharCommand *>(command);
    if (m_kind == remove || next->m_kind != replace || next->m_position != m_position)
        return false;
    m_newByte = next->m_newByte;
    return true;
}
