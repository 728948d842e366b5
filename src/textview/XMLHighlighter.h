// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QVector>

class QTextDocument;

/**
 * A syntax highlighter for XML files that, as in all tools of the family,
 * colours nothing: its rule table is empty.
 *
 * Create it on a QTextDocument, which then owns it; FileViewerDialog uses it for
 * files ending in ".xml".
 */
class COMMONGUI_EXPORT XMLHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /** Constructs the highlighter on @p parent, which owns it, and colours the document. */
    explicit XMLHighlighter(QTextDocument *parent);
    /** Destroys the highlighter; the document keeps its text without the colours. */
    ~XMLHighlighter() override;

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

    QTextCharFormat quotationFormat;
};
