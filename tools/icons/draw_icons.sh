#!/usr/bin/env bash
# Makes the icons of Cuadros from the drawings beside this script: one .ico for each, with 16, 32
# and 48 pixels. It needs Debian's packages librsvg2-bin and icoutils.
#
#   draw_icons.sh            writes cuadros/resources/icons/*.ico
#   draw_icons.sh --check    says whether the committed files are what the drawings give
#
# The build does not run it: the .ico files are committed. Dialogs show only the picture of 16
# pixels, so each subject is drawn for that first: a unit of the drawing is a pixel there. The
# sheet of each size has its widths of lines, and hides what that size has no room for.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
icons=../../cuadros/resources/icons
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT

for drawing in *.svg; do
  pictures=()
  for size in 16 32 48; do
    picture=$made/$size.png
    rsvg-convert -w $size -h $size --stylesheet $size.css "$drawing" -o "$picture"
    pictures+=("$picture")
  done
  icotool -c -o "$made/${drawing%.svg}.ico" "${pictures[@]}"
  rm "${pictures[@]}"
done

if [ "${1:-}" = --check ]; then
  diff -rq "$made" $icons
else
  cp "$made"/*.ico $icons
fi
