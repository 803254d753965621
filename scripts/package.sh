#!/usr/bin/env bash
# Builds the program and makes a package of it, build/package/marlevo_<version>_<architecture>.deb,
# for the Debian or Ubuntu that this runs on. Fails when a validator does.
set -euo pipefail
"$(dirname "$0")/setup.sh" build package
. "$(dirname "$0")/common.sh"
umask 022
build_preset release -DMARLEVO_TESTS=OFF
rm -rf build/package
mkdir build/package
cpack --config build/release/CPackConfig.cmake -B build/package >build/package/log 2>&1 ||
    { cat build/package/log; exit 1; }
rm -r build/package/_CPack_Packages

# validate <program> <arguments>...: where the program is installed.
validate() {
    if command -v "$1" >/dev/null; then "$@"; else echo "Not checked: $1 is missing." >&2; fi
}
package=$(echo build/package/*.deb)
validate desktop-file-validate packaging/marlevo.desktop
# There is no homepage to name: newer versions warn of that, older ones do not know the warning.
metainfo=packaging/marlevo.metainfo.xml
validate appstreamcli validate --no-net --override=url-homepage-missing=info "$metainfo" >/dev/null 2>&1 ||
    validate appstreamcli validate --no-net "$metainfo"
validate lintian --fail-on error --tag-display-limit 0 "$package"
echo "$package"
