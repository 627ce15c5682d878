#!/usr/bin/env bash
# The shipped drawings are what the program that makes them makes.
#   shipped-drawings-test.sh PROGRAM NAME...
set -euo pipefail
maker=$1
shift
data=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../data" && pwd)
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

"$maker" "$made"
for name in "$@"; do
    if ! cmp "$made/$name" "$data/$name"; then
        echo "data/$name is out of date: run $(basename "$maker") data" >&2
        exit 1
    fi
done
if [ "$(ls "$made" | wc -l)" != $# ]; then
    echo "$(basename "$maker") makes more than what is shipped." >&2
    exit 1
fi
if "$maker" "$made/missing" 2>"$made/error" || ! [ -s "$made/error" ]; then
    echo "A folder that is not there must be an error that is told." >&2
    exit 1
fi
