// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DBCHighlighter.h"

#include "Highlighting_p.h"

using namespace CommonGUIPrivate;

DBCHighlighter::DBCHighlighter(QTextDocument *parent)
    : QSyntaxHighlighter(parent)
{
    // First, so that keywords inside a quoted comment keep their colour.
    quotationFormat = colourFormat(Qt::darkGreen);
    highlightingRules.append({ QRegularExpression(QStringLiteral("\".*\"")), quotationFormat });

    keywordFormat = colourFormat(Qt::darkBlue);
    keywordFormat.setFontWeight(QFont::Normal);
    const QStringList keywordPatterns = {
        QStringLiteral("\\bNS_\\b"), QStringLiteral("\\bBS_\\b"), QStringLiteral("\\bBU_\\b"),
        QStringLiteral("\\bBO_\\b"), QStringLiteral("\\bSG_\\b"), QStringLiteral("\\bCM_\\b"),
        QStringLiteral("\\bBrot\\b"), QStringLiteral("\\bBA_\\b"), QStringLiteral("\\bBA_DEF_\\b"),
        QStringLiteral("\\bBA_DEF_DEF_\\b"),
    };
    appendRules(highlightingRules, keywordPatterns, keywordFormat);

    // J1939 words.
    keywordFormat2 = colourFormat(Qt::darkRed);
    keywordFormat2.setFontWeight(QFont::Bold);
    const QStringList keywordPatterns2 = {
        QStringLiteral("\\bSPN\\b"), QStringLiteral("\\bJ1939PG\\b"), QStringLiteral("\\bPGN\\b"),
    };
    appendRules(highlightingRules, keywordPatterns2, keywordFormat2);

    singleLineCommentFormat = colourFormat(Qt::darkYellow);
    highlightingRules.append({ QRegularExpression(QStringLiteral("^#.*")), singleLineCommentFormat });

    scanner.reset(new RuleScanner(highlightingRules));
}

DBCHighlighter::~DBCHighlighter() = default;

void DBCHighlighter::highlightBlock(const QString &text)
{
    scanner->highlight(text, [this](int start, int count, const QTextCharFormat &format) {
        setFormat(start, count, format);
    });
}
