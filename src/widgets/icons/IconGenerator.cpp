// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Draws the library's icons into the folder given on the command line, so
// that no binary pictures live in the sources.
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cstdio>
#include <functional>

namespace {

const QColor blue(0x3d, 0x6f, 0x9e);
const QColor darkBlue(0x2a, 0x4f, 0x73);

QImage canvas(int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void roundBadge(QPainter &p, int size, const QColor &top, const QColor &bottom)
{
    QLinearGradient gradient(0, 0, 0, size);
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    p.setPen(QPen(bottom.darker(120), size / 24.0));
    p.setBrush(gradient);
    const qreal m = size / 16.0;
    p.drawEllipse(QRectF(m, m, size - 2 * m, size - 2 * m));
}

void centredText(QPainter &p, int size, const QString &text, qreal scale, bool bold = true)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qRound(size * scale));
    font.setBold(bold);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRect(0, 0, size, size), Qt::AlignCenter, text);
}

QImage questionMark(int size)
{
    QImage image = canvas(size);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    roundBadge(p, size, QColor(0x5b, 0x8f, 0xc7), darkBlue);
    centredText(p, size, QStringLiteral("?"), 0.62);
    return image;
}

QImage info(int size)
{
    QImage image = canvas(size);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    roundBadge(p, size, QColor(0x5b, 0x8f, 0xc7), darkBlue);
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPixelSize(qRound(size * 0.62));
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRect(0, 0, size, size), Qt::AlignCenter, QStringLiteral("i"));
    return image;
}

QImage book(int size, const QColor &cover)
{
    QImage image = canvas(size);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal s = size / 48.0;
    // Pages, then the cover on top, slightly offset.
    p.setPen(QPen(QColor(0x90, 0x90, 0x90), s));
    p.setBrush(QColor(0xfa, 0xfa, 0xf5));
    p.drawRoundedRect(QRectF(10 * s, 6 * s, 32 * s, 38 * s), 2 * s, 2 * s);
    p.setPen(QPen(cover.darker(130), s));
    p.setBrush(cover);
    p.drawRoundedRect(QRectF(6 * s, 3 * s, 32 * s, 38 * s), 2 * s, 2 * s);
    p.setPen(QPen(cover.darker(150), 2 * s));
    p.drawLine(QPointF(11 * s, 4 * s), QPointF(11 * s, 40 * s));
    p.setPen(QPen(QColor(255, 255, 255, 200), 2 * s));
    p.drawLine(QPointF(16 * s, 12 * s), QPointF(32 * s, 12 * s));
    p.drawLine(QPointF(16 * s, 17 * s), QPointF(28 * s, 17 * s));
    return image;
}

QImage help(int size)
{
    QImage image = book(size, blue);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const qreal s = size / 48.0;
    const QRectF badge(24 * s, 24 * s, 22 * s, 22 * s);
    p.setPen(QPen(QColor(0xb0, 0x7a, 0x00), s));
    p.setBrush(QColor(0xf2, 0xb7, 0x05));
    p.drawEllipse(badge);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(qRound(16 * s));
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(badge, Qt::AlignCenter, QStringLiteral("?"));
    return image;
}

QImage manual(int size)
{
    QImage image = book(size, QColor(0xb8, 0x3b, 0x3b));
    QPainter p(&image);
    p.setRenderHint(QPainter::TextAntialiasing);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(size / 6);
    font.setBold(true);
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(QRectF(size * 0.25, size * 0.45, size * 0.5, size * 0.3), Qt::AlignCenter,
               QStringLiteral("PDF"));
    return image;
}

QImage converter(int size)
{
    QImage image = canvas(size);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const qreal s = size / 48.0;
    p.setPen(QPen(darkBlue, 1.5 * s));
    p.setBrush(QColor(0xf4, 0xf6, 0xf8));
    p.drawRoundedRect(QRectF(3 * s, 5 * s, 42 * s, 38 * s), 5 * s, 5 * s);
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setPixelSize(qRound(13 * s));
    font.setBold(true);
    p.setFont(font);
    p.setPen(darkBlue);
    p.drawText(QRectF(3 * s, 7 * s, 42 * s, 16 * s), Qt::AlignCenter, QStringLiteral("0x1F"));
    p.setPen(QColor(0xb8, 0x3b, 0x3b));
    p.drawText(QRectF(3 * s, 25 * s, 42 * s, 16 * s), Qt::AlignCenter, QStringLiteral("31"));
    p.setPen(QPen(QColor(0x90, 0x90, 0x90), s));
    p.drawLine(QPointF(9 * s, 24 * s), QPointF(39 * s, 24 * s));
    return image;
}

}

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s OUTPUT_DIR\n", argv[0]);
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    QDir().mkpath(out.path());
    const QList<QPair<QString, std::function<QImage(int)>>> icons = {
        { QStringLiteral("questionmark.png"), questionMark },
        { QStringLiteral("help.png"), help },
        { QStringLiteral("converter.png"), converter },
        { QStringLiteral("info.png"), info },
        { QStringLiteral("manual.png"), manual },
    };
    for (const auto &icon : icons) {
        const int size = icon.first == QLatin1String("info.png") ? 64 : 48;
        if (!icon.second(size).save(out.filePath(icon.first))) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(out.filePath(icon.first)));
            return 1;
        }
    }
    return 0;
}
