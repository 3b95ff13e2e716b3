#!/usr/bin/env bash
# Runs a Windows program under Wine, in the project's own prefix.
# WINEPREFIX: the prefix to use; else the one beside the program's build folder.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=wine-env.sh
. "$here/wine-env.sh"
exec wine "$@" </dev/null
