// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TextOverlay.h"

#include <QResizeEvent>
#include <QtTest>

class tst_TextOverlay : public QObject
{
    Q_OBJECT

private slots:
    void refitThreshold_data();
    void refitThreshold();
    void largestFittingSize_data();
    void largestFittingSize();
    void passesMouseEvents();
};

static void resizeTo(TextOverlay &overlay, QSize size, QSize old)
{
    QResizeEvent event(size, old);
    QApplication::sendEvent(&overlay, &event);
}

void tst_TextOverlay::refitThreshold_data()
{
    QTest::addColumn<QSize>("to");
    QTest::addColumn<bool>("refits");

    // From 100 x 100.
    QTest::newRow("25 wider keeps the font") << QSize(125, 100) << false;
    QTest::newRow("exactly 30 wider keeps the font") << QSize(130, 100) << false;
    QTest::newRow("31 wider refits") << QSize(131, 100) << true;
    QTest::newRow("31 narrower refits") << QSize(69, 100) << true;
    QTest::newRow("30 taller keeps the font") << QSize(100, 130) << false;
    QTest::newRow("31 lower refits") << QSize(100, 69) << true;
    QTest::newRow("30 both ways keeps the font") << QSize(130, 130) << false;
}

void tst_TextOverlay::refitThreshold()
{
    QFETCH(QSize, to);
    QFETCH(bool, refits);

    TextOverlay overlay(QStringLiteral("OFFLINE"));
    // Nothing fits a 1-pixel area: the first fit settles on the smallest size.
    overlay.setCoords(QPoint(0, 0), QPoint(1, 1));
    resizeTo(overlay, QSize(100, 100), QSize(0, 0));
    QCOMPARE(overlay.font().pointSize(), 10);

    // Now everything fits; only a refit can pick that up.
    overlay.setCoords(QPoint(0, 0), QPoint(100000, 100000));
    resizeTo(overlay, to, QSize(100, 100));

    QCOMPARE(overlay.font().pointSize(), refits ? 400 : 10);
}

void tst_TextOverlay::largestFittingSize_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QSize>("area");

    QTest::newRow("short caption, wide area") << "DEMO" << QSize(900, 300);
    QTest::newRow("long caption") << "Simulation mode - no bus connected" << QSize(900, 300);
    QTest::newRow("tall narrow area") << "X" << QSize(120, 900);
}

void tst_TextOverlay::largestFittingSize()
{
    QFETCH(QString, caption);
    QFETCH(QSize, area);

    TextOverlay overlay(caption);
    overlay.setCoords(QPoint(10, 10), QPoint(10 + area.width(), 10 + area.height()));
    overlay.calcNewTextSize();

    const QFont chosen = overlay.font();
    QCOMPARE(chosen.family(), QStringLiteral("Arial"));
    QCOMPARE(chosen.pointSize() % 30, 10);  // 400, 370, ..., 10
    const QFontMetrics fits(chosen);
    QVERIFY(fits.horizontalAdvance(caption) <= area.width());
    QVERIFY(fits.height() <= area.height());
    if (chosen.pointSize() < 400) {
        QFont larger = chosen;
        larger.setPointSize(chosen.pointSize() + 30);
        const QFontMetrics tooLarge(larger);
        QVERIFY(tooLarge.horizontalAdvance(caption) > area.width() || tooLarge.height() > area.height());
    }
}

void tst_TextOverlay::passesMouseEvents()
{
    QWidget parent;
    parent.resize(200, 100);
    auto overlay = new TextOverlay(QStringLiteral("DEMO"), &parent);
    overlay->resize(parent.size());
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QCOMPARE(parent.childAt(50, 50), nullptr);  // clicks reach what lies below
}

QTEST_MAIN(tst_TextOverlay)
#include "tst_textoverlay.moc"
