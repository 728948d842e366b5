// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QProxyStyle>

// The family's application style: Fusion with calm metrics, no animations and
// a muted palette, so that every tool looks the same on every desktop.
//     QApplication::setStyle(new KorvilAppStyle);   // the application owns it
class COMMONGUI_EXPORT KorvilAppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    KorvilAppStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    QPalette standardPalette() const override;
    void polish(QPalette &palette) override;
    using QProxyStyle::polish;
};
