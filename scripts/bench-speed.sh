#!/usr/bin/env bash
# Times what a user waits for, on the example horizontal-ballscrew.AP2, and
# prints the median of several runs of each:
#   - the cold start of torvane until its main window, captioned with the
#     file, is mapped on an Xvfb display (Qt paints it on that first expose);
#   - torvane-cli size on the example;
#   - a pattern cell edit and a component setting edit through the main
#     window offscreen, to the grid, graphs and results redrawn (bench_edit).
# Usage: scripts/bench-speed.sh [BUILD_DIR] [RUNS]
# BUILD_DIR is a Release build with the windows and the benchmarks
# (-DTORVANE_GUI=ON -DTORVANE_BENCH=ON); by default build-rel, configured and
# built when missing.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
torvane_install_packages xvfb x11-utils xdotool
build=${1:-build-rel}
runs=${2:-15}
example=$PWD/examples/horizontal-ballscrew.AP2
if [ ! -x "$build/bench/bench_edit" ]; then
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTORVANE_GUI=ON -DTORVANE_BENCH=ON >/dev/null
    cmake --build "$build" -j2 --target torvane torvane-cli bench_edit
fi
work=$(mktemp -d)
trap 'kill "${xvfb:-}" 2>/dev/null || true; rm -rf "$work"' EXIT

now() { date +%s%N; }
median() { sort -n | awk '{v[NR]=$1} END {m=(NR%2)?v[(NR+1)/2]:(v[NR/2]+v[NR/2+1])/2; printf "%.1f ms", m/1e6}'; }

# The data of the build in a folder of its own, so no run changes the build's.
mkdir -p "$work/app" "$work/runtime"
chmod 700 "$work/runtime"
cp -r "$build/Series.db" "$build/Param.ini" "$build/BMP_data" "$work/app/"
export TORVANE_APP_PATH=$work/app XDG_RUNTIME_DIR=$work/runtime XDG_CONFIG_HOME=$work/config

Xvfb :77 -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
export DISPLAY=:77
for _ in $(seq 100); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.05; done

start_once() {
    local t0 pid
    t0=$(now)
    "$build/torvane" "$example" >/dev/null 2>&1 &
    pid=$!
    until xdotool search --onlyvisible --name 'Torvane-\[horizontal-ballscrew.AP2\]' >/dev/null 2>&1; do
        kill -0 "$pid" 2>/dev/null || { echo "torvane ended before its window showed" >&2; exit 1; }
        sleep 0.002
    done
    echo $(($(now) - t0))
    kill "$pid"
    wait "$pid" 2>/dev/null || true
}
start_once >/dev/null  # the first start fills the caches of the system; the figure is of a later one
for _ in $(seq "$runs"); do start_once; done | median | sed 's/^/torvane start to its window: /'
echo

for _ in $(seq "$runs"); do
    t0=$(now)
    "$build/torvane-cli" size "$example" >/dev/null
    echo $(($(now) - t0))
done | median | sed 's/^/torvane-cli size: /'
echo

QT_QPA_PLATFORM=offscreen "$build/bench/bench_edit" -iterations 50 2>/dev/null | grep -E 'RESULT|msecs' -A1 | grep -v '^--$'
