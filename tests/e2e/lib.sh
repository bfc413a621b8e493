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

# WM: the window manager, by default openbox; "none"; or "sway", a Wayland session inside the screen.
start_screen() {
  mkfifo "$WORK/display"
  Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -ac 3>"$WORK/display" >/dev/null 2>&1 &
  PIDS+=($!)
  read -r number <"$WORK/display" || die "Xvfb does not start"
  export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$WORK
  case ${WM:=openbox} in
    none) return ;;
    sway) start_sway ;;
    *) $WM >/dev/null 2>&1 & ;;
  esac
  PIDS+=($!)
}

start_sway() {
  local as=()
  # It refuses to run as root.
  [ "$(id -u)" = 0 ] && chown nobody "$WORK" && as=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
  printf '%s\n' 'output * resolution 1024x768' 'default_floating_border none' 'xwayland disable' \
    'for_window [app_id=".*"] floating enable' >"$WORK/sway.conf"
  WLR_BACKENDS=x11 WLR_RENDERER=pixman "${as[@]}" sway -c "$WORK/sway.conf" >/dev/null 2>&1 &
  wait_for 10 "Wayland session" [ -S "$WORK/wayland-1" ]
  export QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=wayland-1
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
  X=186 Y=134
  [ "$WM" = sway ] && return
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

# at DX DY: clicks there, from the screen's middle, where the small forms stand.
at() { xdotool mousemove $((512 + $1)) $((384 + $2)) click 1; }
slot() { at 0 $((-132 + 27 * ($1 - 1))); }

ground() { count $SELECTED; }
# A letter takes more of the cell's ground than the cursor, which blinks.
written() { [ $(($1 - $(ground))) -ge 22 ]; }

# window NAME WIDTH HEIGHT: the visible window of that title and size becomes the one that click goes to.
window() {
  local id geometry
  for id in $(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null); do
    geometry=$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)
    if [[ $geometry == *WIDTH=$2$'\n'HEIGHT=$3$'\n'* ]]; then
      eval "$(grep -E '^(WINDOW|X|Y)=' <<<"$geometry")"
      return 0
    fi
  done
  return 1
}
no_window() { ! window "$@"; }
main_window() { window Quadrelo 652 499; }

# message: whether a box with a message is open. It has the main window's title, and no fixed size.
message() {
  local id height
  for id in $(xdotool search --onlyvisible --name '^Quadrelo$' 2>/dev/null); do
    height=$(xdotool getwindowgeometry --shell "$id" 2>/dev/null | sed -n 's/^HEIGHT=//p')
    [ "${height:-0}" -gt 60 ] && [ "$height" -lt 300 ] && WINDOW=$id && return 0
  done
  return 1
}

# Without accents, in small letters.
plain() { iconv -f CP1252 -t UTF-8 | sed 'y/ÇÁÉÍÓÚÀÈÌÒÙÃÕÂÊÎÔÛÜ/CAEIOUAEIOUAOAEIOUU/' | tr 'A-Z' 'a-z'; }
# ini FILE SECTION KEY: a value, plain.
ini() {
  tr -d '\r' <"$1" | awk -v s="[$2]" -v k="$3=" \
    '$0 == s { in_it = 1; next } /^\[/ { in_it = 0 } in_it && index($0, k) == 1 { print substr($0, length(k) + 1) }' | plain
}

# solve FILE: types every word of slot 1 as the selection goes from item to item.
solve() {
  declare -A fixed=() solved=()
  local i=1 left=26 k cell step word letters
  while ((left > 0)); do
    word=$(ini "$1" jogo1 "Palavra$i")
    cell=$(ini "$1" jogo1 "Ponto$i")
    [ "$(ini "$1" jogo1 "Sentido$i")" = h ] && step=1 || step=26
    letters=
    for ((k = 0; k < ${#word}; ++k, cell += step)); do
      [ -n "${fixed[$cell]:-}" ] || letters+=${word:k:1}
      fixed[$cell]=1
    done
    [ -n "$letters" ] && xdotool type --delay 12 "$letters"
    solved[$i]=1
    ((--left > 0)) || break
    ((++i <= 26)) && [ -z "${solved[$i]:-}" ] && continue
    for ((i = 1; i <= 26; ++i)); do [ -n "${solved[$i]:-}" ] || break; done
  done
}
