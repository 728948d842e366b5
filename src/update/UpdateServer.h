// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "commongui_export.h"

#include <QUrl>

/**
 * The library's own helpers that have no class of their own: the update server's
 * address and the version of the CANopen name tables.
 */
namespace CommonGUI {

/**
 * Returns the base URL of the maker's update server: scheme, host and optional
 * port, without a path. The environment variable \c COMMONGUI_UPDATE_SERVER,
 * read at every call, overrides the default chosen at build time; an override
 * that is not a valid URL with scheme and host is ignored. A path in either is
 * dropped.
 */
COMMONGUI_EXPORT QUrl updateServerUrl();

/**
 * Returns the update server's base URL chosen at build time (the CMake cache
 * variable \c COMMONGUI_UPDATE_SERVER), ignoring the environment.
 */
COMMONGUI_EXPORT QUrl defaultUpdateServerUrl();

}
