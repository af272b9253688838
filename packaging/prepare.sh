# shellcheck shell=bash
# What ./run, ./test and .ci/run share: installing what is missing, and building.
# Sourced by them; everything said here goes to standard error, which leaves standard output to
# the program and to ctest.

project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
command_name=$(basename "$0")

say() {
    echo "$command_name: $*" >&2
}

fail() {
    say "$@"
    exit 1
}

# packages_of GROUP...: the packages of these groups of debian-packages.txt.
packages_of() {
    awk -v groups=" $* " '
        /^#/ || NF == 0 { next }
        /^\[/ { wanted = index(groups, " " substr($1, 2, length($1) - 2) " "); next }
        wanted { print $1 }' "$project/packaging/debian-packages.txt"
}

# apt_get ARGUMENT...: apt-get as root, asking nobody. Its words go to standard output and error.
apt_get() {
    local as_root=()
    [[ $EUID -eq 0 ]] || as_root=(sudo)
    "${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive \
        apt-get --quiet --yes --option DPkg::Lock::Timeout=300 "$@" </dev/null
}

# install_packages GROUP...: installs what is missing of these groups. Where nothing is missing,
# neither root nor a working apt is needed.
install_packages() {
    local wanted installed missing log
    [[ -n $(type -P dpkg-query) ]] || fail "needs Debian 12: there is no dpkg here"
    mapfile -t wanted < <(packages_of "$@")
    # dpkg-query fails as soon as one package is unknown to it, but lists the others.
    installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "${wanted[@]}" \
        2>/dev/null | awk '$1 == "installed" { print $2 }') || true
    mapfile -t missing < <(comm -23 <(printf '%s\n' "${wanted[@]}" | sort) <(sort <<<"$installed"))
    [[ ${#missing[@]} -gt 0 ]] || return 0

    if [[ $EUID -ne 0 ]]; then
        [[ -n $(type -P sudo) ]] ||
            fail "cannot install ${missing[*]}: this needs root, and there is no sudo"
        # Asks for the password now, if it must, so that the wait below needs nobody.
        sudo true || fail "cannot install ${missing[*]}: this needs root, and sudo refused"
    fi
    say "installing ${missing[*]}"
    log=$(mktemp)
    # Old package lists, or a foreign source that does not answer, may do: installing decides.
    apt_get update >"$log" 2>&1 || true
    apt_get install --no-install-recommends "${missing[@]}" >>"$log" 2>&1 ||
        fail "cannot install ${missing[*]}: $(grep --max-count=1 '^E: ' "$log" || tail -n 1 "$log")" \
            "(all of apt's words: $log)"
    rm "$log"
}

# build PRESET [TARGET...]: builds in build/PRESET, and says nothing when nothing changed.
build() {
    local preset=$1 folder=$project/build/$1
    shift
    # Ninja runs CMake again for every file CMake has read, save the presets. A build folder that
    # came along with a copy of the project would build the original: it starts anew.
    if ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$project" "$folder/CMakeCache.txt"; then
        rm -rf "$folder"
    fi
    if [[ ! $folder/build.ninja -nt $project/CMakePresets.json ]]; then
        say "configuring build/$preset"
        (cd "$project" && cmake --preset "$preset" >/dev/null) ||
            fail "CMake could not configure build/$preset"
    fi
    if [[ $(ninja -C "$folder" -n "$@" 2>&1) != *"no work to do"* ]]; then
        say "building in build/$preset"
        ninja -C "$folder" "$@" >&2 || fail "the build failed"
    fi
}
