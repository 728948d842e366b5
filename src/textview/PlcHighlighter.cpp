// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "PlcHighlighter.h"

#include "Highlighting_p.h"

using namespace CommonGUIPrivate;

PlcHighlighter::PlcHighlighter(QTextDocument *parent)
    : QSyntaxHighlighter(parent)
{
    keywordFormat = colourFormat(Qt::black);
    keywordFormat.setFontWeight(QFont::Bold);
    const QStringList keywordPatterns = {
        QStringLiteral("\\bVAR_EXTERNAL\\b"), QStringLiteral("\\bEND_VAR\\b"),
    };
    appendRules(highlightingRules, keywordPatterns, keywordFormat);

    dataTypeFormat = colourFormat(Qt::darkRed);
    dataTypeFormat.setFontWeight(QFont::Bold);
    const QStringList dataTypePatterns = {
        QStringLiteral("\\bBYTE\\b"), QStringLiteral("\\bWORD\\b"), QStringLiteral("\\bDWORD\\b"),
        QStringLiteral("\\bSINT\\b"), QStringLiteral("\\bINT\\b"), QStringLiteral("\\bDINT\\b"),
        QStringLiteral("\\bUSINT\\b"), QStringLiteral("\\bUINT\\b"), QStringLiteral("\\bUDINT\\b"),
        QStringLiteral("\\bREAL\\b"), QStringLiteral("\\bLREAL\\b"), QStringLiteral("\\bSTRING\\b"),
    };
    appendRules(highlightingRules, dataTypePatterns, dataTypeFormat);

    // Never used, so never compiled: these two are not valid expressions and stay so.
    multiLineCommentFormat = colourFormat(Qt::darkYellow);
    commentStartExpression = QRegularExpression(QStringLiteral("/(*"));
    commentEndExpression = QRegularExpression(QStringLiteral("*)"));

    scanner.reset(new RuleScanner(highlightingRules));
}

PlcHighlighter::~PlcHighlighter() = default;

void PlcHighlighter::highlightBlock(const QString &text)
{
    scanner->highlight(text, [this](int start, int count, const QTextCharFormat &format) {
        setFormat(start, count, format);
    });
    setCurrentBlockState(0);
}
