#!/bin/bash
# docs/render.sh: draws the pictures in docs/images anew.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/build.sh

tools/install.sh build look test
build release quor-view-tool
tool=build/release/bin/quor-view-tool
work=build/gallery
docs/gallery.py "$work"
for view in gallery transmitter_site; do
    "$tool" build "$work/$view.json" "$work/$view.qvw"
done
"$tool" render "$work/gallery.qvw" docs/images/gallery.png --state on
"$tool" render "$work/transmitter_site.qvw" docs/images/transmitter_site.png --state on --size 1000x700
