#!/usr/bin/env bash
# Builds library and packages of what is committed in two folders below build/, and compares them byte for byte.
# `./test --reproducible` calls it.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. .ci/environment.sh

folder=build/reproducible

# build_packages_in FOLDER: with a build of its own that takes nothing from a cache.
build_packages_in() {
    rm -rf "$1"
    mkdir -p "$1/tree"
    git archive HEAD | tar -x -C "$1/tree"
    cmake -S "$1/tree" -B "$1/build" -G Ninja -Wno-dev -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER_LAUNCHER= \
        -DSENDER_BUILD_TESTS=OFF -DSENDER_BUILD_BENCHMARKS=OFF >/dev/null
    cmake --build "$1/build" --parallel "$(nproc)" --target all header_pages
    (cd "$1/build" && cpack >/dev/null)
}

# sums FOLDER: of the packages, of the library as it is built, and of each file in the packages, so that a difference has
# a name.
sums() {
    local package
    (cd "$1/build" && sha256sum packages/*.deb lib/libSenderModuleDialog.so)
    for package in "$1"/build/packages/*.deb; do
        dpkg-deb --fsys-tarfile "$package" | tar --to-command='sha256sum | sed "s|-$|$TAR_FILENAME|"' -x
    done
}

build_packages_in "$folder/one"
build_packages_in "$folder/another-with-a-longer-name"
sums "$folder/one" >"$folder/one.sums"
sums "$folder/another-with-a-longer-name" >"$folder/another.sums"
diff "$folder/one.sums" "$folder/another.sums" || fail "the two builds differ in the files above"
head -n 5 "$folder/one.sums"
say "Two builds in two folders are the same, byte for byte."
