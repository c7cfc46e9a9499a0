#!/usr/bin/env bash
# scripts/setup is killed while it installs packages. It then leaves the policy that keeps the new services
# from starting. The next set-up takes it away, also when it has nothing to install, and leaves a policy
# alone that somebody else made. The package system is a double.
set -euo pipefail
# shellcheck source=Tests/lab/expectations.sh
source "${BASH_SOURCE[0]%/*}/expectations.sh"
setup=$(dirname -- "${BASH_SOURCE[0]}")/../../scripts/setup
scratch=$(mktemp -d)
trap 'rm -rf -- "$scratch"' EXIT
export KX_POLICY=$scratch/policy-rc.d

double() {
    cat >"$scratch/$1"
    chmod 755 "$scratch/$1"
}
double sudo <<<$'#!/bin/sh\nexec "$@"'
double systemctl <<<$'#!/bin/sh\nexit 0'
set_up() {
    PATH=$scratch:$PATH "$setup" build >"$scratch/output" 2>&1
}

double dpkg-query <<<$'#!/bin/sh\nexit 1'
double apt-get <<'END'
#!/bin/sh
[ "$1" = update ] || kill -KILL "$PPID"
END
! set_up || fail 'the set-up was not interrupted'
[ -x "$KX_POLICY" ] || fail 'an installation starts services, so this test tests nothing'
expect_equal 'the answer of the policy' 101 "$(status=0; "$KX_POLICY" || status=$?; echo "$status")"

double dpkg-query <<<$'#!/bin/sh\nprintf installed'
set_up || fail "the next set-up fails: $(<"$scratch/output")"
[ ! -e "$KX_POLICY" ] || fail 'the policy is still there'
grep -q 'left behind' "$scratch/output" || fail "no word about it: $(<"$scratch/output")"

printf '#!/bin/sh\nexit 101\n' >"$KX_POLICY"
set_up
[ -e "$KX_POLICY" ] || fail 'the policy of somebody else is gone'
