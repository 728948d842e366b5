// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TipOfTheDay.h"

#include <QCheckBox>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QTextBrowser>
#include <QtTest>

class tst_TipOfTheDay : public QObject
{
    Q_OBJECT

private slots:
    void stepping_data();
    void stepping();
    void closeReportsState_data();
    void closeReportsState();
    void pictures_data();
    void pictures();
    void missingFileShowsNothing();
    void lines_data();
    void lines();

private:
    QString writeTips(const QStringList &lines);
    static QString shownText(TipOfTheDay &dialog);
    static void click(TipOfTheDay &dialog, const char *button);

    QTemporaryDir m_dir;
};

QString tst_TipOfTheDay::writeTips(const QStringList &lines)
{
    static int counter = 0;
    const QString path = m_dir.filePath(QStringLiteral("tips%1.txt").arg(++counter));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Text))
        file.write(lines.join(QLatin1Char('\n')).toUtf8() + '\n');
    return path;
}

QString tst_TipOfTheDay::shownText(TipOfTheDay &dialog)
{
    return dialog.findChild<QTextBrowser *>(QStringLiteral("textBrowser"))->toPlainText().trimmed();
}

void tst_TipOfTheDay::click(TipOfTheDay &dialog, const char *button)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
}

void tst_TipOfTheDay::stepping_data()
{
    QTest::addColumn<int>("lastTip");
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QString>("expected");

    QTest::newRow("opens on the tip after the last one") << 2 << QStringList() << "tip 3";
    QTest::newRow("opens on the first after the last tip") << 4 << QStringList() << "tip 0";
    QTest::newRow("stored index beyond the tips") << 200 << QStringList() << "tip 0";
    QTest::newRow("stored index 255 wraps in 8 bits") << 255 << QStringList() << "tip 0";
    QTest::newRow("next twice") << 0 << QStringList { "btnNext", "btnNext" } << "tip 3";
    QTest::newRow("next past the end wraps") << 3 << QStringList { "btnNext", "btnNext" } << "tip 1";
    QTest::newRow("previous on the first goes to the last") << 4 << QStringList { "btnPrev" } << "tip 4";
    QTest::newRow("previous then next") << 1 << QStringList { "btnPrev", "btnPrev", "btnNext" } << "tip 1";
    QTest::newRow("previous round the start twice")
            << 0 << QStringList { "btnPrev", "btnPrev", "btnPrev" } << "tip 3";
}

void tst_TipOfTheDay::stepping()
{
    QFETCH(int, lastTip);
    QFETCH(QStringList, clicks);
    QFETCH(QString, expected);

    TipOfTheDay dialog(writeTips({ "tip 0;", "tip 1;", "tip 2;", "tip 3;", "tip 4;" }), true,
                       static_cast<unsigned char>(lastTip));
    for (const QString &button : qAsConst(clicks))
        click(dialog, qPrintable(button));

    QCOMPARE(shownText(dialog), expected);
}

void tst_TipOfTheDay::closeReportsState_data()
{
    QTest::addColumn<bool>("showOnStartup");
    QTest::addColumn<bool>("toggle");
    QTest::addColumn<bool>("expectedShow");
    QTest::addColumn<bool>("byButton");

    QTest::newRow("kept on") << true << false << true << true;
    QTest::newRow("switched off") << true << true << false << true;
    QTest::newRow("switched on") << false << true << true << true;
    QTest::newRow("closed by the frame reports nothing") << true << false << true << false;
}

void tst_TipOfTheDay::closeReportsState()
{
    QFETCH(bool, showOnStartup);
    QFETCH(bool, toggle);
    QFETCH(bool, expectedShow);
    QFETCH(bool, byButton);

    TipOfTheDay dialog(writeTips({ "a;", "b;", "c;" }), showOnStartup, 0);  // opens on tip 1
    QSignalSpy spy(&dialog, &TipOfTheDay::newTipValues);
    dialog.show();
    click(dialog, "btnNext");
    if (toggle)
        dialog.findChild<QCheckBox *>(QStringLiteral("checkBox"))->toggle();
    if (!byButton) {
        dialog.close();
        QCOMPARE(spy.count(), 0);
        return;
    }
    click(dialog, "btnClose");

    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<unsigned char>(), static_cast<unsigned char>(2));
    QCOMPARE(spy.at(0).at(1).toBool(), expectedShow);
    QVERIFY(!dialog.isVisible());
}

