#!/usr/bin/env bash
# The Wayland compositor is killed while the real program shows its window there. The program ends by
# itself, says why, reports it by its exit status, and leaves no core file behind.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$1
scratch=$(mktemp -d)
chmod 700 "$scratch"
trap 'kill -KILL "$compositor" 2>/dev/null || true; rm -rf -- "$scratch"' EXIT
mkdir "$scratch/work"
cd -- "$scratch/work"
ulimit -c unlimited

program_listens() {
    ss --udp --listening --numeric 'sport = 3520' | grep -q 3520
}

export XDG_RUNTIME_DIR=$scratch
weston --backend=headless-backend.so --socket=wayland-kx --idle-time=0 >"$scratch/weston" 2>&1 &
compositor=$!
eventually test -S "$scratch/wayland-kx" || fail "the compositor does not start: $(<"$scratch/weston")"

WAYLAND_DISPLAY=wayland-kx QT_QPA_PLATFORM=wayland "$kxconfig" 2>"$scratch/errors" &
program=$!
eventually program_listens || fail "the program does not start: $(<"$scratch/errors")"
sleep 0.5 # until the window is there
kill -KILL "$compositor"
status=0
wait "$program" || status=$?

expect_equal 'exit status of the program' 1 "$status"
grep -qi 'wayland compositor' "$scratch/errors" || fail "no word about it: $(<"$scratch/errors")"
expect_equal 'what the program leaves in its folder' '' "$(ls)"
