#!/usr/bin/env bash
# Keeps the real program for SECONDS seconds among units whose replies get lost, late, doubled,
# overtaken, cut short, invented and unasked. Tests/visits/tests/Soak.h describes the visit and the
# conditions at its end. The seed is printed: the same seed gives the same steps and the same faults.
#
# usage: Tests/lab/units_that_cannot_be_relied_on.sh KXCONFIG SECONDS [SEED]
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
kxconfig=$1 seconds=$2 seed=${3:-$RANDOM}
readonly units=8

export QT_QPA_PLATFORM=offscreen QT_QPA_GENERIC_PLUGINS=kxsoak QT_PLUGIN_PATH=$KX_BUILD_DIR/plugins
export KX_SOAK_SECONDS=$seconds KX_SOAK_SEED=$seed KX_SOAK_UNITS=$units
faults="--seed $seed --late 30 --lose 10 --duplicate 10 --reorder 20 --malform 15 --flood 50"
exec "$here/in_lab.sh" --units "$units" --units-options "$faults" \
    -- timeout "$((seconds + 120))" "$kxconfig"
