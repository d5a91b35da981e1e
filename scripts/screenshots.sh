#!/usr/bin/env bash
# Renders the windows under a virtual display to PNG files:
#   scripts/screenshots.sh [BUILD_DIR] [OUT_DIR]
# main.png: the main window with the sized horizontal ballscrew example;
# meca.png: the mechanical system question of a start without a file.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
torvane_install_packages xvfb xauth imagemagick

build="$(realpath "${1:-build}")"
out="$(realpath -m "${2:-screenshots}")"
mkdir -p "$out"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cp tests/data/horizontal-ballscrew.AP2 "$work/"

shoot() {  # shoot PNG [FILE]: starts the program with a fresh settings folder
    HOME="$work/home-$1" xvfb-run -a -s "-screen 0 1400x950x24" bash -c \
        "\"$build/torvane\" $2 & sleep 4; import -window root \"$out/$1\"; kill %1" 2>/dev/null
    echo "$out/$1"
}
shoot main.png "\"$work/horizontal-ballscrew.AP2\""
shoot meca.png ""
