#!/usr/bin/env bash
# Prints the measurements of a wall as CSV: modules of three LED deliveries whose bins differ a little, one module from
# another wall and one that has aged. The same numbers each time.
# Usage: docs/make-wall.sh [MODULES], 64 by default, 8 to a row.
set -euo pipefail
LC_ALL=C awk -v count="${1:-64}" '
# Park and Miller, 1988: the same sequence with every awk.
function part() { state = (state * 16807) % 2147483647; return state / 2147483647 }
# Close enough to a normal distribution for readings: the sum of twelve uniform numbers less six.
function normal(  sum, i) { sum = -6; for (i = 0; i < 12; ++i) sum += part(); return sum }
function reading(x, y, level, scatter,  text) {
    text = sprintf("%.4f,%.4f,%.1f", x + scatter * normal(), y + scatter * normal(), level * (1 + 0.012 * normal()))
    return text
}
BEGIN {
    state = 1931
    print "module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY"
    for (i = 0; i < count; ++i) {
        name = sprintf("%c%d", 65 + int(i / 8) % 26, i % 8 + 1)
        if (count > 208)
            name = sprintf("M%05d", i + 1)
        bin = int(i / 8) % 3 - 1                     # -1, 0 or 1: the delivery of this row
        green = 0.1900 + 0.0012 * bin
        aged = i == 43 ? 0.82 : 1                    # its blue has faded
        if (i == 29)
            green = 0.2080                           # a spare from another wall
        printf "%s,%s,%s,%s\n", name, reading(0.6905 + 0.0004 * bin, 0.3040, 238, 0.0003),
            reading(green, 0.7190, 792, 0.0005), reading(0.1395, 0.0560 + 0.0003 * bin, 76 * aged, 0.0003)
    }
}'
