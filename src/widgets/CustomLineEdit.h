// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QLineEdit>
#include <QStringList>

// A line edit that takes the path of a dropped local file whose suffix is
// allowed. Only the first dragged URL counts.
class COMMONGUI_EXPORT CustomLineEdit : public QLineEdit
{
public:
    explicit CustomLineEdit(QWidget *parent = nullptr);

    // Suffix without the dot ("eds"), compared case-sensitively.
    void addAcceptedSuffix(QString suffix);
    // Whether a drop emits returnPressed() (default: yes).
    void setInvokeReturnPressed(bool invoke);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QString acceptableFile(const class QMimeData *data) const;

    QStringList acceptedSuffixes;
    bool invokeReturnPressed = true;
};
