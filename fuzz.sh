#!/bin/bash
# ./fuzz.sh [NAME [SECONDS]]: feeds a reader with broken bytes for a minute, or so long: view, json, sites, users, bars or
# metafile. What breaks it is kept in build/fuzz/broken/, what leads further in build/fuzz/corpus/. Without a name each
# has its turn for 20 seconds.
# ./fuzz.sh --keep NAME: adds to fuzz/corpus/ the small files that take ways that none there takes.
set -euo pipefail
cd "$(dirname "$0")"
source tools/build.sh

names=(bars json metafile sites users view)

# fuzz NAME ARGUMENT...: quiet, unless something breaks.
fuzz() {
    local name=$1
    shift
    mkdir -p "build/fuzz/corpus/$name" build/fuzz/broken
    quietly "build/fuzz/$name.log" "build/fuzz/bin/fuzz-$name" -timeout=10 -rss_limit_mb=1024 \
        -artifact_prefix="build/fuzz/broken/$name-" "$@"
}

run() {
    fuzz "$1" -max_total_time="$2" "build/fuzz/corpus/$1" "fuzz/corpus/$1"
    tail -n 1 "build/fuzz/$1.log" | sed "s/^/$1: /"
}

tools/install.sh build fuzz
case "${1:-}" in
    '')
        build fuzz fuzzers
        export -f fuzz run quietly
        printf '%s\n' "${names[@]}" | xargs -P "$(nproc)" -I {} bash -euc 'run {} 20'
        ;;
    --keep)
        build fuzz "fuzz-$2"
        fuzz "$2" -merge=1 -use_counters=0 -max_len=1000 "fuzz/corpus/$2" "build/fuzz/corpus/$2"
        ;;
    *)
        [[ " ${names[*]} " == *" $1 "* ]] || { sed -n '2,5s/^# //p' "$0" >&2; exit 2; }
        build fuzz "fuzz-$1"
        run "$1" "${2:-60}"
        ;;
esac
