#!/usr/bin/env bash
# Runs fuzz targets a number of times each and prints what came of it. A target that has had its runs is left out the
# next time, unless its program is newer; one that was stopped goes on with the inputs that it found.
# Usage: fuzz/runs.sh PROGRAMS RESULTS RUNS [TARGET]
#   PROGRAMS  folder of the targets, fuzz_NAME
#   RESULTS   folder for NAME.log, corpus/NAME and the inputs of findings
#   TARGET    a NAME; all targets by default
# The status is 1 after a finding.
set -euo pipefail
[ $# -ge 3 ] || { sed -n 's/^# \?//;4,8p' "$0"; exit 2; }
programs=$1 results=$2 runs=$3 only=${4:-}
folder=$(dirname "$(readlink -f "$0")")
seeds=$folder/corpus

targets() {
    find "$programs" -maxdepth 1 -type f -executable -name 'fuzz_*' -printf '%f\n' | sed 's/^fuzz_//' | sort
}

# executed LOG: the runs that a finished log tells, else 0.
executed() {
    local count
    count=$(sed -n 's/^Done \([0-9]*\) runs in.*/\1/p' "$1" 2>/dev/null | tail -1 || true)
    echo "${count:-0}"
}

is_finished() {
    local log=$results/$1.log
    [ "$log" -nt "$programs/fuzz_$1" ] && [ "$(executed "$log")" -ge "$runs" ]
}

run() {
    local name=$1 begin=$EPOCHREALTIME
    mkdir -p "$results/corpus/$name"
    # A finding ends the target; the table tells it.
    LSAN_OPTIONS="suppressions=$folder/lsan.supp:print_suppressions=0" \
        "$programs/fuzz_$name" -runs="$runs" -print_final_stats=1 -artifact_prefix="$results/$name-" \
        "$results/corpus/$name" "$seeds/$name" >"$results/$name.log" 2>&1 || true
    awk "BEGIN { print \"seconds: \" $EPOCHREALTIME - $begin }" >>"$results/$name.log"
}

# finding LOG: what a sanitizer or a requirement says, "none", or that the runs were cut short.
finding() {
    local summary
    summary=$(sed -n 's/^SUMMARY: //p' "$1" | head -1)
    if [ -n "$summary" ]; then
        echo "$summary"
    elif [ "$(executed "$1")" -gt 0 ]; then
        echo none
    else
        echo "stopped, see $1"
    fi
}

row() {
    local log=$results/$1.log count seconds
    count=$(sed -n 's/^stat::number_of_executed_units: //p' "$log" | tail -1)
    seconds=$(sed -n 's/^seconds: //p' "$log")
    printf '%-16s %12s %12s %8s  %s\n' "$1" "${count:-0}" \
        "$(awk "BEGIN { printf \"%.0f\", ${count:-0} / ${seconds:-1} }")" \
        "$(find "$results/corpus/$1" -type f | wc -l)" "$(finding "$log")"
}

# A target that is interrupted ends in order; without this the next one would begin.
trap 'exit 130' INT TERM
mkdir -p "$results"
names=$(targets)
if [ -n "$only" ]; then
    grep -qxF "$only" <<<"$names" || { echo "no target '$only'; there are: ${names//$'\n'/ }" >&2; exit 2; }
    names=$only
fi
status=0
for name in $names; do
    if is_finished "$name"; then
        echo "== $name has had its runs"
    else
        echo "== $name"
        run "$name"
    fi
done
printf '\n%-16s %12s %12s %8s  %s\n' target runs runs/second corpus finding
for name in $names; do
    row "$name"
    [ "$(finding "$results/$name.log")" = none ] || status=1
done
exit "$status"
