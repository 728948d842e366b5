#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Installs one or more builds (a Qt 5 and a Qt 6 flavour side by side) into one
# /opt-like scratch prefix and builds outside tools against each flavour, through
# the CMake package and through pkg-config. Everything runs with a clean
# environment (no LD_LIBRARY_PATH), then again after the prefix moved.
# Usage: consumer_test.sh <scratch> <consumer source> <build dir>...
set -euo pipefail
scratch="$1"; consumer="$2"; shift 2
rm -rf "$scratch"
prefix="$scratch/opt/commongui"
majors=()
declare -A plugin_test plugin_dir  # per flavour: the Designer plugin's test and folder, when built
for build in "$@"; do
    cmake --install "$build" --prefix "$prefix" >/dev/null
    major="$(sed -n 's/^QT_MAJOR_VERSION:STRING=//p' "$build/CMakeCache.txt")"
    majors+=("$major")
    if [ -x "$build/tests/designer/tst_DesignerPlugin" ]; then
        plugin_test[$major]="$build/tests/designer/tst_DesignerPlugin"
        plugin_dir[$major]="$(sed -n 's/^COMMONGUI_DESIGNER_PLUGIN_DIR:STRING=//p' "$build/CMakeCache.txt")"
    fi
done
libdir_rel="$(sed -n 's/^CMAKE_INSTALL_LIBDIR:PATH=//p' "$1/CMakeCache.txt")"
lib="$prefix/$libdir_rel"

clean() { env -i PATH=/usr/bin:/bin HOME="$scratch/home" QT_QPA_PLATFORM=offscreen "$@"; }

# The names a flavour installs under: Qt 5 plain, Qt 6 with "-qt6" appended.
flavour() {
    major="$1"
    suffix=""
    [ "$major" = 5 ] || suffix="-qt$major"
    package="CommonGUI$suffix"
    module="commongui$suffix"
    incdir="include"
    [ -z "$suffix" ] || incdir="include/$package"
    qtmods="Qt${major}Widgets Qt${major}Network Qt${major}Help"
}

installed() {
    flavour "$1"
    # Headers under <include folder>/CommonGUI, the sibling's under .../CommonUtilities.
    test -f "$prefix/$incdir/CommonGUI/KorvilBaseApplication.h"
    test -f "$prefix/$incdir/CommonGUI/commongui_export.h"
    test -f "$prefix/$incdir/CommonUtilities/Helper.h"
    test -f "$prefix/share/$module/translations/commongui_de.qm"
    local so="$lib/libCommonGUI$suffix.so"
    test -L "$so"
    objdump -p "$so" | grep -q "SONAME *libCommonGUI$suffix.so.1\$"
    objdump -p "$lib/libCommonUtilities$suffix.so" | grep -q "SONAME *libCommonUtilities$suffix.so.1\$"
    objdump -p "$so" | grep -q 'RUNPATH *\$ORIGIN$'
    objdump -p "$so" | grep -q "NEEDED *libCommonUtilities$suffix.so.1\$"
    objdump -p "$so" | grep -q "NEEDED *libQt${major}Core.so.$major\$"
    # Free symbols are exported under their plain names; private ones are hidden.
    nm -D --defined-only "$so" > "$scratch/symbols"
    for sym in __cyg_profile_func_enter __cyg_profile_func_exit _emergencyMemory; do
        grep -q " $sym\$" "$scratch/symbols" || { echo "missing export $sym"; exit 1; }
    done
    nm -DC --defined-only "$so" > "$scratch/symbols-demangled"
    grep -q ' messageHandler(QtMsgType' "$scratch/symbols-demangled"
    grep -q ' noMessageOutput(QtMsgType' "$scratch/symbols-demangled"
    if grep -q 'FunctionTrace::' "$scratch/symbols-demangled"; then echo "private symbols exported"; exit 1; fi

    # Every installed header compiles on its own in a tool that bans Qt's keywords.
    qtflags="$(pkg-config --cflags $qtmods)"
    export prefix incdir qtflags
    find "$prefix/$incdir/CommonGUI" -name '*.h' -printf '%f\n' | sort | xargs -P2 -I{} sh -c \
        'echo "#include <CommonGUI/{}>" | g++ -std=c++17 -fPIC -fsyntax-only -Wall -Werror -DQT_NO_KEYWORDS \
            -I"$prefix/$incdir" -I"$prefix/$incdir/CommonGUI" $qtflags -x c++ - || { echo "header {} fails"; exit 255; }'
}

# The tool links its own flavour only: one CommonGUI, one Qt.
links_only() {
    local tool="$1" needed
    needed="$(objdump -p "$tool" | sed -n 's/^ *NEEDED *//p')"
    grep -qx "libCommonGUI$suffix.so.1" <<<"$needed" || { echo "$tool lacks libCommonGUI$suffix"; exit 1; }
    if grep -v "^libQt${major}" <<<"$needed" | grep -q '^libQt'; then echo "$tool mixes Qt versions"; exit 1; fi
}

consumers() {
    local at="$1" tag="$2-qt$3" out
    flavour "$3"
    cmake -S "$consumer" -B "$scratch/cmake-$tag" -DCMAKE_PREFIX_PATH="$at" -DQT_MAJOR_VERSION="$major" >/dev/null
    cmake --build "$scratch/cmake-$tag" >/dev/null
    links_only "$scratch/cmake-$tag/consumer"
    out="$(clean "$scratch/cmake-$tag/consumer")"
    grep -q "^consumer ok 0.9 Qt $major\." <<<"$out" || { echo "consumer: $out"; exit 1; }
    grep -qx "catalogue $at/share/$module/translations/commongui_de.qm" <<<"$out" \
        || { echo "installed catalogue not found: $out"; exit 1; }
    local pc="$at/$libdir_rel/pkgconfig"
    # shellcheck disable=SC2046
    g++ -std=c++17 -fPIC "$consumer/main.cpp" -o "$scratch/pc-$tag" \
        $(PKG_CONFIG_PATH="$pc" pkg-config --cflags --libs "$module")
    links_only "$scratch/pc-$tag"
    clean "$scratch/pc-$tag" | grep -q "^consumer ok 0.9 Qt $major\."
    out="$(clean "$scratch/cmake-$tag/formtool")"
    for want in "QHexEdit shown" "ClickableLineEdit shown" "CustomLineEdit shown" "TextOverlay shown" \
        "readOnly 1 colour #123456 suffixes eds,dcf return 0 caption OFFLINE"; do
        grep -qx "$want" <<<"$out" || { echo "form lacks '$want': $out"; exit 1; }
    done
    if [ -n "${plugin_test[$major]:-}" ]; then
        clean COMMONGUI_DESIGNER_PLUGIN="$at/${plugin_dir[$major]}/commonguiwidgets.so" "${plugin_test[$major]}" \
            >"$scratch/plugin-$tag.txt" 2>&1 || { cat "$scratch/plugin-$tag.txt"; exit 1; }
    fi
    if [ -x "$at/bin/commongui-demo$suffix" ]; then
        clean "$at/bin/commongui-demo$suffix" --help >/dev/null
    fi
}

for major in "${majors[@]}"; do installed "$major"; done
for major in "${majors[@]}"; do consumers "$prefix" first "$major"; done
mkdir -p "$scratch/moved"
mv "$prefix" "$scratch/moved/commongui"
for major in "${majors[@]}"; do consumers "$scratch/moved/commongui" moved "$major"; done
echo "install test passed (Qt ${majors[*]})"
