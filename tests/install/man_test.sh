#!/usr/bin/env bash
# Both man pages render without a single warning.
# Usage: man_test.sh SOURCE_DIR
set -euo pipefail
for page in "$1"/data/man/*.1; do
    warnings=$(groff -man -Tutf8 -ww -z "$page" 2>&1)
    [ -z "$warnings" ] || { echo "FAIL: $page: $warnings" >&2; exit 1; }
done
