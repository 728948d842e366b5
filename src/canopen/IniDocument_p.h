// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <functional>
#include <vector>

// An INI text edited in place. Keys and sections are read the way QSettings
// reads them, values are written the way it writes them, and every line that
// is not edited is kept byte for byte.
class IniDocument
{
public:
    void parse(const QByteArray &bytes);
    QByteArray toBytes() const;

    bool load(const QString &fileName, QString *error);
    // Replaces the file only once the new text is completely written.
    bool save(const QString &fileName, QString *error) const;

    QStringList allKeys() const;
    QStringList childGroups() const;
    bool contains(const QString &path) const;
    // The value as the settings reader returns it: text, a list where commas
    // split it, or another type for the "@Type(...)" forms.
    QVariant variantValue(const QString &path, const QVariant &defaultValue = QVariant()) const;
    // The same as text, as QVariant::toString() gives it (empty for lists).
    QString value(const QString &path, const QString &defaultValue = QString()) const;
    void setValue(const QString &path, const QString &value);
    // A key, or a whole group with all its keys; true if anything went.
    bool remove(const QString &path);
    // Removes every key whose path the predicate accepts, as removing each path
    // in turn would; true if any went. The paths listed go to `removed`.
    bool removeKeysIf(const std::function<bool(const QString &)> &accept, QStringList *removed = nullptr);
    // As remove() for each path, in one pass over the text.
    bool removeAll(const QStringList &paths);

    static QByteArray escapedKey(const QString &key);
    static QByteArray escapedValue(const QString &value);
    static QString unescapedKey(const QByteArray &raw);
    static QVariant parsedValue(const QByteArray &raw);
    static QVariant typedValue(const QString &text);

private:
    // Lines point into the loaded text until they are rewritten: no copy per line.
    struct Line
    {
        int offset = 0;
        int length = 0;
        int block = 0;
        int keyBegin = 0;  // raw key, relative to the line's start
        int keyLength = 0;
        int equals = 0;  // the '=' and the end of the value, relative as well
        int valueEnd = 0;
        bool extra = false;  // offset and length point into m_extra: rewritten or added
        bool key = false;
        bool plainKey = false;  // no escapes: raw bytes are the key
        bool bomKey = false;  // the byte order mark before it is part of the key
        bool removed = false;
    };
    struct Block
    {
        QString name;  // "" for keys outside any section
        QString prefix;  // what the keys' paths start with: "" outside sections, else name + "/"
        int header = -1;
        int nextSameName = -1;
        int liveKeys = 0;
        // Lines as loaded are a run of ids; added keys go in after one of them.
        int first = 0;
        int count = 0;
        int insertAt = -1;
        QVector<int> inserted;
        bool removed = false;
        bool added = false;
        // Line ids by key in the order the lines are read, built on the first
        // lookup in a long block: added keys cost no scan of the section.
        mutable QHash<QString, QVector<int>> keyIndex;
        mutable bool indexed = false;
    };

    template<typename F>
    void forEachLine(const Block &block, F f) const
    {
        int i = 0;
        for (; i <= block.insertAt && i < block.count; ++i)
            f(block.first + i);
        for (int id : block.inserted)
            f(id);
        for (; i < block.count; ++i)
            f(block.first + i);
    }

    static QByteArray headerText(const QString &name);
    QVariant lineValue(int id) const;
    // The last live line of the key in the block, or -1.
    int lastLineOf(const Block &block, const QString &key) const;
    QByteArray rawLine(int id) const;
    QByteArray rawKey(const Line &line) const;
    QString keyOf(const Line &line) const;
    // The line's full path, "section/key", written over `path`.
    void pathOf(const Block &block, const Line &line, QString *path) const;
    bool keyEquals(const Line &line, const QString &key) const;
    bool keyStartsWith(const Line &line, const QString &prefix) const;
    // sectionBlock: the last block of the section before the first slash, or -1.
    int findLine(const QString &path, int *sectionBlock = nullptr) const;
    void removeLine(int id);
    void removeBlock(int id);
    int newBlock(const QString &name);
    void setText(Line &line, const QByteArray &text);
    const char *base(const Line &line) const;

    QByteArray m_source;
    QByteArray m_eol = "\n";
    bool m_bom = false;
    std::vector<Line> m_lines;
    std::vector<Block> m_blocks;
    // The last entry when it runs to the end of the text (open quote or escape),
    // and what closes it once anything follows.
    int m_openLine = -1;
    QByteArray m_openEnd;
    QByteArray m_extra;  // text of rewritten and added lines, appended
    QHash<QString, int> m_firstBlock;  // path prefix -> first block with it
    QSet<QString> m_slashedSections;  // section names holding an escaped slash
};
