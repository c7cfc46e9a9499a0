#!/usr/bin/env bash
# Runs the lab with the given arguments, or says that this system does not allow it.
set -euo pipefail
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")
# shellcheck source=Tests/lab/expectations.sh
source "$here/expectations.sh"

skip_without_namespaces
exec "$here/../../scripts/lab" "$@"
