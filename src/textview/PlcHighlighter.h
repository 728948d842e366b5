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

/**
 * A syntax highlighter for IEC 61131 variable declarations of PLC programs:
 * keywords, data types and comments.
 *
 * Create it on a QTextDocument, which then owns it; FileViewerDialog uses it for
 * files ending in ".txt".
 */
class COMMONGUI_EXPORT PlcHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /** Constructs the highlighter on @p parent, which owns it, and colours the document. */
    explicit PlcHighlighter(QTextDocument *parent);
    /** Destroys the highlighter; the document keeps its text without the colours. */
    ~PlcHighlighter() override;

protected:
    /** Colours one line (block) of the document, @p text, by the rule table. */
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
    QTextCharFormat dataTypeFormat;
    QTextCharFormat multiLineCommentFormat;
    QRegularExpression commentStartExpression;
    QRegularExpression commentEndExpression;
};
