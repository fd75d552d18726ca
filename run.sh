#!/bin/bash
# ./run.sh [FILE]: builds the editor, if need be, and opens it, with FILE if there is one.
# Without a display it opens on a virtual one, and a picture of the window is kept in build/.
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
source "$root/tools/build.sh"

arguments=()
[ $# -eq 0 ] || arguments=(/Open "$(realpath -ms -- "$1")")
cd "$root"

groups=(build look)
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || groups+=(headless)
[ -n "${DISPLAY:-}" ] || [ -z "${WAYLAND_DISPLAY:-}" ] || groups+=(wayland)
tools/install.sh "${groups[@]}"

build release quor-view-editor
editor=$root/build/release/bin/quor-view-editor
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$editor" "${arguments[@]}"
fi
exec tools/picture.sh build/window.png "$editor" "${arguments[@]}"
