// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Helper.h"

#include <QSettings>

namespace {
int s_lastKind = -1;
}

void Helper::initSettings(unsigned char kind)
{
    s_lastKind = kind;
    if (kind == 0)
        QSettings::setDefaultFormat(QSettings::NativeFormat);
    else if (kind == 1)
        QSettings::setDefaultFormat(QSettings::IniFormat);
}

int Helper::lastSettingsKind()
{
    return s_lastKind;
}
