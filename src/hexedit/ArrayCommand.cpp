// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ArrayCommand.h"

#include "XByteArray.h"

ArrayCommand::ArrayCommand(XByteArray *xData, ArrayCommand::Cmd kind, int start, QByteArray newBytes,
                           int length, QUndoCommand *parent)
    : QUndoCommand(parent)
    , m_kind(kind)
    , m_xData(xData)
    , m_start(start)
    , m_length(length)
    , m_newBytes(std::move(newBytes))
{
}

ArrayCommand::~ArrayCommand() = default;

void ArrayCommand::undo()
{
    switch (m_kind) {
    case insert:
        m_xData->remove(m_start, m_newBytes.length());
        break;
    case remove:
        m_xData->insert(m_start, m_oldBytes);
        m_xData->setDataChanged(m_start, m_marksBefore);
        break;
    case replace:
        m_xData->replace(m_start, m_oldBytes);
        m_xData->setDataChanged(m_start, m_marksBefore);
        break;
    }
}

void ArrayCommand::redo()
{
    switch (m_kind) {
    case insert:
        m_xData->insert(m_start, m_newBytes);
        break;
    case remove:
        m_oldBytes = m_xData->data().mid(m_start, m_length);
        m_marksBefore = m_xData->dataChanged(m_start, m_length);
        m_xData->remove(m_start, m_length);
        break;
    case replace:
        m_oldBytes = m_xData->data().mid(m_start, m_length);
        m_marksBefore = m_xData->dataChanged(m_start, m_length);
        m_xData->replace(m_start, m_newBytes);
        break;
    }
}
