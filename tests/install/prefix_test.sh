#!/usr/bin/env bash
# `cmake --install` into a staging folder with the prefix /usr gives a tree
# that works.
# Usage: prefix_test.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

DESTDIR=$work/root cmake --install "$build" --prefix /usr >"$work/install.log"
"$source/tests/install/installed_tree.sh" "$work/root" "$build" "$source"
