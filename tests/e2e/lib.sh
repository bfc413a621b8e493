# Sourced by the end-to-end tests: a screen of their own, the real game in a portable folder of its own, and
# a player's hands and eyes. Needs Xvfb, openbox, xdotool and ImageMagick.
#
# start_screen; start_game FOLDER; then the functions below. All positions are pixels of the game's window.

set -u
WORK=$(mktemp -d)
PIDS=()

cleanup() {
  local pid
  for pid in "${PIDS[@]}"; do kill "$pid" 2>/dev/null; done
  wait 2>/dev/null
  rm -rf "$WORK"
}
trap cleanup EXIT

die() {
  echo "FAILED: $*" >&2
  [ -n "${KEEP_SHOTS:-}" ] && cp "$WORK/shot.png" "$KEEP_SHOTS"
  exit 1
}

start_screen() {
  mkfifo "$WORK/display"
  Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$WORK/display" >/dev/null 2>&1 &
  PIDS+=($!)
  read -r number <"$WORK/display" || die "Xvfb does not start"
  export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$WORK
  openbox >/dev/null 2>&1 &
  PIDS+=($!)
}

# start_game FOLDER [ARGUMENT...]: copies the portable folder to $WORK/Quadrelo, starts the game there and waits
# for a board.
start_game() {
  if [ ! -d "$WORK/Quadrelo" ]; then
    cp -r "$1" "$WORK/Quadrelo"
    rm -rf "$WORK/Quadrelo/Dados"
    mkdir "$WORK/Quadrelo/Dados"
  fi
  "$WORK/Quadrelo/quadrelo" "${@:2}" 2>"$WORK/stderr" &
  GAME=$!
  PIDS+=("$GAME")
  wait_for 10 "a board" board_in_play
  WINDOW=$(xdotool search --onlyvisible --name '^Quadrelo$' | head -n 1)
  eval "$(xdotool getwindowgeometry --shell "$WINDOW" | grep -E '^(X|Y)=')"
}

# wait_for SECONDS WHAT COMMAND...: until the command succeeds.
wait_for() {
  local end=$((SECONDS + $1)) what=$2
  shift 2
  until "$@"; do
    [ "$SECONDS" -lt "$end" ] || die "no $what in time"
    sleep 0.1
  done
}

shot() { import -window root -depth 8 "$WORK/shot.png" 2>/dev/null; }

# count COLOUR: pixels of exactly that colour (RRGGBB, capitals) on the screen now.
count() {
  shot
  convert "$WORK/shot.png" -depth 8 -format %c histogram:info:- |
    awk -v c="#$1" '$0 ~ c "( |F|$)" { sub(":", "", $1); n += $1 } END { print n + 0 }'
}

SELECTED=FFFFB1
FIXED=D5F5FF

# cells COLOUR: cells of that ground. An empty one has 289 pixels of it, one with a letter some 257.
cells() {
  local size=289
  [ "$1" = $FIXED ] && size=257
  echo $((($(count "$1") + size / 2) / size))
}
# Pixels of the board that are nearly red.
reds() {
  shot
  convert "$WORK/shot.png" -crop "490x415+$((X + 5))+$((Y + 32))" +repage -fuzz 30% -fill black +opaque red \
    -fill white +opaque black -format '%[fx:round(mean*w*h)]' info:
}
board_in_play() { [ "$(cells $SELECTED)" -ge 3 ]; }

click() { xdotool mousemove $((X + $1)) $((Y + $2)) click "${3:-1}"; sleep 0.15; }
type_text() { xdotool type --delay 12 "$1"; sleep 0.3; }
select_item() { click $((20 + 21 * ($1 - 1))) 460; }
# The menu's entries from 0.
menu() { click 580 $((60 + 40 * $1)); }

# Without accents, in small letters.
plain() { iconv -f CP1252 -t UTF-8 | sed 'y/ÇÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜ/CAEIOUAEIOUAOAEIOUU/' | tr 'A-Z' 'a-z'; }
# ini FILE SECTION KEY: a value, plain.
ini() {
  tr -d '\r' <"$1" | awk -v s="[$2]" -v k="$3=" \
    '$0 == s { in_it = 1; next } /^\[/ { in_it = 0 } in_it && index($0, k) == 1 { print substr($0, length(k) + 1) }' | plain
}
