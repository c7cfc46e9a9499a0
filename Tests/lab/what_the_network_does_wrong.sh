#!/usr/bin/env bash
# A port is taken, a host has no network, a firewall lets nothing out, or a broadcast has no route. The real program logs each fault
# in its own words and goes on to the end of the tour.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$2
export QT_QPA_PLATFORM=offscreen

# The event log of one Discover. The arguments are the command before the program's name.
log_of_discovery() {
    local report
    report=$(KX_TOUR_UNITS=0 QT_QPA_GENERIC_PLUGINS=kxtour QT_PLUGIN_PATH="$KX_BUILD_DIR/plugins" \
        "$@" "$kxconfig") || fail "the tour failed: $report"
    sed -n '/^Event log:$/,/^Tour complete\.$/{/^  /s/^  //p}' <<<"$report"
}

port_is_taken() {
    ss --udp --listening --numeric 'sport = 3520' | grep -q 3520
}

failed_send='[Begin Discover]
UDP listener did start. 0.0.0.0:3520
Request unit parameters with address: 255.255.255.255
UDP failed to send data.
  Network is unreachable'

expect_equal 'the log without a network' "$failed_send" "$(log_of_discovery unshare --net)"

nft 'table inet kxtest { chain out { type filter hook output priority 0; udp dport 3520 drop; }; }'
expect_equal 'the log behind a firewall that lets nothing out' \
    "${failed_send/Network is unreachable/Operation not permitted}" "$(log_of_discovery env)"
nft delete table inet kxtest

ip route del default dev kx0
expect_equal 'the log without a route for the broadcast' "$failed_send" "$(log_of_discovery env)"

"$kxconfig" &
pid=$!
trap 'kill "$pid" 2>/dev/null || true' EXIT
eventually port_is_taken || fail 'the first program does not listen'
expect_equal 'the log of a port that is taken' '[Begin Discover]
UDP did stop with error.
  Address already in use' "$(log_of_discovery env)"
