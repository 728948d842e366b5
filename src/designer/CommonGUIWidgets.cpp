// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CommonGUIWidgets.h"
#include "WidgetPlugin.h"

#include "ClickableLineEdit.h"
#include "CustomLineEdit.h"
#include "QHexEdit.h"
#include "TextOverlay.h"

#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

namespace {

QString domXml(const QString &className, const QString &objectName, QSize size,
               const QString &properties = QString())
{
    return QStringLiteral("<ui language=\"c++\">\n"
                          " <widget class=\"%1\" name=\"%2\">\n"
                          "  <property name=\"geometry\">\n"
                          "   <rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect>\n"
                          "  </property>\n%5"
                          " </widget>\n"
                          "</ui>\n")
            .arg(className, objectName)
            .arg(size.width())
            .arg(size.height())
            .arg(properties);
}

// Icons are drawn here so the plugin needs no resources of its own.
QIcon drawnIcon(const std::function<void(QPainter &)> &draw)
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x30, 0x40, 0x60), 1.5));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(2.5, 6.5, 27, 19), 2, 2);
    draw(painter);
    return QIcon(pixmap);
}

void drawLabel(QPainter &painter, const QString &label, const QColor &colour, bool underline = false)
{
    QFont font = painter.font();
    font.setPixelSize(11);
    font.setBold(true);
    font.setUnderline(underline);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QRect(3, 7, 26, 18), Qt::AlignCenter, label);
}

// At design time the overlay must be selectable with the mouse and show its
// caption over its whole area; a built form keeps the library's behaviour.
class OverlayPreview : public QObject
{
public:
    explicit OverlayPreview(TextOverlay *overlay)
        : QObject(overlay)
    {
        overlay->setAttribute(Qt::WA_TransparentForMouseEvents, false);
        overlay->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize) {
            auto overlay = static_cast<TextOverlay *>(watched);
            overlay->setCoords(QPoint(0, 0), QPoint(overlay->width() - 1, overlay->height() - 1));
            overlay->calcNewTextSize();
        }
        return false;
    }
};

QList<WidgetDescription> descriptions()
{
    const QColor ink(0x30, 0x40, 0x60);
    return {
        { QStringLiteral("QHexEdit"), QStringLiteral("Hex editor"),
          QStringLiteral("An editable hex and character view of a byte array, with address column, "
                         "overwrite and insert mode, undo, change marks, selection, find and go to."),
          domXml(QStringLiteral("QHexEdit"), QStringLiteral("hexEdit"), QSize(480, 240)),
          [ink] { return drawnIcon([ink](QPainter &p) { drawLabel(p, QStringLiteral("0x"), ink); }); },
          [](QWidget *parent) -> QWidget * { return new QHexEdit(parent); } },
        { QStringLiteral("ClickableLineEdit"), QStringLiteral("Line edit that acts as a link"),
          QStringLiteral("A line edit that emits clicked() with its link target on a left click and "
                         "shows the pointing-hand cursor while a link is set."),
          domXml(QStringLiteral("ClickableLineEdit"), QStringLiteral("linkEdit"), QSize(200, 24)),
          [] { return drawnIcon([](QPainter &p) { drawLabel(p, QStringLiteral("link"), Qt::blue, true); }); },
          [](QWidget *parent) -> QWidget * { return new ClickableLineEdit(parent); } },
        { QStringLiteral("CustomLineEdit"), QStringLiteral("Line edit that takes a dropped file"),
          QStringLiteral("A line edit that takes the path of a dropped local file whose suffix is one "
                         "of acceptedSuffixes, and then emits returnPressed() unless "
                         "invokeReturnPressed is off."),
          domXml(QStringLiteral("CustomLineEdit"), QStringLiteral("fileEdit"), QSize(200, 24)),
          [ink] { return drawnIcon([ink](QPainter &p) { drawLabel(p, QStringLiteral(".eds"), ink); }); },
          [](QWidget *parent) -> QWidget * { return new CustomLineEdit(parent); } },
        { QStringLiteral("TextOverlay"), QStringLiteral("Faint caption over a view"),
          QStringLiteral("A transparent widget that paints its text as large as fits, very faintly, "
                         "over the widgets below; mouse input passes through it. Call setCoords() "
                         "to give the caption its area."),
          domXml(QStringLiteral("TextOverlay"), QStringLiteral("textOverlay"), QSize(240, 120),
                 QStringLiteral("  <property name=\"text\">\n   <string>Caption</string>\n  </property>\n")),
          [] { return drawnIcon([](QPainter &p) { drawLabel(p, QStringLiteral("Aa"), QColor(0, 0, 0, 70)); }); },
          [](QWidget *parent) -> QWidget * {
              auto overlay = new TextOverlay(parent);
              new OverlayPreview(overlay);
              return overlay;
          } },
    };
}

} // namespace

CommonGUIWidgets::CommonGUIWidgets(QObject *parent)
    : QObject(parent)
{
    for (const WidgetDescription &description : descriptions())
        m_widgets.append(new WidgetPlugin(description, this));
}

QList<QDesignerCustomWidgetInterface *> CommonGUIWidgets::customWidgets() const
{
    return m_widgets;
}
