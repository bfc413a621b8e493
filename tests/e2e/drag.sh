#!/usr/bin/env bash
# Drags the real window by its strip: it must move by exactly the mouse's way, and only with the left button.
#   drag.sh PORTABLE-FOLDER
. "$(dirname "$0")/lib.sh"

place() { xdotool getwindowgeometry --shell "$WINDOW" | grep -E '^(X|Y)=' | tr '\n' ' '; }

# drag BUTTON: from (300,15) by 120 to the right and 80 down, in steps.
drag() {
  local k
  xdotool mousemove $((X + 300)) $((Y + 15)) mousedown "$1"
  for k in 1 2 3 4; do
    xdotool mousemove_relative 30 20
    sleep 0.1
  done
  xdotool mouseup "$1"
  sleep 0.4
}

start_screen
start_game "$1"
before="X=$X Y=$Y "
drag 3
[ "$(place)" = "$before" ] || die "the right button moved the window from $before to $(place)"
for turn in 1 2; do
  drag 1
  want="X=$((X + 120)) Y=$((Y + 80)) "
  [ "$(place)" = "$want" ] || die "drag $turn: the window went to $(place), not to $want"
  X=$((X + 120)) Y=$((Y + 80))
done
echo "drag.sh: passed"
