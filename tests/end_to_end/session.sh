# What all sessions share; sourced by them. Makes a folder `work` that is removed at the end.
source "$SCRIPTS/desktop.sh"

work=$(mktemp -d)
start_window_manager
leave() {
  kill $manager ${program:-} 2>/dev/null || true
  rm -rf "$work"
}
trap leave EXIT

fail() {
  echo "FAILED: $*" >&2
  import -window root "${TMPDIR:-/tmp}/vellumark-end-to-end.png" || true
  exit 1
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

# Presses keys in the window with this title, which must come up and get the focus.
press_in() {
  local window
  window=$(wait_for_window "$1") || fail "no window $1"
  shift
  wait_for_focus "$window"
  xdotool key --clearmodifiers --delay 60 "$@"
}

# Types a text into whatever has the focus.
type_text() { xdotool type --clearmodifiers --delay 30 -- "$1"; }