void tst_TipOfTheDay::pictures_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("animated");
    QTest::addColumn<int>("height");

    QTest::newRow("still picture at its own height")
            << "Press F5 to refresh.;still.png" << "Press F5 to refresh." << true << false << 30;
    QTest::newRow("tall picture fitted into the area")
            << "Tall;tall.png" << "Tall" << true << false << 200;
    QTest::newRow("picture name trimmed and collapsed")
            << "Spaced;   still.png  " << "Spaced" << true << false << 30;
    QTest::newRow("gif animates") << "Spinner;spin.gif" << "Spinner" << true << true << 12;
    QTest::newRow("upper-case GIF is a still picture")
            << "Still spinner;spin.GIF" << "Still spinner" << true << false << 12;
    QTest::newRow("line without separator names no picture")
            << "Just text" << "Just text" << false << false << 0;
    QTest::newRow("empty picture name") << "No picture;" << "No picture" << false << false << 0;
    QTest::newRow("unknown picture") << "Gone;gone.png" << "Gone" << false << false << 0;
    QTest::newRow("picture from the last part")
            << "Rich <b>text</b>;ignored;still.png" << "Rich text" << true << false << 30;
}

void tst_TipOfTheDay::pictures()
{
    QFETCH(QString, line);
    QFETCH(QString, text);
    QFETCH(bool, shown);
    QFETCH(bool, animated);
    QFETCH(int, height);

    // A tip with a picture comes first so that the tip under test must hide it again.
    TipOfTheDay dialog(writeTips({ "Before;still.png", line }), true, 255);
    dialog.show();
    click(dialog, "btnNext");
    QCOMPARE(shownText(dialog), text);

    auto label = dialog.findChild<QLabel *>(QStringLiteral("imgLabel"));
    QCOMPARE(!label->isHidden(), shown);
    QCOMPARE(label->movie() != nullptr, animated);
    if (animated) {
        QCOMPARE(label->movie()->frameRect().height(), height);
        QCOMPARE(label->movie()->state(), QMovie::Running);
    } else if (shown) {
        QVERIFY(!label->pixmap().isNull());
        QCOMPARE(label->pixmap().height(), height);
    }
}

void tst_TipOfTheDay::missingFileShowsNothing()
{
    TipOfTheDay dialog(m_dir.filePath(QStringLiteral("none.txt")), true, 3);
    QSignalSpy spy(&dialog, &TipOfTheDay::newTipValues);
    click(dialog, "btnNext");
    click(dialog, "btnPrev");
    QCOMPARE(shownText(dialog), QString());
    click(dialog, "btnClose");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).value<unsigned char>(), static_cast<unsigned char>(3));
}

void tst_TipOfTheDay::lines_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("tips");

    QTest::newRow("CRLF line ends") << QByteArray("a;\r\nb;\r\n") << QStringList{ "a", "b" };
    QTest::newRow("last line without a break") << QByteArray("a;\nb;") << QStringList{ "a", "b" };
    QTest::newRow("an empty line is a tip") << QByteArray("a;\n\nb;\n") << QStringList{ "a", "", "b" };
    QTest::newRow("a line as long as the file") << QByteArray(70000, 'x') << QStringList{ QString(70000, 'x') };
    QTest::newRow("a long line among short ones")
        << QByteArray("s;\n") + QByteArray(70000, 'y') + QByteArray(";\r\nt;\n")
        << QStringList{ "s", QString(70000, 'y'), "t" };
}

void tst_TipOfTheDay::lines()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, tips);

    const QString path = m_dir.filePath(QStringLiteral("raw%1.txt").arg(QTest::currentDataTag()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();

    // Opens on the first tip; stepping through all of them comes round to it again.
    TipOfTheDay dialog(path, true, 255);
    QStringList shown;
    for (int i = 0; i <= tips.size(); ++i) {
        shown << shownText(dialog);
        click(dialog, "btnNext");
    }
    QCOMPARE(shown, tips + QStringList{ tips.first() });
}

QTEST_MAIN(tst_TipOfTheDay)
#include "tst_tipoftheday.moc"
