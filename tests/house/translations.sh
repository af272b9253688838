#!/usr/bin/env bash
# translations.sh
#
# Fails if a file of resources/translations lacks a text of the sources, has one that they no longer
# have, leaves one untranslated, or has other places for values (%1, %n) than the English text.
set -euo pipefail
export LC_ALL=C.UTF-8

copies=$(mktemp -d)
trap 'rm -rf "$copies"' EXIT
failed=
for file in resources/translations/corvane_*.ts; do
    cp "$file" "$copies"
done
packaging/update-translations "$copies"

for file in resources/translations/corvane_*.ts; do
    if ! diff -u "$file" "$copies/${file##*/}"; then
        echo "$file does not have the texts of the sources: run packaging/update-translations, and translate."
        failed=yes
    fi
    awk -v file="$file" '
        # places(TEXT): the places of a text for values, each once, in order.
        function places(text,    place, found) {
            found = ""
            for (place = 1; place <= 9; place++) {
                if (index(text, "%" place)) { found = found " %" place }
            }
            return found
        }
        function complain(what) { print file ": " what ": " source; failed = 1 }
        function compare(translation, isForm,    alternatives, count, i) {
            if (translation == "") { complain("not translated") }
            # Words of dates have alternatives; each is used by itself.
            count = context == "RelativeDateFormatter" ? split(translation, alternatives, "|") : 1
            if (count == 1) { alternatives[1] = translation }
            for (i = 1; i <= count; i++) {
                if (places(alternatives[i]) != places(source)) {
                    complain("other places in “" alternatives[i] "”")
                }
                # A form for one or two may say the number in words.
                if (!isForm && index(alternatives[i], "%n") != index(source, "%n")) {
                    complain("another number")
                }
            }
        }
        function inner(line) { sub(/^[^>]*>/, "", line); sub(/<[^<]*$/, "", line); return line }
        /type="/ { complain("not finished") }
        /<name>/ { context = inner($0) }
        /<source>/ { source = inner($0); texts++ }
        /<numerusform>/ { compare(inner($0), 1); translations += ++forms == 1 }
        /<translation[^>]*>.*<\/translation>/ { compare(inner($0), 0); translations++ }
        /<message/ { forms = 0 }
        END {
            if (!texts || texts != translations) { print file ": cannot be read"; failed = 1 }
            exit failed
        }' "$file" || failed=yes
done
[[ -z $failed ]]
