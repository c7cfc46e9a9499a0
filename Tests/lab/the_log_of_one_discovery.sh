#!/usr/bin/env bash
# The real program discovers three units; its whole event log is compared, line by line.
set -euo pipefail
here=${BASH_SOURCE[0]%/*}
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
kxconfig=$2

report=$(KX_TOUR_UNITS=3 QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxtour \
    QT_PLUGIN_PATH="$KX_BUILD_DIR/plugins" "$kxconfig") || fail "the tour failed: $report"

expect_equal 'the event log' "$(cat "$here/the_log_of_one_discovery.txt")" \
    "$(sed -n '/^Event log:$/,/^Tour complete\.$/{/^  /s/^  //p}' <<<"$report")"
