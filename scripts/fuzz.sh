#!/bin/sh
# Fuzzes the document reader for so many seconds (60 if not said). Fails on the first crash, whose
# input is left in build/fuzz/.
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}

cmake --preset fuzz
cmake --build --preset fuzz --target fuzz_document
scripts/make-corpus.py build/fuzz/seeds
mkdir -p build/fuzz/corpus
exec build/fuzz/fuzz/fuzz_document -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix=build/fuzz/ -print_final_stats=1 build/fuzz/corpus build/fuzz/seeds
