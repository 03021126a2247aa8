#!/usr/bin/env bash
# Makes the Debian package of the program in build/package, and has Debian's own checks look at it.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

install_missing "${packages_run[@]}" "${packages_package[@]}"

echo "== build"
build=build/package
# Hardened as Debian builds its own; without what a debugger needs, which would be stripped again.
export DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP="-g -O2"
CXXFLAGS="$(dpkg-buildflags --get CPPFLAGS) $(dpkg-buildflags --get CXXFLAGS)" LDFLAGS=$(dpkg-buildflags --get LDFLAGS) \
    cmake --preset release -B "$build" -DCMAKE_INSTALL_PREFIX=/usr -DTAVELO_TESTS=OFF
cmake --build "$build"

echo "== package"
rm -f "$build"/tavelo_*.deb
cpack --config "$build/CPackConfig.cmake" -B "$build" >"$build/cpack.log"
package=$(ls "$build"/tavelo_*.deb)

echo "== checks"
appstreamcli validate --no-net "$build/packaging/nl.tavelo.tavelo.metainfo.xml"
desktop-file-validate packaging/linux/tavelo.desktop
as=()
[ "$(id -u)" -ne 0 ] || as=(--allow-root)
lintian "${as[@]}" --fail-on error,warning "$package"
echo "== $package"
