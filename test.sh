#!/usr/bin/env bash
# Builds the core without Qt as a Release build and runs its tests (the proof
# that it stays headless, and that the optimiser changes nothing), then
# builds everything with AddressSanitizer and UndefinedBehaviorSanitizer and
# runs the whole suite; the suites also run shuffled.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh
torvane_install_packages

export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}"
# The font library behind the report's text rendering keeps its caches for
# the life of the process; LeakSanitizer is told to pass over them.
export LSAN_OPTIONS="${LSAN_OPTIONS:-suppressions=$PWD/tests/lsan.supp}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"
export QT_QPA_PLATFORM=offscreen

cmake -S . -B build-headless -G Ninja -DCMAKE_BUILD_TYPE=Release -DTORVANE_GUI=OFF >/dev/null
cmake --build build-headless -j2
ctest --test-dir build-headless -j2 --output-on-failure -L core
# ctest runs every test in a process of its own; the suites run whole and
# shuffled too, so that no test depends on another one having run before it.
for seed in 1 2 3; do
    build-headless/tests/torvane_tests --gtest_shuffle --gtest_random_seed=$seed --gtest_brief=1
done

cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTORVANE_SANITIZE=ON >/dev/null
cmake --build build-asan -j2
ctest --test-dir build-asan -j2 --output-on-failure
ASAN_OPTIONS=detect_leaks=0 build-asan/tests/torvane_gui_tests --gtest_shuffle --gtest_random_seed=1 --gtest_brief=1
