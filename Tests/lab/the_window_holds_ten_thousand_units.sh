#!/usr/bin/env bash
# Ten thousand units answer in the same instant. The real window holds and lists them all, with the event
# log closed and open, and a person hardly waits meanwhile.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2

# Both limits are in milliseconds. The program alone decides how long it works. A machine with other work
# can make a person wait longer.
longest_work=50
longest_wait=250

export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

report=$(KX_STEPS="
    watch
    crowd 10000
    waited $longest_wait
    worked $longest_work
    finding
    log
    replies 10000
    watch
    crowd 10000
    waited $longest_wait
    worked $longest_work
    replies 10000
    finding" "$kxconfig" 2>&1) || fail "the visit failed: $report"
expect_equal 'the replies with the log closed and open' 2 \
    "$(grep -c '^Replies: 10000 units, of which 0 were dropped$' <<<"$report")"
mapfile -t times < <(grep '^Longest time ' <<<"$report")
printf 'Event log %s\n' "closed. ${times[0]}. ${times[1]}" "open. ${times[2]}. ${times[3]}"

# This proves that the watch would notice a wait.
expect_notice() {
    local step=$1 expectation=$2
    report=$(KX_STEPS=$(printf '%s\n' watch "$step" "$expectation") "$kxconfig" 2>&1) &&
        fail "the watch does not notice: $step"
    grep -q "^kxtour: ${expectation% *} for " <<<"$report" || fail "the visit failed: $report"
}
expect_notice "pause $((longest_wait + 50))" "waited $longest_wait"
expect_notice "work $((longest_work + 10))" "worked $longest_work"
