#!/usr/bin/env bash
# package.sh PROGRAM GENERATED
#
# Fails if what tells others about the program (the Debian package, the desktop, the manual, the
# shells) is not in order, or does not agree with the program, the list of packages, or the version.
# GENERATED is the folder of the files that the build has filled in.
set -euo pipefail
export LC_ALL=C

program=$1
generated=$2
desktop=packaging/desktop
failed=

complain() {
    echo "$@"
    failed=yes
}

# differ WHAT ONE OTHER: complains with the lines that stand in one list only.
differ() {
    local lines
    lines=$(diff <(sort <<<"$2") <(sort <<<"$3")) ||
        complain "$1"$'\n'"$(grep '^[<>]' <<<"$lines")"
}

# field NAME: the packages of a field of debian/control, without versions and alternatives.
field() {
    awk -v name="$1:" '$1 == name { inside = 1; next } /^[^ ]/ { inside = 0 }
        inside && !/\$\{/ { sub(/,$/, "", $1); print $1 }' debian/control
}

# group NAME: the packages of a group of the list.
group() {
    awk -v header="[$1]" '/^\[/ { inside = $1 == header; next } /^#/ || !NF { next }
        inside { print $1 }' packaging/debian-packages.txt
}

differ "Build-Depends (<) and the group [build] of debian-packages.txt (>) do not agree:" \
    "$(field Build-Depends | grep -v '^debhelper-compat$')" \
    "$(group build | grep -vxF 'g++')" # every Debian package is built with a compiler
differ "Recommends (<) and the group [run] of debian-packages.txt (>) do not agree:" \
    "$(field Recommends | grep -v '^default-dbus-session-bus$')" "$(group run)"

version=$("$program" --version)
version=${version#Corvane }
differ "CMake's version (<) is not the latest of debian/changelog (>):" \
    "$version" "$(sed -nE '1s/.*\((.*)\).*/\1/p' debian/changelog)"
differ "CMake's version (<) is not the latest of CHANGELOG.md (>):" \
    "$version" "$(sed -nE 's/^## ([0-9.]+).*/\1/p' CHANGELOG.md | head -n 1)"

options_of() {
    sed 's/\\-/-/g' | grep -oE -- '--[a-z]+' | sort -u
}

options=$("$program" --help | options_of)
for text in "$generated/corvane.1" "$desktop/corvane.bash" "$desktop/_corvane"; do
    differ "The options of --help (<) and of $text (>) do not agree:" \
        "$options" "$(options_of <"$text")"
done

# silent COMMAND...: complains of what a command says that has nothing to say when all is well.
silent() {
    local said
    if ! said=$("$@" 2>&1) || [[ -n $said ]]; then
        complain "$1: $said"
    fi
}

silent desktop-file-validate "$desktop/org.corvane.Corvane.desktop"
# It warns of a path with a space or a letter beyond ASCII in it.
silent groff -man -ww -z -Tutf8 -Kutf8 <"$generated/corvane.1"
# It also says when all is well.
appstreamcli validate --no-net "$generated/org.corvane.Corvane.metainfo.xml" || failed=yes
bash -n "$desktop/corvane.bash" || failed=yes

[[ -z $failed ]]
