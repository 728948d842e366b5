#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Builds the library and its tests with AddressSanitizer, UndefinedBehaviorSanitizer
# and LeakSanitizer into ${BUILD_DIR:-build-asan} and runs the whole test suite.
# Extra arguments go to cmake (-DQT_MAJOR_VERSION=6 for the Qt 6 flavour).
set -euo pipefail
src="$(cd "$(dirname "$0")/.." && pwd)"
export BUILD_DIR="${BUILD_DIR:-$src/build-asan}"
"$src/scripts/build.sh" -DCMAKE_BUILD_TYPE=Debug -DCOMMONGUI_SANITIZE=address,undefined \
    -DCOMMONGUI_BUILD_BENCHMARKS=OFF -DCOMMONGUI_BUILD_DOCS=OFF "$@"
cd "$BUILD_DIR"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2 --timeout 900
