// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QRect>
#include <QWidget>

// A transparent child that paints one caption, as large as fits, as a faint
// watermark over its parent. Mouse events pass through to the widgets below.
class COMMONGUI_EXPORT TextOverlay : public QWidget
{
    Q_OBJECT

public:
    explicit TextOverlay(QString text, QWidget *parent = nullptr);

    // The caption's area, in the overlay's coordinates.
    void setCoords(QPoint topLeft, QPoint bottomRight);
    // Picks the largest font (400 pt down to 10 pt in steps of 30) that fits.
    void calcNewTextSize();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QString text;
    QRect textRect;
    int lastWidth = 0;
    int lastHeight = 0;
};
