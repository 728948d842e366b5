#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
"""Puts the licence lines at the top of every tracked source, header, CMake and script file
that lacks them; with --check only lists those files and exits 1 if there are any."""
import subprocess, sys, os

TAG = "SPDX-License-Identifier: BSD-3-Clause"
COPY = "SPDX-FileCopyrightText: 2026 The CommonGUI developers"

def style(path):
    name = os.path.basename(path)
    ext = os.path.splitext(name)[1]
    if ext in (".cpp", ".h", ".c", ".hpp") or name.endswith(".h.in"):
        return "//"
    if ext in (".cmake", ".sh", ".py", ".pc") or name in ("CMakeLists.txt", "run") \
            or name.endswith(".cmake.in") or name.endswith(".pc.in"):
        return "#"
    return None

def main():
    check = "--check" in sys.argv
    root = subprocess.check_output(["git", "rev-parse", "--show-toplevel"], text=True).strip()
    files = subprocess.check_output(["git", "ls-files"], cwd=root, text=True).split("\n")
    missing = []
    for rel in files:
        if not rel or "/seeds/" in rel or rel.startswith("debian/"):
            continue
        mark = style(rel)
        if mark is None:
            continue
        path = os.path.join(root, rel)
        with open(path, encoding="utf-8", errors="surrogateescape") as f:
            text = f.read()
        if TAG in text[:600]:
            continue
        missing.append(rel)
        if check:
            continue
        block = f"{mark} {COPY}\n{mark} {TAG}\n"
        if text.startswith("#!"):
            first, _, rest = text.partition("\n")
            text = first + "\n" + block + rest
        else:
            text = block + text
        with open(path, "w", encoding="utf-8", errors="surrogateescape") as f:
            f.write(text)
    for rel in missing:
        print(rel)
    return 1 if (check and missing) else 0

sys.exit(main())
