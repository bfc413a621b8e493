#!/usr/bin/env bash
# Plays the real program with mouse and keyboard: a word wrong, words right, a help, and giving up; looks at
# the colours of the cells.
#   play.sh PORTABLE-FOLDER
. "$(dirname "$0")/lib.sh"

solved() { [ "$(cells $FIXED)" -gt "$1" ]; }

# Solves item $1 if its word comes out with at most one of its letters fixed already.
solve() {
  local word before free skip
  word=$(ini "$WORK/Quadrelo/Dados/jf.dat" Indice "Palavra$1")
  select_item "$1"
  before=$(cells $FIXED)
  free=$(cells $SELECTED)
  if [ "$free" -eq "${#word}" ]; then
    type_text "$word"
  elif [ "$free" -eq $((${#word} - 1)) ]; then
    for ((skip = 0; skip < ${#word}; ++skip)); do
      type_text "${word:0:skip}${word:skip+1}"
      solved "$before" && break
      select_item "$1"
    done
  fi
  solved "$before"
}

start_screen
start_game "$1"
wait_for 12 "jf.dat" test -s "$WORK/Quadrelo/Dados/jf.dat"

word=$(ini "$WORK/Quadrelo/Dados/jf.dat" Indice Palavra1)
type_text "$(printf 'q%.0s' $(seq ${#word}))"
[ "$(cells $FIXED)" -eq 0 ] || die "a wrong word was taken for right"
[ "$(cells $SELECTED)" -eq "${#word}" ] || die "a wrong word was not wiped"
type_text "$word"
[ "$(cells $FIXED)" -eq "${#word}" ] || die "the right word $word was not locked"

before=$(cells $FIXED)
click 580 350
xdotool key Return
sleep 0.4
[ "$(cells $FIXED)" -eq $((before + 1)) ] || die "help did not give a letter"

done_items=1
for ((n = 2; n <= 26 && done_items < 10; ++n)); do
  solve "$n" && done_items=$((done_items + 1))
done
[ "$done_items" -ge 10 ] || die "only $done_items words came out"
before=$(reds)
menu 0
sleep 0.4
[ "$(reds)" -gt $((before + 100)) ] || die "giving up shows no red letter"
kill -0 "$GAME" || die "the game is gone"
[ -s "$WORK/stderr" ] && die "the game complains: $(head -n 3 "$WORK/stderr")"
menu 5
wait_for 3 "end of the game" bash -c "! kill -0 $GAME 2>/dev/null"
echo "play.sh: passed"
