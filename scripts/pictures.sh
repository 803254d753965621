#!/usr/bin/env bash
# Makes the pictures of the README with the program's own windows, on a virtual screen.
set -euo pipefail
"$(dirname "$0")/setup.sh" build pictures
. "$(dirname "$0")/common.sh"
cmake --preset release >/dev/null
cmake --build build/release --target marlevo_pictures
mkdir -p docs/pictures

# make_pictures [variable=value...]: runs the program with these variables in its environment.
make_pictures() { with_display env "$@" build/release/pictures/marlevo_pictures docs/pictures; }
make_pictures LC_ALL=C.UTF-8
SCREEN=3400x2200 make_pictures LC_ALL=C.UTF-8 QT_SCALE_FACTOR=2
SCREEN=2600x1600 make_pictures LC_ALL=de_DE.UTF-8 QT_SCALE_FACTOR=1.5
