#!/usr/bin/env bash
# Makes docs/GALLERY.md and the pictures in docs/gallery anew from a tour.
# Usage: docs/make-gallery.sh [TOUR], the folder of a tour that was made already
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
# The status bar of the pictures shows the folder.
tour=${1:-/tmp/tour}
[ $# -gt 0 ] || ./run --tour "$tour"
cmake --build --preset release --target make-gallery
QT_QPA_PLATFORM=offscreen build/release/bin/make-gallery "$tour" docs
