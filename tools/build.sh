# Sourced by the scripts: build PRESET [TARGET...] configures and builds, and shows what a step said only if it failed.

# Objects are found again by ccache in another clone of the project, too.
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$PWD} CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

quietly() {
    local log=$1
    shift
    "$@" >"$log" 2>&1 </dev/null && return
    grep -E -A5 'error|FAILED' "$log" >&2 || tail -40 "$log" >&2
    echo "Failed: $*. All of its words are in $log." >&2
    return 1
}

build() {
    local preset=$1
    shift
    mkdir -p "build/$preset"
    if [ ! -f "build/$preset/build.ninja" ]; then
        echo "Building ($preset), which takes some minutes the first time ..." >&2
    fi
    quietly "build/$preset/configure.log" cmake --preset "$preset"
    quietly "build/$preset/build.log" cmake --build --preset "$preset" ${*:+--target "$@"}
}
