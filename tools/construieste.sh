#!/usr/bin/env bash
# Configures and builds into build/ (warnings are errors).
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DFEROLANTA_WERROR=ON >/dev/null
cmake --build build -j2
