# What all sessions share; sourced by them. Makes a folder `work` that is removed at the end.
source "$SCRIPTS/desktop.sh"

work=$(mktemp -d)
start_window_manager
leave() {
  kill $manager ${program:-} 2>/dev/null || true
  [ -n "${KEEP_WORK:-}" ] || rm -rf "$work"
}
trap leave EXIT

main='Vellumark - savegame archive'

# Makes the demo world in a folder, by default `world` in `work`, and keeps a copy in `before` to
# compare with. Sets its preferences file, its folders, and the slot files in the game's folder.
make_world() {
  local world=${2:-$work/world}
  preferences=$("$1" "$world" | tail -n 1)
  cp -a "$world" "$work/before"
  archive=$world/Archive
  old_archive=$work/before/Archive
  game="$world/Tomb Raider"
  old_game="$work/before/Tomb Raider"
  own_slots=(savegame.{0,1,2,4,5,8,11} note4.txt note11.txt shot8.jpg shot11.jpg)
}

# Starts the program that a session has copied to `program` in `work`.
start_program() {
  "$work/program/vellumark" "$@" &
  program=$!
}

# Leaves the program by the keyboard, answering its question by a key where it asks one.
close_program() {
  press_in "$main" ctrl+q
  [ $# -eq 0 ] || answer_message_box "$1"
  wait "$program" || fail "the program ended with an error"
}

fail() {
  echo "FAILED: $*" >&2
  [ ! -e "${game:-}/stand-in.log" ] || cat "$game/stand-in.log" >&2
  import -window root "${TMPDIR:-/tmp}/vellumark-end-to-end.png" || true
  exit 1
}

# Waits until a command succeeds; fails with a message when it does not. (The first start of Wine in
# a prefix takes a while.)
wait_until() {
  local message=$1 deadline=$((SECONDS + 60))
  shift
  until "$@"; do
    [ $SECONDS -lt $deadline ] || fail "$message"
    sleep 0.05
  done
}

# Fails unless both files hold the same bytes.
expect_same() { cmp "$1" "$2" || fail "$1 is not $2"; }

# Fails unless a folder holds just these names.
expect_names() {
  local folder=$1
  shift
  local found expected
  found=$(ls -1 "$folder" | sort)
  expected=$(printf '%s\n' "$@" | sort)
  [ "$found" = "$expected" ] || fail "$folder holds: $found"
}

# Sets X, Y, WIDTH and HEIGHT to the place of a window's inside. (`xdotool` adds the frame to it after
# a move.)
measure_window() {
  eval "$(xwininfo -id "$1" | sed -nE 's/.*Absolute upper-left ([XY]): +(-?[0-9]+)/\1=\2/p
    s/^ +Width: ([0-9]+)/WIDTH=\1/p; s/^ +Height: ([0-9]+)/HEIGHT=\1/p')"
}

# Presses keys in the window with this title, which must come up and get the focus.
press_in() {
  local window
  window=$(wait_for_window "$1") || fail "no window $1"
  shift
  wait_for_focus "$window"
  xdotool key --clearmodifiers --delay 60 "$@"
}

# Succeeds when the window with this title has the focus; nothing here gives it.
has_focus() { [[ "$(xdotool getactivewindow getwindowname 2>/dev/null)" == *"$1" ]]; }

# Types a text into whatever has the focus.
type_text() { xdotool type --clearmodifiers --delay 30 -- "$1"; }
