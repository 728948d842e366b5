// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CANopenTypes.h"

QString CommonGUI::version = QStringLiteral("0.9");
