// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#ifndef COMMONGUI_TEXTCOMPAT_P_H
#define COMMONGUI_TEXTCOMPAT_P_H

// Text encodings the library fixes to UTF-8 whatever the Qt version's default is.
// Header-only and not installed: the tests and harnesses of the tree use it too.

#include <QSettings>
#include <QString>
#include <QTextStream>

namespace CommonGUICompat {

inline void useUtf8(QTextStream &stream)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    stream.setEncoding(QStringConverter::Utf8);
#else
    stream.setCodec("UTF-8");
#endif
}

// Qt 6 reads and writes INI files as UTF-8 always; Qt 5 has to be told.
inline void useUtf8(QSettings &settings)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    settings.setIniCodec("UTF-8");
#else
    Q_UNUSED(settings)
#endif
}

} // namespace CommonGUICompat

#endif
