// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QVector>

class QTextDocument;

// Rule-based colouring of CANopen EDS and DCF files.
class COMMONGUI_EXPORT EdsHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit EdsHighlighter(QTextDocument *parent);
    ~EdsHighlighter() override;

protected:
    void highlightBlock(const QString &text) override;

private:
    struct HighlightingRule
    {
        QRegularExpression pattern;
        QTextCharFormat format;
    };
    QVector<HighlightingRule> highlightingRules;

    QTextCharFormat keywordFormat;
    QTextCharFormat keywordFormat2;
    QTextCharFormat singleLineCommentFormat;
    QTextCharFormat quotationFormat;
    QTextCharFormat sectionFormat;
};
