#!/usr/bin/env bash
# Ten thousand units answer in the same instant: the real window holds and lists them all, with the
# event log closed and open, and a person hardly waits meanwhile.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2

# A person notices 100 ms; a machine that does other things, too, is given more.
limit=250

export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

report=$(KX_STEPS="
    watch
    crowd 10000
    waited $limit
    dropped
    log
    replies 10000
    watch
    crowd 10000
    waited $limit
    replies 10000
    dropped" "$kxconfig" 2>&1) || fail "the visit failed: $report"
expect_equal 'the replies with the log closed and open' 2 \
    "$(grep -c '^Replies: 10000 units, of which 0 were dropped$' <<<"$report")"
mapfile -t waits < <(sed -n 's/^Longest wait: //p' <<<"$report")
printf 'longest wait for a user'"'"'s event: log closed %s, log open %s\n' "${waits[@]}"

# The watch does bark.
report=$(KX_STEPS="
    watch
    pause $((limit + 50))
    waited $limit" "$kxconfig" 2>&1) && fail 'a pause was not noticed'
[[ $report == *"a user's event had to wait for"* ]] || fail "the visit failed otherwise: $report"
