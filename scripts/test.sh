#!/usr/bin/env bash
# Builds everything and runs every test: real dialogs, under Wine, without a display.
#
#   scripts/test.sh [--debug] [arguments of ctest, as -R NAME]
set -euo pipefail
# shellcheck source=setup.sh
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

preset=release
if [ "${1:-}" = --debug ]; then
  preset=debug
  shift
fi

start
build "$preset"
say "Testing build/$preset"
ctest --preset "$preset" --parallel "$jobs" --no-tests=error "$@" </dev/null
