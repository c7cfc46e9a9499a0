#!/usr/bin/env bash
# Tests the lab from outside: the results that it passes on, and the traces that it leaves.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"
skip_without_namespaces

lab=$(readlink -f -- "$here/../../scripts/lab")
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
mkdir -- "$scratch/a name with blanks" "$scratch/temporary"
export TMPDIR=$scratch/temporary
record="$scratch/a name with blanks/the record"

# Runs inside the lab: writes the process and the namespaces of the lab to the file `traces`.
leave_traces='
    read -ra children <"/proc/$PPID/task/$PPID/children"
    for child in "${children[@]}"; do
        [[ $(<"/proc/$child/comm") != kxunits ]] || units=$child
    done
    printf "%s\n" "$units" "$(readlink "/proc/$units/ns/net")" "$(readlink /proc/self/ns/net)" \
        >"$1.new"
    mv "$1.new" "$1"
    eval "$2"'

has_traces() { [[ -e $scratch/traces ]]; }

# An ended process may stay in the list of processes until the system's first process looks.
runs() { grep -qs '^State:[[:space:]]*[^XZ]' "/proc/$1/status"; }

nothing_runs() {
    local units namespaces
    { read -r units; mapfile -t namespaces; } <"$scratch/traces"
    ! runs "$units" || return 1
    local process
    for process in /proc/[0-9]*/ns/net; do
        local namespace
        namespace=$(readlink "$process" 2>/dev/null) || continue
        [[ $namespace != "${namespaces[0]}" && $namespace != "${namespaces[1]}" ]] || return 1
    done
}

expect_nothing_left() {
    has_traces || fail "$1: the command did not run"
    nothing_runs || fail "$1: a process or a namespace is left: $(<"$scratch/traces")"
    expect_equal "$1: temporary files" '' "$(ls -A -- "$TMPDIR")"
    rm -- "$scratch/traces"
}

# The exit status of a lab that runs `$1` in the shell.
status_of() {
    local status=0
    "$lab" --record "$record" -- bash -c "$leave_traces" - "$scratch/traces" "$1" || status=$?
    printf '%s' "$status"
}

expect_equal 'the status of a command that succeeds' 0 "$(status_of true)"
expect_nothing_left 'after success'
expect_equal 'the status of a command that fails' 7 "$(status_of 'exit 7')"
expect_nothing_left 'after failure'
# shellcheck disable=SC2016
expect_equal 'the status of a command that a signal ends' 137 \
    "$(status_of 'kill -KILL $$' 2>/dev/null)"
expect_nothing_left 'after a signal to the command'
expect_equal 'states in the record of the last run' 3 "$(grep -c '^state ' "$record")"

# The record takes the place of a link and does not follow it.
printf 'precious\n' >"$scratch/precious"
rm -- "$record"
ln -s -- "$scratch/precious" "$record"
expect_equal 'the status with a link in the place of the record' 0 "$(status_of true)"
expect_nothing_left 'after a link in the place of the record'
expect_equal 'the file that the link names' precious "$(<"$scratch/precious")"
[[ ! -L $record ]] || fail 'the link is still there'

# A signal to the lab alone reaches the command, and the lab ends in order.
for signal in TERM INT KILL; do
    env --default-signal=INT "$lab" --record "$record" -- \
        bash -c "$leave_traces" - "$scratch/traces" 'exec sleep 50' 2>/dev/null &
    lab_pid=$!
    eventually has_traces || fail "the command did not start before SIG$signal"
    kill "-$signal" "$lab_pid"
    status=0
    wait "$lab_pid" 2>/dev/null || status=$?
    expect_equal "the status after SIG$signal" "$((128 + $(kill -l "$signal")))" "$status"
    # A killed lab cannot clean up; the processes that it started end by themselves.
    if [[ $signal == KILL ]]; then
        eventually nothing_runs || fail 'a process is left after SIGKILL'
        rm -rf -- "$scratch/traces" "${TMPDIR:?}"/*
    else
        expect_nothing_left "after SIG$signal"
        expect_equal "states in the record after SIG$signal" 3 "$(grep -c '^state ' "$record")"
    fi
done

# When units cannot start, the lab fails, not the command.
status=0
"$lab" --units-options '--nonsense 1' -- touch "$scratch/ran" 2>/dev/null || status=$?
expect_equal 'the status when the units do not start' 125 "$status"
[[ ! -e $scratch/ran ]] || fail 'the command ran without units'
expect_equal 'temporary files after a failed start' '' "$(ls -A -- "$TMPDIR")"

# The programs may be in a folder whose name has blanks.
ln -s -- "${KX_BUILD_DIR:-$here/../../build/dev}" "$scratch/a name with blanks/build"
KX_BUILD_DIR="$scratch/a name with blanks/build" "$lab" -- true ||
    fail 'a build folder with blanks in its name is not found'

# An installed lab has another name. It takes the units beside it, and calls itself by its name.
mkdir -- "$scratch/bin"
cp -- "$lab" "$scratch/bin/kxunits-lab"
ln -s -- "${KX_BUILD_DIR:-$here/../../build/dev}/bin/kxunits" "$scratch/bin/kxunits"
env --unset=KX_BUILD_DIR "$scratch/bin/kxunits-lab" -- true || fail 'an installed lab finds no units'
help=$("$scratch/bin/kxunits-lab" --help)
grep -qF '  kxunits-lab --units 5' <<<"$help" || fail 'the help names another program'
! grep -qF 'scripts/lab' <<<"$help" || fail 'the help names a file that is not installed'
