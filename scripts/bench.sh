#!/usr/bin/env bash
# Builds the benchmarks and runs them, each with a peer or a floor in the same run:
# bench.sh [--quick] [name]... (raster, history, …, window; without a name all of them).
#
# A whole run takes about seven minutes and writes docs/performance.md with its picture. A part of
# it, or a quick run with fewer events, writes its page to build/bench/results.
set -euo pipefail
"$(dirname "$0")/setup.sh" bench
. "$(dirname "$0")/common.sh"
build_preset bench

quick=()
if [ "${1:-}" = --quick ]; then quick=(--quick); shift; fi
results=build/bench/results
page=$results
rm -rf "$results"
mkdir -p "$results"
if [ $# -eq 0 ]; then
    [ ${#quick[@]} -gt 0 ] || page=docs
    set -- window
    for program in build/bench/bench/bench_*; do
        [ -x "$program" ] && set -- "$@" "${program##*bench_}"
    done
fi

# The program in its real window. Each measurement is a process of its own, because it reports memory.
measure_window() {
    local measure=build/bench/bench/window/bench_window
    local drawing=$results/strokes.marlevo
    "$measure" drawing "${quick[@]}"
    "$measure" long-stroke "${quick[@]}"
    "$measure" editing "${quick[@]}"
    "$measure" undoing "${quick[@]}"
    taskset -c 0 "$measure" first-show "${quick[@]}" 1
    [ "$(nproc)" -lt 2 ] || taskset -c 0,1 "$measure" first-show "${quick[@]}" 2 peer
    "$measure" zooming "${quick[@]}"
    "$measure" memory "${quick[@]}"
    "$measure" make-document "$drawing"
    "$measure" start "${quick[@]}" "$drawing"
    rm "$drawing"
    "$measure" replay "${quick[@]}"
}

for name in "$@"; do
    echo "== $name"
    if [ "$name" = window ]; then
        # By its text: with_display starts a new shell, which does not have the function.
        screen_size=3840x2160 with_display bash -euc "$(declare -f measure_window)
            results=$results; quick=(${quick[*]}); measure_window" | tee "$results/window.jsonl"
    else
        QT_QPA_PLATFORM=offscreen "build/bench/bench/bench_$name" | tee "$results/$name.txt"
    fi
done
if [ -e "$results/window.jsonl" ]; then python3 bench/window/report.py "$results" "$page"; fi
