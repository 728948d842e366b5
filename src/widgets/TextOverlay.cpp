// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TextOverlay.h"

#include <QFontMetrics>
#include <QPainter>
#include <QResizeEvent>

#include <cstdlib>

TextOverlay::TextOverlay(QString text, QWidget *parent)
    : QWidget(parent)
    , text(text)
{
    QPalette transparent = palette();
    transparent.setColor(QPalette::Window, Qt::transparent);
    transparent.setColor(QPalette::Base, Qt::transparent);
    setPalette(transparent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

TextOverlay::TextOverlay(QWidget *parent)
    : TextOverlay(QString(), parent)
{
}

void TextOverlay::setText(const QString &text)
{
    if (this->text == text)
        return;
    this->text = text;
    calcNewTextSize();
    update();
}

void TextOverlay::setCoords(QPoint topLeft, QPoint bottomRight)
{
    textRect = QRect(topLeft, bottomRight);
}

void TextOverlay::calcNewTextSize()
{
    setFont(QFont(QStringLiteral("Arial"), 400));
    // Measure the font as the widget resolves it: that is the one painted.
    QFont font = this->font();
    // Coordinate differences, not QRect::width(): the caption may touch both edges.
    const int maxWidth = textRect.right() - textRect.left();
    const int maxHeight = textRect.bottom() - textRect.top();
    for (;;) {
        const QFontMetrics metrics(font);
        if (metrics.horizontalAdvance(text) <= maxWidth && metrics.height() <= maxHeight)
            break;
        if (font.pointSize() < 31)
            break;
        font.setPointSize(font.pointSize() - 30);
    }
    setFont(font);
}

void TextOverlay::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(QColor(0, 0, 0, 10));
    painter.drawText(textRect, Qt::AlignHCenter | Qt::AlignVCenter, text);
}

void TextOverlay::resizeEvent(QResizeEvent *event)
{
    const QSize size = event->size();
    // Refitting measures up to 14 fonts: small size changes are not worth it.
    if (std::abs(size.width() - lastWidth) > 30 || std::abs(size.height() - lastHeight) > 30) {
        lastWidth = size.width();
        lastHeight = size.height();
        calcNewTextSize();
    }
    QWidget::resizeEvent(event);
}
