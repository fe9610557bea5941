#!/usr/bin/env bash
# unpack-root.sh FOLDER PACKAGE...: unpacks Debian packages of AArch64 into the folder. Package lists and settings are the
# folder's own: this machine's packages and architectures stay as they are.
set -euo pipefail
folder=$1
shift

# Nothing to do when the same packages are there.
[ "$(cat "$folder/packages" 2>/dev/null)" != "$*" ] || exit 0

rm -rf "$folder"
mkdir -p "$folder"/apt/{lists,cache,debs}
folder=$(cd "$folder" && pwd)
: >"$folder/apt/status"
apt() {
    apt-get -qq -o APT::Architecture=arm64 -o APT::Architectures=arm64 -o APT::Sandbox::User= \
        -o Dir::State="$folder/apt" -o Dir::State::status="$folder/apt/status" -o Dir::Cache="$folder/apt/cache" "$@"
}
apt update
(cd "$folder/apt/debs" && apt download "$@")
for package in "$folder"/apt/debs/*.deb; do
    dpkg -x "$package" "$folder"
done
rm -rf "$folder/apt"
printf '%s' "$*" >"$folder/packages"
