#!/usr/bin/env bash
# The disk is full, nobody reads the system log, and standard error goes to the full disk, to a pipe that
# nobody reads, or to a pipe whose reader is gone. Each cut reply gives the real program a line to write
# there, and it neither waits nor ends.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
PATH=$PATH:/usr/sbin:/sbin
kxconfig=$2

if [[ ${3:-} != inside ]]; then
    scratch=$(mktemp -d)
    export scratch
    trap 'rm -rf -- "$scratch"' EXIT
    unshare --mount -- "$0" "$1" "$kxconfig" inside
    exit
fi

# --- A host on which nothing can be written ---

disk=$scratch/disk
mkdir -- "$disk" "$scratch/dev"
mount -t tmpfs -o size=16k,mode=700 tmpfs "$disk"
dd if=/dev/zero of="$disk/fill" status=none 2>/dev/null && fail 'the disk is not full'

# The devices are the host's, except for the log.
mount -t tmpfs tmpfs "$scratch/dev"
for device in null zero full random urandom; do
    : >"$scratch/dev/$device"
    mount --bind "/dev/$device" "$scratch/dev/$device"
done
ln -s /proc/self/fd "$scratch/dev/fd"
mount --rbind "$scratch/dev" /dev
if ! reason=$({ : >/dev/full; } 2>&1); then
    printf 'skipped: no right to devices of its own here (%s)\n' "$reason"
    exit 77
fi
printf '1\n' >/proc/sys/net/unix/max_dgram_qlen
exec {ready}< <(exec python3 -c '
import socket, time
log = socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM)
log.bind("/dev/log")
print("ready", flush=True)
time.sleep(1000)')
log=$!
trap 'kill "$log"' EXIT
read -r -t 20 -u "$ready" || fail 'the system log does not start'

mkfifo -- "$scratch/unread"
exec {unread}<>"$scratch/unread"
dd if=/dev/zero of="$scratch/unread" oflag=nonblock status=none 2>/dev/null && fail 'the pipe is not full'

# --- The program on it ---

export HOME=$disk TMPDIR=$disk XDG_CONFIG_HOME=$disk XDG_CACHE_HOME=$disk XDG_DATA_HOME=$disk
export XDG_RUNTIME_DIR=$disk
export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsteps QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
received='logs UDP listener did receive data. Length: 40'
export KX_STEPS="
    log
    press discoverButton
    $received
    press discoverButton
    $received
    press reloadButton"

exec {said}>&2
visit() {
    local report
    report=$(timeout 30 "$kxconfig") || fail "the visit with standard error $1 failed: $report" 2>&"$said"
}
visit 'on a full disk' 2>/dev/full
visit 'that nobody reads' 2>"$scratch/unread"
visit 'whose reader is gone' 2> >(exec true)

# Nobody has made room meanwhile.
python3 -c '
import socket
socket.socket(socket.AF_UNIX, socket.SOCK_DGRAM).sendto(b"x", socket.MSG_DONTWAIT, "/dev/log")
' 2>/dev/null && fail 'the system log had room'
printf 'x' 2>/dev/null >"$disk/more" && fail 'the disk had room'
true
