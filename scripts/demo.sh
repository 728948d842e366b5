#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Sets everything up and runs the demo tool. Without a display it runs under
# Xvfb if it can, otherwise it writes screenshots of every window.
set -euo pipefail
src="$(cd "$(dirname "$0")/.." && pwd)"
"$src/scripts/install-deps.sh"
"$src/scripts/build.sh"
demo="${BUILD_DIR:-$src/build}/examples/commongui-demo"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$demo" "$@"
fi
shots="${BUILD_DIR:-$src/build}/screenshots"
"$demo" --screenshots "$shots"
echo "No display: screenshots of every window are in $shots"
