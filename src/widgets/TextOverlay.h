// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QRect>
#include <QWidget>

/**
 * A transparent child widget that paints one caption, as large as it fits and
 * very faintly, as a watermark over its parent.
 *
 * The overlay takes no mouse input (Qt::WA_TransparentForMouseEvents), so clicks
 * reach the widgets below. It paints only inside the area given to setCoords();
 * until that is called nothing is visible. Keep the overlay's geometry in step
 * with its parent yourself, for example from the parent's resize event.
 */
class COMMONGUI_EXPORT TextOverlay : public QWidget
{
    Q_OBJECT
    /**
     * The caption. Setting it refits the font to the current area and repaints.
     * Read it with property("text").
     */
    Q_PROPERTY(QString text MEMBER text WRITE setText)

public:
    /**
     * Constructs an overlay showing @p text over @p parent.
     */
    explicit TextOverlay(QString text, QWidget *parent = nullptr);
    /**
     * Constructs an overlay with an empty caption, as forms create it; set the
     * caption with setText() or the \c text property.
     */
    explicit TextOverlay(QWidget *parent = nullptr);

    /**
     * Sets the caption to @p text, refits the font and repaints.
     */
    void setText(const QString &text);
    /**
     * Sets the area of the caption, in the overlay's coordinates, from its
     * @p topLeft and @p bottomRight corners (both inside the area). The font is
     * not refitted until calcNewTextSize() or the next large resize.
     */
    void setCoords(QPoint topLeft, QPoint bottomRight);
    /**
     * Picks the largest font that fits the caption into the area of setCoords()
     * and sets it on the widget. Arial is tried at 400 points, then 30 points
     * smaller each step; 10 points is kept even when the caption does not fit,
     * and the painted caption is then clipped by the area.
     */
    void calcNewTextSize();

protected:
    /** Draws the caption centred in its area in black at alpha 10 of 255. */
    void paintEvent(QPaintEvent *event) override;
    /**
     * Refits the font when the width or height changed by more than 30 pixels
     * since the last fit; smaller changes keep the font.
     */
    void resizeEvent(QResizeEvent *event) override;

private:
    QString text;
    QRect textRect;
    int lastWidth = 0;
    int lastHeight = 0;
};
