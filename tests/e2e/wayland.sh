#!/usr/bin/env bash
# Plays a whole game under Wayland: what lies outside the windows' shapes is transparent, the keyboard comes back
# from the dialogs, the strip drags.
#   wayland.sh PORTABLE-FOLDER
export LC_ALL=C.UTF-8 WM=sway
. "$(dirname "$0")/lib.sh"

saved=$WORK/Quadrelo/Dados/save.ini
ranking=$WORK/Quadrelo/Dados/Ranking.dat

colour() { convert "$WORK/shot.png" -format "%[hex:u.p{$1,$2}]" info:; }
# cut_out WIDTH HEIGHT: whether a window of that size in the screen's middle shows in its corner what lies behind,
# and not farther in.
cut_out() {
  local x=$(((1024 - $1) / 2)) y=$(((768 - $2) / 2)) corner
  shot
  [ -n "${SHOTS:-}" ] && cp "$WORK/shot.png" "$SHOTS/$1x$2-$(date +%s%N).png"
  corner=$(colour $x $y)
  [[ "$(colour $((x - 1)) $y) $(colour $x $((y - 1)))" == *$corner* ]] && [ "$(colour $((x + 7)) $y)" != "$corner" ]
}

start_screen
wait_for 5 "desktop" eval 'shot && DESKTOP=$(colour 5 5) && [ "$DESKTOP" != 000000 ]'
start_game "$1"
cut_out 652 499 || die "the main window has corners"

menu 3
wait_for 5 "list of slots without corners" cut_out 251 373
slot 1
wait_for 5 "question for a name without corners" cut_out 283 99
xdotool key a Return
wait_for 5 "saved game" grep -aqs '^\[jogo1\]' "$saved"
sleep 0.5
before=$(ground)
xdotool key m
wait_for 3 "letter in the cell" written "$before"

# The bubble of the cell that lies farthest to the right; it may reach beyond the window.
select_item 1
white() { convert "$WORK/shot.png" -crop "$1" -fill black +opaque white -trim -format "%[fx:$2]" info:; }
right=$(white "490x415+$((X + 5))+$((Y + 32))" page.x+w-9)
top=$(white "3x415+$right+$((Y + 32))" page.y+9)
xdotool mousemove "$right" "$top" mousemove_relative 1 1
bubble() { [ "$(count C0FFFF)" -gt 300 ]; }
wait_for 5 "hint" bubble
cut_out 652 499
xdotool mousemove $((X + 500)) $((Y + 40)) mousemove_relative 3 3
no_bubble() { ! bubble; }
wait_for 3 "end of the hint" no_bubble

solve "$saved"
wait_for 5 "question for the player's name" cut_out 283 99
xdotool type --delay 12 Zoe
xdotool key Return
wait_for 5 "ranking without corners" cut_out 385 206
[ "$(ini "$ranking" Ranking1 Nome)" = 'zoe           ' ] || die "the name is not in the ranking"
xdotool key Escape
menu 0
wait_for 10 "a new board" board_in_play
before=$(ground)
xdotool key m
wait_for 3 "letter in the cell of the new game" written "$before"

xdotool mousemove $((X + 300)) $((Y + 15)) mousedown 1 mousemove_relative 60 40 sleep 0.1 mousemove_relative 60 40 \
  sleep 0.2 mouseup 1
moved() { shot; [ "$(colour $X $((Y + 100)))" = "$DESKTOP" ] && [ "$(colour $((X + 660)) $((Y + 300)))" != "$DESKTOP" ]; }
wait_for 3 "drag" moved
echo "wayland.sh: passed"
