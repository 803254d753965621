#!/usr/bin/env bash
# Makes the pictures of the README with the program's own windows, on a virtual screen.
set -euo pipefail
"$(dirname "$0")/setup.sh" build pictures
. "$(dirname "$0")/common.sh"
cmake --preset release >/dev/null
cmake --build build/release --target marlevo_pictures
mkdir -p docs/pictures
with_display build/release/pictures/marlevo_pictures docs/pictures
