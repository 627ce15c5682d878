#!/usr/bin/env bash
# The shipped drawings of the circuit simulation are what the program that makes them makes, all of
# them and no others.
set -euo pipefail
make_simulation=$1
data=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../data" && pwd)
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

"$make_simulation" "$made"
if ! diff -rq "$made" "$data/Simulation Files"; then
    echo "data/Simulation Files is out of date: run make_simulation on it" >&2
    exit 1
fi
if "$make_simulation" "$made/missing" 2>"$made/error" || ! [ -s "$made/error" ]; then
    echo "A folder that is not there must be an error that is told." >&2
    exit 1
fi
