#!/usr/bin/env bash
# The binary interface of the library, as packaging/abi/ stores it: symbols.abi holds the exported symbols, types.abi the
# layouts, virtual functions and enumerators of everything in the public headers. abidiff tells what differs.
# Usage: packaging/abi.sh --check LIBRARY HEADERS   fail with the list of what changed
#        packaging/abi.sh --renew LIBRARY HEADERS   store the interface as it is now
# HEADERS is a file with the paths of the public headers below the root, one a line. `./test --renew-abi` does the latter.
set -euo pipefail
root=$(dirname "$(readlink -f "$0")")/..
stored=$root/packaging/abi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    printf 'abi.sh: %s\n' "$*" >&2
    exit 1
}

# No places, no names of arguments: what a caller was compiled with, and nothing else.
describe() {
    abidw --exported-interfaces-only --no-show-locs --no-corpus-path --no-comp-dir-path --no-elf-needed \
        --no-parameter-names --no-write-default-sizes "$@"
}

# probe HEADERS: a source with a pointer to each class, record and enumeration of the headers. The compiler describes a class
# with virtual functions in the one object that has its table, unless it is told to describe it always.
probe() {
    local header
    sed 's/.*/#include "&"/' "$1"
    while read -r header; do
        sed -nE '/^template/{n;d}; s/^(class|struct|enum) ([A-Z]+_EXPORT )?([A-Za-z_0-9]+)( : [^;{]*)?$/\3/p' "$root/$header"
    done <"$1" | sed 's/.*/extern __attribute__((visibility("default"))) & *abi_&; & *abi_&;/'
}

compile_probe() {
    probe "$1" >"$work/probe.cpp"
    # shellcheck disable=SC2046 # flags
    g++ -std=c++17 -g -O0 -femit-class-debug-always -fPIC -shared -nostdlib -I "$root" $(pkg-config --cflags Qt5Widgets) \
        "$work/probe.cpp" -o "$work/probe.so"
}

# Types of Qt and of the standard library belong to others.
own_types() {
    local kind
    for kind in class struct union enum; do
        printf '[suppress_type]\ntype_kind = %s\nsource_location_not_regexp = (SenderModuleDialog|host)/\ndrop = yes\n' "$kind"
    done
}

# Private functions are called by the library alone. Members without a stated access are private in a class.
private_symbols() {
    readelf --debug-dump=info "$work/probe.so" 2>/dev/null | awk '
        function flush() { if (subprogram && declared && !access && name ~ /^_ZNK?[0-9]+C/) print "name=\047" name "\047" }
        /DW_TAG_/ { flush(); subprogram = /DW_TAG_subprogram/; declared = access = 0; name = "" }
        /DW_AT_linkage_name/ { name = $NF }
        /DW_AT_declaration/ { declared = 1 }
        /DW_AT_accessibility/ { access = 1 }
        END { flush() }' | sort -u
}

# present LIBRARY HEADERS: the interface as it is, in the work folder.
present() {
    compile_probe "$2" || fail "the public headers do not compile"
    own_types >"$work/own"
    describe --suppressions "$work/own" "$work/probe.so" >"$work/types.abi"
    private_symbols >"$work/private"
    describe "$1" | grep -vFf "$work/private" >"$work/symbols.abi"
}

check() {
    local part changed=0
    for part in symbols types; do
        abidiff --harmless "$stored/$part.abi" "$work/$part.abi" >&2 || changed=1
    done
    [ "$changed" -eq 0 ] ||
        fail "the binary interface differs from packaging/abi/ as listed above; if that is intended, run ./test --renew-abi"
}

case "${1:-}" in
--check | --renew)
    [ $# -eq 3 ] || fail "$1 takes a library and a list of headers"
    present "$2" "$3"
    if [ "$1" = --check ]; then
        check
    else
        cp "$work"/{symbols,types}.abi "$stored/"
    fi
    ;;
*)
    sed -n '2,6s/^# //p' "$0"
    exit 2
    ;;
esac
