#!/usr/bin/env bash
# A command on a private display sees that display and a window manager, its status comes through,
# and nothing that was started for it is left, however it ends.
set -uo pipefail
with_display=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../tools" && pwd)/with-display.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

expect() {
    local what=$1
    shift
    "$@" || { echo "FAILED: $what"; failures=$((failures + 1)); }
}

# The processes whose parent is $1, by /proc: "pid name" a line.
children_of() {
    local file stat rest
    for file in /proc/[0-9]*/stat; do
        read -r stat <"$file" 2>/dev/null || continue
        rest=${stat##*) }
        [[ $(cut -d' ' -f2 <<<"$rest") -ne $1 ]] || echo "${stat%% *} $(cut -d'(' -f2 <<<"${stat%)*}")"
    done
}
gone() { ! kill -0 "$1" 2>/dev/null; }
none_left() {
    local pid _
    while read -r pid _; do gone "$pid" || return 1; done <"$1"
}

# Status, input, arguments and size.
"$with_display" sh -c 'exit 7'
expect "the status comes through" [ $? -eq 7 ]
echo text >"$work/in"
expect "input and arguments come through" \
    [ "$("$with_display" --no-window-manager sh -c 'cat; echo "$1"' - 'two words' <"$work/in")" = \
    "text
two words" ]
size=$("$with_display" --no-window-manager --size 1280x1024 xdotool getdisplaygeometry)
expect "the display has the size asked for" [ "$size" = "1280 1024" ]

# With openbox a property of the root window says who manages it; two runs never share a display.
"$with_display" sh -c 'xdotool get_num_desktops >/dev/null && echo "$DISPLAY"; sleep 1' >"$work/a" &
"$with_display" sh -c 'xdotool get_num_desktops >/dev/null && echo "$DISPLAY"; sleep 1' >"$work/b" &
wait
expect "openbox is there on the first display" grep -q '^:[0-9]' "$work/a"
expect "openbox is there on the second display" grep -q '^:[0-9]' "$work/b"
expect "each run has its own display" [ "$(cat "$work/a")" != "$(cat "$work/b")" ]
"$with_display" --no-window-manager xdotool get_num_desktops >/dev/null 2>&1
expect "without openbox nobody manages the windows" [ $? -ne 0 ]

# The user's home is out of sight.
HOME=$work LC_ALL=C "$with_display" --no-window-manager --hermetic \
    sh -c 'touch "$HOME/home" "$TMPDIR/tmp"; echo "$LC_ALL"' >"$work/locale"
expect "the plain locale is set" [ "$(cat "$work/locale")" = C.UTF-8 ]
expect "the user's home is left alone" [ ! -e "$work/home" ]

# Ended by a signal, it takes along the command, the manager and the server.
"$with_display" sh -c 'echo ready; exec sleep 60' >"$work/ready" &
script=$!
for ((tries = 0; tries < 200; tries++)); do
    [[ ! -s $work/ready ]] || break
    sleep 0.05
done
children_of "$script" >"$work/children"
expect "command, manager and server run" [ "$(wc -l <"$work/children")" -eq 3 ]
expect "the server is one of them" grep -q Xvfb "$work/children"
kill -TERM "$script"
wait "$script"
expect "the signal shows in the status" [ $? -eq 143 ]
expect "none of them is left" none_left "$work/children"

# Without its tools it says so, and the command is not run.
mkdir "$work/bin"
for tool in bash mktemp rm cat touch; do ln -s "$(command -v $tool)" "$work/bin/$tool"; done
PATH=$work/bin "$with_display" touch "$work/ran" 2>"$work/words"
expect "a missing server ends with 125" [ $? -eq 125 ]
expect "the missing tool is named" grep -q 'Xvfb is not installed' "$work/words"
expect "the command is not run" [ ! -e "$work/ran" ]

[[ $failures -eq 0 ]]
