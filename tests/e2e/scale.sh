#!/usr/bin/env bash
# Starts the real program larger, too large for the screen, and with a size that is none.
#   scale.sh PORTABLE-FOLDER
export LC_ALL=C.UTF-8
. "$(dirname "$0")/lib.sh"

start_screen
for sizes in 1,5:978x749 4:1003x768; do
  start_game "$1" --escala "${sizes%:*}"
  xdotool getwindowgeometry "$WINDOW" | grep -q "Geometry: ${sizes#*:}" ||
    die "--escala ${sizes%:*}: $(xdotool getwindowgeometry "$WINDOW")"
  kill "$GAME"
  wait "$GAME" 2>/dev/null
done

"$1/quadrelo" --escala grande >"$WORK/out" 2>"$WORK/err"
status=$?
[ $status -eq 2 ] || die "a size that is none ends with status $status"
grep -q '^quadrelo: .*número de 0,5 a 4.*"grande"' "$WORK/err" || die "it says: $(cat "$WORK/err")"
[ ! -s "$WORK/out" ] || die "a complaint on the standard output"
"$1/quadrelo" --versao | grep -qx "Quadrelo [0-9.]*" || die "no version"
echo "scale.sh: passed"
