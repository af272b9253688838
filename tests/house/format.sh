#!/usr/bin/env bash
# Fails if clang-format would change a source.
set -euo pipefail

find . -path ./build -prune -o -name '*.cpp' -print0 -o -name '*.h' -print0 |
    xargs -0 -n 20 --max-procs="$(nproc)" clang-format-14 --dry-run -Werror --ferror-limit=1 || {
    echo
    echo "These files are not formatted. Mend them with: clang-format-14 -i FILE..."
    echo "(.clang-format is written for version 14; other versions break lines elsewhere.)"
    exit 1
}
