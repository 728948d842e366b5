// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace TestSupport {

// A temporary folder that hands out a new file for each text written.
class SheetFolder
{
public:
    bool isValid() const { return m_dir.isValid(); }
    QString errorString() const { return m_dir.errorString(); }
    QString filePath(const QString &name) const { return m_dir.filePath(name); }
    // "sheet<n>.dcf" holding the text; empty when it cannot be written.
    QString write(const QByteArray &text);

private:
    QTemporaryDir m_dir;
    int m_files = 0;
};

// The bytes of a file; empty when it cannot be read.
QByteArray readFile(const QString &fileName);
// Replaces the file with the bytes; false when it cannot be written.
bool writeFile(const QString &fileName, const QByteArray &bytes);

}
