#!/usr/bin/env bash
#
# in_desktop.sh - run a command on a desktop of its own, with assistive technology switched on
#
# SYNOPSIS
#   Tests/desktop/in_desktop.sh [option]... [--] command [argument]...
#
# DESCRIPTION
#   Starts an X server without a display, a window manager and a session bus, and runs the command
#   there. Programs on this desktop tell the accessibility bus what they show, as they do when a
#   screen reader runs. Nothing of it is left when the command has ended.
#
#   It needs dbus-daemon, at-spi2-core, openbox and xvfb, and weston for Wayland. The network is the
#   caller's: run it inside scripts/lab for a private one with units.
#
# OPTIONS
#   --screen SIZE    the size of the screen; default 1366x768
#   --wayland        a Wayland compositor fills the screen, and programs show themselves there; it takes
#                    the keys that the X server gets, and answers weston-debug and weston-screenshooter
#   --help           this text
#
# EXIT STATUS
#   The command's own; 125 when this script itself failed, 2 when it was called wrongly.
#
# EXAMPLE
#   scripts/lab -- Tests/desktop/in_desktop.sh -- build/dev/bin/kxconfig

set -euo pipefail

readonly failed=125 usage_failed=2 tenths_to_ready=200

die() {
    local status=$1
    shift
    printf 'in_desktop: %s\n' "$*" >&2
    exit "$status"
}

end_desktop() {
    local pid
    for pid in ${compositor_pid:-} ${manager_pid:-} ${server_pid:-}; do
        kill -TERM "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    rm -rf -- "$scratch"
}

# The number is a random one, because servers of several network namespaces do not see each other's numbers, and two
# that start at once under one number spoil each other's keymap, which lies in a file of that number.
start_server() {
    local number=$((RANDOM * 32768 + RANDOM))
    mkfifo -- "$scratch/display"
    setpriv --pdeathsig TERM Xvfb ":$number" -displayfd 3 -screen 0 "${screen}x24" -nolisten tcp \
        3>"$scratch/display" 2>"$scratch/server" &
    server_pid=$!
    read -r number <"$scratch/display" || die "$failed" "no X server: $(<"$scratch/server")"
    export DISPLAY=:$number
}

start_manager() {
    local tenths
    setpriv --pdeathsig TERM openbox --startup "touch '$scratch/managed'" >"$scratch/manager" 2>&1 &
    manager_pid=$!
    for ((tenths = 0; tenths < tenths_to_ready; tenths++)); do
        [[ ! -e $scratch/managed ]] || return 0
        sleep 0.1
    done
    die "$failed" "no window manager: $(<"$scratch/manager")"
}

# Programs look for this socket when WAYLAND_DISPLAY names none. A test must not have that variable,
# because with it the bindings of the accessibility bus crash at the first key. A key that a test holds does
# not repeat itself.
start_compositor() {
    local tenths
    printf '[keyboard]\nrepeat-rate=0\n' >"$scratch/weston.ini"
    setpriv --pdeathsig TERM weston --config="$scratch/weston.ini" --backend=x11-backend.so --use-pixman \
        --debug --idle-time=0 --fullscreen --width="${screen%x*}" --height="${screen#*x}" --socket=wayland-0 \
        >"$scratch/compositor" 2>&1 &
    compositor_pid=$!
    for ((tenths = 0; tenths < tenths_to_ready; tenths++)); do
        [[ ! -S $scratch/wayland-0 ]] || return 0
        sleep 0.1
    done
    die "$failed" "no compositor: $(<"$scratch/compositor")"
}

screen=1366x768 platform=xcb
while (($# > 0)); do
    case $1 in
    --help)
        sed -n '3,/^$/{s/^# \{0,1\}//;p}' "${BASH_SOURCE[0]}"
        exit 0
        ;;
    --screen)
        (($# > 1)) || die "$usage_failed" '--screen needs a value'
        screen=$2
        shift
        ;;
    --wayland) platform=wayland ;;
    --)
        shift
        break
        ;;
    -*) die "$usage_failed" "unknown option $1; see --help" ;;
    *) break ;;
    esac
    shift
done
(($# > 0)) || die "$usage_failed" 'no command; see --help'
[[ $screen =~ ^[1-9][0-9]*x[1-9][0-9]*$ ]] || die "$usage_failed" '--screen needs a size such as 1366x768'

scratch=$(mktemp -d)
trap end_desktop EXIT
# A home and a runtime folder without anybody's settings.
export HOME=$scratch XDG_RUNTIME_DIR=$scratch
unset XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_HOME WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS
start_server
start_manager
[[ $platform != wayland ]] || start_compositor
export QT_QPA_PLATFORM=$platform QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
status=0
dbus-run-session -- "$@" || status=$?
exit "$status"
