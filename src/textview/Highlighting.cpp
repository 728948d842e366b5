// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Highlighting_p.h"

#include <algorithm>
#include <cstring>

namespace CommonGUIPrivate {

namespace {

// Expressions run without Unicode properties: \b and \w know ASCII word characters only.
inline bool isWord(ushort c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool isWordPattern(const QString &word)
{
    if (word.isEmpty())
        return false;
    for (QChar c : word) {
        if (!isWord(c.unicode()))
            return false;
    }
    return true;
}

bool isPlain(QChar c)
{
    return !QStringLiteral("\\^$.|?*+()[]{}").contains(c);
}

// One character, either plain or escaped with a backslash; advances pos.
bool takeChar(const QString &pattern, int &pos, QChar &c)
{
    if (pos < pattern.size() && pattern.at(pos) == QLatin1Char('\\')) {
        if (pos + 1 >= pattern.size() || isWord(pattern.at(pos + 1).unicode()))
            return false;  // \b, \d and the like are not characters
        c = pattern.at(pos + 1);
        pos += 2;
        return true;
    }
    if (pos < pattern.size() && isPlain(pattern.at(pos))) {
        c = pattern.at(pos++);
        return true;
    }
    return false;
}

// A subject that is not valid UTF-16 is refused by the engine: nothing matches.
bool isValidUtf16(const ushort *s, int n)
{
    for (int i = 0; i < n; ++i) {
        const ushort c = s[i];
        if ((c & 0xF800) != 0xD800)
            continue;
        if (c >= 0xDC00 || i + 1 == n || (s[i + 1] & 0xFC00) != 0xDC00)
            return false;
        ++i;
    }
    return true;
}

int lineEnd(const ushort *s, int from, int n)
{
    while (from < n && s[from] != '\n')
        ++from;
    return from;
}

} // namespace

void RuleScanner::addRule(const QRegularExpression &expression, const QTextCharFormat &format)
{
    m_formats.append(format);
    const quint8 id = quint8(qMin(m_formats.size(), 255));
    const QString pattern = expression.pattern();
    const QString wordsStart = QStringLiteral("\\b"), wordsEnd = QStringLiteral("\\b");

    Step step;
    step.id = id;
    const bool qWord = pattern == QLatin1String("\\bQ[A-Za-z]+\\b");
    const bool word = pattern.size() > 4 && pattern.startsWith(wordsStart) && pattern.endsWith(wordsEnd)
        && isWordPattern(pattern.mid(2, pattern.size() - 4));
    if ((word || qWord) && m_formats.size() <= 255 && expression.patternOptions() == QRegularExpression::NoPatternOption) {
        // Neighbouring whole-word rules share one step: one lookup per word of the line.
        if (m_steps.isEmpty() || m_steps.last().kind != Words) {
            step.kind = Words;
            m_steps.append(step);
        }
        Step &words = m_steps.last();
        if (qWord) {
            words.qWordId = id;
        } else {
            const QString w = pattern.mid(2, pattern.size() - 4);
            words.words.append(w);
            words.wordIds.append(id);
            words.minLength = qMin(words.minLength, int(w.size()));
            words.maxLength = qMax(words.maxLength, int(w.size()));
        }
        return;
    }

    int pos = 0;
    QChar open, close;
    if (m_formats.size() > 255 || expression.patternOptions() != QRegularExpression::NoPatternOption) {
        step.kind = Expression;
    } else if (pattern == QLatin1String("\\b[A-Za-z0-9_]+(?=\\()")) {
        step.kind = Call;
    } else if (pattern == QLatin1String("#[a-z]*")) {
        step.kind = Hash;
    } else if (pattern.endsWith(QLatin1String("[^\n]*")) && pattern.size() > 5
               && std::all_of(pattern.begin(), pattern.end() - 5, isPlain)) {
        step.kind = LineTail;
        step.literal = pattern.left(pattern.size() - 5);
    } else if (pattern.startsWith(QLatin1Char('^')) && (pos = 1, takeChar(pattern, pos, open))
               && pattern.mid(pos) == QLatin1String(".*")) {
        step.kind = LineStart;
        step.open = open;
    } else if ((pos = 0, takeChar(pattern, pos, open)) && pattern.mid(pos, 2) == QLatin1String(".*")
               && (pos += 2, takeChar(pattern, pos, close)) && pos == pattern.size()) {
        step.kind = Span;
        step.open = open;
        step.close = close;
    } else {
        step.kind = Expression;
    }
    if (step.kind == Expression)
        step.expression = expression;
    m_steps.append(step);
}

quint8 RuleScanner::wordId(const Step &step, const QChar *word, int length) const
{
    quint8 id = 0;
    if (length >= step.minLength && length <= step.maxLength) {
        for (int i = step.words.size() - 1; i >= 0; --i) {
            const QString &w = step.words.at(i);
            if (w.size() == length && w.at(0) == word[0]
                && std::memcmp(w.constData(), word, size_t(length) * sizeof(QChar)) == 0) {
                id = step.wordIds.at(i);
                break;
            }
        }
    }
    if (step.qWordId > id && length > 1 && word[0] == QLatin1Char('Q')) {
        bool letters = true;
        for (int i = 1; i < length && letters; ++i) {
            const ushort c = word[i].unicode();
            letters = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        }
        if (letters)
            id = step.qWordId;
    }
    return id;
}

bool RuleScanner::mark(const QString &text)
{
    const int n = text.size();
    const ushort *s = text.utf16();
    if (n == 0 || !isValidUtf16(s, n))
        return false;
    m_marks.resize(n);
    quint8 *marks = m_marks.data();
    std::memset(marks, 0, size_t(n));
    auto fill = [marks](int from, int to, quint8 id) { std::memset(marks + from, id, size_t(to - from)); };

    for (const Step &step : qAsConst(m_steps)) {
        switch (step.kind) {
        case Words:
            for (int i = 0; i < n;) {
                if (!isWord(s[i])) {
                    ++i;
                    continue;
                }
                int end = i + 1;
                while (end < n && isWord(s[end]))
                    ++end;
                if (const quint8 id = wordId(step, text.constData() + i, end - i))
                    fill(i, end, id);
                i = end;
            }
            break;
        case Call:
            for (int i = 1; i < n; ++i) {
                if (s[i] != '(' || !isWord(s[i - 1]))
                    continue;
                int start = i - 1;
                while (start > 0 && isWord(s[start - 1]))
                    --start;
                fill(start, i, step.id);
            }
            break;
        case Hash:
            for (int i = 0; i < n; ++i) {
                if (s[i] != '#')
                    continue;
                int end = i + 1;
                while (end < n && s[end] >= 'a' && s[end] <= 'z')
                    ++end;
                fill(i, end, step.id);
                i = end - 1;
            }
            break;
        case LineTail: {
            int from = 0;
            for (;;) {
                const int at = text.indexOf(step.literal, from);
                if (at < 0)
                    break;
                const int end = lineEnd(s, at + step.literal.size(), n);
                fill(at, end, step.id);
                from = end;
            }
            break;
        }
        case LineStart:
            if (s[0] == step.open.unicode())
                fill(0, lineEnd(s, 1, n), step.id);
            break;
        case Span:
            // Greedy: from the first opener to the last closer, in each line-feed-free stretch.
            for (int segment = 0; segment < n;) {
                const int end = lineEnd(s, segment, n);
                int first = -1, last = -1;
                for (int i = segment; i < end; ++i) {
                    if (first < 0 && s[i] == step.open.unicode())
                        first = i;
                    else if (first >= 0 && s[i] == step.close.unicode())
                        last = i;
                }
                if (first >= 0 && last > first)
                    fill(first, last + 1, step.id);
                segment = end + 1;
            }
            break;
        case Expression: {
            QRegularExpressionMatchIterator it = step.expression.globalMatch(text);
            while (it.hasNext()) {
                const QRegularExpressionMatch match = it.next();
                fill(match.capturedStart(0), match.capturedEnd(0), step.id);
            }
            break;
        }
        }
    }
    return true;
}

} // namespace CommonGUIPrivate
