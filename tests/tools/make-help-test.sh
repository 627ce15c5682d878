#!/usr/bin/env bash
# The maker of the help's topics joins what belongs together and refuses what no reader could use.
set -euo pipefail
make_help=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/topics" "$work/made"

topic() { printf '%b' "$2" >"$work/topics/$1.txt"; }
refused() {
    if "$make_help" "$work/topics" "$work/made" 2>"$work/error" || ! grep -q "$1" "$work/error"; then
        echo "Not refused for \"$1\": $(cat "$work/error")" >&2
        exit 1
    fi
}

topic b '1.2 Second\n\nA line\n  and its rest.\n\nHEADING\n1. One\n   two\n- item\nKey | what it does\n'
topic a '1.1 First\nSee "1.2 Second".\n'
"$make_help" "$work/topics" "$work/made"
printf '\xFE1.1 First\xBF\r\n\xBFSee "1.2 Second".\r\n\r\n\xFE1.2 Second\xC0\r\n\xC0' >"$work/expected"
printf 'A line and its rest.\r\n\r\nHEADING\r\n1. One two\r\n- item\r\nKey\twhat it does\r\n\r\n' \
    >>"$work/expected"
cmp "$work/made/Help_Topics.htx" "$work/expected"
cmp "$work/made/Original_Help_Topics.hhf" "$work/expected"

topic a '1.1 First\nSee "1.3 Third".\n'
refused 'there is no topic "1.3 Third"'
topic a '1.2 Second\nText\n'
refused 'stands twice'
topic a '1.1 First\nA thorn: \xC3\xBE\n'
refused 'a.txt: a character'
topic a '1.1 First\n'
refused 'a.txt: nothing below'
rm "$work"/topics/*
refused 'too few'
