#!/bin/bash
# ./bench.sh [FAMILY]: builds what people get and measures it, one line a case; fails if a case falls short.
# A family alone: `./bench.sh load`, save, edit, live, values, start, panel, frames or paint.
set -euo pipefail
cd "$(dirname "$0")"
source tools/build.sh

tools/install.sh build look bench
build bench quor-view-bench
exec build/bench/bin/quor-view-bench "$@"
