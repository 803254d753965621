#!/usr/bin/env bash
# Runs the tests that need no display under sanitizers: sanitize.sh [asan|tsan]...
set -euo pipefail
"$(dirname "$0")/setup.sh" sanitize
. "$(dirname "$0")/common.sh"
for preset in "${@:-asan}"; do
    build_preset "$preset"
    ctest --test-dir "build/$preset" --output-on-failure -j "$(nproc)"
done
