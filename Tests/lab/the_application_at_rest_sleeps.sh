#!/usr/bin/env bash
# After its first discovery the application has nothing to do until a person acts. With the event log
# closed or open, none of its threads may wake up.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
log=$1 kxconfig=$2

# The number of times that each thread of process $1 has gone to sleep, one line for each thread.
sleeps() {
    grep -H voluntary_ctxt_switches /proc/"$1"/task/*/status
}

export QT_QPA_PLATFORM=offscreen
output=$(mktemp)
if [[ $log == open ]]; then
    export QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
    export KX_STEPS='
        discover 3
        log
        logs serial:4B 58 00 00 00 03
        stay'
fi
"$kxconfig" >"$output" 2>&1 &
pid=$!
trap 'kill "$pid" 2>/dev/null || true; rm -f -- "$output"' EXIT

visit_is_over() {
    [[ $log == closed ]] || grep -q '^Tour complete' "$output"
}
for ((attempt = 0; attempt < 6; attempt++)); do
    ! eventually visit_is_over || break
done
visit_is_over || fail "the event log was not opened: $(<"$output")"

# A discovery is over when nothing has happened for longer than its 2.0 s of waiting for answers.
before=
for ((attempt = 0; attempt < 10; attempt++)); do
    sleep 3.5
    now=$(sleeps "$pid")
    [[ $now != "$before" ]] || break
    before=$now
done
sleep 5
expect_equal 'what the threads did in five seconds at rest' "$before" "$(sleeps "$pid")"
