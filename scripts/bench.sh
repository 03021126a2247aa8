#!/usr/bin/env bash
# Builds and runs the benchmarks and prints their ratios: one line each, starting with "ratio". Meant for a quiet machine.
#     scripts/bench.sh [BENCH...]
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/packages.sh
. scripts/packages.sh

install_missing "${packages_run[@]}" "${packages_demo[@]}" "${packages_bench[@]}"
cmake --preset release -DTAVELO_TESTS=OFF -DTAVELO_BENCH=ON
cmake --build build/release --target bench bench_workbooks tavelo tavelo-dump

benches=("$@")
[ "${#benches[@]}" -gt 0 ] || mapfile -t benches < <(basename --multiple --suffix=.cpp bench/bench_*.cpp)
for bench in "${benches[@]}"; do
    echo "== $bench"
    # Taken turn by turn, so that a slow minute of the computer falls on both sides of a ratio.
    QT_QPA_PLATFORM=offscreen "build/release/bench/$bench" --benchmark_counters_tabular=true \
        --benchmark_enable_random_interleaving=true
done

if [ "$#" -eq 0 ]; then
    echo "== excel.py"
    bench/excel.py
    echo "== bench_start.py"
    scripts/bench_start.py --program build/release/src/tavelo
    echo "== bench_toets.py"
    scripts/bench_toets.py --program build/release/src/tavelo --empty build/release/bench/leeg_venster
fi
