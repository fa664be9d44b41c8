#!/usr/bin/env bash
# Builds with warnings as errors and runs every test; the closing lines are those of ctest, and so is the exit code.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"

./packaging/install.sh
cmake --preset ci
cmake --build --preset ci

if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    XDG_RUNTIME_DIR="$(mktemp -d)"
    export XDG_RUNTIME_DIR
    trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
fi
export QT_QPA_PLATFORM=offscreen
# Beside a server of its own, for the tests of a practice with several workstations.
tests/with-postgres.sh ctest --preset ci --parallel 2 --timeout 300 "$@"
