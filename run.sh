#!/usr/bin/env bash
# Builds a release build and starts the window program with the given file.
# Without a display it runs the command line tool instead.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
torvane_install_packages

cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DTORVANE_TESTS=OFF >/dev/null
cmake --build build-release -j2

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display found: showing torvane-cli template 1 instead of the window program."
    exec ./build-release/torvane-cli template 1
fi
exec ./build-release/torvane "$@"
