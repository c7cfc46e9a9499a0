#!/usr/bin/env bash
# One sender floods the real program for SECONDS seconds with one kind of datagram, while the event log is
# LOG (closed or open). The program writes at most 20 lines a second and takes at most MOST MiB of memory.
#
# usage, in the lab: one_sender_fills_nothing.sh KXCONFIG SENDER KIND LOG SECONDS MOST
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$1 sender=$2 kind=$3 log=$4 seconds=$5 most=$6
scratch=$(mktemp -d)
trap 'kill "$program" 2>/dev/null || true; rm -rf -- "$scratch"' EXIT

program_listens() {
    ss --udp --listening --numeric 'sport = 3520' | grep -q 3520
}

export QT_QPA_PLATFORM=offscreen
if [ "$log" = open ]; then
    export QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
    export KX_STEPS='
        press logDrawerButton
        stay'
fi
"$kxconfig" >"$scratch/output" 2>"$scratch/errors" &
program=$!
eventually program_listens || fail "the program does not start: $(<"$scratch/errors")"
sleep 2.5 # until its first discovery is complete

"$sender" 192.0.2.1 3520 "$seconds" 4B5800000001 1 "$kind" >"$scratch/sent"
sleep 1.5 # until the last second of the log has ended
kill -0 "$program" || fail "the program ended: $(tail -3 "$scratch/errors")"
memory=$(awk '/^VmHWM:/ { print int($2 / 1024) }' "/proc/$program/status")
lines=$(wc -l <"$scratch/errors")
printf '%s, event log %s, %s s: %s, %s lines and %s bytes on standard error, at most %s MiB\n' \
    "$kind" "$log" "$seconds" "$(<"$scratch/sent")" "$lines" "$(wc -c <"$scratch/errors")" "$memory"

((lines <= 20 * (seconds + 2) + 1)) || fail "too many lines: $lines"
if [ "$kind" = cut ]; then
    ((lines >= 20 * (seconds - 1))) || fail "too few lines, so there was no flood: $lines"
    grep -q ' more like this$' "$scratch/errors" || fail 'no line tells how many there were'
fi
((memory <= most)) || fail "too much memory: $memory MiB"
