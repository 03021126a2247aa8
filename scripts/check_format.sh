#!/usr/bin/env bash
# Fails, with the lines, when a C++ file of the project is not as clang-format 14 writes it.
set -euo pipefail
cd "$(dirname "$0")/.."
find src tests tools bench fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format-14 --dry-run --Werror
