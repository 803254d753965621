#!/usr/bin/env bash
# Installs the missing packages: setup.sh [build|run|test|bench|lint|sanitize|package|pictures]...
# For Debian 12 or newer and Ubuntu 24.04. Quick if no package is missing.
set -euo pipefail

build=(g++ cmake ninja-build libhwy-dev libsimdjson-dev libqpdf-dev libdeflate-dev pkg-config libxcb1-dev qt6-base-dev qt6-svg-dev
       qt6-image-formats-plugins qt6-tools-dev qt6-l10n-tools qt6-translations-l10n)
virtual_display=(xvfb openbox xdotool xauth fonts-dejavu-core)

wanted=()
for purpose in "${@:-build}"; do
    case "$purpose" in
        build) wanted+=("${build[@]}") ;;
        run)   wanted+=("${build[@]}")
               [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || wanted+=("${virtual_display[@]}" imagemagick) ;;
        test)  wanted+=("${build[@]}" libgtest-dev libgmock-dev poppler-utils mupdf-tools ghostscript "${virtual_display[@]}") ;;
        bench) wanted+=("${build[@]}" libbenchmark-dev libcairo2-dev libagg-dev libxcb-xtest0-dev python3 "${virtual_display[@]}") ;;
        package) wanted+=(dpkg-dev desktop-file-utils appstream lintian) ;;
        pictures) wanted+=("${virtual_display[@]}") ;;
        lint)  wanted+=(clang-format clang-tidy shellcheck) ;;
        sanitize) wanted+=("${build[@]}" libgtest-dev libgmock-dev clang libclang-rt-dev) ;;
        *) echo "setup.sh: no purpose named '$purpose'" >&2; exit 2 ;;
    esac
done

installed=$(dpkg-query -W -f='${db:Status-Abbrev}${Package}\n' 2>/dev/null | sed -n 's/^ii *//p')
missing=()
for package in "${wanted[@]}"; do
    grep -qxF "$package" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

sudo=()
if [ "$(id -u)" -ne 0 ]; then sudo=(sudo); fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
