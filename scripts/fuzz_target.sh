#!/usr/bin/env bash
# Runs one fuzz target that has been built, for SECONDS, starting from the files of the project and from what earlier
# runs found out. What breaks it is left in build/fuzz/findings.
#     scripts/fuzz_target.sh SECONDS TARGET
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=$1
target=$2

corpus=build/fuzz/corpus/$target
seeds=build/fuzz/seeds/$target
rm -rf "$seeds"
mkdir -p "$corpus" "$seeds" build/fuzz/findings

# Under a name made of the whole path: files of several folders have the same name.
seed_with() {
    local file
    for file in "$@"; do
        cp "$file" "$seeds/${file//\//_}"
    done
}
# No input of a fuzzer's size may take more of a computer than this. The sanitizer keeps freed memory, which counts too.
limits=(-timeout=5 -rss_limit_mb=512)
export ASAN_OPTIONS=quarantine_size_mb=16${ASAN_OPTIONS:+:$ASAN_OPTIONS}
case $target in
*xlsx*) mapfile -t files < <(find examples tests fuzz -type f -name '*.xlsx*'); seed_with "${files[@]}" ;;
*xls*) mapfile -t files < <(find examples tests -type f -name '*.xls'); seed_with "${files[@]}" ;;
*lookalike*) seed_with fuzz/seeds/lookalike/* ;;
*xml*) seed_with fuzz/seeds/*.xlsx_parts fuzz/seeds/lookalike/*ml ;;
*schedule*) seed_with examples/*.rst ;;
*merge*) cat examples/dressuur.rst examples/springen.rst >"$seeds/ander"; cat examples/mennen.rst{,} >"$seeds/zelfde" ;;
esac

echo "== $target, $seconds s, from $(find "$seeds" "$corpus" -type f | wc -l) files"
exec "build/sanitize/fuzz/$target" -max_total_time="$seconds" "${limits[@]}" -print_final_stats=1 \
    -artifact_prefix="build/fuzz/findings/$target-" "$corpus" "$seeds"
