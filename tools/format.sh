#!/bin/bash
# tools/format.sh [--check]: formats all sources, or only says which are not formatted and fails.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=(-i)
[ "${1:-}" != --check ] || mode=(--dry-run -Werror)
git ls-files -z -- '*.h' '*.cpp' | xargs -0 --no-run-if-empty clang-format "${mode[@]}"
