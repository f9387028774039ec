#!/usr/bin/env bash
# Builds Ferolanta and starts it. On its first start the program creates its data folder
# (with a new SQLite database) in the user's application data folder.
set -euo pipefail
cd "$(dirname "$0")/.."
./tools/dependinte.sh
./tools/construieste.sh
exec ./build/bin/ferolanta "$@"
