# shellcheck shell=bash
# The common part of the tests of this folder. Sourced, not run.

# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/../lab/expectations.sh"

dissector=${BASH_SOURCE[0]%/*}/../../Resources/wireshark/kxconfig.lua
datagrams=${BASH_SOURCE[0]%/*}/datagrams.txt

scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
# A person's settings and a person's own dissectors do not take part.
export HOME=$scratch XDG_CONFIG_HOME=$scratch

# Newer versions of tshark load no scripts when root runs them. In its own user namespace root's tshark
# runs as nobody, and still reads root's files.
as_a_person=()
((EUID != 0)) || as_a_person=(unshare --user --)

# Runs tshark with the dissector on the capture $1, with the further arguments.
dissect() {
    local capture=$1
    shift
    "${as_a_person[@]}" tshark -n -X "lua_script:$dissector" -r "$capture" "$@" \
        2>"$scratch/complaints" ||
        fail "tshark ended with $?: $(<"$scratch/complaints")"
    [[ ! -s $scratch/complaints ]] ||
        fail "tshark complains about the dissector or the capture: $(<"$scratch/complaints")"
}

# The unescaped fields of the packets of the capture $1, with the further arguments. A tshark that knows
# the option "escape" sets a backslash before backslashes and separators. Version 4.4 does so even where
# that option says no.
fields_of() {
    local capture=$1 unescaped=(cat)
    shift
    ! tshark -T fields -E escape=n -v &>/dev/null || unescaped=(sed 's/\\\(.\)/\1/g')
    dissect "$capture" -T fields "$@" | "${unescaped[@]}"
}

# The number of packets of the capture $1 that pass the filter $2.
count_of() {
    dissect "$1" -Y "$2" | wc -l
}

# Expects that no packet of the capture $1 makes the dissector fail.
expect_no_failure() {
    dissect "$1" -V >"$scratch/details"
    grep -im 3 'lua error' "$scratch/details" >&2 && fail "the dissector fails on $1"
    return 0
}

# The names of all marks of the dissector, one on each line.
all_marks() {
    grep -o 'mark("[a-z0-9_]*"' "$dissector" | cut -d '"' -f 2
}

# A line for each packet of the capture $1: the summary, a bar, the packet's marks.
summaries_and_marks() {
    local marks arguments=() mark
    mapfile -t marks < <(all_marks)
    for mark in "${marks[@]}"; do
        arguments+=(-e "kxconfig.expert.$mark")
    done
    fields_of "$1" -E separator=/t -e _ws.col.Info "${arguments[@]}" |
        awk -F '\t' -v names="${marks[*]}" '
            BEGIN { split(names, name, " ") }
            {
                line = $1 " |"
                for (i = 2; i <= NF; i++) if ($i != "") line = line " " name[i - 1]
                print line
            }'
}

# Writes the datagrams of the table, column 1, as a capture $1 in which they come from a unit.
write_capture() {
    local text
    while IFS= read -r text; do
        printf '%b' "${text%% | *}" | od -A x -t x1 -v
    done < <(table) >"$scratch/hexadecimal"
    text2pcap -q -u 10000,3521 "$scratch/hexadecimal" "$1" 2>"$scratch/complaints" ||
        fail "text2pcap: $(<"$scratch/complaints")"
}

# The lines of the table without comments.
table() {
    grep -v -e '^#' -e '^$' "$datagrams"
}

# Runs the rest of its arguments while it captures $2 UDP datagrams on the lab's link as $1.
capture() {
    local file=$1 packets=$2
    shift 2
    timeout 60 dumpcap -q -i kx0 -f udp -c "$packets" -w "$file" 2>"$scratch/capturing" &
    local pid=$!
    eventually grep -qs '^File: ' "$scratch/capturing" ||
        fail "dumpcap did not start: $(<"$scratch/capturing")"
    "$@"
    wait "$pid" || fail "dumpcap ended with $?: $(<"$scratch/capturing")"
}
