# Sourced by the tests in this folder, which set `pixel` first: a screen of its own with a window manager, a program in
# a window on it, and what a user sees and does there.

for tool in Xvfb openbox xdotool xprop xwininfo; do
    command -v "$tool" >/dev/null || { echo "skipped: there is no $tool here"; exit 77; }
done

folder="$(mktemp -d)"
children=()
cleanup() {
    for child in "${children[@]}"; do kill "$child" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$folder"
}
trap cleanup EXIT

# With what was on the screen, for whoever was not there.
fail() {
    echo "FAILED: $*"
    if [ -n "${DISPLAY:-}" ]; then
        xdotool getmouselocation 2>&1 || true
        xwininfo -root -children 2>&1 | grep -v "^$\|1x1+" || true
    fi
    cat "$folder/program.log" 2>/dev/null || true
    exit 1
}

# until_true SECONDS COMMAND...
until_true() {
    local tries=$(($1 * 10))
    shift
    while [ $tries -gt 0 ]; do
        if "$@"; then return 0; fi
        tries=$((tries - 1))
        sleep 0.1
    done
    return 1
}

Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp 3>"$folder/display" 2>"$folder/xvfb.log" &
children+=($!)
until_true 20 test -s "$folder/display" || fail "the X server did not start: $(cat "$folder/xvfb.log")"
DISPLAY=":$(cat "$folder/display")"
export DISPLAY LC_ALL=C.UTF-8 SDL_VIDEODRIVER=x11
unset WAYLAND_DISPLAY

openbox >"$folder/openbox.log" 2>&1 &
children+=($!)
managed() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
until_true 20 managed || fail "the window manager did not start: $(cat "$folder/openbox.log")"

# Waits until the window manager has done all it was asked for: it answers one thing after the other, and what it tells
# a window of its place comes to it before any input that follows.
desktops=1
has_desktops() { [ "$(xdotool get_num_desktops 2>/dev/null)" = "$1" ]; }
settle() {
    desktops=$((desktops % 8 + 1))
    xdotool set_num_desktops $desktops
    until_true 20 has_desktops $desktops || fail "the window manager does not answer"
}

# Where the window's own area is on the screen: X, Y, WIDTH and HEIGHT.
look_at_window() {
    local report
    report="$(xwininfo -id "$window")"
    X="$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$report")"
    Y="$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$report")"
    WIDTH="$(sed -n 's/^ *Width: *//p' <<<"$report")"
    HEIGHT="$(sed -n 's/^ *Height: *//p' <<<"$report")"
}

title="tvok gallery"
size="1460 x 860"
# open_window PROGRAM [SWITCHES]... waits for a window with this title and size.
open_window() {
    "$@" >"$folder/program.log" 2>&1 &
    program=$!
    children+=("$program")
    until_true 60 find_window || fail "no window came up"
    settle
    look_at_window
    [ "$WIDTH x $HEIGHT" = "$size" ] || fail "the window is $WIDTH x $HEIGHT"
}
window=""
find_window() { window="$(xdotool search --onlyvisible --name "^$title$" 2>/dev/null | head -n 1)" && [ -n "$window" ]; }

# Popups are the windows that the window manager leaves alone: those without a frame that can be seen.
popup_id() {
    local id report width
    for id in $(xwininfo -root -children | sed -n 's/^ *\(0x[0-9a-f]*\) .*/\1/p'); do
        report="$(xwininfo -id "$id" 2>/dev/null)" || continue # it has just gone
        width="$(sed -n 's/^ *Width: *//p' <<<"$report")"
        if [[ "$report" = *'Override Redirect State: yes'* && "$report" = *'Map State: IsViewable'* ]] &&
            [ "${width:-0}" -gt 20 ]; then
            echo "$id"
            return 0
        fi
    done
    return 1
}
is_open() { popup_id >/dev/null; }
is_closed() { ! popup_id >/dev/null; }
opened() { until_true 20 is_open || fail "no popup came up: $*"; }
closed() { until_true 20 is_closed || fail "the popup is still there: $*"; }

# Points are those of the window's own area.
pixel_at() { "$pixel" $((X + $1)) $((Y + $2)); }
at() { xdotool mousemove $((X + $1)) $((Y + $2)); }

close_window() {
    xdotool key --clearmodifiers alt+F4
    until_true 60 gone || fail "the window did not close"
    local code=0
    wait "$program" || code=$?
    [ $code -eq 0 ] || fail "the program ended with exit code $code"
}
gone() { ! kill -0 "$program" 2>/dev/null; }
