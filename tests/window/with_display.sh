#!/bin/sh
# Runs a command on a display of its own: a virtual screen with a window manager, both gone when the command ends.
#
# with_display.sh COMMAND [ARGUMENT...]
set -u
work=$(mktemp -d) || exit 1
screen=
manager=
finish() {
  [ -n "$manager" ] && kill "$manager" 2>/dev/null && wait "$manager" 2>/dev/null
  [ -n "$screen" ] && kill "$screen" 2>/dev/null && wait "$screen" 2>/dev/null
  rm -rf "$work"
}
trap finish EXIT
trap 'exit 1' INT TERM HUP

# The screen picks a free display number and writes it once it is ready.
mkfifo "$work/display" || exit 1
Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$work/display" 2>"$work/screen.log" &
screen=$!
read -r number <"$work/display"
if [ -z "${number:-}" ]; then
  cat "$work/screen.log" >&2
  exit 1
fi
DISPLAY=:$number
# Settings of whoever runs this must not change what is tested.
HOME=$work
XDG_RUNTIME_DIR=$work
XDG_CONFIG_HOME=$work
XDG_DATA_HOME=$work
GTK_THEME=Adwaita
NO_AT_BRIDGE=1
LC_ALL=C.UTF-8
export DISPLAY HOME XDG_RUNTIME_DIR XDG_CONFIG_HOME XDG_DATA_HOME GTK_THEME NO_AT_BRIDGE LC_ALL
openbox --sm-disable >"$work/manager.log" 2>&1 &
manager=$!
# The window manager announces itself on the root window.
tries=0
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
  tries=$((tries + 1))
  if [ "$tries" -gt 100 ]; then
    echo "no window manager" >&2
    cat "$work/manager.log" >&2
    exit 1
  fi
  sleep 0.1
done

"$@"
