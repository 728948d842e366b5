// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QLineEdit>

/**
 * A line edit that acts as a link: a left click emits clicked() with the link
 * target.
 *
 * While a link is set the widget shows the pointing-hand cursor. The signal is
 * sent for every left click, also when no link is set and when the button is
 * released outside the widget after going down inside it.
 */
class COMMONGUI_EXPORT ClickableLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /** Constructs a line edit without a link. */
    explicit ClickableLineEdit(QWidget *parent = nullptr);

    /**
     * Sets the tool tip to @p toolTip and the link target to @p link. A non-empty
     * @p link shows the pointing-hand cursor; an empty one restores the text
     * cursor. The displayed text is not changed.
     */
    void setLinkText(QString toolTip, QString link);
    /**
     * Forgets the link, restores the text cursor and clears the text.
     * This hides QLineEdit::clear(), so call it through a ClickableLineEdit pointer.
     */
    void clear();

Q_SIGNALS:
    /**
     * This signal is emitted when the left button is released after it went
     * down on the widget, with the link target, or an empty string when no link
     * is set. Other buttons emit nothing.
     */
    void clicked(QString);

protected:
    /** Notes a left-button press, then lets QLineEdit handle the event. */
    void mousePressEvent(QMouseEvent *event) override;
    /** Emits clicked() after a noted left-button press, then lets QLineEdit handle the event. */
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QString linkText;
    bool pressed = false;
    bool linkActive = false;
};
