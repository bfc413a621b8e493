# Sourced by the end-to-end tests: the real program on a screen of its own, driven like a player does it.
#
# A test sources this file with the program's portable folder as its first argument. It then has a copy of
# that folder in $game, a screen with a window manager, and the functions below. Everything that is started
# here ends with the test.
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb

work=$(mktemp -d)
game=$work/Quadrelo
started=()
program=

fail() {
  echo "FAILED: $*" >&2
  [ -n "${DISPLAY:-}" ] && import -window root "$work/failed.png" 2>/dev/null && keep=1 &&
    echo "the screen then: $work/failed.png" >&2
  exit 1
}

clean_up() {
  [ -n "$program" ] && kill "$program" 2>/dev/null
  for ((k = ${#started[@]} - 1; k >= 0; k--)); do
    kill "${started[k]}" 2>/dev/null
  done
  wait 2>/dev/null
  [ -n "${keep:-}" ] || rm -rf "$work"
}
trap clean_up EXIT

# wait_for WHAT COMMAND...: until the command succeeds; fails the test after twenty seconds.
wait_for() {
  local what=$1 k
  shift
  for ((k = 0; k < 200; k++)); do
    "$@" && return 0
    sleep 0.1
  done
  fail "$what did not come"
}

# window NAME WIDTH HEIGHT: the visible window of that title and size, in $found.
window() {
  local id WINDOW X Y WIDTH HEIGHT SCREEN
  for id in $(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null); do
    eval "$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)"
    if [ "${WIDTH:-0}x${HEIGHT:-0}" = "$2x$3" ]; then
      found=$id
      return 0
    fi
  done
  return 1
}

# message: the message box that is open, in $found. It has the main window's title, and no fixed size.
message() {
  local id WINDOW X Y WIDTH HEIGHT SCREEN
  for id in $(xdotool search --onlyvisible --name '^Quadrelo$' 2>/dev/null); do
    eval "$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)"
    if [ "$id" != "$main" ] && [ "${HEIGHT:-0}" -gt 60 ] && [ "$HEIGHT" -lt 300 ]; then
      found=$id
      return 0
    fi
  done
  return 1
}

no_window() { ! window "$@"; }

# click WINDOW X Y: a place of a window, in its pixels.
click() {
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getwindowgeometry --shell "$1")"
  xdotool mousemove $((X + $2)) $((Y + $3)) click 1
}

# open_by_menu Y NAME WIDTH HEIGHT: clicks the menu entry until its dialog is there; while a board is built
# the menu does not answer.
open_by_menu() {
  local y=$1
  shift
  try_menu() { click "$main" 580 "$y"; sleep 0.3; window "$@"; }
  wait_for "the dialog \"$1\"" try_menu "$@"
}

press() { xdotool key --clearmodifiers "$@"; }
write() { xdotool type --clearmodifiers --delay 15 "$1"; }
# activate WINDOW: gives it the keyboard.
activate() { xdotool windowactivate --sync "$1" 2>/dev/null; }

start_program() {
  "$game/quadrelo" >"$work/program.log" 2>&1 &
  program=$!
  wait_for "the main window" window Quadrelo 652 499
  main=$found
}

gone() { ! kill -0 "$program" 2>/dev/null; }

# leave_program: by "Sair".
leave_program() {
  click "$main" 580 260
  wait_for "the end of the program" gone
  program=
}

cp -r "$1" "$game" || fail "no portable folder at $1"
rm -rf "$game/Dados" && mkdir "$game/Dados"
exec 3>"$work/display"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp >"$work/xvfb.log" 2>&1 &
started+=($!)
exec 3>&-
wait_for "the screen" test -s "$work/display"
DISPLAY=:$(cat "$work/display")
export DISPLAY
openbox >"$work/openbox.log" 2>&1 &
started+=($!)
has_manager() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
wait_for "the window manager" has_manager
