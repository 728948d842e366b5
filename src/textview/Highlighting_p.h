// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QRegularExpression>
#include <QRegularExpressionMatchIterator>
#include <QStringList>
#include <QTextCharFormat>

namespace CommonGUIPrivate {

inline QTextCharFormat colourFormat(Qt::GlobalColor colour)
{
    QTextCharFormat format;
    format.setForeground(QBrush(colour, Qt::SolidPattern));
    return format;
}

// Later rules overwrite earlier ones where they overlap: list order is the precedence.
template<typename Rule, typename SetFormat>
void applyRules(const QVector<Rule> &rules, const QString &text, SetFormat setFormat)
{
    for (const Rule &rule : rules) {
        QRegularExpressionMatchIterator it = rule.pattern.globalMatch(text);
        while (it.hasNext()) {
            const QRegularExpressionMatch match = it.next();
            setFormat(match.capturedStart(0), match.capturedLength(0), rule.format);
        }
    }
}

template<typename Rule>
void appendRules(QVector<Rule> &rules, const QStringList &patterns, const QTextCharFormat &format)
{
    for (const QString &pattern : patterns)
        rules.append(Rule{ QRegularExpression(pattern), format });
}

} // namespace CommonGUIPrivate
