#!/usr/bin/env bash
# The desktop entry, the AppStream metainfo, the MIME type and the icons pass
# their validators.
# Usage: desktop_test.sh SOURCE_DIR
set -euo pipefail
source=$1
desktop=$source/data/desktop

# desktop-file-validate fails on errors only; its warnings fail here too.
complaints=$(desktop-file-validate "$desktop/torvane.desktop" 2>&1) && [ -z "$complaints" ] ||
    { echo "FAIL: $complaints" >&2; exit 1; }
appstreamcli validate --no-net "$desktop/io.github.torvane.Torvane.metainfo.xml"
xmllint --noout "$desktop/torvane-mime.xml" "$desktop/torvane.svg" "$desktop/application-x-torvane-ap2.svg"
