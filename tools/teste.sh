#!/usr/bin/env bash
# Installs what is missing, builds, starts a local PostgreSQL server and runs every test on
# both engines. Any failing test fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
./tools/dependinte.sh
./tools/construieste.sh
FEROLANTA_TEST_PG=$(./tools/postgres-local.sh)
export FEROLANTA_TEST_PG
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j2 --timeout 600
