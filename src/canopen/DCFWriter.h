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

// Edits an EDS/DCF in place to make the configuration file of one node.
// Every operation but setDCFFile() and writeFile() needs an opened file.
class COMMONGUI_EXPORT DCFWriter : public QObject
{
    Q_OBJECT

public:
    explicit DCFWriter(QObject *parent = nullptr);
    ~DCFWriter() override;

    // Values and denotations in the file are dropped on loading: a data sheet
    // carries only what the application sets afterwards. False if the file is missing.
    bool setDCFFile(const QString &fileName);
    bool writeFile();

    void updateDeviceCommisioning(unsigned short baudrate, unsigned char netNumber,
                                  const QString &networkName, unsigned char nodeId,
                                  const QString &nodeName);
    bool addIndex(unsigned short index, CAN::CANopenDataType dataType,
                  CANopen::ObjectCode objectCode, QString parameterName, unsigned char subNumber);
    bool addNVArray(unsigned short index, CAN::CANopenDataType dataType, QString parameterName,
                    unsigned char subNumber);
    bool addSub(unsigned short index, unsigned char subIndex, CAN::CANopenDataType dataType,
                QString parameterName, QString accessType, bool pdoMapping, QString value);
    bool addNVSub(unsigned short index, unsigned char subIndex, CAN::CANopenDataType dataType,
                  QString parameterName, QString accessType, QString value);
    bool delIndex(unsigned short index);
    bool delSub(unsigned short index, unsigned char subIndex);
    void updateOtherSettings(QString group, QString key, QString value);
    // Writes into the object's section as the file spells it; ignored when absent.
    bool setParameterValue(unsigned short index, unsigned char subIndex, QString value,
                           QString denotation);
    bool setDenotation(unsigned short index, unsigned char subIndex, QString denotation);
    bool existIndex(unsigned short index);
    bool existSub(unsigned short index, unsigned char subIndex);
    void updateOptionalObjects(QList<unsigned short> indices);

private:
    QString existingSection(unsigned short index, unsigned char subIndex) const;

    std::unique_ptr<DCFWriterPrivate> const d;
};
