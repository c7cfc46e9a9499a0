#!/usr/bin/env bash
# The real program gets no more memory while a sender floods it. It ends with a sentence and with the
# status of a failure, and not in silence.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$1 sender=$2
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
cd -- "$scratch"
ulimit -c unlimited

program_listens() {
    ss --udp --listening --numeric 'sport = 3520' | grep -q 3520
}

QT_QPA_PLATFORM=offscreen "$kxconfig" 2>"$scratch/errors" &
program=$!
eventually program_listens || fail "the program does not start: $(<"$scratch/errors")"
sleep 2.5
taken=$(awk '/^VmData:/ { print $2 * 1024 }' "/proc/$program/status")
prlimit --pid "$program" --data="$((taken + 16 * 1024 * 1024))"
"$sender" 192.0.2.1 3520 20 4B5800000001 1 long >/dev/null &
sender_pid=$!
status=0
wait "$program" || status=$?
kill "$sender_pid" 2>/dev/null || true

expect_equal 'exit status of the program' 1 "$status"
expect_equal 'the last line of the program' 'There is no memory left, so the program ends.' \
    "$(tail -1 "$scratch/errors" | sed 's/^kxconfig\[[0-9]*\]: //')"
expect_equal 'what the program leaves in its folder' 'errors' "$(ls)"
