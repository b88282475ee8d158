# What the sessions share that play with a stand-in for the game; sourced by them after session.sh.
# `game` is the game folder, where the stand-in runs and writes its log.

game_title='^Tomb Raider - The Last Revelation$'
capture='^Tomb Raider screen-shot captured$'

log_count() { grep -cxE "$1" "$game/stand-in.log" || true; }

# Waits until the stand-in's log has a number of lines that match a pattern; fails when it has more.
log_has() { [ "$(log_count "$2")" -ge "$1" ]; }
wait_for_log() {
  wait_until "the game's log has not $1 times '$2'" log_has "$@"
  [ "$(log_count "$2")" -eq "$1" ] || fail "the game's log has '$2' too often"
}

# Lets the stand-in obey a command that it has not been given before.
tell_game() {
  echo "$1" >>"$game/stand-in.commands"
  wait_for_log 1 "done $1"
}

# Waits until the window with this title is the active one; nothing here brings it to the front.
is_in_front() {
  local window
  window=$(xdotool search --onlyvisible --name "$1") &&
    [ "$(xdotool getactivewindow 2>/dev/null)" = "$window" ]
}
wait_until_in_front() { wait_until "'$1' does not come to the front" is_in_front "$1"; }

# Takes a screen-shot in the game and waits for the dialog that shows it over the game.
print_screen() {
  echo print-screen >>"$game/stand-in.commands"
  wait_until_in_front "$capture"
}

# Answers the capture dialog with OK and waits until the game is in front again, with Enter pressed
# twice in it by now: when its picture was noticed, and when it came back.
link_screen_shot() {
  local dialog
  dialog=$(wait_for_window "$capture")
  press_in "$capture" alt+o
  wait_until_gone "$dialog"
  wait_for_log 2 'key Return'
  wait_until_in_front "$game_title"
}

# Says yes to the question before the first start of a program that nobody has chosen; the archive of
# a demo world names one.
confirm_program() { answer_message_box alt+y; }

# Plays a savegame without note and screen-shot and one with both, in a game folder that the game
# knows by this name. `first`: the program has not been confirmed yet.
play_two() {
  select_lines 2 17
  press_in "$main" ctrl+p
  [ "${2:-}" != first ] || confirm_program
  wait_until_in_front "$game_title"
  wait_for_log 1 "folder $1"
  wait_for_log 2 'slot .*'
  wait_for_log 1 'slot savegame.0 5 Angkor Wat'
  wait_for_log 1 'slot savegame.1 29 Temple Of Karnak'
}

# Selects lines of the main window's list, counted from 0 and in rising order, by the keyboard.
select_lines() {
  local at=$1 line
  press_in "$main" Home
  [ "$at" -eq 0 ] || xdotool key --delay 20 --repeat "$at" Down
  shift
  for line in "$@"; do
    xdotool key --delay 20 --repeat "$((line - at))" ctrl+Down
    xdotool key --delay 20 ctrl+space
    at=$line
  done
}

# Fails unless the slot files in a folder are just the files of another folder, each under its own
# name, or FILE=SOURCE to give it another.
expect_slots() {
  local folder=$1 source=$2 names=() pair
  shift 2
  for pair in "$@"; do
    names+=("${pair%%=*}")
    expect_same "$folder/${pair%%=*}" "$source/${pair##*=}"
  done
  local found expected
  found=$(cd "$folder" && ls -1 | grep -E '^(savegame\.|note.*\.txt$|shot.*\.jpg$)' | sort)
  expected=$(printf '%s\n' "${names[@]}" | sort)
  [ "$found" = "$expected" ] || fail "$folder holds: $found"
}

# Fails unless a file is a JPEG of the stand-in's picture.
expect_picture() {
  [ "$(identify -format '%m %w %h' "$1")" = "JPEG 640 480" ] || fail "$1 is no such JPEG"
  local corner colour found
  for corner in '9,9 224,0,0' '630,9 0,224,0' '9,470 0,0,224' '630,470 255,255,255'; do
    read -r corner colour <<<"$corner"
    found=$(convert "$1" -format "%[fx:round(255*p{$corner}.r)],%[fx:round(255*p{$corner}.g)],%[fx:round(255*p{$corner}.b)]" info:)
    paste -d ' ' <(tr , '\n' <<<"$colour") <(tr , '\n' <<<"$found") |
      awk '{ if (($1 - $2) ^ 2 > 100) exit 1 }' || fail "at $corner $1 has the colour $found"
  done
}
