#!/usr/bin/env bash
# Builds the program and makes a package of it, build/package/marlevo_<version>_<architecture>.deb,
# for the Debian or Ubuntu of this machine. Fails if a validator fails.
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

# validate <program> <arguments>...: runs the program if it is installed.
validate() {
    if command -v "$1" >/dev/null; then "$@"; else echo "Not checked: $1 is missing." >&2; fi
}
package=$(echo build/package/*.deb)
validate desktop-file-validate packaging/marlevo.desktop
# Newer versions warn of a missing homepage, older ones refuse the option against the warning.
metainfo=packaging/marlevo.metainfo.xml
validate appstreamcli validate --no-net --override=url-homepage-missing=info "$metainfo" >/dev/null 2>&1 ||
    validate appstreamcli validate --no-net "$metainfo"
validate lintian --fail-on error --tag-display-limit 0 "$package"
echo "$package"
