// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QDialog>

namespace Ui { class CalcoraDialog; }

/**
 * The "Value Converter" dialog: one unsigned 64-bit number shown in binary,
 * decimal and hexadecimal at once, or typed as a short run of characters.
 *
 * Editing one field rewrites the others; a text that is not a valid number in
 * its field's base (empty, stray characters, overflow) changes nothing. The
 * characters field is never rewritten. Its own arithmetic is kept as the tools
 * have always shown it: the first character lands in the second-lowest byte
 * ("A" gives 0x4100), the third in the top byte of the low 32 bits, a fourth
 * wraps to bit 0, and a third character of 0x80 or more sign-extends the value
 * to 64 bits.
 */
class COMMONGUI_EXPORT CalcoraDialog : public QDialog
{
    Q_OBJECT

public:
    /** Constructs the dialog with empty fields. */
    explicit CalcoraDialog(QWidget *parent = nullptr);
    /** Destroys the dialog. */
    ~CalcoraDialog() override;

public Q_SLOTS:
    /** Reads @p arg1 as a binary number and writes it to the decimal and hexadecimal fields. */
    void on_edtbin_textChanged(const QString &arg1);
    /** Reads @p arg1 as a decimal number and writes it to the hexadecimal and binary fields. */
    void on_edtDec_textChanged(const QString &arg1);
    /**
     * Reads @p arg1 as a hexadecimal number, with or without "0x" and in either
     * case, and writes it to the decimal and binary fields.
     */
    void on_edtHex_textChanged(const QString &arg1);
    /** Turns the characters of @p arg1 into a number and writes it to the three number fields. */
    void on_edtAscii_textChanged(const QString &arg1);

private:
    Ui::CalcoraDialog *ui;
};
