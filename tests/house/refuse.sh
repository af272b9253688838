#!/usr/bin/env bash
# refuse.sh PATTERN REASON PATH... -- [EXCEPTED PATH...]
#
# Fails, and prints the reason, if a line of code in the sources under these paths matches.
set -euo pipefail
export LC_ALL=C

pattern=$1
reason=$2
shift 2
paths=()
while [[ $1 != -- ]]; do
    paths+=("$1")
    shift
done
shift
excepted=()
for path in "$@"; do
    excepted+=(-not -path "$path" -not -path "$path/*")
done

mapfile -t files < <(find "${paths[@]}" \( -name '*.cpp' -o -name '*.h' \) "${excepted[@]}")
[[ ${#files[@]} -gt 0 ]] || { echo "There is nothing to look at in: ${paths[*]}"; exit 1; }

# Comments are taken off, and with them the lines that carry their excuse.
found=$(grep -lP -- "$pattern" "${files[@]}" | while read -r file; do
    sed -E 's|.*// allowed: [^ ].*||; s|//.*||' "$file" | grep -nP -- "$pattern" | sed "s|^|$file:|"
done) || true
[[ -n $found ]] || exit 0

echo "$found"
echo
echo "$reason"
echo 'A line that has to do so all the same ends in "// allowed: REASON".'
exit 1
