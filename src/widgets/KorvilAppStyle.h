// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QProxyStyle>

/**
 * The application style of the tool family: Fusion with calm metrics, no
 * animations and a muted palette, so that every tool looks the same on every
 * desktop.
 * \code
 * QApplication::setStyle(new KorvilAppStyle);   // the application owns it
 * \endcode
 */
class COMMONGUI_EXPORT KorvilAppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** Constructs the style on top of Fusion. */
    KorvilAppStyle();

    /** Returns the family's value for @p metric, or Fusion's for the others. */
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    /** Returns the family's answer for @p hint (no widget animations among them), or Fusion's for the others. */
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    /** Returns the family's muted palette. */
    QPalette standardPalette() const override;
    /** Replaces @p palette with the family's palette. */
    void polish(QPalette &palette) override;
    using QProxyStyle::polish;
};
