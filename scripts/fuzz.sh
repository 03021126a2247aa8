#!/usr/bin/env bash
# Runs the fuzz targets one after another under sanitizers, each SECONDS long (600), starting from the files of the
# project. What breaks a target is left in build/fuzz/findings.
#     scripts/fuzz.sh [SECONDS [TARGET...]]
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

seconds=${1:-600}
shift || true
targets=("$@")
[ "${#targets[@]}" -gt 0 ] || mapfile -t targets < <(basename --multiple --suffix=.cpp fuzz/fuzz_*.cpp)

install_missing "${packages_run[@]}" "${packages_fuzz[@]}"
cmake --preset fuzz
cmake --build build/fuzz --target "${targets[@]}"

mkdir -p build/fuzz/findings
for target in "${targets[@]}"; do
    echo "== $target, $seconds s"
    corpus=build/fuzz/corpus/$target
    seeds=build/fuzz/seeds/$target
    rm -rf "$seeds"
    mkdir -p "$corpus" "$seeds"
    case $target in
    *xlsx*) find examples tests fuzz -name '*.xlsx*' -exec cp --target-directory="$seeds" {} + ;;
    *xls*) find examples tests -name '*.xls' -exec cp --target-directory="$seeds" {} + ;;
    *lookalike*) cp --target-directory="$seeds" fuzz/seeds/lookalike/* ;;
    *schedule*) cp --target-directory="$seeds" examples/*.rst ;;
    *merge*) cat examples/dressuur.rst examples/springen.rst >"$seeds/ander"; cat examples/mennen.rst{,} >"$seeds/zelfde" ;;
    esac
    "build/fuzz/fuzz/$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 -print_final_stats=1 \
        -artifact_prefix="build/fuzz/findings/$target-" "$corpus" "$seeds"
done
