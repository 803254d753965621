#!/usr/bin/env bash
# Builds the program and starts it. Without a display it runs on a virtual one, and a picture of the
# window is written to build/screenshot.png.
set -euo pipefail
"$(dirname "$0")/setup.sh" run
. "$(dirname "$0")/common.sh"
build_preset release -DMARLEVO_TESTS=OFF

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/release/marlevo
fi

echo "No display here: Marlevo runs on a virtual one."
picture=$PWD/build/screenshot.png
run_and_picture() {
    build/release/marlevo &
    local program=$!
    timeout 20 xdotool search --sync --onlyvisible --pid "$program" --name Marlevo >/dev/null
    sleep 1
    import -window root "$picture"
    echo "A picture of the window is in build/screenshot.png."
    if [ -t 0 ]; then
        echo "Press Ctrl+C to end the program."
        wait "$program"
    else
        kill "$program"
        wait "$program" || true
    fi
}
export picture
# By its text: with_display starts a new shell, which does not have the function.
with_display bash -ec "$(declare -f run_and_picture); run_and_picture"
