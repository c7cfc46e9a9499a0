#!/usr/bin/env bash
# Floods the real program from its start on, as fast as the system sends. Tests/visits/tests/Siege.h
# describes a person's actions meanwhile. WAIT is the number of milliseconds that a person may wait.
# COMPUTING is the number of them that the program may compute; a machine with other work causes the
# rest. MEMORY is the number of MiB that the program may hold.
#
# With "full" the sender invents units only, and has to fill the program's list within the SECONDS.
#
# usage, in the lab: a_hostile_sender.sh KXCONFIG SENDER SECONDS WAIT COMPUTING MEMORY [SEED [full]]
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
kxconfig=$1 sender=$2 seconds=$3 wait=$4 computing=$5 memory=$6 seed=${7:-$RANDOM}
kinds=()
if [ "${8:-}" = full ]; then
    kinds=(invented)
    export KX_SIEGE_FULL=yes
fi
readonly claimed=4B5800000001

printf 'Seed: %s\n' "$seed"
# Longer than any visit lasts.
"$sender" 192.0.2.1 3520 "$((seconds + 120))" "$claimed" "$seed" ${kinds[@]+"${kinds[@]}"} >/dev/null &
sender_pid=$!
trap 'kill "$sender_pid" 2>/dev/null || true' EXIT

export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsiege QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
# The sender speaks in the name of the unit that is selected in the end.
export KX_SIEGE_UNITS='4B 58 00 00 00 02,4B 58 00 00 00 03,4B 58 00 00 00 01'
export KX_SIEGE_SECONDS=$seconds KX_SIEGE_WAIT=$wait KX_SIEGE_COMPUTING=$computing KX_SIEGE_MEMORY=$memory
"$kxconfig" || fail 'the visit failed'
