// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "XMLHighlighter.h"

#include "Highlighting_p.h"

using namespace CommonGUIPrivate;

XMLHighlighter::XMLHighlighter(QTextDocument *parent)
    : QSyntaxHighlighter(parent)
{
    // Built but not applied: XML is shown uncoloured.
    quotationFormat = colourFormat(Qt::darkGreen);
    highlightingRules.append({ QRegularExpression(QStringLiteral("\".*\"")), quotationFormat });
}

XMLHighlighter::~XMLHighlighter() = default;

void XMLHighlighter::highlightBlock(const QString &text)
{
    Q_UNUSED(text)
}
