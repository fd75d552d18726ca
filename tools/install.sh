#!/bin/bash
# tools/install.sh GROUP...: installs the packages of these groups of packages.txt that are missing. Says nothing if none is.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

packages=()
for group in "$@"; do
    mapfile -t -O "${#packages[@]}" packages < <(awk -v group="$group" '$1 == group { print $2 }' "$here/packages.txt")
done

if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian system. Needed are what Debian calls: ${packages[*]}" >&2
    exit 0
fi

missing=()
for package in "${packages[@]}"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
[ "$(id -u)" = 0 ] || as_root=(sudo)
echo "Installing ${missing[*]} ..." >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${as_root[@]}" apt-get update -q &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
} </dev/null >"$log" 2>&1; then
    tail -20 "$log" >&2
    echo "Could not install ${missing[*]}." >&2
    exit 1
fi
