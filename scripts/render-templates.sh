#!/usr/bin/env bash
# Renders every page of every report template to PNG, for looking at them:
#   scripts/render-templates.sh [OUT_DIR] [DPI]
# Writes OUT_DIR/<Template>-p<N>.png (default OUT_DIR: /tmp/torvane-templates,
# default DPI: 100). A template's pages are its root groups Page1, Page2, ...;
# page N is drawn with the other page groups set to display="none", as the
# report engine does. With FILL=1 in the environment every empty text object
# shows its own id instead, to see where the fields sit.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v rsvg-convert >/dev/null 2>&1; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends librsvg2-bin
fi

out="$(realpath -m "${1:-${TMPDIR:-/tmp}/torvane-templates}")"
dpi="${2:-100}"
mkdir -p "$out"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

for svg in data/app/Title.svg data/app/Element.svg data/app/Move.svg \
           data/app/Notes.svg data/app/Select.svg; do
    name="$(basename "$svg" .svg)"
    # Split into one file per page: prints the page numbers it wrote.
    pages="$(python3 - "$svg" "$work/$name" "${FILL:-0}" <<'EOF'
import re
import sys
import xml.etree.ElementTree as ET

NS = "http://www.w3.org/2000/svg"
ET.register_namespace("", NS)
src, dst, fill = sys.argv[1], sys.argv[2], sys.argv[3] == "1"
tree = ET.parse(src)
root = tree.getroot()
if fill:
    for t in root.iter("{%s}text" % NS):
        if t.get("id") and not (t.text or "").strip():
            t.text = t.get("id")
pages = [g for g in root if g.tag == "{%s}g" % NS and re.fullmatch(r"Page\d+", g.get("id", ""))]
numbers = []
if not pages:  # a template without page groups is one page
    tree.write("%s-p1.svg" % dst, encoding="utf-8", xml_declaration=True)
    numbers.append("1")
for page in pages:
    for g in pages:
        if g is page:
            g.attrib.pop("display", None)
        else:
            g.set("display", "none")
    n = page.get("id")[4:]
    tree.write("%s-p%s.svg" % (dst, n), encoding="utf-8", xml_declaration=True)
    numbers.append(n)
print(" ".join(numbers))
EOF
)"
    for n in $pages; do
        rsvg-convert --dpi-x "$dpi" --dpi-y "$dpi" --background-color white \
            -o "$out/$name-p$n.png" "$work/$name-p$n.svg"
        echo "$out/$name-p$n.png"
    done
done
