// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TestFiles.h"

#include <QFile>

namespace TestSupport {

QString SheetFolder::write(const QByteArray &text)
{
    const QString name = m_dir.filePath(QStringLiteral("sheet%1.dcf").arg(++m_files));
    return writeFile(name, text) ? name : QString();
}

QByteArray readFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

bool writeFile(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

}
