#!/usr/bin/env bash
# cpack makes a Debian package named torvane whose dependencies dpkg-shlibdeps
# found, and whose unpacked tree works.
# Usage: deb_test.sh BUILD_DIR SOURCE_DIR VERSION
set -euo pipefail
build=$1 source=$2 version=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { echo "FAIL: $*" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -B "$work/pack" >"$work/cpack.log" || { cat "$work/cpack.log"; exit 1; }
debs=("$work"/pack/torvane_*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || fail "cpack made no single torvane_*.deb"
deb=${debs[0]}
dpkg-deb -f "$deb" Package Version Architecture Section Depends Description

field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = torvane ] || fail "package name $(field Package)"
[ "$(field Section)" = science ] || fail "section $(field Section)"
[ "$(field Version)" = "$version" ] || fail "version $(field Version), not $version"
depends=$(field Depends)
[[ $depends == *libsqlite3-0* ]] || fail "Depends names no libsqlite3-0: $depends"
if [ -e "$build/torvane" ]; then
    [[ $depends == *libqt6widgets6* ]] || fail "Depends names no libqt6widgets6: $depends"
fi

dpkg -x "$deb" "$work/root"
"$source/tests/install/installed_tree.sh" "$work/root" "$build" "$source"
