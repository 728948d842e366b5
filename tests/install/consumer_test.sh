#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
set -euo pipefail
build="$1"; scratch="$2"; consumer="$3"
rm -rf "$scratch"
prefix="$scratch/prefix"
cmake --install "$build" --prefix "$prefix" >/dev/null

# Headers lie flat under include/CommonGUI, the sibling's under include/CommonUtilities.
test -f "$prefix/include/CommonGUI/KorvilBaseApplication.h"
test -f "$prefix/include/CommonGUI/commongui_export.h"
test -f "$prefix/include/CommonUtilities/Helper.h"
test -L "$prefix/lib/libCommonGUI.so"
objdump -p "$prefix/lib/libCommonGUI.so" | grep -q 'SONAME *libCommonGUI.so.1$'
objdump -p "$prefix/lib/libCommonUtilities.so" | grep -q 'SONAME *libCommonUtilities.so.1$'
# Free symbols are exported under their plain names; private ones are hidden.
nm -D --defined-only "$prefix/lib/libCommonGUI.so" > "$scratch/symbols"
for sym in __cyg_profile_func_enter __cyg_profile_func_exit _emergencyMemory; do
    grep -q " $sym\$" "$scratch/symbols" || { echo "missing export $sym"; exit 1; }
done
nm -DC --defined-only "$prefix/lib/libCommonGUI.so" > "$scratch/symbols-demangled"
grep -q ' messageHandler(QtMsgType' "$scratch/symbols-demangled"
grep -q ' noMessageOutput(QtMsgType' "$scratch/symbols-demangled"
if grep -q 'FunctionTrace::' "$scratch/symbols-demangled"; then echo "private symbols exported"; exit 1; fi

cmake -S "$consumer" -B "$scratch/cmake-build" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$scratch/cmake-build" >/dev/null
LD_LIBRARY_PATH="$prefix/lib" "$scratch/cmake-build/consumer" | grep -q '^consumer ok 0.9$'

PKG_CONFIG_PATH="$prefix/lib/pkgconfig" pkg-config --exists commongui
# shellcheck disable=SC2046
g++ -std=c++17 -fPIC "$consumer/main.cpp" -o "$scratch/pc-consumer" \
    $(PKG_CONFIG_PATH="$prefix/lib/pkgconfig" pkg-config --cflags --libs commongui)
LD_LIBRARY_PATH="$prefix/lib" "$scratch/pc-consumer" | grep -q '^consumer ok 0.9$'
echo "install test passed"
