# What ./run and ./test share: packages, configuring, building. Sourced from the root of the tree.

say() { printf '%s\n' "$*"; }
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

# The packages of the named groups.
packages_of() {
    local group
    for group in "$@"; do
        sed -n "s/^$group //p" .ci/packages
    done | sort -u
}

installed() {
    dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null | grep -q '^installed$'
}

# Installs what is missing of the named groups, and says what. Needs no network when nothing is missing.
install_packages() {
    if ! command -v dpkg-query >/dev/null; then
        say "No dpkg here: assuming that the packages of .ci/packages are installed." >&2
        return 0
    fi
    local missing=() package as_root=()
    while read -r package; do
        installed "$package" || missing+=("$package")
    done < <(packages_of "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "packages are missing; install them as root: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing: ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -q >/dev/null ||
        say "The package lists could not be refreshed; going on with the old ones." >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null ||
        fail "the packages could not be installed: ${missing[*]}"
}

# configure PRESET [CMake arguments]
configure() {
    local preset=$1
    shift
    cmake --preset "$preset" -Wno-dev "$@" >/dev/null || fail "configuring the preset $preset failed"
}

# build PRESET [build arguments]
build() {
    local preset=$1
    shift
    cmake --build --preset "$preset" --parallel "$(nproc)" "$@" || fail "the build of the preset $preset failed"
}

# What is built and packed bears the time of the last commit, so that the same sources give the same bytes.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || date +%s)}
export SOURCE_DATE_EPOCH
