#!/usr/bin/env bash
# Installs what is missing, builds everything with warnings as errors and runs every test of the project. The layer
# check, the formatting, clang-tidy, the demonstration and the rules under sanitizers are tests too, so that one summary
# of the test runner closes the run.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

step() { printf '\n== %s (%s s)\n' "$1" "$SECONDS"; }

step "install"
install_missing "${packages_run[@]}" "${packages_demo[@]}" "${packages_test[@]}" "${packages_fuzz[@]}"

step "build: release, all targets, the benchmarks too though they do not run here"
cmake --preset release -DTAVELO_TESTS=ON -DTAVELO_BENCH=ON -DTAVELO_SANITIZED_BUILD="$PWD/build/sanitize" \
    -DTAVELO_FUZZ_SECONDS=20
cmake --build build/release --target all bench

step "build: the rules with address and undefined-behaviour sanitizers, for their tests and the fuzz targets"
cmake --preset sanitize
cmake --build build/sanitize --target kern_tests fuzz

step "test"
ctest --test-dir build/release --output-on-failure --parallel "$(nproc)" --no-tests=error
