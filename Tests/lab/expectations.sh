# shellcheck shell=bash
# The common part of the tests of this folder. Sourced, not run.

fail() {
    printf 'failed: %s\n' "$*" >&2
    exit 1
}

expect_equal() {
    local what=$1 wanted=$2 found=$3
    [[ $found == "$wanted" ]] ||
        fail "$(printf '%s\n  wanted: %s\n  found:  %s' "$what" "$wanted" "$found")"
}

# Calls the rest of its arguments until they succeed, for at most five seconds.
eventually() {
    local attempt
    for ((attempt = 0; attempt < 100; attempt++)); do
        if "$@"; then
            return 0
        fi
        sleep 0.05
    done
    return 1
}

skip_without_namespaces() {
    local reason namespaces=(--net)
    ((EUID == 0)) || namespaces=(--user --map-root-user --net)
    reason=$(unshare "${namespaces[@]}" true 2>&1) && return
    printf 'skipped: no right to make a network namespace here (%s)\n' "$reason"
    exit 77
}
