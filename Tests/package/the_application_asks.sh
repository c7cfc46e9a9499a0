#!/usr/bin/env bash
# Runs in the lab. The application of the root file system $1 runs off screen, as a person without
# rights. It must ask every unit for its parameters, which the record $2 shows, and go on until it is
# ended.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/../lab/expectations.sh"
root=$1 record=$2

readonly units=3 request=5E5E496458 limit=60

env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/home/person XDG_RUNTIME_DIR=/run/person \
    QT_QPA_PLATFORM=offscreen \
    chroot --userspec=nobody:nogroup "$root" kxconfig &
pid=$!

asked() { (($(grep -c " $request\$" "$record") >= units)); }
SECONDS=0
until asked || ! kill -0 "$pid" 2>/dev/null || ((SECONDS > limit)); do
    sleep 0.1
done
asked || fail "the units heard: $(<"$record")"

kill -TERM "$pid"
status=0
wait "$pid" || status=$?
expect_equal 'how the application ended' 0 "$status"
