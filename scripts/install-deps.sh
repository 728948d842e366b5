#!/bin/bash
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
# Installs what building, testing and running CommonGUI needs on Debian 12.
set -euo pipefail
packages=(build-essential cmake pkg-config ccache
          qtbase5-dev qttools5-dev qttools5-dev-tools qhelpgenerator-qt5 libqt5sql5-sqlite
          libqt5svg5-dev qttranslations5-l10n python3 binutils xxd xvfb xauth
          debhelper dpkg-dev fakeroot lintian libkf5syntaxhighlighting-tools
          openbox xdotool imagemagick doxygen
          qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n
          libqt6sql6-sqlite)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
fi
