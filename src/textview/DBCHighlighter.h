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

// Rule-based colouring of CAN database (DBC) files.
class COMMONGUI_EXPORT DBCHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit DBCHighlighter(QTextDocument *parent);
    ~DBCHighlighter() override;

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

    QTextCharFormat quotationFormat;
    QTextCharFormat keywordFormat;
    QTextCharFormat keywordFormat2;
    QTextCharFormat singleLineCommentFormat;
};
