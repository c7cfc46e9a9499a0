#!/usr/bin/env bash
# More units answer than fit into the receive buffer of 4 MiB while the program reads nothing. The window
# says how many datagrams were dropped, all others are read, and the event log says nothing about the
# drops.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2

export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
report=$(KX_STEPS='
    finding
    pause 3000
    finding datagrams before they were read, so units may be missing.
    picture window-dropped
    log
    replies 13000
    print' "$kxconfig" 2>&1) || fail "the visit failed: ${report:0:2000}"

dropped=$(sed -n 's/^Replies: 13000 units, of which \([0-9]*\) were dropped$/\1/p' <<<"$report")
((dropped > 0)) || fail "no number of dropped datagrams: ${report:0:2000}"
! sed -n '/^Event log:$/,$p' <<<"$report" | grep -i drop || fail 'the event log mentions it'
