// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QVector>

class QTextDocument;

// Rule-based colouring of XML; deliberately colours nothing.
class COMMONGUI_EXPORT XMLHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit XMLHighlighter(QTextDocument *parent);
    ~XMLHighlighter() override;

protected:
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
