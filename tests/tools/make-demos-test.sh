#!/usr/bin/env bash
# The shipped demonstration drawings are what the program that makes them makes.
set -euo pipefail
make_demos=$1
data=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../data" && pwd)
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

"$make_demos" "$made"
for demo in Demo1.els Demo2.els; do
    if ! cmp "$made/$demo" "$data/$demo"; then
        echo "data/$demo is out of date: run make_demos data" >&2
        exit 1
    fi
done
if "$make_demos" "$made/missing" 2>"$made/error" || ! [ -s "$made/error" ]; then
    echo "A folder that is not there must be an error that is told." >&2
    exit 1
fi
