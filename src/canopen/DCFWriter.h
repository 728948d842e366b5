// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "CANopenTypes.h"
#include "commongui_export.h"

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class DCFWriterPrivate;

/**
 * Edits an EDS or DCF in place to make the device configuration file of one
 * node, object by object.
 *
 * Sections are named by the index in four lower-case hex digits ("1a00") and
 * sub-objects by index, "sub" and the sub-index without padding ("1a00sub1a");
 * the commissioning section is spelled "DeviceComissioning", as all tools of
 * the family read it. Lines the writer does not change are written back byte
 * for byte. All writers on one file within the process share one text; a
 * change is saved on the next pass of the event loop, by writeFile() or when
 * the writer goes, and a file changed on disk meanwhile is read again and the
 * process's edits applied to it. Every operation except setDCFFile() and
 * writeFile() needs a file opened by setDCFFile(). Only setDCFFile() reports a
 * failure; the other operations report success unconditionally.
 */
class COMMONGUI_EXPORT DCFWriter : public QObject
{
    Q_OBJECT

public:
    /** Constructs a writer without a file. */
    explicit DCFWriter(QObject *parent = nullptr);
    /** Destroys the writer; pending edits are saved. */
    ~DCFWriter() override;

    /**
     * Opens @p fileName for editing and drops every "ParameterValue" and
     * "Denotation" key in it, in any letter case: a data sheet carries only the
     * values the tool sets afterwards. Returns false, changing nothing, when the
     * file does not exist.
     */
    bool setDCFFile(const QString &fileName);
    /** Saves pending edits to disk now; returns true, also when no file is open. */
    bool writeFile();

    /**
     * Sets "Baudrate" (@p baudrate as given), "NodeID", "NetNumber",
     * "NetworkName" and "NodeName" in the section "DeviceComissioning".
     */
    void updateDeviceCommisioning(unsigned short baudrate, unsigned char netNumber,
                                  const QString &networkName, unsigned char nodeId,
                                  const QString &nodeName);
    /**
     * Writes "ParameterName", "ObjectType" (@p objectCode in decimal) and
     * "SubNumber" into the section of @p index, creating it. @p dataType is not
     * written. Returns true.
     */
    bool addIndex(unsigned short index, CAN::CANopenDataType dataType,
                  CANopen::ObjectCode objectCode, QString parameterName, unsigned char subNumber);
    /** As addIndex() with "ObjectType" 8 (ARRAY). Returns true. */
    bool addNVArray(unsigned short index, CAN::CANopenDataType dataType, QString parameterName,
                    unsigned char subNumber);
    /**
     * Writes a sub-object section: "ParameterName" and "Denotation"
     * (@p parameterName), "ObjectType" 7, "DataType" ("0x" and lower-case hex),
     * "PDOMapping" ("0x1" or "0x0") and "AccessType". A non-empty @p value goes
     * to "ParameterValue", and for sub-index 0 also to "DefaultValue". Returns true.
     */
    bool addSub(unsigned short index, unsigned char subIndex, CAN::CANopenDataType dataType,
                QString parameterName, QString accessType, bool pdoMapping, QString value);
    /**
     * As addSub(), but "PDOMapping" is "0x1" for every sub-index except 0 and
     * no "DefaultValue" is written. Returns true.
     */
    bool addNVSub(unsigned short index, unsigned char subIndex, CAN::CANopenDataType dataType,
                  QString parameterName, QString accessType, QString value);
    /**
     * Removes the section of @p index, spelled in lower and in upper case; its
     * sub-object sections stay. Returns true.
     */
    bool delIndex(unsigned short index);
    /**
     * Removes the section of the sub-object in three spellings (1a00sub1a,
     * 1A00SUB1A, 1A00sub1A). Returns true.
     */
    bool delSub(unsigned short index, unsigned char subIndex);
    /** Sets @p key in section @p group to @p value, for any other entry such as "FileInfo" keys. */
    void updateOtherSettings(QString group, QString key, QString value);
    /**
     * Stores a configured @p value and @p denotation (each only when not empty)
     * in the existing section of the object, as the file spells it; a VAR
     * object's sub-index 0 is its index section. When the file has no such
     * section nothing is written. Returns true.
     */
    bool setParameterValue(unsigned short index, unsigned char subIndex, QString value,
                           QString denotation);
    /** As setParameterValue() for the denotation alone. Returns true. */
    bool setDenotation(unsigned short index, unsigned char subIndex, QString denotation);
    /** Returns whether the file has a section for @p index, in any letter case. */
    bool existIndex(unsigned short index);
    /** Returns whether the file has a section for the sub-object, in any letter case. */
    bool existSub(unsigned short index, unsigned char subIndex);
    /**
     * Rewrites the section "OptionalObjects" with @p indices, sorted and without
     * repetitions, under the keys "1", "2", ... ("0x1a00") and "SupportedObjects";
     * numbered keys of the old list are removed.
     */
    void updateOptionalObjects(QList<unsigned short> indices);

private:
    QString existingSection(unsigned short index, unsigned char subIndex) const;

    std::unique_ptr<DCFWriterPrivate> const d;
};
