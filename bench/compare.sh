#!/bin/sh
# Times zqprops (load, list every object's rows, save) against the DXF
# readers Debian installs, on every shared sample and on any drawings named
# as arguments, and prints the ratio (zqprops CPU time / theirs; below 1:
# zqprops is faster). Nothing of theirs is built: a reader is timed only if
# its package is installed -
#   dime:      dxf2vrml (load and convert to VRML)       apt-get install dime
# libdxfrw has no Debian package with a command-line reader, so it is not
# timed. Times are user + system CPU seconds, the best of three runs.
#
#   bench/compare.sh [BUILD_DIR] [DRAWING...]
set -u
build=${1:-build}
[ $# -gt 0 ] && shift
zq="$build/bin/zqprops"
samples=${ZQ_SAMPLES_DIR:-$(dirname "$0")/../../shared/dxf-samples}
[ -x "$zq" ] || { echo "compare.sh: $zq not found (build first)" >&2; exit 2; }
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT

# Best user+system time per run of a command, of three rounds of $reps runs
# (the samples are small: one run is below the timer's 10 ms); "-" if it
# failed.
best() {
  b=-
  for _ in 1 2 3; do
    if /usr/bin/time -f "%U %S" -o "$tmp/t" sh -c 'n=0; while [ $n -lt "$0" ]; do "$@" || exit 1; n=$((n + 1)); done' \
        "$reps" "$@" >/dev/null 2>&1; then
      t=$(awk -v r="$reps" '{ printf "%.4f", ($1 + $2) / r }' "$tmp/t")
      if [ "$b" = - ] || awk "BEGIN { exit !($t < $b) }"; then b=$t; fi
    fi
  done
  echo "$b"
}

ratio() {
  if [ "$1" = - ] || [ "$2" = - ]; then echo -; else awk "BEGIN { d = $2 < 0.001 ? 0.001 : $2; printf \"%.2f\", ($1 < 0.001 ? 0.001 : $1) / d }"; fi
}

have_dime=false
command -v dxf2vrml >/dev/null 2>&1 && have_dime=true
$have_dime || echo "dime (dxf2vrml) not installed: only zqprops is timed" >&2

printf "%-60s %9s %9s %7s\n" "drawing (CPU s per run)" zqprops dime ratio
for f in "$samples"/*.dxf "$@"; do
  [ -f "$f" ] || continue
  reps=20
  [ "$(wc -c <"$f")" -gt 5000000 ] && reps=1
  z=$(best "$zq" "$f" --list --space all -o "$tmp/out.dxf")
  d=-
  $have_dime && d=$(best dxf2vrml "$f" -o "$tmp/out.wrl")
  printf "%-60s %9s %9s %7s\n" "$(basename "$f")" "$z" "$d" "$(ratio "$z" "$d")"
done
