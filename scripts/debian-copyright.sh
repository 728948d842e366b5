#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Prints debian/copyright (machine-readable format) made from LICENSE;
# with --check, fails when the committed debian/copyright differs from it.
set -euo pipefail
src="$(cd "$(dirname "$0")/.." && pwd)"
generate() {
    cat <<'HEAD'
Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: CommonGUI
Upstream-Contact: CommonGUI developers <commongui@korvil.example>

Files: *
Copyright: 2026 The CommonGUI developers
License: BSD-3-Clause

License: BSD-3-Clause
HEAD
    # The licence text after its title and copyright lines, as the format wants it:
    # indented by one blank, empty lines written as " .".
    sed -n '/^Redistribution/,$p' "$src/LICENSE" | sed -e 's/^$/./' -e 's/^/ /'
}
if [ "${1:-}" = --check ]; then
    diff -u "$src/debian/copyright" <(generate) || { echo "debian/copyright is out of date: run $0 > debian/copyright"; exit 1; }
else
    generate
fi
