#!/usr/bin/env bash
# The real window says who holds an address while it stands in the edit row, by the real ARP of real units.
# Nothing leaves for an address beyond the link, for the host's own one and for those of the whole network.
set -euo pipefail
# shellcheck source=Tests/wireshark/dissection.sh
source "${BASH_SOURCE[0]%/*}/../wireshark/dissection.sh"
kxconfig=$2
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

timeout 60 dumpcap -q -i kx0 -f 'udp or arp or icmp' -w "$scratch/link" 2>"$scratch/capturing" &
dumpcap=$!
eventually grep -qs '^File: ' "$scratch/capturing" ||
    fail "dumpcap did not start: $(<"$scratch/capturing")"

# The default route leads to kx0, so whatever left for an address beyond it would be seen there.
export KX_STEPS='
    interface kx0
    discover 3
    unit 4B 58 00 00 00 01
    parameter internal IP address
    type 198.51.100.7
    wait 800
    type 203.0.113.9
    wait 800
    type 192.0.2.255
    wait 800
    type 192.0.2.0
    wait 800
    type 192.0.2.1
    wait 800
    type 192.0.2.13
    line 192.0.2.13 is held by 02:4B:58:00:00:03, unit 4B 58 00 00 00 03.
    type 192.0.2.50
    line 192.0.2.50 is free: nobody answers for it.
    type 192.0.2.77
    parameter device Port number
    wait 800'
"$kxconfig" >"$scratch/report" || fail "the visit failed: $(<"$scratch/report")"
kill "$dumpcap"
wait "$dumpcap" || true

expect_equal 'the datagrams to the discard port' '192.0.2.13 0 bytes' \
    "$(fields_of "$scratch/link" -Y 'udp.dstport == 9' -E separator=/s -e ip.dst -e udp.length |
        sed 's/ 8$/ 0 bytes/')"
expect_equal 'the addresses for whose holders the host asked' '192.0.2.13 192.0.2.50' \
    "$(fields_of "$scratch/link" -Y 'arp.opcode == 1 && arp.src.proto_ipv4 == 192.0.2.1' \
        -e arp.dst.proto_ipv4 | sort -u | xargs)"
expect_equal 'datagrams to addresses beyond the link' 0 \
    "$(count_of "$scratch/link" 'ip.dst == 198.51.100.0/24 || ip.dst == 203.0.113.0/24')"

# A unit takes nothing at this port: neither is it changed, nor does it answer.
expect_equal 'what units sent back' 0 "$(count_of "$scratch/link" 'udp.srcport == 9 || icmp')"
grep -q '^4B5800000003 192.0.2.13 9' "$KX_UNITS_RECORD" && fail 'a unit took the datagram'
true
