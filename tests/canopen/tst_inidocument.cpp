// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// The INI layer beneath the DCF writer, row by row: input bytes, edits,
// expected bytes, and what QSettings reads from the result.
#include "IniDocument_p.h"
#include "TestFiles.h"
#include "TextCompat_p.h"

#include <QtTest>

using Edits = QStringList;  // "path=value" sets, "-path" removes, "-a|b|c" removes in one pass
using Reads = QStringList;  // "path=value" as QSettings reads it, "path" for an absent key

class tst_IniDocument : public QObject
{
    Q_OBJECT

private slots:
    void golden_data();
    void golden();

private:
    TestSupport::SheetFolder m_dir;
};

void tst_IniDocument::golden_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<Edits>("edits");
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<Reads>("reads");

    QTest::newRow("untouched text is kept byte for byte")
        << QByteArray("; c\r\n[a]\r\n  x = 1 ; note\r\n\r\n[b]\r\ny=\"q, r\"\r\n")
        << Edits{}
        << QByteArray("; c\r\n[a]\r\n  x = 1 ; note\r\n\r\n[b]\r\ny=\"q, r\"\r\n")
        << Reads{ "a/x=1", "b/y=q, r" };
    QTest::newRow("a rewritten value keeps the line ending and its neighbours")
        << QByteArray("[a]\r\nx = 1 ; note\r\ny=2\r\n")
        << Edits{ "a/x=3" }
        << QByteArray("[a]\r\nx=3\r\ny=2\r\n")
        << Reads{ "a/x=3", "a/y=2" };
    QTest::newRow("an added key goes after the last key, before trailing blanks")
        << QByteArray("[a]\nx=1\n\n; end of a\n[b]\ny=2\n")
        << Edits{ "a/z=9" }
        << QByteArray("[a]\nx=1\nz=9\n\n; end of a\n[b]\ny=2\n")
        << Reads{ "a/z=9" };
    QTest::newRow("a new section is appended after a blank line")
        << QByteArray("[a]\nx=1")
        << Edits{ "c/k=v w", "c/l= lead" }
        << QByteArray("[a]\nx=1\n\n[c]\nk=v w\nl=\" lead\"\n")
        << Reads{ "c/k=v w", "c/l= lead" };
    QTest::newRow("values are quoted and escaped as QSettings writes them")
        << QByteArray("[a]\nx=1\n")
        << Edits{ "a/x=p, q", "a/y=@at", "a/z=tab\there" }
        << QByteArray("[a]\nx=\"p, q\"\ny=@@at\nz=tab\\there\n")
        << Reads{ "a/x=p, q", "a/y=@at", "a/z=tab\there" };
    QTest::newRow("removing a key and a section")
        << QByteArray("[a]\nx=1\ny=2\n[b]\nz=3\n")
        << Edits{ "-a/x", "-b" }
        << QByteArray("[a]\ny=2\n")
        << Reads{ "a/x", "b/z", "a/y=2" };
    QTest::newRow("many keys removed in one pass, then added again")
        << QByteArray("[O]\nSupportedObjects=3\n1=0x1000\n2=0x1001\n3=0x1002\n; kept\n[P]\n1=x\n")
        << Edits{ "-O/1|O/2|O/3", "O/1=0x2000", "O/SupportedObjects=1" }
        << QByteArray("[O]\nSupportedObjects=1\n1=0x2000\n; kept\n[P]\n1=x\n")
        << Reads{ "O/1=0x2000", "O/2", "P/1=x" };
    QByteArray longSection = "[L]\n";
    for (int i = 0; i < 20; ++i)
        longSection += "k" + QByteArray::number(i) + "=" + QByteArray::number(i) + "\n";
    QTest::newRow("a long section: rewritten, added and added-then-rewritten keys")
        << longSection + "k7=again\n"
        << Edits{ "L/k7=seven", "L/n1=a", "L/n2=c", "L/n1=b" }
        << longSection + "k7=seven\nn1=b\nn2=c\n"
        << Reads{ "L/k7=seven", "L/n1=b", "L/n2=c", "L/k19=19" };
    // A new section of this name in any letter case is written as QSettings
    // writes it, and so reads back as "General".
    QTest::newRow("a new section named general, lower case")
        << QByteArray("[a]\nx=1\n")
        << Edits{ "general/k=1" }
        << QByteArray("[a]\nx=1\n\n[%General]\nk=1\n")
        << Reads{ "General/k=1", "k" };
    QTest::newRow("a new section named general, mixed case")
        << QByteArray("[a]\nx=1\n")
        << Edits{ "gEnErAl/k=2" }
        << QByteArray("[a]\nx=1\n\n[%General]\nk=2\n")
        << Reads{ "General/k=2" };
    // Escapes that produce nothing keep the blanks typed before them.
    QTest::newRow("blanks before an unknown escape")
        << QByteArray("[s]\nk=a \\q\n") << Edits{} << QByteArray("[s]\nk=a \\q\n") << Reads{ "s/k=a " };
    QTest::newRow("blanks before \\x without digits")
        << QByteArray("[s]\nk=a\t\\x  \n") << Edits{} << QByteArray("[s]\nk=a\t\\x  \n") << Reads{ "s/k=a\t" };
    QTest::newRow("blanks before an escaped line break")
        << QByteArray("[s]\nk=a \\\n\nj=1\n") << Edits{} << QByteArray("[s]\nk=a \\\n\nj=1\n")
        << Reads{ "s/k=a ", "s/j=1" };
    // An escaped break at the very end: what follows must not be carried into it.
    QTest::newRow("an escaped \\n at the end, \\r line ends, a key added")
        << QByteArray("[s]\rk=x\\\n") << Edits{ "s/added=1" } << QByteArray("[s]\rk=x\\\n\nadded=1\r")
        << Reads{ "s/k=x", "s/added=1" };
    QTest::newRow("an escaped \\r at the end, \\n line ends, a section added")
        << QByteArray("[s]\nk=x\\\r") << Edits{ "t/added=1" } << QByteArray("[s]\nk=x\\\r\r\n[t]\nadded=1\n")
        << Reads{ "s/k=x", "t/added=1" };
    QTest::newRow("blanks after quotes, before an unknown escape")
        << QByteArray("[s]\nk=\"a\" \\q \n") << Edits{} << QByteArray("[s]\nk=\"a\" \\q \n") << Reads{ "s/k=a " };
    // %XX in keys and section names: the digits are read as a signed number.
    QTest::newRow("%XX with a minus sign in a key")
        << QByteArray("[s]\nk%-1=1\n") << Edits{} << QByteArray("[s]\nk%-1=1\n")
        << Reads{ QString("s/k") + QChar(0xFFFF) + "=1" };
    QTest::newRow("%XX with a plus sign in a section name")
        << QByteArray("[a%+41b]\nk=1\n") << Edits{} << QByteArray("[a%+41b]\nk=1\n")
        << Reads{ QString("a") + QChar(4) + "1b/k=1" };
    QTest::newRow("%UXXXX with a blank and with 0x")
        << QByteArray("[s]\nk%U 041=1\nm%U0x42=2\n") << Edits{} << QByteArray("[s]\nk%U 041=1\nm%U0x42=2\n")
        << Reads{ "s/kA=1", "s/mB=2" };
    QTest::newRow("a key written with escapes")
        << QByteArray("[s]\nk=1\n")
        << Edits{ QString("s/a b/c") + QChar(0x263A) + "=1" }
        << QByteArray("[s]\nk=1\na%20b\\c%U263A=1\n")
        << Reads{ QString("s/a b/c") + QChar(0x263A) + "=1" };
}

