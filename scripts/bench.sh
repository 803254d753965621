#!/usr/bin/env bash
# Builds the benchmarks and runs them, each beside a peer or a floor in the same run:
# bench.sh [name]... (raster, history, …; all without a name).
set -euo pipefail
"$(dirname "$0")/setup.sh" bench
. "$(dirname "$0")/common.sh"
build_preset bench
export QT_QPA_PLATFORM=offscreen
if [ $# -eq 0 ]; then
    for program in build/bench/bench/bench_*; do
        [ -x "$program" ] && set -- "$@" "${program##*bench_}"
    done
fi
for name in "$@"; do
    echo "== $name"
    "build/bench/bench/bench_$name"
done
