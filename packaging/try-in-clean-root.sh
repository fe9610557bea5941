#!/usr/bin/env bash
# Installs the Debian packages into a clean Debian 12 root, runs the tool and the tour there, builds the examples against
# the development package, and removes the packages again. Needs root and the network.
# Usage: packaging/try-in-clean-root.sh FOLDER_OF_PACKAGES
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
packages=$(readlink -f "$1")
[ "$(id -u)" -eq 0 ] || { echo "a clean root needs the rights of root" >&2; exit 1; }

root=$(mktemp -d)
chmod 755 "$root"
trap 'rm -rf "$root"' EXIT
# The first place that this machine gets Debian 12 from.
mirror=$(apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' |
    awk '$2 == "bookworm" && $3 == "main" && !found { print $1; found = 1 }')
in_root() { chroot "$root" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen "$@"; }
install_in_root() { in_root apt-get install -y -q --no-install-recommends "$@" >/dev/null; }

debootstrap --variant=minbase bookworm "$root" "$mirror" >/dev/null
mkdir "$root/packages"
cp "$packages"/*.deb "$root/packages/"
cp -r examples "$root/examples"
in_root apt-get update -q >/dev/null
# Files of the system only: what an operator saved stays in the home folder.
named_files() { (cd "$root" && find etc usr var -iname '*sender*' | sort); }
named_files >"$root/before"

install_in_root /packages/"$(cd "$packages" && ls sender-applications_*.deb)" \
    /packages/"$(cd "$packages" && ls libsendermoduledialog1_*.deb)" \
    /packages/"$(cd "$packages" && ls libsendermoduledialog-simulator_*.deb)" fonts-dejavu-core
in_root sender-tool cct 6500
in_root sender-workbench --tour /tour 2>/dev/null | tail -1

install_in_root /packages/"$(cd "$packages" && ls libsendermoduledialog-dev_*.deb)" g++ cmake ninja-build
in_root cmake -S /examples -B /build -G Ninja >/dev/null
in_root cmake --build /build >/dev/null
in_root /build/gamut-coverage

in_root apt-get purge -y -q sender-applications 'libsendermoduledialog*' >/dev/null
named_files >"$root/after"
diff "$root/before" "$root/after" || { echo "the packages leave the files above behind" >&2; exit 1; }
echo "The packages work in a clean root and leave nothing behind."
