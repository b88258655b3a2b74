# Sourced by the scripts beside it and at the root.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=${JOBS:-$(nproc)}

# Qt complains of a locale without UTF-8, which is what a bare container has.
[[ -n ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LANG=C.UTF-8
# Paths relative to the checkout let a fresh clone use what another one compiled.
export CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=1

die() {
    echo "$(basename "$0"): $*" >&2
    exit 2
}

# Prints the comment that opens the calling script.
usage() {
    sed -n '2,/^$/s/^# \{0,1\}//p' "$0"
}

# configure FOLDER PRESET [OPTION…]: makes the build folder when there is none, or when the presets, which the
# generated build does not watch, are newer than it.
configure() {
    local folder="$root/build/$1" stamp="$root/build/$1/.configured" log
    [[ -f $folder/build.ninja && $stamp -nt $root/CMakePresets.json ]] && return
    echo "Configuring build/$1"
    mkdir -p "$folder"
    log="$folder/configure.log"
    (cd "$root" && cmake --preset "$2" -B "$folder" "${@:3}") >"$log" 2>&1 || {
        cat "$log" >&2
        die "could not configure build/$1"
    }
    touch "$stamp"
}

# build FOLDER [TARGET…]: says nothing when nothing is to be done.
build() {
    ninja -C "$root/build/$1" -j "$jobs" "${@:2}" |
        sed -u '/^ninja: Entering directory/d; /Re-checking globbed directories/d; /^ninja: no work to do/d'
}
