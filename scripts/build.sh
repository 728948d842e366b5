#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Configures and builds into ${BUILD_DIR:-build}. Extra arguments go to cmake.
set -euo pipefail
src="$(cd "$(dirname "$0")/.." && pwd)"
build="${BUILD_DIR:-$src/build}"
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S "$src" -B "$build" "${launcher[@]}" "$@"
cmake --build "$build" -j2
