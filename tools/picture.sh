#!/bin/bash
# tools/picture.sh PICTURE PROGRAM [ARGUMENT...]: runs a program on a virtual display, waits for its main window, keeps a
# picture of it and ends the program.
set -euo pipefail
picture=$1
shift

scratch=$(mktemp -d)
display_pid= program_pid=
finish() {
    for pid in $program_pid $display_pid; do
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap finish EXIT

# The server chooses a free display and says its number when it is ready.
mkfifo "$scratch/display"
Xvfb -displayfd 3 -screen 0 1366x860x24 -nolisten tcp 3>"$scratch/display" 2>"$scratch/server.log" &
display_pid=$!
if ! read -r -t 30 number <"$scratch/display"; then
    cat "$scratch/server.log" >&2
    echo "The virtual display did not start." >&2
    exit 1
fi
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$scratch}

"$@" &
program_pid=$!

# Prints the number of the widest window on the display that is wide enough to be no splash.
main_window() {
    local window width widest=0 found=
    for window in $(xdotool search --onlyvisible --class '.' 2>/dev/null); do
        width=$(xdotool getwindowgeometry --shell "$window" 2>/dev/null | sed -n 's/^WIDTH=//p')
        if [ "${width:-0}" -gt "$widest" ]; then
            widest=$width found=$window
        fi
    done
    [ "$widest" -lt 600 ] || echo "$found"
}

# Takes pictures until two in a row are alike: then the window is painted.
previous=none
for _ in $(seq 100); do
    sleep 0.3
    if ! kill -0 "$program_pid" 2>/dev/null; then
        echo "The program ended before its window was there." >&2
        exit 1
    fi
    window=$(main_window)
    [ -n "$window" ] || continue
    import -silent -window "$window" "$scratch/window.rgb" || continue
    now=$(cksum <"$scratch/window.rgb")
    if [ "$now" = "$previous" ]; then
        import -silent -window "$window" "$picture"
        echo "A picture of the window is in $(realpath "$picture")"
        exit 0
    fi
    previous=$now
done
echo "The main window did not appear." >&2
exit 1
