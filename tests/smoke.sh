#!/usr/bin/env bash
# Starts the built program on a virtual display, opens the main window by mouse and
# plays Forward Lowercase to its end with real key presses; then looks at the screen.
#   smoke.sh PROGRAM [FOLDER FOR THE SCREENSHOTS]
set -u
program=$1
shots=${2:-$(mktemp -d)}
mkdir -p "$shots"
log="$shots/stderr.txt"

. "$(dirname "$0")/../packaging/packages.sh"

fail() {
  printf 'smoke: %s\n' "$*" >&2
  import -window root "$shots/failed.png" 2>/dev/null
  exit 1
}

for tool in Xvfb xdotool import; do
  command -v "$tool" >/dev/null || { echo "smoke: $tool is missing" >&2; exit 77; }
done

game=
display_server=
trap 'kill $game $display_server 2>/dev/null' EXIT
start_display "$shots"

"$program" 2>"$log" &
game=$!

# wait_for WIDTH HEIGHT: the id of a visible window of that size, in $window
wait_for() {
  for _ in $(seq 100); do
    for window in $(xdotool search --onlyvisible --name 'Kestrix-Typing' 2>/dev/null); do
      eval "$(xdotool getwindowgeometry --shell "$window" 2>/dev/null)"
      [ "${WIDTH:-0}x${HEIGHT:-0}" = "$1x$2" ] && return 0
    done
    sleep 0.1
  done
  fail "no window of $1x$2"
}

# click X Y in the window
click() {
  xdotool mousemove --window "$window" "$1" "$2" click 1
}

# pixel X Y of the window, as RRGGBB
pixel() {
  import -window "$window" -crop "1x1+$1+$2" -depth 8 rgb:- | od -An -tx1 | tr -d ' \n'
}

# The opening window's Start; Enter presses it too, but a player clicks.
wait_for 720 467
import -window "$window" "$shots/opening.png"
click 588 60
wait_for 1211 695
sleep 0.3
xdotool windowfocus "$window"
import -window "$window" "$shots/idle.png"

click 123 282 # Lowercase, Forward; the wave of light runs for 53 steps of 50 ms
sleep 3
click 479 89 # Start
sleep 0.3
import -window "$window" "$shots/started.png"
for letter in a b c d e f g h i j k l m n o p q r s t u v w x y z; do
  xdotool key "$letter"
  xdotool key space
  [ "$letter" = m ] && import -window "$window" "$shots/half.png"
  # Slow enough for the hints of the first letters to be gone before the closing question.
  sleep 0.25
done

# Every cell from a to z shows the finished gray, its edge away from letter and corner;
# the capitals above stay black.
for i in $(seq 0 25); do
  [ "$(pixel $((214 + 28 * i + 3)) 308)" = 737373 ] || fail "cell $((i + 1)) of the bar is not finished"
done
[ "$(pixel 217 280)" = 000000 ] || fail "a capital's cell is not at rest"
# The boxes, the count and the question hold ink.
ink() {
  import -window "$window" -crop "$3x$4+$1+$2" -colorspace Gray -format '%[fx:minima<0.5]' info:
}
[ "$(ink 486 176 53 53)" = 1 ] || fail "Match This is empty"
[ "$(ink 20 150 52 43)" = 1 ] || fail "the count of correct entries is empty"
# The last hint has been cleared by now, on a slow machine too; what comes is the question.
for _ in $(seq 80); do [ "$(ink 706 146 120 80)" = 1 ] && break; sleep 0.05; done
[ "$(ink 706 146 120 80)" = 1 ] || fail "the instructor does not ask for another game"
import -window "$window" "$shots/finished.png"

# Quit ends the process.
click 1155 57
for _ in $(seq 50); do kill -0 "$game" 2>/dev/null || break; sleep 0.1; done
kill -0 "$game" 2>/dev/null && fail "Quit did not end the program"
wait "$game" || fail "the program ended with status $?"
game=
[ -s "$log" ] && { cat "$log" >&2; fail "the program wrote to stderr"; }
echo "smoke: a whole game was played"
