#!/bin/bash
# tools/coverage.sh [FOLDER...]: runs the tests below the skin and says which share of the branches in these folders of src/
# they took, without those that only an exception takes.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/build.sh

folders=("$@")
[ $# -gt 0 ] || folders=(format elements binding document)
tools/install.sh build test coverage
build coverage
find build/coverage -name '*.gcda' -delete
quietly build/coverage/test.log ctest --preset coverage -j "$(nproc)"
for folder in "${folders[@]}"; do
    echo "== $folder"
    gcovr --root . --object-directory build/coverage --filter "src/$folder/[^/]*$" \
        --branches --exclude-throw-branches --exclude-unreachable-branches
done