void tst_IniDocument::golden()
{
    QFETCH(QByteArray, input);
    QFETCH(Edits, edits);
    QFETCH(QByteArray, expected);
    QFETCH(Reads, reads);

    IniDocument document;
    document.parse(input);
    for (const QString &edit : edits) {
        if (edit.startsWith(QLatin1Char('-')))
            document.removeAll(edit.mid(1).split(QLatin1Char('|')));
        else
            document.setValue(edit.section(QLatin1Char('='), 0, 0), edit.section(QLatin1Char('='), 1));
    }
    QCOMPARE(document.toBytes(), expected);

    const QString file = m_dir.write(expected);
    QSettings settings(file, QSettings::IniFormat);
    CommonGUICompat::useUtf8(settings);
    IniDocument reread;
    reread.parse(expected);
    for (const QString &read : reads) {
        const QString path = read.section(QLatin1Char('='), 0, 0);
        const bool present = read.contains(QLatin1Char('='));
        const QString value = read.section(QLatin1Char('='), 1);
        // Qt 6's QSettings reads a signed %XX literally; the document keeps Qt 5's reading.
        const bool settingsAgree = QT_VERSION < QT_VERSION_CHECK(6, 0, 0) || !path.contains(QChar(0xFFFF));
        if (settingsAgree)
            QCOMPARE(settings.contains(path), present);
        QCOMPARE(reread.contains(path), present);
        if (!present)
            continue;
        if (settingsAgree)
            QCOMPARE(settings.value(path).toString(), value);
        QCOMPARE(reread.value(path), value);
    }
}

QTEST_GUILESS_MAIN(tst_IniDocument)
#include "tst_inidocument.moc"
