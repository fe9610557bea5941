#!/usr/bin/env bash
# Brings the translation files into line with the sources. What is new is left unfinished, to be translated by hand.
# With --check nothing is changed: the status tells whether every text is translated and no other text is left.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

# file, source language, target language, folders
update_all() {
    local folder=$1
    update "$folder/SenderModuleDialog_en.ts" zh_CN en SenderModuleDialog simulator/OrviControl
    update "$folder/SenderWorkbench_en.ts" zh_CN en workbench reports simulator/HardwareSupport
    update "$folder/SenderSimulator_zh.ts" en zh_CN simulator/CommonClass simulator/TevraData instruments
}

update() {
    local file=$1 source=$2 target=$3
    shift 3
    lupdate -silent -no-obsolete -I . -locations none -source-language "$source" -target-language "$target" "$@" -ts "$file"
}

if [ "${1:-}" != --check ]; then
    update_all translations
    exit 0
fi

copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp translations/*.ts "$copy"
update_all "$copy"
status=0
for file in translations/*.ts; do
    name=$(basename "$file")
    # The order of messages is lupdate's own affair.
    texts() { grep -oE '<(name|source)>.*' "$1" | sort; }
    if ! diff <(texts "$file") <(texts "$copy/$name") >"$copy/diff"; then
        echo "$name is not in line with the sources; run translations/update.sh:"
        cat "$copy/diff"
        status=1
    fi
    if grep -q 'type="unfinished"' "$copy/$name"; then
        echo "$name has texts that are not translated:"
        grep -B1 'type="unfinished"' "$copy/$name"
        status=1
    fi
done
if [ "$(grep -c '<name>' translations/SenderModuleDialog_en.ts)" -ne 1 ]; then
    echo "SenderModuleDialog_en.ts has another context than CCustomDialog"
    status=1
fi
exit $status
