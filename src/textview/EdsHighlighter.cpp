// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "EdsHighlighter.h"

#include "Highlighting_p.h"

using namespace CommonGUIPrivate;

EdsHighlighter::EdsHighlighter(QTextDocument *parent)
    : QSyntaxHighlighter(parent)
{
    keywordFormat = colourFormat(Qt::darkBlue);
    keywordFormat.setFontWeight(QFont::Normal);
    const QStringList keywordPatterns = {
        QStringLiteral("\\bSupportedObjects\\b"), QStringLiteral("\\bParameterName\\b"),
        QStringLiteral("\\bObjectType\\b"), QStringLiteral("\\bDataType\\b"),
        QStringLiteral("\\bAccessType\\b"), QStringLiteral("\\bDefaultValue\\b"),
        QStringLiteral("\\bPDOMapping\\b"), QStringLiteral("\\bSubNumber\\b"),
        QStringLiteral("\\bLowLimit\\b"), QStringLiteral("\\bHighLimit\\b"),
        QStringLiteral("\\bObjFlags\\b"),
    };
    appendRules(highlightingRules, keywordPatterns, keywordFormat);

    // Keys that only a configured device file carries.
    keywordFormat2 = colourFormat(Qt::darkRed);
    keywordFormat2.setFontWeight(QFont::Bold);
    const QStringList keywordPatterns2 = {
        QStringLiteral("\\bDenotation\\b"), QStringLiteral("\\bParameterValue\\b"),
    };
    appendRules(highlightingRules, keywordPatterns2, keywordFormat2);

    singleLineCommentFormat = colourFormat(Qt::darkYellow);
    highlightingRules.append({ QRegularExpression(QStringLiteral(";[^\n]*")), singleLineCommentFormat });

    quotationFormat = colourFormat(Qt::darkGreen);
    highlightingRules.append({ QRegularExpression(QStringLiteral("\".*\"")), quotationFormat });

    sectionFormat = colourFormat(Qt::red);
    highlightingRules.append({ QRegularExpression(QStringLiteral("\\[.*\\]")), sectionFormat });

    scanner.reset(new RuleScanner(highlightingRules));
}

EdsHighlighter::~EdsHighlighter() = default;

void EdsHighlighter::highlightBlock(const QString &text)
{
    scanner->highlight(text, [this](int start, int count, const QTextCharFormat &format) {
        setFormat(start, count, format);
    });
}
