#!/bin/bash
# ./test.sh [--sanitize | --release | --clang]: builds the program and runs all tests; under the address and
# undefined-behaviour sanitizers, as people get it, or by the other compiler. The last two build the benchmarks, too.
set -euo pipefail
cd "$(dirname "$0")"
source tools/build.sh

preset=dev groups=()
case "${1:-}" in
    '') ;;
    --sanitize) preset=sanitize ;;
    --release) preset=release-tests groups=(bench) ;;
    --clang) preset=clang groups=(bench clang) ;;
    *) sed -n '2,3s/^# //p' "$0" >&2; exit 2 ;;
esac

tools/install.sh build look headless test "${groups[@]}"
build $preset
ctest --preset $preset -j "$(nproc)"
