#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Installs the build into an /opt-like scratch prefix and builds outside tools
# against it, through the CMake package and through pkg-config. Everything runs
# with a clean environment (no LD_LIBRARY_PATH), then again after the prefix moved.
set -euo pipefail
build="$1"; scratch="$2"; consumer="$3"
plugin_test="${4:-}"; plugin_dir="${5:-}"  # the Designer plugin's test and folder, when built
rm -rf "$scratch"
prefix="$scratch/opt/commongui"
libdir_rel="$(sed -n 's/^CMAKE_INSTALL_LIBDIR:PATH=//p' "$build/CMakeCache.txt")"
cmake --install "$build" --prefix "$prefix" >/dev/null

clean() { env -i PATH=/usr/bin:/bin HOME="$scratch/home" QT_QPA_PLATFORM=offscreen "$@"; }

# Headers lie flat under include/CommonGUI, the sibling's under include/CommonUtilities.
test -f "$prefix/include/CommonGUI/KorvilBaseApplication.h"
test -f "$prefix/include/CommonGUI/commongui_export.h"
test -f "$prefix/include/CommonUtilities/Helper.h"
test -f "$prefix/share/commongui/translations/commongui_de.qm"
lib="$prefix/$libdir_rel"
test -L "$lib/libCommonGUI.so"
objdump -p "$lib/libCommonGUI.so" | grep -q 'SONAME *libCommonGUI.so.1$'
objdump -p "$lib/libCommonUtilities.so" | grep -q 'SONAME *libCommonUtilities.so.1$'
objdump -p "$lib/libCommonGUI.so" | grep -q 'RUNPATH *\$ORIGIN$'
# Free symbols are exported under their plain names; private ones are hidden.
nm -D --defined-only "$lib/libCommonGUI.so" > "$scratch/symbols"
for sym in __cyg_profile_func_enter __cyg_profile_func_exit _emergencyMemory; do
    grep -q " $sym\$" "$scratch/symbols" || { echo "missing export $sym"; exit 1; }
done
nm -DC --defined-only "$lib/libCommonGUI.so" > "$scratch/symbols-demangled"
grep -q ' messageHandler(QtMsgType' "$scratch/symbols-demangled"
grep -q ' noMessageOutput(QtMsgType' "$scratch/symbols-demangled"
if grep -q 'FunctionTrace::' "$scratch/symbols-demangled"; then echo "private symbols exported"; exit 1; fi

# Every installed header compiles on its own in a tool that bans Qt's keywords.
qtflags="$(pkg-config --cflags Qt5Widgets Qt5Network Qt5Help)"
export prefix qtflags
find "$prefix/include/CommonGUI" -name '*.h' -printf '%f\n' | sort | xargs -P2 -I{} sh -c \
    'echo "#include <CommonGUI/{}>" | g++ -std=c++17 -fPIC -fsyntax-only -Wall -Werror -DQT_NO_KEYWORDS \
        -I"$prefix/include" -I"$prefix/include/CommonGUI" $qtflags -x c++ - || { echo "header {} fails"; exit 255; }'

consumers() {
    local at="$1" tag="$2" out
    cmake -S "$consumer" -B "$scratch/cmake-$tag" -DCMAKE_PREFIX_PATH="$at" >/dev/null
    cmake --build "$scratch/cmake-$tag" >/dev/null
    out="$(clean "$scratch/cmake-$tag/consumer")"
    grep -q '^consumer ok 0.9$' <<<"$out"
    grep -qx "catalogue $at/share/commongui/translations/commongui_de.qm" <<<"$out" \
        || { echo "installed catalogue not found: $out"; exit 1; }
    local pc="$at/$libdir_rel/pkgconfig"
    # shellcheck disable=SC2046
    g++ -std=c++17 -fPIC "$consumer/main.cpp" -o "$scratch/pc-$tag" \
        $(PKG_CONFIG_PATH="$pc" pkg-config --cflags --libs commongui)
    clean "$scratch/pc-$tag" | grep -q '^consumer ok 0.9$'
    out="$(clean "$scratch/cmake-$tag/formtool")"
    for want in "QHexEdit shown" "ClickableLineEdit shown" "CustomLineEdit shown" "TextOverlay shown" \
        "readOnly 1 colour #123456 suffixes eds,dcf return 0 caption OFFLINE"; do
        grep -qx "$want" <<<"$out" || { echo "form lacks '$want': $out"; exit 1; }
    done
    if [ -n "$plugin_test" ]; then
        clean COMMONGUI_DESIGNER_PLUGIN="$at/$plugin_dir/commonguiwidgets.so" "$plugin_test" \
            >"$scratch/plugin-$tag.txt" 2>&1 || { cat "$scratch/plugin-$tag.txt"; exit 1; }
    fi
    if [ -x "$at/bin/commongui-demo" ]; then
        clean "$at/bin/commongui-demo" --help >/dev/null
    fi
}
consumers "$prefix" first
mkdir -p "$scratch/moved"
mv "$prefix" "$scratch/moved/commongui"
consumers "$scratch/moved/commongui" moved
echo "install test passed"
