// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ClickableLineEdit.h"

#include <QMouseEvent>

ClickableLineEdit::ClickableLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
}

void ClickableLineEdit::setLinkText(QString toolTip, QString link)
{
    setToolTip(toolTip);
    if (!link.isEmpty()) {
        linkActive = true;
        setCursor(Qt::PointingHandCursor);
    } else {
        linkActive = false;
        setCursor(Qt::IBeamCursor);
    }
    linkText = link;
}

void ClickableLineEdit::clear()
{
    linkText.clear();
    setCursor(Qt::IBeamCursor);  // a line edit's own cursor
    linkActive = false;
    QLineEdit::clear();
}

void ClickableLineEdit::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        pressed = true;
    QLineEdit::mousePressEvent(event);
}

void ClickableLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && pressed) {
        pressed = false;
        Q_EMIT clicked(linkText);
    }
    QLineEdit::mouseReleaseEvent(event);
}
