#!/usr/bin/env bash
# Checks what a compiler does not: format, layering, shell scripts, and clang-tidy's findings.
set -euo pipefail
"$(dirname "$0")/setup.sh" build test lint
. "$(dirname "$0")/common.sh"

mapfile -t sources < <(git ls-files '*.cpp' '*.h')
clang-format --dry-run --Werror "${sources[@]}"

mapfile -t scripts < <(git ls-files 'scripts/*.sh' .ci/run)
shellcheck -x -P scripts "${scripts[@]}"

# Configured only, never built. A build folder of its own, because precompiled headers of another
# compiler would confuse clang-tidy.
cmake --preset release -B build/lint -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null

# The folders whose headers each folder may include, from CMake's lists of links.
declare -A allowed
toolkit_folders=()
while IFS=: read -r folder folders; do
    allowed[$folder]="$folder $folders"
    if [[ " $folders " == *" Qt "* ]]; then toolkit_folders+=("src/$folder"); fi
done <build/lint/layers.txt
failed=0
for file in $(git ls-files 'src/*/*.h' 'src/*/*.cpp'); do
    folder=${file#src/}
    folder=${folder%/*}
    if [ -z "${allowed[$folder]:-}" ]; then
        echo "$file is in no layer of CMakeLists.txt" >&2
        failed=1
        continue
    fi
    read -ra folders <<<"${allowed[$folder]}"
    headers=$(IFS='|' && echo "${folders[*]}")
    if grep -nHE '^#include "' "$file" | grep -vE "#include \"($headers)/[^/]+\""; then
        echo "$file includes a header of a layer that its own ($folder) does not link" >&2
        failed=1
    fi
    if [[ " ${folders[*]} " != *" Qt "* ]] && grep -nHE '^#include <Q' "$file"; then
        echo "$file uses Qt, which its layer ($folder) does not link" >&2
        failed=1
    fi
done
[ $failed -eq 0 ]

checked=('src/*.cpp')
changed=()
if [ -n "${CI:-}" ]; then
    # A file that includes the toolkit takes twice the time of another. Continuous integration checks
    # those of them that the last ten commits changed.
    oldest=$(git rev-list --max-count=11 HEAD | tail -n 1)
    mapfile -t changed < <(git diff --name-only "$oldest" -- "${toolkit_folders[@]}" | sed 's/\.h$/.cpp/')
    checked+=("${toolkit_folders[@]/#/:!}")
fi
{
    git ls-files -- "${checked[@]}"
    if [ ${#changed[@]} -gt 0 ]; then git ls-files -- "${changed[@]}" | grep '\.cpp$' || true; fi
} | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/lint 2>/dev/null
echo "Lint: no findings."
