# Driving a program's windows on an X display; sourced by scripts that do.

# Starts a window manager and returns when it is at work: a window that appears while it starts may
# never be shown. Sets `manager` to its process.
start_window_manager() {
  local deadline=$((SECONDS + 30))
  openbox >/dev/null 2>&1 &
  manager=$!
  until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
    [ $SECONDS -lt $deadline ] || { echo "The window manager does not start." >&2; return 1; }
    sleep 0.1
  done
}

# Waits until a visible window has a title that matches a pattern and prints its number.
wait_for_window() {
  local deadline=$((SECONDS + 30)) found
  while [ $SECONDS -lt $deadline ]; do
    found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) || true
    if [ -n "$found" ]; then
      echo "$found"
      return 0
    fi
    sleep 0.1
  done
  echo "No window '$1' has appeared." >&2
  return 1
}

# Waits until a window is gone.
wait_until_gone() {
  local deadline=$((SECONDS + 30))
  while [ $SECONDS -lt $deadline ]; do
    xdotool getwindowgeometry "$1" >/dev/null 2>&1 || return 0
    xprop -id "$1" WM_STATE 2>/dev/null | grep -q 'window state: Normal' || return 0
    sleep 0.1
  done
  echo "Window $1 does not close." >&2
  return 1
}

# Waits until a window has the input focus.
wait_for_focus() {
  local deadline=$((SECONDS + 30))
  while [ $SECONDS -lt $deadline ]; do
    [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ] && return 0
    xdotool windowactivate "$1" 2>/dev/null || true
    sleep 0.1
  done
  echo "Window $1 does not get the focus." >&2
  return 1
}

# Presses a key in the message box that is open, and waits until the box has closed.
answer_message_box() {
  local box
  box=$(wait_for_window '^Vellumark$')
  wait_for_focus "$box"
  xdotool key --clearmodifiers "$1"
  wait_until_gone "$box"
}
