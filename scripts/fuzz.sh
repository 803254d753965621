#!/usr/bin/env bash
# Fuzzes the document reader under sanitizers: fuzz.sh [seconds] (default 60). Fails at the first
# crash, whose input is written to build/fuzz/.
set -euo pipefail
"$(dirname "$0")/setup.sh" sanitize
. "$(dirname "$0")/common.sh"
build_preset asan
mkdir -p build/fuzz/corpus
scripts/make-corpus.py build/fuzz/seeds
exec build/asan/fuzz/fuzz_document -max_total_time="${1:-60}" -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix=build/fuzz/ build/fuzz/corpus build/fuzz/seeds
