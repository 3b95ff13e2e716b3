#!/usr/bin/env bash
# Builds and runs the sample host. With a display its window opens; without one, or with
# --tour, every conversation is opened, driven and confirmed, and a page shows them.
#
#   scripts/run.sh [--tour] [--grid ASC-FILE] [--tile DEM-FILE] [--classifications FILE]
#                  [--drawings FOLDER] [CODE-TABLE-FILE]
set -euo pipefail
# Names are meant as their user sees them, whatever folder the scripts work in.
[ -n "${CUADROS_LOCKED:-}" ] || export CUADROS_CALLER=$PWD
# shellcheck source=setup.sh
. "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

display=${DISPLAY:-}
tour=
drawings=(--drawings build/drawings)
arguments=()
for argument in "$@"; do
  case $argument in
    --tour)
      [ -z "$tour" ] || die "--tour is given twice"
      tour=yes
      display=
      ;;
    --drawings)
      drawings=() # the user's own instead
      arguments+=("$argument")
      ;;
    '' | -* | /* | ?:* | '\\'*) arguments+=("$argument") ;;
    *) arguments+=("${CUADROS_CALLER%/}/$argument") ;;
  esac
done
set -- ${arguments[@]+"${arguments[@]}"}

# The display's socket is there: a stale DISPLAY, as in a container, has none.
display_answers() {
  local number=${display##*:}
  [ -n "$display" ] && { [ -S "/tmp/.X11-unix/X${number%%.*}" ] || [ -n "${display%%:*}" ]; }
}

display_answers || display=
export CUADROS_DISPLAY=$display
start
build release

bin=build/release/bin
if [ -n "$display" ]; then
  say "Opening the sample host's window"
  wine "$bin/Ejemplo.exe" ${drawings[@]+"${drawings[@]}"} "$@"
else
  say "Touring the conversations, without a display"
  # What the last tour has left is lost to the next one, but not to a refused one.
  if [ -d build/tour ]; then
    rm -rf build/tour.last
    mv build/tour build/tour.last
  fi
  wine "$bin/Recorrido.exe" build/tour "$@" </dev/null || {
    status=$?
    [ -d build/tour ] || [ ! -d build/tour.last ] || mv build/tour.last build/tour
    exit "$status"
  }
  rm -rf build/tour.last
  say "The page: build/tour/index.html"
fi
