// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "KorvilAppStyle.h"

#include <QApplication>
#include <QScreen>
#include <QStyleFactory>
#include <QWidget>

#include <cmath>

namespace {

// Metrics are designed for 96 DPI; a screen set to more gets proportionally more.
int scaled(int value, const QWidget *widget)
{
    qreal dpi = 96;
    if (widget)
        dpi = widget->logicalDpiY();
    else if (const QScreen *screen = QGuiApplication::primaryScreen())
        dpi = screen->logicalDotsPerInchY();
    return std::max(1, int(std::lround(value * std::max<qreal>(dpi, 96) / 96)));
}

qreal luminance(const QColor &c)
{
    const auto channel = [](qreal v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
}

// Dark, or text and background further apart than the family palette's 15:1.
bool isDarkOrHighContrast(const QPalette &palette)
{
    const QColor base = palette.color(QPalette::Base);
    const QColor window = palette.color(QPalette::Window);
    if (base.lightness() < 128 || window.lightness() < 128)
        return true;
    const qreal a = luminance(palette.color(QPalette::Text));
    const qreal b = luminance(base);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05) >= 18;
}

}

KorvilAppStyle::KorvilAppStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
    setObjectName(QStringLiteral("KorvilAppStyle"));
}

bool KorvilAppStyle::keepsDesktopPalette() const
{
    return m_keepDesktopPalette;
}

void KorvilAppStyle::setKeepDesktopPalette(bool keep)
{
    m_keepDesktopPalette = keep;
}

int KorvilAppStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                const QWidget *widget) const
{
    switch (metric) {
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
        return scaled(16, widget);
    case PM_ToolBarIconSize:
        return scaled(20, widget);
    case PM_LargeIconSize:
        return scaled(32, widget);
    case PM_MessageBoxIconSize:
        return scaled(40, widget);
    case PM_ScrollBarExtent:
        return scaled(14, widget);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return scaled(6, widget);
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
        return scaled(9, widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int KorvilAppStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                              QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_Widget_Animation_Duration:
        return 0;  // engineering tools: state changes show at once
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_UnderlineShortcut:
        return 1;
    case SH_ItemView_ActivateItemOnSingleClick:
        return 0;
    case SH_MessageBox_TextInteractionFlags:
        return Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse;  // users copy error texts
    case SH_ToolTip_WakeUpDelay:
        return 500;
    case SH_ComboBox_Popup:
        return 0;
    case SH_EtchDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QPalette KorvilAppStyle::standardPalette() const
{
    QPalette palette = QProxyStyle::standardPalette();
    const QColor window(0xef, 0xf0, 0xf1);
    const QColor highlight(0x3d, 0x6f, 0x9e);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf6, 0xf7, 0xf8));
    palette.setColor(QPalette::WindowText, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Text, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::ButtonText, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, highlight);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfd, 0xe7));
    palette.setColor(QPalette::ToolTipText, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x9a, 0x9c, 0x9e));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x9a, 0x9c, 0x9e));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x9a, 0x9c, 0x9e));
    return palette;
}

void KorvilAppStyle::polish(QPalette &palette)
{
    if (m_keepDesktopPalette && isDarkOrHighContrast(palette))
        return;
    palette = standardPalette();
}
