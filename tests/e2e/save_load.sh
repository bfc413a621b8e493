#!/usr/bin/env bash
# Saves a game, restarts the program, opens the game and pays for it, solves it word by word and finds the
# time in the ranking.
#   save_load.sh PORTABLE-FOLDER
# Accents have to be read as letters, and times with a point.
export LC_ALL=C.UTF-8
. "$(dirname "$0")/lib.sh"

saved=$WORK/Quadrelo/Dados/save.ini
ranking=$WORK/Quadrelo/Dados/Ranking.dat

# press KEY: in the window found last.
press() {
  xdotool windowactivate --sync "$WINDOW" 2>/dev/null
  xdotool key "$1"
}

# start: the game, with a board.
start() {
  start_game "$1"
  main_window || die "the main window has another size"
}
# leave: by "Sair".
leave() {
  main_window
  menu 5
  wait_for 5 "end of the game" bash -c "! kill -0 $GAME 2>/dev/null"
}

# dialog ENTRY NAME: opens one of the lists from the menu.
dialog() {
  main_window
  menu "$1"
  wait_for 5 "dialog \"$2\"" window "$2" 251 373
}

# save_as SLOT NAME
save_as() {
  dialog 3 'Salvar Jogo'
  click 125 $((50 + 27 * ($1 - 1)))
  wait_for 5 "question for a name" window 'Salvar Jogo' 283 99
  xdotool windowactivate --sync "$WINDOW"
  type_text "$2"
  press Return
  wait_for 5 "saved game" grep -aq "^\[jogo$1\]" "$saved"
  wait_for 5 "end of saving" no_window 'Salvar Jogo' 251 373
}

# clock FILE: the clock's picture.
clock() {
  shot
  convert "$WORK/shot.png" -crop "74x17+$((X + 563))+$((Y + 451))" +repage "$1"
}
# differ FROM WIDTH A B: whether two clocks differ in these columns.
differ() { [ "$(compare -metric AE -extract "$2x17+$1+0" "$3" "$4" null: 2>&1)" != 0 ]; }
minutes_moved() { main_window && clock "$WORK/now.png" && differ 31 15 "$WORK/zero.png" "$WORK/now.png"; }

# within A LOW HIGH
within() { awk -v a="$1" -v b="$2" -v c="$3" 'BEGIN { exit !(a >= b && a < c) }'; }

start_screen
start "$1"
save_as 1 primeiro
[ "$(ini "$saved" jogo1 Nome)" = primeiro ] || die "the slot has another name"
before=$(ini "$saved" jogo1 Tempo)
leave

# What a writer that was killed leaves behind.
: >"$saved.qWeRtY"
start "$1"
[ ! -e "$saved.qWeRtY" ] || die "a dead writer's file is still there"
dialog 2 'Abrir Jogo'
click 125 54
wait_for 10 "notice of the price" message
box=$WINDOW
main_window
clock "$WORK/zero.png"
WINDOW=$box
press Return
wait_for 5 "clock that shows the price" minutes_moved
differ 0 31 "$WORK/zero.png" "$WORK/now.png" && die "the clock shows hours"
save_as 2 segundo
after=$(ini "$saved" jogo2 Tempo)
within "$(awk "BEGIN { print $after - $before }")" 120 180 ||
  die "the price is not two minutes: $before seconds before, $after after"
[ "$(ini "$saved" jogo1 Tempo)" = "$before" ] || die "opening has changed the slot"

main_window
xdotool windowactivate --sync "$WINDOW"
solve "$saved"
wait_for 5 "question for the player's name" window Ranking 282 99
xdotool windowactivate --sync "$WINDOW"
type_text Zoe
press Return
wait_for 5 "ranking" window Ranking 385 206
press Escape
wait_for 5 "end of the ranking" no_window Ranking 385 206
[ "$(ini "$ranking" Ranking1 Nome)" = 'zoe           ' ] || die "the name is not in the ranking"
time=$(ini "$ranking" Ranking1 Tempo)
within "$time" "${after%.*}" "$((${after%.*} + 120))" ||
  die "the ranking says $time seconds, the game had $after before its last words"
leave
echo "save_load.sh: passed, $time seconds"
