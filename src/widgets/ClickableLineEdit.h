// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QLineEdit>

// A line edit that acts as a link: a left click emits clicked() with the target.
class COMMONGUI_EXPORT ClickableLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ClickableLineEdit(QWidget *parent = nullptr);

    // An empty `link` switches the link look off.
    void setLinkText(QString toolTip, QString link);
    // Also forgets the link (hides QLineEdit::clear).
    void clear();

Q_SIGNALS:
    // Sent on every left click, with an empty text when no link is set.
    void clicked(QString);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QString linkText;
    bool pressed = false;
    bool linkActive = false;
};
