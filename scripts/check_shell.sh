#!/usr/bin/env bash
# Fails, with the lines, when shellcheck has something to say about a shell script of the project.
set -euo pipefail
cd "$(dirname "$0")/.."
find . \( -path ./build -o -path ./.git \) -prune -o -type f -size -64k -print0 |
    xargs -0 awk 'FNR == 1 && /^#!.*sh$/ { print FILENAME } { nextfile }' |
    xargs shellcheck --external-sources --source-path=SCRIPTDIR:. scripts/packages.sh
