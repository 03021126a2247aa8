#!/usr/bin/env bash
# Fails, with the lines, when clang-tidy finds in src/ or tools/ what .clang-tidy asks for. Needs a configured build:
#     scripts/check_tidy.sh BUILD [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
shift
files=("$@")
[ "${#files[@]}" -gt 0 ] || mapfile -t files < <(find src tools -name '*.cpp' | sort)
# Without its count of warnings in other people's headers.
printf '%s\0' "${files[@]}" |
    xargs -0 -n 4 -P "$(nproc)" clang-tidy-16 -p "$build" --quiet 2> >(grep -v 'warnings\? .*generated' >&2)
