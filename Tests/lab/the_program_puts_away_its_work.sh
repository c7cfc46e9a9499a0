#!/usr/bin/env bash
# The window is closed while an edit is open. The program ends its work, and closes its socket, while the
# window still exists, and no later event of the window starts new work.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2

listeners="ss --udp --listening --numeric --no-header 'sport = 3520' | wc --lines"
report=$(KX_STEPS="
        discover 1
        parameter unit ID
        type 7
        run $listeners
        last click discoverButton
        last run $listeners" \
    QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH="$KX_BUILD_DIR/plugins" \
    "$kxconfig") || fail "the visit failed: $report"

expect_equal 'the listeners on the port, before the end and at the end' '1
Tour complete.
0' "$(tail --lines 3 <<<"$report")"
