// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// Turning a device's data sheet into the configuration of one node.
#include <CommonGUI/ConciseDcfCreator.h>
#include <CommonGUI/DCFWriter.h>

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        QTextStream(stderr) << "usage: canopen <device.eds> <node.dcf>\n";
        return 2;
    }
    const QString dcf = QString::fromLocal8Bit(argv[2]);
    // The writer edits in place: start from a copy of the data sheet.
    QFile::remove(dcf);
    if (!QFile::copy(QString::fromLocal8Bit(argv[1]), dcf))
        return 1;
    QFile::setPermissions(dcf, QFile::permissions(dcf) | QFile::WriteOwner);

    {
        DCFWriter writer;
        if (!writer.setDCFFile(dcf))  // drops the values the data sheet carried
            return 1;
        writer.updateDeviceCommisioning(500, 1, QStringLiteral("Line 1"), 5, QStringLiteral("Pump"));
        writer.setParameterValue(0x1017, 0, QStringLiteral("1000"), QStringLiteral("Heartbeat 1 s"));
        writer.setParameterValue(0x1800, 1, QStringLiteral("$NODEID+0x180"), QString());
        if (!writer.existSub(0x2000, 1))
            writer.addSub(0x2000, 1, CAN::UNSIGNED16, QStringLiteral("Set point"), QStringLiteral("rw"), true,
                          QStringLiteral("250"));
        writer.writeFile();  // untouched lines stay byte for byte
    }

    ConciseDcfCreator creator(dcf);
    if (!creator.writeConciseDcf(dcf + QStringLiteral(".cdcf"))) {
        QTextStream(stderr) << creator.errorString() << '\n';  // object and reason, nothing written
        return 1;
    }
    return 0;
}
