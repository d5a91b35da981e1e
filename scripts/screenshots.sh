#!/usr/bin/env bash
# Renders the windows under a virtual display to PNG files:
#   scripts/screenshots.sh [BUILD_DIR] [OUT_DIR]
# main.png: the main window with the example examples/horizontal-ballscrew.AP2;
# meca.png: the mechanical system question of a start without a file;
# list1.png, list2.png: the two pages of the selection wizard over a pushing
# ballscrew whose judgement shows OK, FAIR and NG.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
torvane_install_packages xvfb xauth imagemagick xdotool

build="$(realpath "${1:-build}")"
out="$(realpath -m "${2:-screenshots}")"
mkdir -p "$out"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cp examples/horizontal-ballscrew.AP2 tests/data/ballscrew-pushing-600N.AP2 "$work/"

shoot() {  # shoot PNG [FILE]: starts the program with a fresh settings folder
    HOME="$work/home-$1" xvfb-run -a -s "-screen 0 1400x950x24" bash -c \
        "\"$build/torvane\" $2 & sleep 4; import -window root \"$out/$1\"; kill %1" 2>/dev/null
    echo "$out/$1"
}
# The main window with the component settings moved beside it, as the
# README shows it.
HOME="$work/home-main" xvfb-run -a -s "-screen 0 1600x760x24" bash -c "
    \"$build/torvane\" \"$work/horizontal-ballscrew.AP2\" & sleep 4
    xdotool search --name '^Component Settings\$' windowmove 1125 60; sleep 1
    import -window root \"$out/main.png\"
    kill %1" 2>/dev/null
echo "$out/main.png"
shoot meca.png ""

# The wizard driven by keys: Tools > Motor Selection, the first series,
# Judgement, down to the FAIR motor, then Next.
HOME="$work/home-wizard" xvfb-run -a -s "-screen 0 1400x950x24" bash -c "
    \"$build/torvane\" \"$work/ballscrew-pushing-600N.AP2\" & sleep 4
    xdotool search --name '^Torvane-' windowfocus --sync; sleep 0.5
    xdotool key alt+t; sleep 0.5; xdotool key s; sleep 3
    xdotool search --name '^Motor Selection\$' windowfocus --sync; sleep 0.5
    xdotool key space; sleep 1; xdotool key Tab Tab Tab space; sleep 2
    xdotool key Down Down Down; sleep 1
    import -window root \"$out/list1.png\"
    xdotool key Tab Tab Tab space; sleep 3
    import -window root \"$out/list2.png\"
    kill %1" 2>/dev/null
echo "$out/list1.png"
echo "$out/list2.png"
