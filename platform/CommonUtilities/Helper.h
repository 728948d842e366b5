// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGlobal>

#if defined(COMMONUTILITIES_LIBRARY)
#  define COMMONUTILITIES_EXPORT Q_DECL_EXPORT
#else
#  define COMMONUTILITIES_EXPORT Q_DECL_IMPORT
#endif

// Prepares the tool's settings store. The kind byte selects where QSettings keeps
// the tool's state from now on:
//   0  QSettings::NativeFormat (on Linux: INI text under ~/.config)
//   1  QSettings::IniFormat
//   other values are remembered but change nothing.
class COMMONUTILITIES_EXPORT Helper
{
public:
    static void initSettings(unsigned char kind);

    // The byte received by the last initSettings() call, -1 before any call.
    static int lastSettingsKind();
};
