// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "KorvilAppStyle.h"

#include <QStyleFactory>

KorvilAppStyle::KorvilAppStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
    setObjectName(QStringLiteral("KorvilAppStyle"));
}

int KorvilAppStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                const QWidget *widget) const
{
    switch (metric) {
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
        return 16;
    case PM_ToolBarIconSize:
        return 20;
    case PM_LargeIconSize:
        return 32;
    case PM_MessageBoxIconSize:
        return 40;
    case PM_ScrollBarExtent:
        return 14;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return 6;
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
        return 9;
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
    palette = standardPalette();
}
