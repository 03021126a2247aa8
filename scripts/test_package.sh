#!/usr/bin/env bash
# Tries the Debian package where nothing of ours is: installs it in a clean Debian 12, starts it on a virtual display, uses
# it, removes it, and looks what is left. Takes some minutes, a network and root.
#
#     scripts/test_package.sh [PACKAGE]        without one, ./package makes it first
#
# What is fetched is kept in build/package/fetched for the next time.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

package=${1:-}
if [ -z "$package" ]; then
    scripts/package.sh
    package=$(ls build/package/tavelo_*.deb)
fi
install_missing "${packages_run[@]}" "${packages_demo[@]}" "${packages_try_package[@]}"
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
        echo "a Debian of its own can only be made by root: run this as root, or install sudo" >&2
        exit 1
    }
    exec sudo "$0" "$package"
fi

fetched=$PWD/build/package/fetched
mkdir -p "$fetched"
root=$(mktemp -d /var/tmp/tavelo-debian.XXXXXX)
chmod 755 "$root" # it becomes the / of somebody who is not root
# What is mounted below it is mounted in a namespace that is gone by then.
trap 'rm -rf --one-file-system "$root"' EXIT

echo "== a clean Debian 12"
debootstrap --variant=minbase --cache-dir="$fetched" bookworm "$root" >"$root.log" || {
    tail -n 20 "$root.log" >&2
    exit 1
}
rm "$root.log"
unshare --mount tests/pakket/pakket_test.py --root "$root" --fetched "$fetched" --output build/package/proef "$package"
