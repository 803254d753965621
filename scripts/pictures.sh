#!/usr/bin/env bash
# Makes the pictures of the README with the program's own windows, on a virtual screen:
# scripts/pictures.sh. With the argument "fonts" it makes a series to look at, in
# build/pictures: the smallest window with the narrowest sidebar at three scales, in German and
# Spanish, with three sizes of the desktop's font, light and dark.
set -euo pipefail
"$(dirname "$0")/setup.sh" build pictures
. "$(dirname "$0")/common.sh"
cmake --preset release >/dev/null
cmake --build build/release --target marlevo_pictures

# make_pictures <folder> [series] [variable=value...]: runs the program with these variables in its
# environment.
make_pictures() {
    local arguments=()
    while [ "${1#*=}" = "$1" ]; do
        arguments+=("$1")
        shift
    done
    with_display env "$@" build/release/pictures/marlevo_pictures "${arguments[@]}"
}

if [ "${1:-}" = fonts ]; then
    mkdir -p build/pictures
    for language in de_DE es_ES; do
        for scale in 1 1.5 2; do
            screen_size=2000x1600 make_pictures build/pictures fonts \
                LC_ALL=$language.UTF-8 QT_SCALE_FACTOR=$scale
        done
    done
    exit
fi

mkdir -p docs/pictures
make_pictures docs/pictures LC_ALL=C.UTF-8
screen_size=3400x2200 make_pictures docs/pictures LC_ALL=C.UTF-8 QT_SCALE_FACTOR=2
screen_size=2600x1600 make_pictures docs/pictures LC_ALL=de_DE.UTF-8 QT_SCALE_FACTOR=1.5
