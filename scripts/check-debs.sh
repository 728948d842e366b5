#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Builds the Debian packages and checks them as a tool's packaging would use them:
# lintian without errors, a stripped multiarch library with its debug symbols
# apart, the pkg-config file right for /usr, and dpkg-shlibdeps on a tool linked
# against the unpacked library naming libcommongui1; the same for the Qt 6 flavour
# (libcommongui-qt6-1), and no file shipped by both flavours.
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

echo "== the flavours share no file"
for deb in "$out"/libcommongui*.deb; do
    case "$deb" in *-dbgsym_*) continue ;; esac
    dpkg-deb -c "$deb" | awk '$1 !~ /^d/ { print $6 }'
done | sort | uniq -d > "$out/shared-files.txt"
if [ -s "$out/shared-files.txt" ]; then echo "files in two packages:"; cat "$out/shared-files.txt"; exit 1; fi

root="$out/root"
# check <Qt major> <runtime package> <dev package> <designer package> <installed-name suffix>
check() {
    local major="$1" runtime="$2" dev="$3" designer="$4" suffix="$5"
    local module="commongui$suffix" incdir="/usr/include" ctl="$root/DEBIAN"
    [ -z "$suffix" ] || incdir="/usr/include/CommonGUI$suffix"
    echo "== contents of $runtime, $dev"
    for deb in "$out/${runtime}"_*.deb "$out/${dev}"_*.deb; do dpkg-deb -x "$deb" "$root"; done
    # dpkg-shlibdeps reads the shlibs file of this flavour's runtime package from there.
    rm -rf "$ctl"
    dpkg-deb -e "$out/${runtime}"_*.deb "$ctl"
    local lib="$root/usr/lib/$ma/libCommonGUI$suffix.so.1"
    test -f "$lib"
    test -f "$root/usr/lib/$ma/libCommonUtilities$suffix.so.1"
    test -f "$root/usr/share/$module/translations/commongui_de.qm"
    test -f "$root/usr/share/doc/$runtime/copyright"
    test -f "$root/usr/share/doc/$runtime/changelog.gz"
    test -f "$root$incdir/CommonGUI/KorvilBaseApplication.h"
    test -f "$root$incdir/CommonUtilities/Helper.h"
    ls "$out/${runtime}"-dbgsym_*.deb >/dev/null
    if readelf -S "$lib" | grep -q '\.debug_info'; then echo "library not stripped"; exit 1; fi
    dpkg-deb -f "$out/${runtime}"_*.deb Multi-Arch | grep -qx same
    grep -q 'activate-noawait ldconfig' "$ctl/triggers"
    grep -qx "libCommonGUI$suffix 1 $runtime (>= 0.9)" "$ctl/shlibs"
    if readelf -d "$lib" | grep -Eq 'RPATH|RUNPATH'; then echo "system library carries a run path"; exit 1; fi
    readelf -d "$lib" | grep -q "NEEDED.*\[libQt${major}Core.so.$major\]"

    echo "== Designer plugin $designer"
    dpkg-deb -x "$out/${designer}"_*.deb "$root"
    local plugin="$root/usr/lib/$ma/qt$major/plugins/designer/commonguiwidgets.so"
    test -f "$plugin"
    if readelf -d "$plugin" | grep -Eq 'RPATH|RUNPATH'; then echo "system plugin carries a run path"; exit 1; fi
    readelf -d "$plugin" | grep -q "NEEDED.*\[libCommonGUI$suffix.so.1\]"

    echo "== pkg-config $module for /usr"
    local pc="$root/usr/lib/$ma/pkgconfig" flags
    test "$(PKG_CONFIG_PATH="$pc" pkg-config --variable=libdir "$module")" = "/usr/lib/$ma"
    test "$(PKG_CONFIG_PATH="$pc" pkg-config --variable=includedir "$module")" = "$incdir"
    flags="$(PKG_CONFIG_PATH="$pc" pkg-config --cflags --libs "$module")"
    echo "$flags"
    for want in "-I$incdir/CommonGUI" "-lCommonGUI$suffix"; do
        [[ " $flags " == *" $want "* ]] || { echo "pkg-config lacks $want"; exit 1; }
    done
    [[ "$flags" != *rpath,/* ]] || { echo "pkg-config adds a run path for /usr"; exit 1; }

    echo "== dpkg-shlibdeps on a Qt $major tool"
    local tool="$out/tool-qt$major"
    mkdir -p "$tool/debian"
    printf 'Source: tool\n\nPackage: tool\nArchitecture: any\n' > "$tool/debian/control"
    # shellcheck disable=SC2046
    g++ -std=c++17 -fPIC "$src/tests/install/consumer/main.cpp" -o "$tool/tool" \
        -I"$root$incdir" -I"$root$incdir/CommonGUI" -L"$root/usr/lib/$ma" \
        -Wl,-rpath-link,"$root/usr/lib/$ma" -lCommonGUI$suffix \
        $(pkg-config --cflags --libs Qt${major}Widgets Qt${major}Network Qt${major}Help)
    (cd "$tool" && dpkg-shlibdeps -O -S"$root" -l"$root/usr/lib/$ma" tool) | tee "$out/shlibdeps-qt$major.txt"
    grep -q "$runtime (>= 0.9)" "$out/shlibdeps-qt$major.txt"
}
check 5 libcommongui1 libcommongui-dev libcommongui-designer ""
check 6 libcommongui-qt6-1 libcommongui-qt6-dev libcommongui-qt6-designer -qt6

echo "== API reference"
dpkg-deb -x "$out"/libcommongui-doc_*.deb "$root"
test -f "$root/usr/share/doc/qch/CommonGUI.qch"  # not compressed: Assistant reads it as is
test -f "$root/usr/share/doc/qch/CommonGUI.tags"
echo "Debian package checks passed"
