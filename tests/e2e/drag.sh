#!/usr/bin/env bash
# Drags the real window by its strip: it must move by exactly the mouse's way, and only with the left button,
# whether the system moves it (the button rests before it moves) or the game. A click too short for the system
# must not leave the window at the pointer.
#   drag.sh PORTABLE-FOLDER
. "$(dirname "$0")/lib.sh"

place() { xdotool getwindowgeometry --shell "$WINDOW" | grep -E '^(X|Y)=' | tr '\n' ' '; }

# drag BUTTON REST: from (300,15) by 120 to the right and 80 down, in steps, after a rest.
drag() {
  local k
  xdotool mousemove $((X + 300)) $((Y + 15)) mousedown "$1" sleep "$2"
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
drag 3 0
[ "$(place)" = "$before" ] || die "the right button moved the window from $before to $(place)"
for rest in 0 0.4; do
  drag 1 $rest
  want="X=$((X + 120)) Y=$((Y + 80)) "
  [ "$(place)" = "$want" ] || die "drag after $rest s: the window went to $(place), not to $want"
  X=$((X + 120)) Y=$((Y + 80))
done
for rest in 0 0 0.1 0.2; do
  xdotool mousemove $((X + 300)) $((Y + 15)) mousedown 1 sleep $rest mouseup 1
  sleep 0.2
  xdotool mousemove_relative 40 40
  sleep 0.2
  [ "$(place)" = "$want" ] || die "a click of $rest s leaves the window at the pointer"
done
echo "drag.sh: passed"
