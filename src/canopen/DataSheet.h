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

/** One object or sub-object of a data sheet that holds a value, as DataSheet::objects() lists it. */
struct COMMONGUI_EXPORT DataSheetObject
{
    quint16 index = 0;  ///< The object's index.
    quint8 subIndex = 0;  ///< The sub-index; 0 for a VAR without sub-sections.
    QString section;  ///< The section as the file spells it, e.g. "1A00sub1".
    QString name;  ///< ParameterName.
    QString dataTypeText;  ///< DataType as written, e.g. "0x0007".
    int dataType = -1;  ///< DataType as a number; -1 when the text is not one.
    QString accessType;  ///< AccessType in lower case: "ro", "rw", "const", ...
    QString defaultValue;  ///< DefaultValue, "$NODEID" forms included.
    QString parameterValue;  ///< ParameterValue (set in a DCF).
    QString denotation;  ///< Denotation (set in a DCF).

    /** Whether the object is writable (rw, wo, rww, rwr): only these reach a concise DCF. */
    bool isWritable() const;
};

/**
 * Reads an EDS or DCF as the file holds it.
 *
 * Values keep their commas, quotes and "$NODEID" forms (a settings reader
 * would split "Output 1, inverted" into a list), sections and keys are found
 * whatever their letter case, CRLF and LF files read alike, and a file that is
 * not UTF-8 is read as Latin-1.
 * \code
 * DataSheet sheet;
 * if (sheet.load("device.eds"))
 *     for (const DataSheetObject &object : sheet.objects())
 *         qDebug() << object.index << object.name << object.defaultValue;
 * \endcode
 */
class COMMONGUI_EXPORT DataSheet
{
public:
    /** Constructs an empty sheet. */
    DataSheet();
    ~DataSheet();
    DataSheet(const DataSheet &) = delete;
    DataSheet &operator=(const DataSheet &) = delete;

    /**
     * Reads @p fileName as this process sees it: with the edits of a DCFWriter
     * open on it that are not saved yet. False, with an empty sheet and the
     * reason in @p error, when it cannot be read.
     */
    bool load(const QString &fileName, QString *error = nullptr);
    /** Reads the text of a sheet. */
    void parse(const QByteArray &bytes);
    /** Whether the text was not UTF-8 and was read as Latin-1. */
    bool isLatin1() const { return m_latin1; }

    /** The section names as spelled in the file. */
    QStringList sections() const;
    /** Whether @p section holds @p key, both in any letter case. */
    bool contains(const QString &section, const QString &key) const;
    /** The trimmed text after the '=' of @p key in @p section, exactly as written. */
    QString value(const QString &section, const QString &key, const QString &defaultValue = QString()) const;

    /**
     * The value-carrying objects (VAR sections and sub-objects with a DataType),
     * in index and sub-index order; of two spellings of one section the first
     * in sorted order wins, as in the concise DCF.
     */
    QList<DataSheetObject> objects() const;
    /** DeviceComissioning/NodeID when it is a node id (1 to 127), else -1. */
    int nodeId() const;

    /**
     * Empty when @p value can be written for the data type of @p object, else
     * the reason (syntax or range), as the concise DCF would report it.
     * "$NODEID" is resolved with @p nodeId (-1: unknown, which such a value fails).
     */
    static QString checkValue(const DataSheetObject &object, const QString &value, int nodeId);

private:
    QString path(const QString &section, const QString &key) const;

    std::unique_ptr<IniDocument> m_document;
    QHash<QString, QString> m_paths;  // section + "/" + lower-case key -> path as written
    QHash<QString, QString> m_sections;  // lower-case name -> first spelling
    QStringList m_sectionOrder;
    bool m_latin1 = false;
};
