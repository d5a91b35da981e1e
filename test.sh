#!/usr/bin/env bash
# Builds with AddressSanitizer and UndefinedBehaviorSanitizer and runs the
# whole suite; then builds the core without Qt to prove it stays headless.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
torvane_install_packages

export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"
export QT_QPA_PLATFORM=offscreen

cmake -S . -B build-headless -G Ninja -DCMAKE_BUILD_TYPE=Release -DTORVANE_GUI=OFF >/dev/null
cmake --build build-headless -j2
ctest --test-dir build-headless -j2 --output-on-failure -L core

cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTORVANE_SANITIZE=ON >/dev/null
cmake --build build-asan -j2
ctest --test-dir build-asan -j2 --output-on-failure
