// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QRegularExpression>
#include <QStringList>
#include <QTextCharFormat>
#include <QVector>

#include <climits>

namespace CommonGUIPrivate {

inline QTextCharFormat colourFormat(Qt::GlobalColor colour)
{
    QTextCharFormat format;
    format.setForeground(QBrush(colour, Qt::SolidPattern));
    return format;
}

template<typename Rule>
void appendRules(QVector<Rule> &rules, const QStringList &patterns, const QTextCharFormat &format)
{
    for (const QString &pattern : patterns)
        rules.append(Rule{ QRegularExpression(pattern), format });
}

// Gives the same colours as running every rule's expression over the line in
// list order (later rules overwrite earlier ones), without running them: each
// rule shape the highlighters use is recognised from its pattern and matched by
// a plain scan; consecutive whole-word rules become one table lookup per word.
// A pattern of another shape still runs as an expression.
class RuleScanner
{
public:
    template<typename Rule>
    explicit RuleScanner(const QVector<Rule> &rules)
    {
        for (const Rule &rule : rules)
            addRule(rule.pattern, rule.format);
    }

    // Reports each run of characters that ends up with one rule's format.
    template<typename Fn>
    void highlight(const QString &text, Fn setFormat)
    {
        if (!mark(text))
            return;
        const int n = text.size();
        const quint8 *marks = m_marks.constData();
        for (int i = 0; i < n;) {
            const quint8 id = marks[i];
            int end = i + 1;
            while (end < n && marks[end] == id)
                ++end;
            if (id)
                setFormat(i, end - i, m_formats.at(id - 1));
            i = end;
        }
    }

private:
    enum Kind { Words, Call, LineTail, LineStart, Span, Hash, Expression };
    struct Step
    {
        Kind kind;
        quint8 id = 0;          // rule index + 1
        QString literal;        // LineTail opener
        QChar open, close;      // Span, LineStart
        QRegularExpression expression;
        // Words: whole words and the rule of each, plus the rule for Q words.
        QStringList words;
        QVector<quint8> wordIds;
        quint8 qWordId = 0;
        int minLength = INT_MAX, maxLength = 0;
    };

    void addRule(const QRegularExpression &pattern, const QTextCharFormat &format);
    bool mark(const QString &text);
    quint8 wordId(const Step &step, const QChar *word, int length) const;

    QVector<Step> m_steps;
    QVector<QTextCharFormat> m_formats;
    QVector<quint8> m_marks;  // per character: rule index + 1, 0 for none; reused
};

} // namespace CommonGUIPrivate
