#!/usr/bin/env bash
# Builds the Debian package of the program (build-pachet/ferolanta_<version>_<arch>.deb), without the
# tests: installs what is missing first, as the other scripts do.
set -euo pipefail
cd "$(dirname "$0")/.."
./tools/dependinte.sh
cmake -S . -B build-pachet -DCMAKE_BUILD_TYPE=Release -DFEROLANTA_TESTS=OFF -DFEROLANTA_BENCH=OFF \
    -DFEROLANTA_CAPTURI=OFF -DCMAKE_INSTALL_PREFIX=/usr
cmake --build build-pachet -j2
(cd build-pachet && cpack -G DEB)
ls build-pachet/*.deb
