// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CalcoraDialog.h"
#include "ui_CalcoraDialog.h"

#include <QStringList>

#include <cstdint>

CalcoraDialog::CalcoraDialog(QWidget *parent)
    : QDialog(parent)
    , ui(new Ui::CalcoraDialog)
{
    ui->setupUi(this);
}

CalcoraDialog::~CalcoraDialog()
{
    delete ui;
}

void CalcoraDialog::on_edtbin_textChanged(const QString &arg1)
{
    bool ok = false;
    const qulonglong value = arg1.toULongLong(&ok, 2);
    if (!ok)
        return;
    ui->edtDec->setText(QString::number(value, 10));
    ui->edtHex->setText(QString::number(value, 16));
}

void CalcoraDialog::on_edtDec_textChanged(const QString &arg1)
{
    bool ok = false;
    const qulonglong value = arg1.toULongLong(&ok, 10);
    if (!ok)
        return;
    ui->edtHex->setText(QString::number(value, 16));
    ui->edtbin->setText(QString::number(value, 2));
}

void CalcoraDialog::on_edtHex_textChanged(const QString &arg1)
{
    bool ok = false;
    const qulonglong value = arg1.toULongLong(&ok, 16);
    if (!ok)
        return;
    ui->edtDec->setText(QString::number(value, 10));
    ui->edtbin->setText(QString::number(value, 2));
}

void CalcoraDialog::on_edtAscii_textChanged(const QString &arg1)
{
    // The leading empty part counts as position 0, the shift is a 32-bit one
    // and its result is sign-extended: tools rely on exactly these numbers.
    const QStringList parts = arg1.split(QString());
    qulonglong sum = 0;
    for (int i = 0; i < parts.size(); ++i) {
        const QString &part = parts.at(i);
        if (part.isEmpty())
            continue;
        const uint32_t byte = static_cast<unsigned char>(part.toLatin1().at(0));
        const int32_t addend = static_cast<int32_t>(byte << ((8 * i) % 32));
        sum += static_cast<qulonglong>(static_cast<qint64>(addend));
    }
    ui->edtHex->setText(QString::number(sum, 16));
    ui->edtDec->setText(QString::number(sum, 10));
    ui->edtbin->setText(QString::number(sum, 2));
}
