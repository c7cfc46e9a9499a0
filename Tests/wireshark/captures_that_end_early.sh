#!/usr/bin/env bash
# Captures every datagram of the table to every length. The dissector never fails, says that the capture
# ends early, and marks only faults of the whole datagram.
set -euo pipefail
# shellcheck source=Tests/wireshark/dissection.sh
source "${BASH_SOURCE[0]%/*}/dissection.sh"

readonly headers=42 # Ethernet, IPv4 and UDP
readonly longest=200

write_capture "$scratch/whole"
# Without any byte of its own the datagram does not reach the dissector.
for ((length = headers + 1; length <= headers + longest; length++)); do
    editcap -s "$length" "$scratch/whole" "$scratch/cut-$length"
    cuts+=("$scratch/cut-$length")
done
mergecap -a -w "$scratch/capture" "${cuts[@]}"
expect_no_failure "$scratch/capture"

# The length as sent and the length as captured, without the headers.
fields_of "$scratch/capture" -e udp.length -e frame.cap_len >"$scratch/lengths"
paste "$scratch/lengths" <(summaries_and_marks "$scratch/capture") >"$scratch/rows"

# The marks of the whole datagrams are the marks of the last cut, which cuts nothing off.
count=$(table | wc -l)
awk -F '\t' -v count="$count" -v headers="$headers" '
    function marks_of(text, marks,   words, n, i) {
        sub(/.* \|/, "", text)
        n = split(text, words, " ")
        for (i = 1; i <= n; i++) marks[words[i]] = 1
    }
    { sent[NR] = $1 - 8; captured[NR] = $2 - headers; row[NR] = $0 }
    END {
        if (NR % count != 0 || NR == 0) { print "the capture has " NR " packets"; exit 1 }
        for (i = 1; i <= NR; i++) {
            delete found; delete whole
            marks_of(row[i], found)
            marks_of(row[NR - count + (i - 1) % count + 1], whole)
            is_cut = captured[i] < sent[i]
            cut += is_cut
            if (("capture" in found) != is_cut) { print "capture mark: " row[i]; exit 1 }
            for (mark in found) {
                if (mark != "capture" && !(mark in whole)) { print mark ": " row[i]; exit 1 }
            }
        }
        if (cut < 1000) { print "only " cut " packets are cut"; exit 1 }
    }' "$scratch/rows" || fail 'a capture that ends early'
