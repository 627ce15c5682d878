#!/usr/bin/env bash
# with-display.sh [--size WxH] [--no-window-manager] [--hermetic] COMMAND...
#
# Runs COMMAND on a virtual display of its own, under the window manager openbox, and ends with its
# status; 125 if there is no display to run it on. The processes started here end here, and no
# others. --hermetic also gives it an empty home and temporary folder and a plain locale, so that
# a test neither sees nor touches the user's files.
set -u

size=1920x1080
manager=openbox
hermetic=
while [[ ${1:-} == --* ]]; do
    case $1 in
        --size) size=$2; shift ;;
        --no-window-manager) manager= ;;
        --hermetic) hermetic=yes ;;
        *) echo "with-display: no option $1" >&2; exit 125 ;;
    esac
    shift
done
[[ $# -gt 0 ]] || { echo "with-display: no command" >&2; exit 125; }

work=$(mktemp -d) || exit 125
server_pid='' manager_pid='' command_pid=''

stop() {
    local tries
    [[ -n $1 ]] && kill "$1" 2>/dev/null || return
    for ((tries = 0; tries < 100; tries++)); do
        sleep 0.02
        kill -0 "$1" 2>/dev/null || return
    done
    kill -KILL "$1"
    wait "$1" 2>/dev/null
}
finish() {
    stop "$command_pid"
    stop "$manager_pid"
    stop "$server_pid"
    rm -rf "$work"
}
trap finish EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

give_up() {
    echo "with-display: $1" >&2
    [[ ! -s $work/log ]] || cat "$work/log" >&2
    exit 125
}
for tool in Xvfb $manager; do
    command -v "$tool" >/dev/null || give_up "$tool is not installed"
done

# The server picks a free display and writes its number when it is ready for clients.
mkfifo "$work/number"
exec {number}<>"$work/number"
Xvfb -displayfd 3 -screen 0 "${size}x24" -dpi 96 -nolisten tcp -noreset \
    3>&"$number" >"$work/log" 2>&1 &
server_pid=$!
display='' part=''
for ((tries = 0; tries < 150; tries++)); do
    if read -r -t 0.2 -u "$number" part; then
        display+=$part
        break
    fi
    display+=$part
    kill -0 "$server_pid" 2>/dev/null || give_up "Xvfb has ended"
done
exec {number}>&-
[[ $display =~ ^[0-9]+$ ]] || give_up "Xvfb does not start"

mkdir -m 700 "$work/run"
export DISPLAY=:$display QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work/run NO_AT_BRIDGE=1
export DBUS_SESSION_BUS_ADDRESS=disabled:  # no desktop stands behind this display
unset WAYLAND_DISPLAY XAUTHORITY SESSION_MANAGER
[[ -n ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LANG=C.UTF-8
if [[ -n $hermetic ]]; then
    mkdir "$work/home" "$work/tmp"
    export HOME=$work/home TMPDIR=$work/tmp LC_ALL=C.UTF-8
    unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME QT_QPA_PLATFORMTHEME \
        QT_STYLE_OVERRIDE QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_FONT_DPI
fi

if [[ -n $manager ]]; then
    settings=()
    [[ ! -f /etc/xdg/openbox/rc.xml ]] || settings=(--config-file /etc/xdg/openbox/rc.xml)
    openbox --sm-disable "${settings[@]}" --startup "touch '$work/managed'" >>"$work/log" 2>&1 &
    manager_pid=$!
    for ((tries = 0; tries < 600; tries++)); do
        [[ ! -e $work/managed ]] || break
        kill -0 "$manager_pid" 2>/dev/null || give_up "openbox has ended"
        sleep 0.05
    done
    [[ -e $work/managed ]] || give_up "openbox does not start"
fi

# In the background, so that a signal to this script is dealt with at once.
"$@" <&0 &
command_pid=$!
wait "$command_pid"
status=$?
command_pid=''
exit "$status"
