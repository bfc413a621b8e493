#!/usr/bin/env bash
# Goes through the dialogs and message boxes and out of them by every way: the next key must write into the
# cell of the cursor, and behind a nested one into its dialog.
#   focus.sh PORTABLE-FOLDER
. "$(dirname "$0")/lib.sh"

keys() { sleep 0.25; xdotool key "$@"; }

# Ways in and out. The window manager's close is there where a window has its frame.
save_named() { menu 3; slot 1; keys a; keys Return; }
save_unnamed_esc() { menu 3; slot 2; keys Escape; }
save_name_cross() { menu 3; slot 2; sleep 0.25; at 128 -37; }
save_esc() { menu 3; keys Escape; }
save_cancel() { menu 3; at 0 151; }
save_cross() { menu 3; at 112 -176; }
save_outside() { menu 3; sleep 0.25; xdotool mousemove 900 700 click 1; click 300 200; keys Escape; }
save_over_no() { menu 3; slot 1; keys Escape; }
save_over_yes() { menu 3; slot 1; keys Return; keys Return; }
load_empty_esc() { menu 2; slot 5; keys Return; keys Escape; }
ranking_enter() { menu 4; keys Return; }
ranking_click() { menu 4; at 0 0; }
about_enter() { about; keys Return; }
about_esc() { about; keys Escape; }
about_title() { about; keys alt+F4; }
help_cancel() { click 582 350; keys Escape; }
load() { menu 2; slot 1; sleep 1; xdotool key Return; sleep 0.3; }

about() { click 622 10; }

try() {
  local before
  select_item "${2:-1}"
  before=$(ground)
  "$1"
  sleep 0.3
  [ "$1" = load ] && before=$(ground)
  xdotool key m
  wait_for 3 "letter in the cell behind $1" written "$before"
}

start_screen
start_game "$1"
title=
[ "${WM:-openbox}" = openbox ] && title=about_title
for way in save_named save_unnamed_esc save_name_cross save_esc save_cancel save_cross save_outside save_over_no \
  save_over_yes load_empty_esc ranking_enter ranking_click about_enter about_esc $title help_cancel load; do
  try $way
done
[ "$(xdotool search --all --onlyvisible --pid "$GAME" --name . | wc -l)" -le 1 ] || die "windows are left open"
echo "focus.sh: passed"
