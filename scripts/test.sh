#!/usr/bin/env bash
# Builds the program and all tests, and runs them on a virtual screen.
set -euo pipefail
"$(dirname "$0")/setup.sh" build test
. "$(dirname "$0")/common.sh"
build_preset release -DMARLEVO_TESTS=ON
with_display ctest --test-dir build/release --output-on-failure -j "$(nproc)" "$@"
