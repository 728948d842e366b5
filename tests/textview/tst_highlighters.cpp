// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "AnsiCHighlighter.h"
#include "DBCHighlighter.h"
#include "EdsHighlighter.h"
#include "PlcHighlighter.h"
#include "XMLHighlighter.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

#include <memory>

// One letter per character format, so a line's colouring reads as a string:
//   k dark blue bold     n dark blue, weight set to normal   m dark magenta bold
//   y dark yellow        g dark green    f blue italic       p dark red
//   R dark red bold      e red           B black bold        . none
static QChar code(const QTextCharFormat &format)
{
    if (!format.hasProperty(QTextFormat::ForegroundBrush))
        return QLatin1Char(format.isEmpty() ? '.' : '?');
    const QBrush brush = format.foreground();
    if (brush.style() != Qt::SolidPattern || format.hasProperty(QTextFormat::BackgroundBrush)
        || format.hasProperty(QTextFormat::FontFamily) || format.hasProperty(QTextFormat::FontPointSize))
        return QLatin1Char('?');
    const int weight = format.hasProperty(QTextFormat::FontWeight) ? format.fontWeight() : -1;
    const bool italic = format.fontItalic();
    struct Style { char code; Qt::GlobalColor colour; int weight; bool italic; };
    static const Style styles[] = {
        { 'k', Qt::darkBlue, 75, false },   { 'n', Qt::darkBlue, 50, false },
        { 'm', Qt::darkMagenta, 75, false }, { 'y', Qt::darkYellow, -1, false },
        { 'g', Qt::darkGreen, -1, false },  { 'f', Qt::blue, -1, true },
        { 'p', Qt::darkRed, -1, false },    { 'R', Qt::darkRed, 75, false },
        { 'e', Qt::red, -1, false },        { 'B', Qt::black, 75, false },
    };
    for (const Style &s : styles) {
        if (brush.color() == QColor(s.colour) && weight == s.weight && italic == s.italic)
            return QLatin1Char(s.code);
    }
    return QLatin1Char('?');
}

// The codes of every character of every block, blocks separated by a line feed.
static QString codes(const QTextDocument &document)
{
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString line(block.length() - 1, QLatin1Char('.'));
        for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
            for (int i = range.start; i < range.start + range.length && i < line.size(); ++i)
                line[i] = code(range.format);
        }
        lines << line;
    }
    return lines.join(QLatin1Char('\n'));
}

static std::unique_ptr<QSyntaxHighlighter> create(const QString &kind, QTextDocument *document)
{
    QSyntaxHighlighter *h = kind == "c" ? static_cast<QSyntaxHighlighter *>(new AnsiCHighlighter(document))
        : kind == "eds" ? static_cast<QSyntaxHighlighter *>(new EdsHighlighter(document))
        : kind == "dbc" ? static_cast<QSyntaxHighlighter *>(new DBCHighlighter(document))
        : kind == "plc" ? static_cast<QSyntaxHighlighter *>(new PlcHighlighter(document))
                        : static_cast<QSyntaxHighlighter *>(new XMLHighlighter(document));
    h->rehighlight();
    return std::unique_ptr<QSyntaxHighlighter>(h);
}

class tst_Highlighters : public QObject
{
    Q_OBJECT

private slots:
    void colours_data();
    void colours();
    void blockState_data();
    void blockState();
};

void tst_Highlighters::colours_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("c: keyword, call, string over keyword")
        << "c" << "int x = foo(\"int\");" << "kkk.....fff.ggggg..";
    QTest::newRow("c: string and call win over a comment")
        << "c" << "// call(a) \"w\"" << "yyyffffyyyyggg";
    QTest::newRow("c: Q words only with a capital Q")
        << "c" << "QString Qt qstring" << "mmmmmmm.mm........";
    QTest::newRow("c: preprocessor word")
        << "c" << "#include <stdio.h>" << "pppppppp..........";
    QTest::newRow("c: keywords need word boundaries")
        << "c" << "integer int_x" << ".............";
    QTest::newRow("c: two keywords")
        << "c" << "unsigned long v;" << "kkkkkkkk.kkkk...";
    QTest::newRow("c: two strings are one greedy span")
        << "c" << "s = \"x\" + \"y\";" << "....ggggggggg.";
    QTest::newRow("c: block comment over two lines stays plain")
        << "c" << "/* open\nclose */" << ".......\n........";

    QTest::newRow("eds: first key group is normal weight")
        << "eds" << "ParameterName=Device type" << "nnnnnnnnnnnnn............";
    QTest::newRow("eds: section header")
        << "eds" << "[1000]" << "eeeeee";
    QTest::newRow("eds: comment to the end of the line")
        << "eds" << "DefaultValue=0x0 ; note" << "nnnnnnnnnnnn.....yyyyyy";
    QTest::newRow("eds: configured value key is bold")
        << "eds" << "ParameterValue=1" << "RRRRRRRRRRRRRR..";
    QTest::newRow("eds: denotation and quoted value")
        << "eds" << "Denotation=\"my node\"" << "RRRRRRRRRR.ggggggggg";
    QTest::newRow("eds: header inside a comment stays red")
        << "eds" << ";[1000] DataType" << "yeeeeeeyyyyyyyyy";

    QTest::newRow("dbc: message keyword")
        << "dbc" << "BO_ 100 Msg: 8 Node" << "nnn................";
    QTest::newRow("dbc: no boundary inside BO_TX_BU_")
        << "dbc" << "BO_TX_BU_ 1 : A;" << "................";
    QTest::newRow("dbc: keywords win over the quotation")
        << "dbc" << "CM_ SG_ 1 SPN \"BO_ x\";" << "nnn.nnn...RRR.gnnnggg.";
    QTest::newRow("dbc: hash line wholly a comment")
        << "dbc" << "# BO_ \"x\"" << "yyyyyyyyy";
    QTest::newRow("dbc: hash later in the line is no comment")
        << "dbc" << "BU_ # x" << "nnn....";

    QTest::newRow("plc: block keyword")
        << "plc" << "VAR_EXTERNAL" << "BBBBBBBBBBBB";
    QTest::newRow("plc: types, also inside a comment")
        << "plc" << "x : INT; (* WORD y *)" << "....RRR.....RRRR.....";
    QTest::newRow("plc: comment alone is plain")
        << "plc" << "(* comment *)" << ".............";
    QTest::newRow("plc: no strings, no partial words")
        << "plc" << "\"INTEGER\" DINT_X" << "................";

    QTest::newRow("xml: nothing coloured")
        << "xml" << "<a href=\"x\">text</a>" << "....................";
}

void tst_Highlighters::colours()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QTextDocument document;
    document.setPlainText(text);
    auto highlighter = create(kind, &document);
    QCOMPARE(codes(document), expected);
}

void tst_Highlighters::blockState_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("state");
    QTest::newRow("c sets 0") << "c" << 0;
    QTest::newRow("plc sets 0") << "plc" << 0;
    QTest::newRow("eds leaves -1") << "eds" << -1;
    QTest::newRow("dbc leaves -1") << "dbc" << -1;
    QTest::newRow("xml leaves -1") << "xml" << -1;
}

void tst_Highlighters::blockState()
{
    QFETCH(QString, kind);
    QFETCH(int, state);
    QTextDocument document;
    document.setPlainText("int a; /* x\ny */\n");
    auto highlighter = create(kind, &document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        QCOMPARE(block.userState(), state);
}

QTEST_MAIN(tst_Highlighters)
#include "tst_highlighters.moc"
