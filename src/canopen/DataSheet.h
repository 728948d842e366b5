// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class IniDocument;

// One object or sub-object of a data sheet that holds a value.
struct COMMONGUI_EXPORT DataSheetObject
{
    quint16 index = 0;
    quint8 subIndex = 0;
    QString section;  // as the file spells it, e.g. "1A00sub1"
    QString name;
    QString dataTypeText;  // as written, e.g. "0x0007"
    int dataType = -1;  // -1 when the text is not a number
    QString accessType;  // lower case: "ro", "rw", "const", ...
    QString defaultValue;
    QString parameterValue;
    QString denotation;

    // Only these reach the concise DCF; the DCF takes every value.
    bool isWritable() const;
};

// Reads an EDS or DCF as the file holds it: values keep their commas, quotes
// and "$NODEID" forms, sections and keys are found whatever their letter case,
// CRLF and LF files read alike, and a file that is not UTF-8 is read as Latin-1.
class COMMONGUI_EXPORT DataSheet
{
public:
    DataSheet();
    ~DataSheet();
    DataSheet(const DataSheet &) = delete;
    DataSheet &operator=(const DataSheet &) = delete;

    // False, with an empty sheet, when the file cannot be read.
    bool load(const QString &fileName, QString *error = nullptr);
    void parse(const QByteArray &bytes);
    // Whether the text was not UTF-8 and was read as Latin-1.
    bool isLatin1() const { return m_latin1; }

    // Section names as spelled in the file.
    QStringList sections() const;
    bool contains(const QString &section, const QString &key) const;
    // Trimmed text after the '=', exactly as written.
    QString value(const QString &section, const QString &key, const QString &defaultValue = QString()) const;

    // Value-carrying objects (VAR sections and sub-objects with a DataType),
    // in index and sub-index order; the first spelling of a section wins.
    QList<DataSheetObject> objects() const;
    // DeviceComissioning/NodeID when it is a node id (1..127), else -1.
    int nodeId() const;

    // Empty when `value` can be written for the object's data type, else the
    // reason (syntax or range); "$NODEID" is resolved with nodeId (-1: unknown).
    static QString checkValue(const DataSheetObject &object, const QString &value, int nodeId);

private:
    QString path(const QString &section, const QString &key) const;

    std::unique_ptr<IniDocument> m_document;
    QHash<QString, QString> m_paths;  // lower-case path -> path as written
    QHash<QString, QString> m_sections;  // lower-case name -> first spelling
    QStringList m_sectionOrder;
    bool m_latin1 = false;
};
