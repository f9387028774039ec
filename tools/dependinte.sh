#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing Ferolanta need.
set -euo pipefail
PACHETE=(
    cmake g++ make pkg-config
    qt6-base-dev libqt6sql6-sqlite libqt6sql6-psql libgl-dev
    libsimpleini-dev libsodium-dev libsqlite3-dev libpq-dev
    libxlsxwriter-dev libzip-dev mdbtools-dev
    fonts-liberation2
    libgtest-dev libgmock-dev libbenchmark-dev
    postgresql sqlite3 xvfb xauth
    chromium chromium-driver
)
lipsa=()
for p in "${PACHETE[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || lipsa+=("$p")
done
[ ${#lipsa[@]} -eq 0 ] && exit 0
SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO=sudo
$SUDO apt-get update -qq
$SUDO env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${lipsa[@]}"
