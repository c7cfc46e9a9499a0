#!/usr/bin/env bash
# The X server is killed while the real program shows its window there. The program ends by itself, says
# why, reports it by its exit status, and leaves no process and no core file behind.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$1
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
cd -- "$scratch"
ulimit -c unlimited

program_listens() {
    ss --udp --listening --numeric 'sport = 3520' | grep -q 3520
}
# The sockets of this network namespace, which the shell that asks for them represents.
processes_here() {
    local process
    for process in /proc/[0-9]*; do
        [[ $process == "/proc/$BASHPID" || $(readlink "$process/ns/net") != "$(readlink /proc/self/ns/net)" ]] ||
            printf '%s ' "${process#/proc/}"
    done 2>/dev/null
}

# Tests/desktop/in_desktop.sh says why the number is a random one.
number=$((RANDOM * 32768 + RANDOM))
exec {ready}< <(exec Xvfb ":$number" -displayfd 1 -screen 0 1024x768x24 -nolisten tcp 2>"$scratch/server")
server=$!
read -r -t 20 -u "$ready" display || fail "the X server does not start: $(<"$scratch/server")"
# Removes the files that a killed server leaves behind.
trap 'rm -rf -- "$scratch" "/tmp/.X$display-lock" "/tmp/.X11-unix/X$display"' EXIT

XDG_RUNTIME_DIR=$scratch DISPLAY=:$display QT_QPA_PLATFORM=xcb "$kxconfig" 2>"$scratch/errors" &
program=$!
eventually program_listens || fail "the program does not start: $(<"$scratch/errors")"
kill -KILL "$server"
status=0
wait "$program" || status=$?

expect_equal 'exit status of the program' 1 "$status"
# Qt says it or Xlib does: whichever of them reads the broken connection first.
grep -qE 'Did the X11 server die|XIO: +fatal IO error' "$scratch/errors" || fail "no word about it: $(<"$scratch/errors")"
expect_equal 'the processes that are left' "$$ " "$(processes_here)"
expect_equal 'what the program leaves in its folder' 'errors
server' "$(ls)"
