// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "AnsiCHighlighter.h"
#include "DBCHighlighter.h"
#include "EdsHighlighter.h"
#include "PlcHighlighter.h"
#include "XMLHighlighter.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QRegularExpression>
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
        || format.hasProperty(QTextFormat::FontFamilies) || format.hasProperty(QTextFormat::FontPointSize))
        return QLatin1Char('?');
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    if (format.hasProperty(QTextFormat::FontFamily))
        return QLatin1Char('?');
#endif
    const int weight = format.hasProperty(QTextFormat::FontWeight) ? format.fontWeight() : -1;
    const bool italic = format.fontItalic();
    struct Style { char code; Qt::GlobalColor colour; int weight; bool italic; };
    static const Style styles[] = {
        { 'k', Qt::darkBlue, QFont::Bold, false },   { 'n', Qt::darkBlue, QFont::Normal, false },
        { 'm', Qt::darkMagenta, QFont::Bold, false }, { 'y', Qt::darkYellow, -1, false },
        { 'g', Qt::darkGreen, -1, false },  { 'f', Qt::blue, -1, true },
        { 'p', Qt::darkRed, -1, false },    { 'R', Qt::darkRed, QFont::Bold, false },
        { 'e', Qt::red, -1, false },        { 'B', Qt::black, QFont::Bold, false },
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
    void sameAsRulesApplied_data();
    void sameAsRulesApplied();
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

// The reference: every rule of the table, in order, matched globally over the
// block, each match overwriting what earlier rules set. Written out here, apart
// from the library, so that the tables are checked as well as the shortcuts.
struct Rule { QByteArray pattern; char code; };
static QVector<Rule> ruleTable(const QString &kind)
{
    if (kind == "c") {
        QVector<Rule> rules;
        for (const char *w : { "char", "class", "const", "double", "enum", "explicit", "friend", "inline",
                               "int", "long", "namespace", "operator", "private", "protected", "public",
                               "short", "signals", "signed", "slots", "static", "struct", "template",
                               "typedef", "typename", "union", "unsigned", "virtual", "void", "volatile" })
            rules.append({ QByteArray("\\b") + w + "\\b", 'k' });
        return rules + QVector<Rule>{ { "\\bQ[A-Za-z]+\\b", 'm' }, { "//[^\n]*", 'y' }, { "\".*\"", 'g' },
                                      { "\\b[A-Za-z0-9_]+(?=\\()", 'f' }, { "#[a-z]*", 'p' } };
    }
    if (kind == "eds") {
        return { { "\\bSupportedObjects\\b", 'n' }, { "\\bParameterName\\b", 'n' }, { "\\bObjectType\\b", 'n' },
                 { "\\bDataType\\b", 'n' }, { "\\bAccessType\\b", 'n' }, { "\\bDefaultValue\\b", 'n' },
                 { "\\bPDOMapping\\b", 'n' }, { "\\bSubNumber\\b", 'n' }, { "\\bLowLimit\\b", 'n' },
                 { "\\bHighLimit\\b", 'n' }, { "\\bObjFlags\\b", 'n' }, { "\\bDenotation\\b", 'R' },
                 { "\\bParameterValue\\b", 'R' }, { ";[^\n]*", 'y' }, { "\".*\"", 'g' }, { "\\[.*\\]", 'e' } };
    }
    if (kind == "dbc") {
        return { { "\".*\"", 'g' }, { "\\bNS_\\b", 'n' }, { "\\bBS_\\b", 'n' }, { "\\bBU_\\b", 'n' },
                 { "\\bBO_\\b", 'n' }, { "\\bSG_\\b", 'n' }, { "\\bCM_\\b", 'n' }, { "\\bBrot\\b", 'n' },
                 { "\\bBA_\\b", 'n' }, { "\\bBA_DEF_\\b", 'n' }, { "\\bBA_DEF_DEF_\\b", 'n' },
                 { "\\bSPN\\b", 'R' }, { "\\bJ1939PG\\b", 'R' }, { "\\bPGN\\b", 'R' }, { "^#.*", 'y' } };
    }
    if (kind == "plc") {
        QVector<Rule> rules = { { "\\bVAR_EXTERNAL\\b", 'B' }, { "\\bEND_VAR\\b", 'B' } };
        for (const char *w : { "BYTE", "WORD", "DWORD", "SINT", "INT", "DINT", "USINT", "UINT", "UDINT",
                               "REAL", "LREAL", "STRING" })
            rules.append({ QByteArray("\\b") + w + "\\b", 'R' });
        return rules;
    }
    return {};
}

static QString referenceCodes(const QVector<QRegularExpression> &expressions, const QVector<Rule> &rules,
                              const QString &line)
{
    QString result(line.size(), QLatin1Char('.'));
    for (int r = 0; r < rules.size(); ++r) {
        QRegularExpressionMatchIterator it = expressions.at(r).globalMatch(line);
        while (it.hasNext()) {
            const QRegularExpressionMatch m = it.next();
            for (int i = m.capturedStart(); i < m.capturedEnd(); ++i)
                result[i] = QLatin1Char(rules.at(r).code);
        }
    }
    return result;
}

// Lines built from pieces that make the rules meet: keywords of every kind in
// strings and comments, Q words, nested and odd quotes, hashes, brackets,
// long and empty lines, non-Latin text, invalid UTF-16.
static QString edgeCaseText(quint32 seed)
{
    static const QStringList pieces = {
        "int", "unsigned", "void", "class", "QString", "Qt", "Q", "Q_OBJECT", "qstring", "QtÄ", "Q1",
        "ParameterName", "DefaultValue", "Denotation", "ParameterValue", "ObjFlags", "BO_", "BO_TX_BU_",
        "BA_DEF_", "BA_DEF_DEF_", "SG_", "SPN", "J1939PG", "Brot", "VAR_EXTERNAL", "END_VAR", "INT", "DINT",
        "LREAL", "STRING", "foo", "call", "x_1", "9", "_", "\"", "\"\"", "\\\"", "'\"'", "//", "/", "/*",
        "*/", "(*", "*)", "#", "#include", "#DEFINE", "##a", ";", "[", "]", "[1000]", "(", ")", "((", "=",
        " ", " ", " ", "\t", "é", "int\u00e9", "ß", "Жint", "中文", "\U0001F600", "\u2028", "\r", "\u0085",
        "e\u0301", "\u00a0", "int(", "Qt(", "#if(", "\"a(\"", "; x \"y\" [z]",
    };
    QRandomGenerator random(seed);
    QStringList lines;
    for (int l = 0; l < 400; ++l) {
        const int kind = random.bounded(10);
        const int count = kind == 0 ? 0 : kind == 1 ? 400 + random.bounded(2000) : random.bounded(30);
        QString line;
        for (int i = 0; i < count; ++i)
            line += pieces.at(random.bounded(pieces.size()));
        if (random.bounded(50) == 0)
            line.insert(random.bounded(line.size() + 1), QChar(random.bounded(2) ? 0xD800 : 0xDC00));
        lines << line;
    }
    return lines.join(QLatin1Char('\n'));
}

void tst_Highlighters::sameAsRulesApplied_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    const QStringList kinds = { "c", "eds", "dbc", "plc", "xml" };
    for (quint32 seed = 1; seed <= 4; ++seed) {
        const QString text = edgeCaseText(seed);
        for (const QString &kind : kinds)
            QTest::newRow(qPrintable(QStringLiteral("%1: edge cases %2").arg(kind).arg(seed))) << kind << text;
    }
    // Every real file in every highlighter, when the sample files are at hand.
    const QString corpus = qEnvironmentVariable("COMMONGUI_CORPUS_DIR");
    if (corpus.isEmpty() || !QDir(corpus).exists())
        return;
    QDirIterator it(corpus, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        QFile file(it.next());
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        const QString text = QString::fromUtf8(file.readAll());
        for (const QString &kind : kinds)
            QTest::newRow(qPrintable(kind + ": " + QDir(corpus).relativeFilePath(file.fileName()))) << kind << text;
    }
}

void tst_Highlighters::sameAsRulesApplied()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    const QVector<Rule> rules = ruleTable(kind);
    QVector<QRegularExpression> expressions;
    for (const Rule &rule : rules)
        expressions.append(QRegularExpression(QString::fromUtf8(rule.pattern)));
    QTextDocument document;
    document.setPlainText(text);
    auto highlighter = create(kind, &document);
    int lineNumber = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next(), ++lineNumber) {
        QString actual(block.length() - 1, QLatin1Char('.'));
        for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
            for (int i = range.start; i < range.start + range.length && i < actual.size(); ++i)
                actual[i] = code(range.format);
        }
        const QString expected = referenceCodes(expressions, rules, block.text());
        if (actual != expected) {
            int at = 0;
            while (actual.at(at) == expected.at(at))
                ++at;
            QFAIL(qPrintable(QStringLiteral("line %1, column %2: %3\n got      %4\n expected %5")
                                 .arg(lineNumber + 1).arg(at + 1).arg(block.text().mid(at, 60),
                                                                     actual.mid(at, 60), expected.mid(at, 60))));
        }
    }
}

QTEST_MAIN(tst_Highlighters)
#include "tst_highlighters.moc"
