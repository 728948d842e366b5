#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Builds the Debian packages (libcommongui1, libcommongui-dev and their -dbgsym
# packages) with debhelper from a copy of the tree, so the tree stays untouched.
# The .deb files land in ${DEB_DIR:-build-deb}.
set -euo pipefail
src="$(cd "$(dirname "$0")/.." && pwd)"
out="${DEB_DIR:-$src/build-deb}"
rm -rf "$out"
mkdir -p "$out/commongui"
tar -C "$src" --exclude='./build*' --exclude=./.git -cf - . | tar -C "$out/commongui" -xf -
# ccache's compiler links make a rebuild cheap when the cache is warm.
[ -d /usr/lib/ccache ] && export PATH="/usr/lib/ccache:$PATH" CCACHE_BASEDIR="$out"
(cd "$out/commongui" && DEB_BUILD_OPTIONS="parallel=2 nocheck" dpkg-buildpackage -b -uc -us >"$out/build.log" 2>&1) \
    || { tail -40 "$out/build.log"; exit 1; }
ls "$out"/*.deb
