// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "ClickableLineEdit.h"
#include "CustomLineEdit.h"

#include <QMimeData>
#include <QtTest>

class tst_LineEdits : public QObject
{
    Q_OBJECT

private slots:
    void clicks_data();
    void clicks();
    void drops_data();
    void drops();
};

void tst_LineEdits::clicks_data()
{
    QTest::addColumn<int>("pressButton");
    QTest::addColumn<int>("releaseButton");
    QTest::addColumn<QPoint>("releaseAt");
    QTest::addColumn<QString>("link");
    QTest::addColumn<int>("expectedClicks");
    QTest::addColumn<bool>("clearFirst");

    const QPoint inside(10, 5);
    const QPoint away(400, 300);
    QTest::newRow("left click")
            << int(Qt::LeftButton) << int(Qt::LeftButton) << inside << "https://127.0.0.1/doc" << 1 << false;
    QTest::newRow("left press, released elsewhere")
            << int(Qt::LeftButton) << int(Qt::LeftButton) << away << "https://127.0.0.1/doc" << 1 << false;
    QTest::newRow("right click")
            << int(Qt::RightButton) << int(Qt::RightButton) << inside << "https://127.0.0.1/doc" << 0 << false;
    QTest::newRow("right press, left release")
            << int(Qt::RightButton) << int(Qt::LeftButton) << inside << "x" << 0 << false;
    QTest::newRow("no link still clicks") << int(Qt::LeftButton) << int(Qt::LeftButton) << inside << "" << 1 << false;
    QTest::newRow("clear forgets the link")
            << int(Qt::LeftButton) << int(Qt::LeftButton) << inside << "file:///doc/manual.pdf" << 1 << true;
}

void tst_LineEdits::clicks()
{
    QFETCH(int, pressButton);
    QFETCH(int, releaseButton);
    QFETCH(QPoint, releaseAt);
    QFETCH(QString, link);
    QFETCH(int, expectedClicks);
    QFETCH(bool, clearFirst);

    ClickableLineEdit edit;
    edit.resize(200, 24);
    edit.setLinkText(QStringLiteral("Open the documentation"), link);
    if (clearFirst) {
        edit.clear();
        link.clear();
    }
    QSignalSpy spy(&edit, &ClickableLineEdit::clicked);

    QTest::mousePress(&edit, Qt::MouseButton(pressButton), Qt::NoModifier, QPoint(10, 5));
    QTest::mouseRelease(&edit, Qt::MouseButton(releaseButton), Qt::NoModifier, releaseAt);

    QCOMPARE(spy.count(), expectedClicks);
    if (expectedClicks)
        QCOMPARE(spy.at(0).at(0).toString(), link);
    QCOMPARE(edit.cursor().shape(), link.isEmpty() ? Qt::IBeamCursor : Qt::PointingHandCursor);
}

void tst_LineEdits::drops_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("invokeReturn");

    const QString keep = QStringLiteral("unchanged");
    auto file = [](const char *path) { return QUrl::fromLocalFile(QString::fromLatin1(path)); };
    QTest::newRow("exact suffix") << QList<QUrl> { file("/data/node.eds") } << true << "/data/node.eds" << true;
    QTest::newRow("second accepted suffix") << QList<QUrl> { file("/data/node.dcf") } << true << "/data/node.dcf" << true;
    QTest::newRow("upper-case suffix") << QList<QUrl> { file("/data/node.EDS") } << false << keep << true;
    QTest::newRow("suffix is after the last dot")
            << QList<QUrl> { file("/data/node.eds.bak") } << false << keep << true;
    QTest::newRow("earlier dots do not matter")
            << QList<QUrl> { file("/data/node.v2.eds") } << true << "/data/node.v2.eds" << true;
    QTest::newRow("first of several decides, accepted")
            << QList<QUrl> { file("/data/a.eds"), file("/data/b.txt") } << true << "/data/a.eds" << true;
    QTest::newRow("first of several decides, refused")
            << QList<QUrl> { file("/data/b.txt"), file("/data/a.eds") } << false << keep << true;
    QTest::newRow("remote url") << QList<QUrl> { QUrl("http://127.0.0.1/node.eds") } << false << keep << true;
    QTest::newRow("no suffix") << QList<QUrl> { file("/data/eds") } << false << keep << true;
    QTest::newRow("no urls") << QList<QUrl>() << false << keep << true;
    QTest::newRow("accepted, return not invoked")
            << QList<QUrl> { file("/data/node.eds") } << true << "/data/node.eds" << false;
}

void tst_LineEdits::drops()
{
    QFETCH(QList<QUrl>, urls);
    QFETCH(bool, accepted);
    QFETCH(QString, text);
    QFETCH(bool, invokeReturn);

    CustomLineEdit edit;
    edit.addAcceptedSuffix(QStringLiteral("eds"));
    edit.addAcceptedSuffix(QStringLiteral("dcf"));
    if (!invokeReturn)
        edit.setInvokeReturnPressed(false);
    edit.setText(QStringLiteral("unchanged"));
    QSignalSpy returns(&edit, &QLineEdit::returnPressed);
    QMimeData data;
    if (urls.isEmpty())
        data.setText(QStringLiteral("/data/node.eds"));
    else
        data.setUrls(urls);

    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&edit, &enter);
    QCOMPARE(enter.isAccepted(), accepted);
    QDragMoveEvent move(QPoint(6, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&edit, &move);
    QCOMPARE(move.isAccepted(), accepted);

    QDropEvent drop(QPointF(6, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(&edit, &drop);
    QCOMPARE(drop.isAccepted(), accepted);
    QCOMPARE(edit.text(), text);
    QCOMPARE(returns.count(), accepted && invokeReturn ? 1 : 0);
}

QTEST_MAIN(tst_LineEdits)
#include "tst_lineedits.moc"
