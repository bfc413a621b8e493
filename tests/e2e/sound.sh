#!/usr/bin/env bash
# Plays the real program against a sound server of its own, records what the loudspeaker would give, and asks
# which sounds are heard, each from beginning to end.
#   sound.sh PORTABLE-FOLDER HEARD
. "$(dirname "$0")/lib.sh"

# The server, with a loudspeaker that nobody hears. Without rewinds: what a recorder has already
# got the server cannot take back, and beginnings of sounds would be missing from the recording alone.
start_sound() {
  export PULSE_SERVER=unix:$WORK/sound PULSE_RUNTIME_PATH=$WORK/pulse PULSE_STATE_PATH=$WORK/pulse HOME=$WORK
  pulseaudio -n --daemonize=no --use-pid-file=no --exit-idle-time=-1 --log-target=file:"$WORK/pulse.log" \
    -L "module-native-protocol-unix socket=$WORK/sound auth-anonymous=1" \
    -L "module-null-sink rate=44100 channels=1 norewinds=1" 2>/dev/null &
  PIDS+=($!)
  wait_for 5 "sound server" pactl info >/dev/null 2>&1
}
record() {
  parec --device=@DEFAULT_MONITOR@ --rate=44100 --channels=1 --format=s16le --latency-msec=50 \
    >"$WORK/recording" 2>/dev/null &
  PIDS+=($!)
  sleep 1
}

# expect NAME ACT...: does something that sounds, and notes what should be heard.
expect() {
  echo "$1" >>"$WORK/wanted"
  shift
  "$@"
}
ranking() { menu 4; sleep 0.6; xdotool key Escape; }
select_one() { select_item "$1"; sleep 0.5; }
type_word() { type_text "$1"; sleep 1; }

start_screen
start_sound
start_game "$1"
record
wrong=$(printf 'q%.0s' $(seq "$(cells "$SELECTED")"))
for _ in {1..9}; do
  expect click ranking
  expect select select_one 1
  expect erro type_word "$wrong"
done
expect acerto type_word "$(ini "$WORK/Quadrelo/Dados/jf.dat" Indice Palavra1)"
expect click ranking
expect select select_one 26
wrong=$(printf 'q%.0s' $(seq "$(cells "$SELECTED")"))
streams=$(pactl list short sink-inputs | wc -l)
[ "$streams" -le 1 ] || die "$streams streams are open"

# The sound of a wrong word, cut off by the next one.
type_text "$wrong"
select_one 25

"$2" "$WORK/recording" "$1"/*.wav >"$WORK/heard"
paste -d ' ' "$WORK/wanted" <(head -n 30 "$WORK/heard") |
  awk '{ name = $2; sub(/[12]$/, "", name) }
    name != $1 || $3 < $4 - 5 || $3 > $4 + 5 || $5 < 0.98 { print "sound " NR ": " $0; bad = 1 }
    END { exit bad }' >"$WORK/bad" || die "$(cat "$WORK/bad")"
tail -n +31 "$WORK/heard" | awk '{ ms += $2 } END { exit !(ms > 300 && ms < 850) }' ||
  die "the last but one is not cut off: $(tail -n +31 "$WORK/heard")"
[ -s "$WORK/stderr" ] && die "the game complains: $(head -n 3 "$WORK/stderr")"
echo "sound.sh: passed, $SECONDS seconds"
