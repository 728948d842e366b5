// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QVector>

#include <memory>

class QTextDocument;
namespace CommonGUIPrivate { class RuleScanner; }

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
    // Applies highlightingRules with the same outcome, at a fraction of the cost.
    std::unique_ptr<CommonGUIPrivate::RuleScanner> scanner;

    QTextCharFormat keywordFormat;
    QTextCharFormat keywordFormat2;
    QTextCharFormat singleLineCommentFormat;
    QTextCharFormat quotationFormat;
    QTextCharFormat sectionFormat;
};
