#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Builds the Debian packages and checks them as a tool's packaging would use them:
# lintian without errors, a stripped multiarch library with its debug symbols
# apart, the pkg-config file right for /usr, and dpkg-shlibdeps on a tool linked
# against the unpacked library naming libcommongui1.
set -euo pipefail
src="$(cd "$(dirname "$0")/.." && pwd)"
export DEB_DIR="${DEB_DIR:-$src/build-deb}"
"$src/scripts/debian-copyright.sh" --check
"$src/scripts/build-debs.sh"
out="$DEB_DIR"
ma="$(dpkg-architecture -qDEB_HOST_MULTIARCH)"
version="$(dpkg-parsechangelog -l "$src/debian/changelog" -S Version)"

echo "== lintian"
lintian --fail-on error --display-info "$out"/commongui_"${version}"_*.changes | tee "$out/lintian.txt"
if grep -q '^E: ' "$out/lintian.txt"; then echo "lintian reports errors"; exit 1; fi

echo "== contents"
root="$out/root"
for deb in "$out"/libcommongui1_*.deb "$out"/libcommongui-dev_*.deb; do dpkg-deb -x "$deb" "$root"; done
dpkg-deb -e "$out"/libcommongui1_*.deb "$root/DEBIAN"
lib="$root/usr/lib/$ma/libCommonGUI.so.1"
test -f "$lib"
test -f "$root/usr/lib/$ma/libCommonUtilities.so.1"
test -f "$root/usr/share/commongui/translations/commongui_de.qm"
test -f "$root/usr/share/doc/libcommongui1/copyright"
test -f "$root/usr/share/doc/libcommongui1/changelog.gz"
ls "$out"/libcommongui1-dbgsym_*.deb >/dev/null
if readelf -S "$lib" | grep -q '\.debug_info'; then echo "library not stripped"; exit 1; fi
dpkg-deb -f "$out"/libcommongui1_*.deb Multi-Arch | grep -qx same
grep -q 'activate-noawait ldconfig' "$root/DEBIAN/triggers"
grep -qx "libCommonGUI 1 libcommongui1 (>= 0.9)" "$root/DEBIAN/shlibs"
if readelf -d "$lib" | grep -Eq 'RPATH|RUNPATH'; then echo "system library carries a run path"; exit 1; fi

echo "== Designer plugin and API reference"
for deb in "$out"/libcommongui-designer_*.deb "$out"/libcommongui-doc_*.deb; do dpkg-deb -x "$deb" "$root"; done
plugin="$root/usr/lib/$ma/qt5/plugins/designer/commonguiwidgets.so"
test -f "$plugin"
if readelf -d "$plugin" | grep -Eq 'RPATH|RUNPATH'; then echo "system plugin carries a run path"; exit 1; fi
test -f "$root/usr/share/doc/qch/CommonGUI.qch"  # not compressed: Assistant reads it as is
test -f "$root/usr/share/doc/qch/CommonGUI.tags"

echo "== pkg-config for /usr"
pc="$root/usr/lib/$ma/pkgconfig"
test "$(PKG_CONFIG_PATH="$pc" pkg-config --variable=libdir commongui)" = "/usr/lib/$ma"
test "$(PKG_CONFIG_PATH="$pc" pkg-config --variable=includedir commongui)" = "/usr/include"
flags="$(PKG_CONFIG_PATH="$pc" pkg-config --cflags --libs commongui)"
echo "$flags"
for want in "-I/usr/include/CommonGUI" "-lCommonGUI"; do
    [[ " $flags " == *" $want "* ]] || { echo "pkg-config lacks $want"; exit 1; }
done
[[ "$flags" != *rpath,/* ]] || { echo "pkg-config adds a run path for /usr"; exit 1; }

echo "== dpkg-shlibdeps on a tool"
tool="$out/tool"
mkdir -p "$tool/debian"
printf 'Source: tool\n\nPackage: tool\nArchitecture: any\n' > "$tool/debian/control"
# shellcheck disable=SC2046
g++ -std=c++17 -fPIC "$src/tests/install/consumer/main.cpp" -o "$tool/tool" \
    -I"$root/usr/include" -I"$root/usr/include/CommonGUI" -L"$root/usr/lib/$ma" \
    -Wl,-rpath-link,"$root/usr/lib/$ma" -lCommonGUI $(pkg-config --cflags --libs Qt5Widgets Qt5Network Qt5Help)
(cd "$tool" && dpkg-shlibdeps -O -S"$root" -l"$root/usr/lib/$ma" tool) | tee "$out/shlibdeps.txt"
grep -q 'libcommongui1 (>= 0.9)' "$out/shlibdeps.txt"
echo "Debian package checks passed"
