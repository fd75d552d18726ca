#!/bin/bash
# tools/tidy.sh [--all | FILE...]: runs clang-tidy on all sources, on these, or on those that differ from main.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/build.sh

mkdir -p build/tidy
quietly build/tidy/configure.log cmake --preset dev
# The linter can't read the compiler's precompiled headers: it gets their source.
sed -E "s#-Winvalid-pch|-fpch-preprocess##g; s#-include [^ ]*/cmake_pch\.hxx#-include $PWD/src/qt/toolkit.h#g" \
    build/dev/compile_commands.json >build/tidy/compile_commands.json
case "${1:-}" in
    --all) mapfile -t files < <(git ls-files 'src/*.cpp') ;;
    '') mapfile -t files < <(git diff --name-only --diff-filter=d main -- 'src/*.cpp') ;;
    *) files=("$@") ;;
esac
[ ${#files[@]} -gt 0 ] || { echo "No source differs from main."; exit 0; }
printf '%s\0' "${files[@]}" | xargs -0 -n 4 -P "$(nproc)" clang-tidy --quiet -p build/tidy 2> >(grep -v 'warnings generated' >&2)
