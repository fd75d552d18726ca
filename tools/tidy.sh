#!/bin/bash
# tools/tidy.sh [--all | FILE...]: runs clang-tidy on all sources, on these, or on those that differ from main.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/build.sh

[ -f build/dev/compile_commands.json ] || quietly build/tidy.log cmake --preset dev
case "${1:-}" in
    --all) mapfile -t files < <(git ls-files 'src/*.cpp') ;;
    '') mapfile -t files < <(git diff --name-only --diff-filter=d main -- 'src/*.cpp') ;;
    *) files=("$@") ;;
esac
[ ${#files[@]} -gt 0 ] || { echo "No source differs from main."; exit 0; }
printf '%s\0' "${files[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy --quiet -p build/dev 2> >(grep -v 'warnings generated' >&2)
