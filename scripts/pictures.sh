#!/usr/bin/env bash
# Makes the pictures of the README with the program's own windows, on a virtual screen.
set -euo pipefail
"$(dirname "$0")/setup.sh" build pictures
. "$(dirname "$0")/common.sh"
cmake --preset release >/dev/null
cmake --build build/release --target marlevo_pictures
mkdir -p docs/pictures

make_pictures() { with_display build/release/pictures/marlevo_pictures docs/pictures; }
export LC_ALL=C.UTF-8
make_pictures
screen_size=3400x2200 QT_SCALE_FACTOR=2 make_pictures
screen_size=2600x1600 QT_SCALE_FACTOR=1.5 LC_ALL=de_DE.UTF-8 make_pictures
