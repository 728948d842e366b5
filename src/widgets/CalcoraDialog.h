// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>

namespace Ui { class CalcoraDialog; }

// "Value Converter": one unsigned 64-bit number in binary, decimal and
// hexadecimal at once, or typed as a short run of characters.
class COMMONGUI_EXPORT CalcoraDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CalcoraDialog(QWidget *parent = nullptr);
    ~CalcoraDialog() override;

public Q_SLOTS:
    void on_edtbin_textChanged(const QString &arg1);
    void on_edtDec_textChanged(const QString &arg1);
    void on_edtHex_textChanged(const QString &arg1);
    void on_edtAscii_textChanged(const QString &arg1);

private:
    Ui::CalcoraDialog *ui;
};
