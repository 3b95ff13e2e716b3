#!/usr/bin/env bash
# Runs a Windows program under Wine: wine-run.sh program.exe [arguments]
set -euo pipefail
# shellcheck source=wine-env.sh
. "$(dirname "${BASH_SOURCE[0]}")/wine-env.sh"
exec wine "$@" </dev/null
