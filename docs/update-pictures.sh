#!/usr/bin/env bash
# Takes the pictures of the README anew, from the tour. Usage: docs/update-pictures.sh
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
./run --tour "$folder"
# The picture of the README, and that of the tour.
while read -r picture shown; do
    cp "$folder/$shown.png" "docs/$picture.png"
done <<PICTURES
workbench en-edid-after
edid en-edid-compared
colour en-colour
output en-output-stretched-60
addresses en-addresses
simulation en-simulation
PICTURES
build/release/bin/sender-tool chart -o docs/chart.png --standard DCIP3 --standard Rec2020 --coverage \
    --group 'Wall 7:0.69,0.30;0.19,0.72;0.14,0.055;0.3127,0.329'
