#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Uses the demo tool as a person would: under Xvfb with a window manager, driven
# by xdotool, with a screenshot after every step and a summary of what was
# checked. Usage: scripts/demo-walkthrough.sh [output dir]
# Needs xvfb, openbox, xdotool, imagemagick and binutils (scripts/install-deps.sh).
set -euo pipefail
src="$(cd "$(dirname "$0")/.." && pwd)"
build="${BUILD_DIR:-$src/build}"
demo="$build/examples/commongui-demo"
out="$(mkdir -p "${1:-$build/walkthrough}" && cd "${1:-$build/walkthrough}" && pwd)"
[ -x "$demo" ] || { echo "no demo tool at $demo: build first" >&2; exit 1; }
rm -rf "$out"/*.png "$out/home" "$out/work"
mkdir -p "$out/home" "$out/work"

# A fresh user: settings, documents and crash dumps of this run only.
export HOME="$out/home" XDG_CONFIG_HOME="$out/home/.config" XDG_DATA_HOME="$out/home/.local/share"
export XDG_RUNTIME_DIR="$out/home/run" LANG=C.UTF-8 LC_ALL= LANGUAGE=
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
# Crash reports go nowhere: nothing listens on port 9.
export COMMONGUI_DEMO_SENTRY_URL="http://127.0.0.1:9/api/1/minidump/?sentry_key=demo"
unset QT_QPA_PLATFORM

display=":$((100 + $$ % 400))"
Xvfb "$display" -screen 0 1400x900x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
export DISPLAY="$display"
for _ in $(seq 50); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done
openbox >/dev/null 2>&1 &
wm=$!
demo_pid=""
cleanup() {
    [ -n "$demo_pid" ] && kill "$demo_pid" 2>/dev/null || true
    kill "$wm" "$xvfb" 2>/dev/null || true
}
trap cleanup EXIT
sleep 1

failures=0
step=0
report() { echo "$*" | tee -a "$out/summary.txt"; }
check() {  # check <description> <command...>
    local what="$1"; shift
    if "$@"; then report "ok   $what"; else report "FAIL $what"; failures=$((failures + 1)); fi
}
shot() { step=$((step + 1)); sleep 0.8; import -window root "$(printf '%s/%02d-%s.png' "$out" "$step" "$1")"; }
keys() { for k in "$@"; do xdotool key --clearmodifiers "$k"; sleep 0.35; done; }
type_text() { xdotool type --delay 40 "$1"; sleep 0.3; }
window() {  # the id of a visible window whose title matches, waiting up to 10 s
    local id
    for _ in $(seq 50); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -1 || true)
        [ -n "$id" ] && { echo "$id"; return 0; }
        sleep 0.2
    done
    echo "no window \"$1\"" >&2
    return 1
}
activate() { xdotool windowactivate --sync "$(window "$1")" >/dev/null 2>&1 || true; sleep 0.4; }
start() {  # start <log name> <arguments...>
    local log="$1"; shift
    if [ -n "$demo_pid" ] && kill -0 "$demo_pid" 2>/dev/null; then
        report "note the previous run was still there; ended it"
        kill "$demo_pid"; wait "$demo_pid" 2>/dev/null || true
    fi
    "$demo" "$@" >"$out/$log.log" 2>&1 &
    demo_pid=$!
    window "CommonGUI Demo 0.9.0" >/dev/null
    sleep 1.5
}
dismiss_startup() {  # a person answers the crash question (Discard) and closes the tips
    sleep 1
    if xdotool search --onlyvisible --name "Crash report" >/dev/null 2>&1; then
        activate "Crash report"; keys Escape; sleep 1
    fi
    if xdotool search --onlyvisible --name "Tip of the day" >/dev/null 2>&1; then
        activate "Tip of the day"; keys Escape
    fi
    activate "CommonGUI Demo 0.9.0"
}
stopped() {  # whether the demo ended within 5 s
    for _ in $(seq 50); do kill -0 "$demo_pid" 2>/dev/null || { demo_pid=""; return 0; }; sleep 0.1; done
    return 1
}
: >"$out/summary.txt"

# --- Command line ---------------------------------------------------------
check "--version prints the version" sh -c "QT_QPA_PLATFORM=offscreen '$demo' --version | grep -q '0.9.0'"
QT_QPA_PLATFORM=offscreen "$demo" --help >"$out/help.txt" 2>&1 || true
check "--help describes every switch" sh -c "! grep -q 'See the README' '$out/help.txt' && grep -q 'instrument-functions' '$out/help.txt'"
LANG=de_DE.UTF-8 QT_QPA_PLATFORM=offscreen "$demo" --help >"$out/help-de.txt" 2>&1 || true
check "--help is German with a German locale" grep -q "Sprache der Oberfläche" "$out/help-de.txt"
QT_QPA_PLATFORM=offscreen "$demo" --lang xx --quit-after 10 >"$out/lang-xx.txt" 2>&1 || true
check "an unknown --lang is reported" grep -q 'no translation for language "xx"' "$out/lang-xx.txt"

# --- First start: crash question, then the tips, both centred -------------
dumps="$XDG_DATA_HOME/Korvil/CommonGUI Demo/crashdumps"
mkdir -p "$dumps" && echo "MDMP walkthrough" >"$dumps/walkthrough.dmp"
start first
window "Crash report" >/dev/null
shot crash-question-centred
keys Return  # "Send": nobody listens
sleep 2
check "a refused upload keeps the dump" test -f "$dumps/walkthrough.dmp"
window "Tip of the day" >/dev/null || true
shot tips-after-question
keys Escape
activate "CommonGUI Demo 0.9.0"

# --- Keyboard: Tab reaches the tool bar fields; the link opens with Return -
keys alt+e  # the EDS field's label
type_text "/nonexistent.eds"
keys Return Tab
shot tab-reaches-release-notes-link
keys Return
shot link-opened-with-keyboard
# Notes (just before the EDS field in the Tab chain): Tab leaves it, no tab character.
keys alt+e ctrl+a BackSpace shift+Tab
type_text "notes"
keys Tab
type_text "next.eds"
shot tab-leaves-notes
keys ctrl+f
type_text "Module"
keys Return
shot find-in-log

# --- Menus hovered: the status bar keeps "Ready" ---------------------------
keys alt+t
shot tools-menu-mnemonics
keys Escape Escape
shot status-kept-after-menu

# --- Hex editor: F1, Ctrl+Q from there ends the whole tool -----------------
keys alt+t h
window "Hex editor" >/dev/null
activate "Hex editor"
keys alt+e
shot hex-editor-edit-menu
keys Escape Escape F1
window "Help" >/dev/null
shot f1-from-hex-editor
activate "Hex editor"
keys ctrl+q
check "Ctrl+Q in the hex editor ends the tool" stopped
settings="$XDG_CONFIG_HOME/Korvil/CommonGUI Demo 0.9.0.conf"
check "the notes were saved without a tab character" grep -qx 'txtNotes=notes' "$settings"

# --- Window state: size and dock kept across a restart ---------------------
start second
dismiss_startup
main=$(window "CommonGUI Demo 0.9.0")
xdotool windowsize --sync "$main" 1000 640 || true
keys alt+t n  # hide the Network panel
sleep 0.5
before=$(xdotool getwindowgeometry "$main" | grep Geometry)
shot before-restart
keys ctrl+q
check "Ctrl+Q ends the tool" stopped
start third
dismiss_startup
main=$(window "CommonGUI Demo 0.9.0")
after=$(xdotool getwindowgeometry "$main" | grep Geometry)
shot after-restart-same-size-no-dock
check "window size kept across restarts ($before / $after)" test "$before" = "$after"

# --- Configure node: values checked per object, no side file --------------
keys alt+t c
window "Configure node" >/dev/null
activate "Configure node"
keys ctrl+f
type_text "heartbeat"
keys Tab Home Right Right Right Right Right Right F2
type_text "abc"
keys Return
shot value-marked-invalid
keys alt+w
window "Configure node" >/dev/null
shot write-refused-with-reason
keys Return
activate "Configure node"
keys ctrl+f Tab Home Right Right Right Right Right Right F2 ctrl+a
type_text "1000"
keys Return alt+e
sleep 1
type_text "$out/work/node5.cdcf"
keys Return
sleep 1
shot concise-exported
check "concise DCF written" test -s "$out/work/node5.cdcf"
check "no intermediate DCF beside it" sh -c "! ls '$out/work' | grep -q '\.dcf$'"
keys Escape
activate "CommonGUI Demo 0.9.0"
keys ctrl+q
stopped || true

# --- CAN trace: Ctrl+F, search, status text kept ---------------------------
start fourth
dismiss_startup
keys alt+t t
window "CAN Trace" >/dev/null
activate "CAN Trace"
keys ctrl+f
type_text "SDO_RES"
keys F4
shot trace-searched
keys alt+s Escape
shot trace-status-kept
keys ctrl+f
type_text "no such frame"
xdotool key Return
sleep 1.2
import -window root "$out/$(printf %02d $((step + 1)))-searching-box.png"; step=$((step + 1))
sleep 8
keys ctrl+q
stopped || true

# --- German with a German locale ------------------------------------------
LANG=de_DE.UTF-8 start german
sleep 1
shot german-tip-of-the-day
keys Escape
activate "CommonGUI Demo 0.9.0"
shot german-main-window
keys alt+w
shot german-tools-menu
keys k
window "Knoten konfigurieren" >/dev/null
shot german-configure-node
keys Escape
activate "CommonGUI Demo 0.9.0"
keys alt+w h
window "Hex-Editor" >/dev/null
activate "Hex-Editor"
keys alt+b
shot german-hex-editor-menu
keys Escape Escape ctrl+q
stopped || true

# --- Function trace resolves to demo functions ----------------------------
start traced --instrument-functions
dismiss_startup
keys alt+t d t  # Record function trace
keys alt+t c
window "Configure node" >/dev/null
keys Escape
activate "CommonGUI Demo 0.9.0"
keys alt+t d t
keys ctrl+q
stopped || true
trace=$(find "$HOME" -name 'functionsLog_*.efl' | head -1)
if [ -n "$trace" ]; then
    sed 's/^0x0x/0x/' "$trace" | sort -u | addr2line -f -C -e "$demo" | paste - - \
        | grep -v '^??' | sort -u >"$out/trace-functions.txt" || true
fi
check "trace records resolve to demo functions" grep -q "ConfigureNodeWindow" "$out/trace-functions.txt"

echo "screenshots and summary in $out"
exit $((failures > 0))
