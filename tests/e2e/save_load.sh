#!/usr/bin/env bash
# save_load.sh FOLDER: saves a game, restarts the program, opens the game and pays for it, solves it word by
# word and finds the time in the ranking. FOLDER is the game's portable folder.
set -u
. "$(dirname "$(readlink -f "$0")")/screen.sh" "$1"

saved=$game/Dados/save.ini
ranking=$game/Dados/Ranking.dat

# value FILE SECTION KEY: a stored value, in UTF-8.
value() {
  iconv -f CP1252 -t UTF-8 "$1" | tr -d '\r' |
    awk -v s="[$2]" -v k="$3=" '/^\[/ { in_it = $0 == s } in_it && index($0, k) == 1 { print substr($0, length(k) + 1) }'
}
has_value() { [ -f "$1" ] && [ -n "$(value "$@")" ]; }

# save_as SLOT NAME
save_as() {
  open_by_menu 180 'Salvar Jogo' 251 373
  click "$found" 125 $((50 + 27 * ($1 - 1)))
  wait_for "the question for a name" window 'Salvar Jogo' 283 99
  activate "$found"
  write "$2"
  press Return
  wait_for "the end of saving" no_window 'Salvar Jogo' 283 99
  wait_for "slot $1" has_value "$saved" "jogo$1" Tempo
}

# clock FILE: what the clock looks like.
clock() { import -window "$main" -crop 74x17+563+451 +repage "$1"; }
# differ X WIDTH A B: whether two clocks differ in these columns.
differ() {
  [ "$(compare -metric AE -extract "$2x17+$1+0" "$3" "$4" null: 2>&1)" != 0 ]
}
minutes_moved() { clock "$work/now.png" && differ 31 15 "$work/zero.png" "$work/now.png"; }

# open_slot SLOT: leaves the notice of the price open.
open_slot() {
  open_by_menu 139 'Abrir Jogo' 251 373
  click "$found" 125 $((54 + 27 * ($1 - 1)))
  wait_for "the notice of the price" message
}

# solve: types every word of slot 1 as the selection goes from item to item.
solve() {
  declare -A fixed=() solved=()
  local i=1 left=26 k cell step word letters
  while ((left > 0)); do
    word=$(value "$saved" jogo1 "Palavra$i")
    cell=$(value "$saved" jogo1 "Ponto$i")
    [ "$(value "$saved" jogo1 "Sentido$i")" = H ] && step=1 || step=26
    letters=
    for ((k = 0; k < ${#word}; k++)); do
      [ -n "${fixed[$cell]:-}" ] || letters+=${word:k:1}
      fixed[$cell]=1
      cell=$((cell + step))
    done
    # Plain letters pass for accented ones.
    letters=$(sed 'y/ÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜÇ/AEIOUAEIOUAOAEIOUUC/' <<<"$letters")
    write "${letters,,}"
    solved[$i]=1
    left=$((left - 1))
    i=$((i + 1))
    if ((left > 0)) && { ((i > 26)) || [ -n "${solved[$i]:-}" ]; }; then
      for ((i = 1; i <= 26; i++)); do [ -n "${solved[$i]:-}" ] || break; done
    fi
  done
}

start_program
save_as 1 'Primeiro'
[ "$(value "$saved" jogo1 Nome)" = Primeiro ] || fail "the slot has another name"
before=$(value "$saved" jogo1 Tempo)
leave_program

start_program
open_slot 1
clock "$work/zero.png"
activate "$found"
press Return
wait_for "a clock that shows the price" minutes_moved
differ 0 31 "$work/zero.png" "$work/now.png" && fail "the clock shows hours"
save_as 2 'Segundo'
after=$(value "$saved" jogo2 Tempo)
awk -v a="$before" -v b="$after" 'BEGIN { exit !(b - a >= 120 && b - a < 180) }' ||
  fail "the price is not two minutes: $before seconds before, $after after"
[ "$(value "$saved" jogo1 Tempo)" = "$before" ] || fail "opening has changed the slot"

activate "$main"
solve
wait_for "the question for the player's name" window Ranking 282 99
activate "$found"
write 'Zoe'
press Return
wait_for "the ranking" window Ranking 385 206
activate "$found"
press Escape
wait_for "the end of the ranking" no_window Ranking 385 206
[ "$(value "$ranking" Ranking1 Nome)" = 'Zoe           ' ] || fail "the name is not in the ranking"
time=$(value "$ranking" Ranking1 Tempo)
awk -v a="$after" -v t="$time" 'BEGIN { exit !(t >= int(a) && t < a + 120) }' ||
  fail "the ranking says $time seconds, the game had $after before its last words"
leave_program
echo "saved, opened for two minutes, solved and ranked with $time seconds"
