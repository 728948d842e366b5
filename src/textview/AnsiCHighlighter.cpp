// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "AnsiCHighlighter.h"

#include "Highlighting_p.h"

using namespace CommonGUIPrivate;

AnsiCHighlighter::AnsiCHighlighter(QTextDocument *parent)
    : QSyntaxHighlighter(parent)
{
    keywordFormat = colourFormat(Qt::darkBlue);
    keywordFormat.setFontWeight(QFont::Bold);
    const QStringList keywordPatterns = {
        QStringLiteral("\\bchar\\b"), QStringLiteral("\\bclass\\b"), QStringLiteral("\\bconst\\b"),
        QStringLiteral("\\bdouble\\b"), QStringLiteral("\\benum\\b"), QStringLiteral("\\bexplicit\\b"),
        QStringLiteral("\\bfriend\\b"), QStringLiteral("\\binline\\b"), QStringLiteral("\\bint\\b"),
        QStringLiteral("\\blong\\b"), QStringLiteral("\\bnamespace\\b"), QStringLiteral("\\boperator\\b"),
        QStringLiteral("\\bprivate\\b"), QStringLiteral("\\bprotected\\b"), QStringLiteral("\\bpublic\\b"),
        QStringLiteral("\\bshort\\b"), QStringLiteral("\\bsignals\\b"), QStringLiteral("\\bsigned\\b"),
        QStringLiteral("\\bslots\\b"), QStringLiteral("\\bstatic\\b"), QStringLiteral("\\bstruct\\b"),
        QStringLiteral("\\btemplate\\b"), QStringLiteral("\\btypedef\\b"), QStringLiteral("\\btypename\\b"),
        QStringLiteral("\\bunion\\b"), QStringLiteral("\\bunsigned\\b"), QStringLiteral("\\bvirtual\\b"),
        QStringLiteral("\\bvoid\\b"), QStringLiteral("\\bvolatile\\b"),
    };
    appendRules(highlightingRules, keywordPatterns, keywordFormat);

    classFormat = colourFormat(Qt::darkMagenta);
    classFormat.setFontWeight(QFont::Bold);
    highlightingRules.append({ QRegularExpression(QStringLiteral("\\bQ[A-Za-z]+\\b")), classFormat });

    singleLineCommentFormat = colourFormat(Qt::darkYellow);
    highlightingRules.append({ QRegularExpression(QStringLiteral("//[^\n]*")), singleLineCommentFormat });

    // Greedy: two strings on one line become one span.
    quotationFormat = colourFormat(Qt::darkGreen);
    highlightingRules.append({ QRegularExpression(QStringLiteral("\".*\"")), quotationFormat });

    functionFormat = colourFormat(Qt::blue);
    functionFormat.setFontItalic(true);
    highlightingRules.append({ QRegularExpression(QStringLiteral("\\b[A-Za-z0-9_]+(?=\\()")), functionFormat });

    preprocessorFormat = colourFormat(Qt::darkRed);
    highlightingRules.append({ QRegularExpression(QStringLiteral("#[a-z]*")), preprocessorFormat });

    // Kept for block-spanning comments, which are not coloured: each line stands alone.
    multiLineCommentFormat = colourFormat(Qt::darkYellow);
    commentStartExpression = QRegularExpression(QStringLiteral("/\\*"));
    commentEndExpression = QRegularExpression(QStringLiteral("\\*/"));

    scanner.reset(new RuleScanner(highlightingRules));
}

AnsiCHighlighter::~AnsiCHighlighter() = default;

void AnsiCHighlighter::highlightBlock(const QString &text)
{
    scanner->highlight(text, [this](int start, int count, const QTextCharFormat &format) {
        setFormat(start, count, format);
    });
    setCurrentBlockState(0);
}
