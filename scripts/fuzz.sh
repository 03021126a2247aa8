#!/usr/bin/env bash
# Builds the fuzz targets and runs them one after another under sanitizers, each SECONDS long (600), starting from the
# files of the project. What breaks a target is left in build/fuzz/findings; the others run all the same.
#     scripts/fuzz.sh [SECONDS [TARGET...]]
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

seconds=${1:-600}
shift || true
targets=("$@")
[ "${#targets[@]}" -gt 0 ] || mapfile -t targets < <(basename --multiple --suffix=.cpp fuzz/fuzz_*.cpp)

install_missing "${packages_run[@]}" "${packages_test[@]}" "${packages_fuzz[@]}"
cmake --preset sanitize
cmake --build build/sanitize --target "${targets[@]}"

broken=()
for target in "${targets[@]}"; do
    scripts/fuzz_target.sh "$seconds" "$target" || broken+=("$target")
done
[ "${#broken[@]}" -eq 0 ] || { echo "broken: ${broken[*]}"; exit 1; }
