#!/usr/bin/env bash
# Runs a Windows program under Wine: wine-run.sh program.exe [arguments]
set -euo pipefail
# shellcheck source=wine-env.sh
. "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"
# Once in thousands of starts Wine has no driver for a new desktop. A test program then says so by
# this exit code, before it has run anything.
no_window=97
for _ in 1 2 3; do
  status=0
  wine "$@" </dev/null || status=$?
  [ "$status" = "$no_window" ] || break
done
exit "$status"
