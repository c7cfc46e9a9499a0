#!/usr/bin/env bash
# One site: the lab's network with its units becomes a host that a person reaches by ssh only. The end of
# this process ends everything that runs on the host.
#
# usage: site.sh NUMBER OFFICE FOLDER
#   NUMBER   of the site; its link to the office is 10.77.NUMBER.0/24
#   OFFICE   a process in the network of the office, from where the person works
#   FOLDER   has sshd_config and passwd, and bin with the programs that are installed on the host
set -euo pipefail
number=$1 office=$2 folder=$3

ip link add office type veth peer name "site$number" netns "$office"
ip address add "10.77.$number.2/24" dev office
ip link set office up

# sshd gets a user of its own, because root of a user namespace cannot become somebody else. The namespace
# of processes takes the sessions of sshd along.
become_the_host() {
    mount --bind "$folder/passwd" /etc/passwd
    mount --bind "$folder/bin" /usr/local/bin
    exec unshare --user --map-user=1000 --map-group=1000 --pid --fork --kill-child -- \
        /usr/sbin/sshd -D -e -f "$folder/sshd_config"
}
export -f become_the_host
export folder
unshare --mount --propagation private -- bash -euc become_the_host 2>"$folder/sshd.log" &
host=$!
# sshd is the first process of its namespace, and the only child of $host, which takes note of its end.
end_the_host() {
    local children=
    read -r children <"/proc/$host/task/$host/children" || true
    # shellcheck disable=SC2086 # children are numbers
    kill -TERM ${children:-"$host"} 2>/dev/null || true
    wait "$host" || true
}
trap end_the_host EXIT
trap 'exit 143' TERM
wait "$host"
