// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QUrl>

namespace CommonGUI {

// Base URL of the maker's update server (scheme, host, optional port; no path).
// The environment variable COMMONGUI_UPDATE_SERVER, read at every call, overrides
// the default chosen at build time. An invalid override falls back to the default.
COMMONGUI_EXPORT QUrl updateServerUrl();

// The build-time default alone.
COMMONGUI_EXPORT QUrl defaultUpdateServerUrl();

}
