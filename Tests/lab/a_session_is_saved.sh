#!/usr/bin/env bash
# A person works with units, something goes wrong, Details asks why, and then the session and the event
# log are saved. tshark reads in the session what dumpcap has seen on the link, byte for byte, and the
# comments are lines of the log. Then the disk is full: it is said, what stood there stays, and another
# place takes everything.
set -euo pipefail
# shellcheck source=Tests/wireshark/dissection.sh
source "${BASH_SOURCE[0]%/*}/../wireshark/dissection.sh"
kxconfig=$2

if [[ ${3:-} != inside ]]; then
    unshare --mount -- "$0" "$1" "$kxconfig" inside
    exit
fi
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins

disk=$scratch/disk
mkdir -- "$disk"
mount -t tmpfs -o size=64k,mode=700 tmpfs "$disk"
trap 'umount -- "$disk"; rm -rf -- "$scratch"' EXIT
printf 'an older session\n' >"$disk/session.pcapng"

timeout 60 dumpcap -q -i kx0 -f udp -w "$scratch/link" 2>"$scratch/capturing" &
dumpcap=$!
eventually grep -qs '^File: ' "$scratch/capturing" ||
    fail "dumpcap did not start: $(<"$scratch/capturing")"

export KX_STEPS="
    interface kx0
    discover 3
    log
    unit 4B 58 00 00 00 01
    parameter destination Port number
    type 3523
    press applyButton
    shows destination Port number: 3523
    press sendOptionButton
    logs simulated unit 1.0
    press detailsButton
    wait 1500
    save saveSessionAction $scratch/session.pcapng
    line The session was saved:
    save saveEventLogAction $scratch/log.txt
    line The event log was saved.
    run dd if=/dev/zero of=$disk/fill status=none 2>/dev/null; true
    save saveSessionAction $disk/session.pcapng
    line cannot be written: No space left on device. Nothing is lost: save it in another place.
    save saveEventLogAction $disk/log.txt
    line cannot be written: No space left on device.
    save saveSessionAction $scratch/again.pcapng
    line The session was saved:"
"$kxconfig" >"$scratch/report" || fail "the visit failed: $(<"$scratch/report")"
# It writes now and then what it has seen.
eventually grep -qs 'simulated unit 1\.0' "$scratch/link" || fail 'dumpcap has not seen the last answer'
kill "$dumpcap"
wait "$dumpcap" || true

# --- What the link has seen ---

# The datagrams of the capture $1 that pass the filter $2, one on a line, sorted. Until an interface is
# chosen, the session does not know by which of its addresses a broadcast left.
datagrams_of() {
    fields_of "$1" -Y "$2" -E separator=/s -e ip.src -e udp.srcport -e ip.dst -e udp.dstport \
        -e udp.payload | sed 's/^0\.0\.0\.0 /192.0.2.1 /' | sort
}
session=$scratch/session.pcapng
# The system delivers own broadcasts to their sender too. These copies were never on the link.
came_back='frame.packet_flags_direction == 1 && ip.src == 192.0.2.1'
(($(count_of "$session" "$came_back") > 0)) || fail 'the session lacks the own broadcasts that came back'
expect_equal 'the datagrams of the session and those of the link' \
    "$(datagrams_of "$scratch/link" udp)" "$(datagrams_of "$session" "!($came_back)")"
(($(count_of "$scratch/link" udp) > 8)) || fail 'the link has seen next to nothing'
expect_equal 'datagrams that went out from another host' 0 \
    "$(count_of "$session" 'frame.packet_flags_direction == 2 && !(ip.src == 192.0.2.1 || ip.src == 0.0.0.0)')"
expect_equal 'datagrams without a direction' 0 "$(count_of "$session" '!frame.packet_flags_direction')"
expect_equal 'datagrams with a wrong checksum' 0 \
    "$(dissect "$session" -o ip.check_checksum:TRUE -Y 'ip.checksum.status == 0' | wc -l)"
expect_no_failure "$session"
# The sockets of Details have other ports.
check='frame.comment == "A check of Details, not in the event log"'
expect_equal 'datagrams that the dissector does not know' 0 "$(count_of "$session" "!kxconfig && !($check)")"
(($(count_of "$session" "$check && frame.packet_flags_direction == 2 && ip.dst == 255.255.255.255") == 3)) ||
    fail 'the session lacks what Details has asked'
(($(count_of "$session" "$check && frame.packet_flags_direction == 1 && ip.src == 192.0.2.12") > 0)) ||
    fail 'the session lacks what Details has heard'
expect_equal 'the command for the port' 1 \
    "$(count_of "$session" 'kxconfig.command == "^^IdT0DC3" && frame.packet_flags_direction == 2')"

# --- What is said of them ---

expect_equal 'the comment of the command' 'Send to: 192.0.2.11 command: ^^IdT0DC3' \
    "$(fields_of "$session" -Y 'kxconfig.command == "^^IdT0DC3"' -e frame.comment)"
# The launch's own discovery is in the session and no longer in the log.
while IFS= read -r comment; do
    [[ $comment == 'Request unit parameters with address: 255.255.255.255' ]] ||
        grep -qxF -- "$comment" "$scratch/log.txt" || fail "the log has no line: $comment"
done < <(fields_of "$session" -Y "!($check)" -e frame.comment)
expect_equal 'datagrams without a comment' 0 "$(count_of "$session" '!frame.comment')"

capinfos "$session" >"$scratch/about" || fail 'capinfos cannot read the session'
grep -q 'Raw IPv4' "$scratch/about" || fail "it is no IPv4: $(<"$scratch/about")"
grep -q 'headers of IPv4 and UDP are made up' "$scratch/about" ||
    fail "nothing says that headers are made up: $(<"$scratch/about")"
grep -q 'Number of stat entries = 1' "$scratch/about" || fail "no counts: $(<"$scratch/about")"

# --- The full disk ---

expect_equal 'the older file' 'an older session' "$(<"$disk/session.pcapng")"
expect_equal 'the files on the full disk' 'fill session.pcapng' "$(find "$disk" -type f -printf '%f\n' | sort | xargs)"
expect_equal 'the session that another place took' "$(datagrams_of "$session" udp)" \
    "$(datagrams_of "$scratch/again.pcapng" udp)"
