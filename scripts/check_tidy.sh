#!/usr/bin/env bash
# Fails, with the lines, when clang-tidy finds in src/ or tools/ what .clang-tidy asks for. Needs a configured build:
#     scripts/check_tidy.sh BUILD [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
shift
files=("$@")
# What the build compiles: not what another system alone needs.
[ "${#files[@]}" -gt 0 ] || mapfile -t files < <(
    grep -o '"file": *"[^"]*"' "$build/compile_commands.json" | cut -d '"' -f 4 | grep -E "^$PWD/(src|tools)/" | sort -u)
# Without its count of warnings in other people's headers.
printf '%s\0' "${files[@]}" |
    xargs -0 -n 4 -P "$(nproc)" clang-tidy-16 -p "$build" --quiet 2> >(grep -v 'warnings\? .*generated' >&2)
