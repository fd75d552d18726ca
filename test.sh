#!/bin/bash
# ./test.sh [--sanitize]: builds the program and runs all tests; with --sanitize under the address and undefined-behaviour
# sanitizers.
set -euo pipefail
cd "$(dirname "$0")"
source tools/build.sh

preset=dev
case "${1:-}" in
    '') ;;
    --sanitize) preset=sanitize ;;
    *) sed -n '2,3s/^# //p' "$0" >&2; exit 2 ;;
esac

tools/install.sh build look headless test
build $preset
ctest --preset $preset -j "$(nproc)"
