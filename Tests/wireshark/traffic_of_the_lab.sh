#!/usr/bin/env bash
# Runs in the lab: captures every kind of command and reply, and finds each by the filters.
set -euo pipefail
# shellcheck source=Tests/wireshark/dissection.sh
source "${BASH_SOURCE[0]%/*}/dissection.sh"
probe=$1

talk() {
    "$probe" 255.255.255.255 3520 '^^IdX' 3
    local argument
    for argument in U554E49542D41 S4B580000000F C02000000AA01 T0DC3 D0A000001 P2711; do
        "$probe" 192.0.2.11 10000 "^^Id$argument" 1
    done
    "$probe" 192.0.2.11 10001 $'^^IdV\r' 1
    "$probe" 192.0.2.11 10001 $'^^Id-Z11152347\r' 1
    "$probe" 192.0.2.11 10001 '^^IdX' 1
    "$probe" 192.0.2.11 10001 '^^IdZ' 1
    "$probe" 192.0.2.12 10000 '^^IdM024B580000FF' 1
    "$probe" 192.0.2.13 3520 '^^IdIC0000263' 1
}
traffic=$scratch/traffic
capture "$traffic" 28 talk &>"$scratch/replies"
expect_no_failure "$traffic"

expect_count() {
    expect_equal "packets with $2" "$1" "$(count_of "$traffic" "$2")"
}
expect_count 28 'kxconfig'
expect_count 0 'kxconfig && _ws.expert'
expect_count 13 'kxconfig.command'
expect_count 15 'kxconfig.reply_tag == "<U>" && kxconfig.serial_tag == "<S>"'
expect_count 2 'kxconfig.letter == "X"'
expect_count 1 'kxconfig.command == "^^IdP2711"'
expect_count 2 'kxconfig.option'
expect_count 1 'kxconfig.option == "-Z11152347"'
expect_count 1 'kxconfig.text contains "simulated unit 1.0"'
expect_count 10 'kxconfig.acknowledgement'
expect_count 4 'kxconfig.list'
expect_count 4 'kxconfig.item_tag == "<C>" && kxconfig.payload_marker == "$"'
expect_count 2 'kxconfig.serial_number == "4B 58 00 00 00 02" && kxconfig.unit_id == "U00002"'

# The value that a command sets and the value that the unit then reports have the same filter.
expect_count 2 '(kxconfig.command || kxconfig.list) && kxconfig.unit_id == "UNIT-A"'
expect_count 2 'kxconfig.destination_mac == 02:00:00:00:aa:01'
expect_count 2 'kxconfig.destination_port == 3523'
expect_count 2 'kxconfig.destination_ip == 10.0.0.1'
expect_count 2 'kxconfig.device_port == 10001'
expect_count 1 'kxconfig.internal_mac == 02:4b:58:00:00:ff'
expect_count 1 'kxconfig.internal_ip == 192.0.2.99'

# The whole reply of the first unit with its factory settings.
names=(internal_mac internal_ip destination_ip destination_port device_port unit_id destination_mac
    serial_number)
fields_of "$traffic" -E separator=/s \
    -Y 'kxconfig.list && kxconfig.serial_number == "4B 58 00 00 00 01"' \
    "${names[@]/#/-ekxconfig.}" >"$scratch/unit"
expect_equal 'the first unit' \
    '02:4b:58:00:00:01 192.0.2.11 192.0.2.1 3520 10000 1,1 02:00:00:00:00:01 4B 58 00 00 00 01,4B 58 00 00 00 01' \
    "$(<"$scratch/unit")"
