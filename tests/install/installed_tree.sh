#!/usr/bin/env bash
# Checks a tree installed under ROOT with the prefix /usr: every data file is
# there as built, the MIME type registers, and the installed torvane-cli,
# reading its data from the installed share/torvane, answers as the build
# folder's does.
# Usage: installed_tree.sh ROOT BUILD_DIR SOURCE_DIR
set -euo pipefail
root=$1 build=$2 source=$3
usr=$root/usr
share=$usr/share/torvane
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { echo "FAIL: $*" >&2; exit 1; }
same() { cmp -s "$1" "$2" || fail "$2 is missing or differs from $1"; }

[ -x "$usr/bin/torvane-cli" ] || fail "no bin/torvane-cli"
if [ -e "$build/torvane" ]; then
    [ -x "$usr/bin/torvane" ] || fail "no bin/torvane"
fi

(cd "$source/data/app" && find . -type f) | while read -r f; do same "$source/data/app/$f" "$share/$f"; done
for f in "$source"/data/catalogue/*.sql; do same "$f" "$share/catalogue/${f##*/}"; done
for f in "$source"/examples/*.AP2; do same "$f" "$share/examples/${f##*/}"; done
for f in "$build"/BMP_data/*.bmp; do same "$f" "$share/BMP_data/${f##*/}"; done
same "$build/Series.db" "$share/Series.db"

desktop=$source/data/desktop
same "$desktop/torvane.desktop" "$usr/share/applications/torvane.desktop"
same "$desktop/torvane.svg" "$usr/share/icons/hicolor/scalable/apps/torvane.svg"
same "$desktop/application-x-torvane-ap2.svg" "$usr/share/icons/hicolor/scalable/mimetypes/application-x-torvane-ap2.svg"
same "$desktop/torvane-mime.xml" "$usr/share/mime/packages/torvane.xml"
same "$desktop/io.github.torvane.Torvane.metainfo.xml" "$usr/share/metainfo/io.github.torvane.Torvane.metainfo.xml"
same "$source/data/man/torvane.1" "$usr/share/man/man1/torvane.1"
same "$source/data/man/torvane-cli.1" "$usr/share/man/man1/torvane-cli.1"

# The MIME database takes the type in with both globs.
cp -r "$usr/share/mime" "$work/mime"
update-mime-database "$work/mime" >"$work/mime.log" 2>&1 || { cat "$work/mime.log"; exit 1; }
grep -qx 'application/x-torvane-ap2:\*\.AP2' "$work/mime/globs" || fail "no *.AP2 glob registered"
grep -qx 'application/x-torvane-ap2:\*\.ap2' "$work/mime/globs" || fail "no *.ap2 glob registered"

# The same commands through the build folder's program and the installed one,
# each on its own copy of the installed data, as the programs write there.
cp -r "$share" "$work/built-data"
doc=$share/examples/horizontal-ballscrew.AP2
run() {
    local cli=$1 out=$2
    mkdir -p "$out"
    "$cli" size "$doc" >"$out/size.txt"
    "$cli" series >"$out/series.txt"
    "$cli" results "$doc" "$out/results.txt" >/dev/null
    "$cli" report "$doc" "$out/report.pdf" --date 2024-01-31
}
TORVANE_APP_PATH=$work/built-data run "$build/torvane-cli" "$work/built"
# The installed program reads the shipped data through the user's own folder,
# into which the first start copies it; TORVANE_APP_PATH is not set.
user=$work/home/.local/share/Torvane
(unset TORVANE_APP_PATH XDG_DATA_HOME; HOME=$work/home run "$usr/bin/torvane-cli" "$work/installed")
(cd "$share" && find . -type f) | while read -r f; do same "$share/$f" "$user/$f"; done
# A later start keeps what the user changed, and a user's XDG_DATA_HOME wins.
echo "; the user's own" >>"$user/Param.ini"
(unset TORVANE_APP_PATH XDG_DATA_HOME; HOME=$work/home "$usr/bin/torvane-cli" series >/dev/null)
tail -n 1 "$user/Param.ini" | grep -qx "; the user's own" || fail "a second start replaced the user's Param.ini"
(unset TORVANE_APP_PATH; HOME=$work/home XDG_DATA_HOME=$work/xdg "$usr/bin/torvane-cli" series >/dev/null)
same "$share/Series.db" "$work/xdg/Torvane/Series.db"
grep -q 'Effective torque' "$work/installed/size.txt" || fail "size printed no sizing values"
for f in size.txt series.txt results.txt; do same "$work/built/$f" "$work/installed/$f"; done
[ "$(head -c 5 "$work/installed/report.pdf")" = "%PDF-" ] || fail "the report is no PDF file"
echo "installed tree under $root: OK"
