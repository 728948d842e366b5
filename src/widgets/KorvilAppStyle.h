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
 * Metrics grow with the screen's logical DPI. With keepDesktopPalette set
 * (before setStyle()) a dark or high-contrast desktop palette stays in force.
 */
class COMMONGUI_EXPORT KorvilAppStyle : public QProxyStyle
{
    Q_OBJECT
    /** Whether a dark or high-contrast desktop palette stays in force; false by default. Set it before QApplication::setStyle(). */
    Q_PROPERTY(bool keepDesktopPalette READ keepsDesktopPalette WRITE setKeepDesktopPalette)

public:
    /** Constructs the style on top of Fusion. */
    KorvilAppStyle();

    /** Returns whether a dark or high-contrast desktop palette is kept (default: false). */
    bool keepsDesktopPalette() const;
    /** Keeps a dark or high-contrast desktop palette instead of the family's light one. */
    void setKeepDesktopPalette(bool keep);

    /** Returns the family's value for @p metric, scaled by the logical DPI, or Fusion's for the others. */
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    /** Returns the family's answer for @p hint (no widget animations among them), or Fusion's for the others. */
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    /** Returns the family's muted palette. */
    QPalette standardPalette() const override;
    /** Replaces @p palette with the family's palette, unless it is to be kept. */
    void polish(QPalette &palette) override;
    using QProxyStyle::polish;

private:
    bool m_keepDesktopPalette = false;
};
