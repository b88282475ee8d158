# What the sessions share that lead the Windows program under Wine; sourced by them after session.sh.
# They copy the programs' folders to `windows` and `linux` in `work`.

# Starts the Windows program, or the Linux program, on a preferences file. The command line is read
# in each system's own spelling of the path.
start_windows() {
  "$SCRIPTS/wine-run" "$work/windows/vellumark.exe" "Z:${1//\//\\}" &
  program=$!
}

start_linux() {
  QT_QPA_PLATFORM=xcb "$work/linux/vellumark" "$1" &
  program=$!
}
