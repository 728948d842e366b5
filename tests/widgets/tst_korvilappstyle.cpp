// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "KorvilAppStyle.h"

#include <QtTest>

namespace {

// A widget on a screen of the given logical DPI.
class DpiWidget : public QWidget
{
public:
    explicit DpiWidget(int dpi) : m_dpi(dpi) {}

protected:
    int metric(PaintDeviceMetric m) const override
    {
        if (m == PdmDpiX || m == PdmDpiY)
            return m_dpi;
        return QWidget::metric(m);
    }

private:
    int m_dpi;
};

QPalette makePalette(const QColor &text, const QColor &base)
{
    QPalette p;
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::Window, base);
    return p;
}

}

class tst_KorvilAppStyle : public QObject
{
    Q_OBJECT

private slots:
    void metricsFollowTheDpi_data()
    {
        QTest::addColumn<int>("dpi");
        QTest::addColumn<int>("scrollBar");
        QTest::addColumn<int>("smallIcon");
        QTest::addColumn<int>("margin");
        QTest::newRow("96") << 96 << 14 << 16 << 9;
        QTest::newRow("144") << 144 << 21 << 24 << 14;
        QTest::newRow("192") << 192 << 28 << 32 << 18;
        QTest::newRow("72 keeps the design size") << 72 << 14 << 16 << 9;
    }
    void metricsFollowTheDpi()
    {
        QFETCH(int, dpi);
        KorvilAppStyle style;
        DpiWidget widget(dpi);
        QTEST(style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget), "scrollBar");
        QTEST(style.pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget), "smallIcon");
        QTEST(style.pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, &widget), "margin");
    }

    void palette_data()
    {
        QTest::addColumn<bool>("keep");
        QTest::addColumn<QPalette>("desktop");
        QTest::addColumn<bool>("kept");
        const QPalette dark = makePalette(QColor(0xee, 0xee, 0xee), QColor(0x20, 0x20, 0x20));
        const QPalette highContrast = makePalette(Qt::black, Qt::white);
        const QPalette ordinary = makePalette(QColor(0x40, 0x40, 0x40), QColor(0xf8, 0xf8, 0xf8));
        QTest::newRow("default: dark replaced") << false << dark << false;
        QTest::newRow("default: high contrast replaced") << false << highContrast << false;
        QTest::newRow("keep: dark") << true << dark << true;
        QTest::newRow("keep: high contrast") << true << highContrast << true;
        QTest::newRow("keep: an ordinary light one is still replaced") << true << ordinary << false;
    }
    void palette()
    {
        QFETCH(bool, keep);
        QFETCH(QPalette, desktop);
        KorvilAppStyle style;
        QCOMPARE(style.keepsDesktopPalette(), false);
        style.setProperty("keepDesktopPalette", keep);
        QPalette polished = desktop;
        style.polish(polished);
        QFETCH(bool, kept);
        const QPalette expected = kept ? desktop : style.standardPalette();
        QCOMPARE(polished.color(QPalette::Base), expected.color(QPalette::Base));
        QCOMPARE(polished.color(QPalette::Text), expected.color(QPalette::Text));
    }
};

QTEST_MAIN(tst_KorvilAppStyle)
#include "tst_korvilappstyle.moc"
