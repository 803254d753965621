# Functions for the scripts of this folder, which source it. Changes to the project's root.
# shellcheck shell=bash
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit

# build_preset <preset> [cmake options...]: configures if needed, and builds.
build_preset() {
    local preset=$1
    shift
    local options=("$@")
    if [ -n "${CI:-}" ]; then options+=(-DMARLEVO_WERROR=ON); fi
    cmake --preset "$preset" "${options[@]}" >/dev/null
    cmake --build --preset "$preset" -j "$(nproc)" -- --quiet
}

# with_display <command>...: runs the command on a virtual screen with a window manager. The size of
# the screen is $screen_size.
with_display() {
    # shellcheck disable=SC2016
    xvfb-run -a -s "-screen 0 ${screen_size:-1600x1000}x24" bash -c '
        scratch=$(mktemp -d)
        mkfifo "$scratch/ready"
        # The window manager hides and re-shows windows that exist when it starts.
        openbox --startup "tee $scratch/ready" </dev/null >/dev/null 2>&1 &
        manager=$!
        trap "kill $manager 2>/dev/null; rm -r $scratch" EXIT
        cat "$scratch/ready" >/dev/null
        "$@"' with_display "$@"
}
