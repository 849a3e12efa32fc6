#!/usr/bin/env bash
# Brings .ts files up to date with the texts in the code. Usage: lupdate.sh LUPDATE SOURCE_FOLDER FILE.ts…
set -euo pipefail
lupdate=$1 source=$2; shift 2
cd "$source"
list=$(mktemp)
trap 'rm -f "$list"' EXIT
find core app ui \( -name '*.cpp' -o -name '*.h' \) | LC_ALL=C sort >"$list"
for file in "$@"; do
    name=$(basename "$file" .ts)
    "$lupdate" -silent -I . -tr-function-alias tr+=mark -locations none -no-obsolete \
        -source-language en -target-language "${name#quorbel_}" "@$list" -ts "$file" 2>&1 \
        | grep -v "lacks Q_OBJECT macro" || true
done
