// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
// A device-configuration window that edits a node's EEPROM image in a QHexEdit.
#include <CommonGUI/QHexEdit.h>

#include <QApplication>
#include <QLabel>
#include <QUndoStack>
#include <QVBoxLayout>
#include <QWidget>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);

    QWidget window;
    auto layout = new QVBoxLayout(&window);
    auto edit = new QHexEdit(&window);
    edit->setObjectName(QStringLiteral("hexEeprom"));  // also the settings key
    auto status = new QLabel(&window);
    layout->addWidget(edit);
    layout->addWidget(status);

    // A fixed-size image: overwrite only, never longer than the EEPROM.
    const QByteArray eeprom(2048, '\xff');
    edit->setData(eeprom);
    edit->setMaxSize(eeprom.size());
    edit->setOverwriteMode(true);
    edit->setAddressOffset(0x4000);

    QObject::connect(edit, &QHexEdit::currentAddressChanged, status, [status, edit](int address) {
        status->setText(QStringLiteral("0x%1 of %2 bytes").arg(address, 4, 16, QChar('0')).arg(edit->size()));
    });
    QObject::connect(edit, &QHexEdit::dataChanged, &window, [edit] {
        // Only the bytes the user touched need to go to the device.
        int changed = 0;
        for (int i = 0; i < edit->size(); ++i)
            changed += edit->isByteChanged(i);
        edit->window()->setWindowModified(changed > 0);
    });
    // Refused input (a non-hex key, a full image, a paste of plain text) is told, not lost.
    QObject::connect(edit, &QHexEdit::inputRefused, status, &QLabel::setText);
    // Jump to the node's serial-number record, if the image has one.
    if (edit->find(QByteArrayLiteral("SN:"), QHexEdit::FindWrapAround))
        status->setText(QStringLiteral("serial number at 0x%1").arg(edit->selectionStart() + edit->addressOffset(), 4, 16));
    window.setWindowTitle(QStringLiteral("EEPROM[*]"));
    window.show();

    const int result = app.exec();
    const QByteArray toWrite = edit->data();  // what a tool would download to the node
    Q_UNUSED(toWrite);
    return result;
}
