#!/usr/bin/env bash
# After its first discovery the application has nothing to do until somebody does something: none of
# its threads may wake up.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2

# How often the threads of process $1 have gone to sleep, one line a thread.
sleeps() {
    grep -H voluntary_ctxt_switches /proc/"$1"/task/*/status
}

QT_QPA_PLATFORM=offscreen "$kxconfig" &
pid=$!
trap 'kill "$pid" 2>/dev/null || true' EXIT

# A discovery is over when nothing has happened for longer than the 2.0 s that it waits for answers.
before=
for ((attempt = 0; attempt < 10; attempt++)); do
    sleep 3.5
    now=$(sleeps "$pid")
    [[ $now != "$before" ]] || break
    before=$now
done
sleep 5
expect_equal 'what the threads did in five seconds at rest' "$before" "$(sleeps "$pid")"
