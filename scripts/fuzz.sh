#!/usr/bin/env bash
# Fuzzes one target with libFuzzer under AddressSanitizer and
# UndefinedBehaviorSanitizer, the core instrumented too, for the given
# seconds:  scripts/fuzz.sh TARGET SECONDS [JOBS]
# TARGET is one of fuzz/fuzz_*.cpp without its extension (fuzz_fileload, ...).
# Inputs it finds go to build-fuzz/found/TARGET; the saved corpus under
# fuzz/corpus/TARGET is read, never written. A crash leaves crash-* in
# build-fuzz/crashes/TARGET and ends the run with a non-zero exit.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ $# -lt 2 ]; then
    echo "usage: scripts/fuzz.sh TARGET SECONDS [JOBS]" >&2
    ls fuzz/fuzz_*.cpp | sed 's|fuzz/||; s|\.cpp||; s|^|  |' >&2
    exit 2
fi
target=$1
seconds=$2
jobs=${3:-1}
[ -f "fuzz/$target.cpp" ] || { echo "no fuzz target fuzz/$target.cpp" >&2; exit 2; }

. scripts/packages.sh
# Debian 12's default clang (14) crashes on some of our sources; 16 builds them.
torvane_install_packages clang-16 libclang-rt-16-dev

flags="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer"
CC=clang-16 CXX=clang++-16 cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTORVANE_FUZZ=ON -DTORVANE_GUI=OFF -DCMAKE_CXX_FLAGS="$flags" \
    -DCMAKE_EXE_LINKER_FLAGS="-fsanitize=address,undefined" >/dev/null
cmake --build build-fuzz -j2 --target "$target"

found="build-fuzz/found/$target"
crashes="build-fuzz/crashes/$target"
mkdir -p "$found" "$crashes"
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"
# The setting file is read afresh for every formula of a results file, and
# the catalogue target takes one field a line: longer inputs find nothing
# new there and only slow the run.
case $target in
    fuzz_paramini) max_len=4096 ;;
    fuzz_catalogue) max_len=2048 ;;
    *) max_len=40000 ;;
esac
args=(-max_total_time="$seconds" -max_len="$max_len" -timeout=10 -rss_limit_mb=4096 -print_final_stats=1
      -artifact_prefix="$crashes/")
[ "$jobs" -gt 1 ] && args+=(-fork="$jobs")
"build-fuzz/fuzz/$target" "${args[@]}" "$found" "fuzz/corpus/$target"
