#!/usr/bin/env bash
# The shipped sample library is what the program that makes it makes; icons are compared by name, as
# the toolkit's painter may draw a pixel otherwise.
#   sample-library-test.sh PROGRAM
set -euo pipefail
data=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../data" && pwd)
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

"$1" "$made"
cmp "$made/Sample Symbols.lib" "$data/Sample Symbols.lib"
diff -r -x '*.bmp' "$made/Sample Symbols" "$data/Sample Symbols"
diff <(ls "$made/Sample Symbols") <(ls "$data/Sample Symbols")
count=$(wc -l <"$data/Sample Symbols.lib")
if ((count < 24 || $(ls "$data/Sample Symbols" | wc -l) != 3 * count + 1)); then
    echo "The sample library has $count symbols, or not three files for each." >&2
    exit 1
fi
