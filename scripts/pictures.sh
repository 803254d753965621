#!/usr/bin/env bash
# Makes the pictures of the README from the real program, on a virtual screen.
set -euo pipefail
"$(dirname "$0")/setup.sh" build pictures
. "$(dirname "$0")/common.sh"
build_preset release
mkdir -p docs/pictures
with_display scripts/draw-picture.sh docs/pictures/window.png
