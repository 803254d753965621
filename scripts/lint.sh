#!/usr/bin/env bash
# Checks what a compiler does not: format, layering, shell scripts, and clang-tidy's findings.
set -euo pipefail
"$(dirname "$0")/setup.sh" build test lint
. "$(dirname "$0")/common.sh"

mapfile -t sources < <(git ls-files 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'bench/*.h' 'fuzz/*.cpp' 'pictures/*.cpp')
clang-format --dry-run --Werror "${sources[@]}"

# A folder may include its own headers and those of the floors below it.
below() {
    case "$1" in
        graphics)    echo 'graphics' ;;
        platform)    echo 'graphics|platform' ;;
        model)       echo 'graphics|platform|model' ;;
        render)      echo 'graphics|platform|model|render' ;;
        tools)       echo 'graphics|platform|model|render|tools' ;;
        io)          echo 'graphics|platform|model|render|io' ;;
        platform/qt) echo 'graphics|platform|platform/qt' ;;
        *)           echo '.*' ;;
    esac
}
failed=0
for file in $(git ls-files 'src/*/*.h' 'src/*/*.cpp'); do
    folder=${file#src/}
    folder=${folder%/*}
    if grep -nHE '^#include "' "$file" | grep -vE "#include \"($(below "$folder"))/[^/]+\""; then
        echo "$file reaches above its layer ($folder)" >&2
        failed=1
    fi
    case "$folder" in
        platform/qt | ui) ;;
        *) if grep -nHE '^#include <Q' "$file"; then
               echo "$file uses Qt outside platform/qt and ui" >&2
               failed=1
           fi ;;
    esac
done
[ $failed -eq 0 ]

mapfile -t scripts < <(git ls-files 'scripts/*.sh' .ci/run)
shellcheck -x -P scripts "${scripts[@]}"

# A build folder of its own: precompiled headers of another compiler would confuse clang-tidy. The
# generated sources (moc) must exist before it reads what includes them.
cmake --preset release -B build/lint -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DMARLEVO_TESTS=OFF >/dev/null
cmake --build build/lint --target marlevo_ui_autogen marlevo_platform_qt_autogen >/dev/null
# What includes the toolkit takes half the time, so continuous integration leaves it to developers.
checked=('src/*.cpp')
if [ -n "${CI:-}" ]; then checked+=(':!src/ui' ':!src/platform/qt'); fi
git ls-files -- "${checked[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p build/lint 2>/dev/null
echo "Lint: nothing to say."
