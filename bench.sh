#!/bin/bash
# ./bench.sh [ARGUMENT...]: builds what people get and measures it, one line a case; fails if a case falls short.
# Arguments go to the benchmark: `./bench.sh load` measures the cases whose names hold that word.
set -euo pipefail
cd "$(dirname "$0")"
source tools/build.sh

tools/install.sh build look bench
cases=${1:-}
build bench quor-view-bench
exec build/bench/bin/quor-view-bench "$cases"
