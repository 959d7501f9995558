#!/usr/bin/env bash
# usage: gallery.sh GALLERY PIXEL
# The gallery in a real X server under a window manager, with real pointer and key events: a click selects, the
# scroll thumb drags, a letter jumps, the window resizes and closes. Looks at the pixels on the screen.
set -euo pipefail
gallery="$1"
pixel="$2"

for tool in Xvfb openbox xdotool xprop xwininfo; do
    command -v "$tool" >/dev/null || { echo "skipped: there is no $tool here"; exit 77; }
done
[ -r /var/lib/dpkg/status ] || { echo "skipped: there is no package database here"; exit 77; }

folder="$(mktemp -d)"
children=()
cleanup() {
    for child in "${children[@]}"; do kill "$child" 2>/dev/null || true; done
    wait 2>/dev/null || true
    rm -rf "$folder"
}
trap cleanup EXIT

fail() {
    echo "$*"
    cat "$folder/gallery.log" 2>/dev/null || true
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

Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$folder/display" 2>"$folder/xvfb.log" &
children+=($!)
until_true 20 test -s "$folder/display" || fail "the X server did not start: $(cat "$folder/xvfb.log")"
DISPLAY=":$(cat "$folder/display")"
export DISPLAY LC_ALL=C.UTF-8 SDL_VIDEODRIVER=x11
unset WAYLAND_DISPLAY

openbox >"$folder/openbox.log" 2>&1 &
children+=($!)
managed() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
until_true 20 managed || fail "the window manager did not start: $(cat "$folder/openbox.log")"

"$gallery" --theme classic >"$folder/gallery.log" 2>&1 &
program=$!
children+=("$program")
window=""
find_window() { window="$(xdotool search --onlyvisible --name '^tvok gallery$' 2>/dev/null | head -n 1)" && [ -n "$window" ]; }
until_true 60 find_window || fail "no window came up"

# Where the window's own area is on the screen: X, Y, WIDTH and HEIGHT.
look_at_window() {
    local report
    report="$(xwininfo -id "$window")"
    X="$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$report")"
    Y="$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$report")"
    WIDTH="$(sed -n 's/^ *Width: *//p' <<<"$report")"
    HEIGHT="$(sed -n 's/^ *Height: *//p' <<<"$report")"
}
look_at_window
[ "$WIDTH" -eq 980 ] && [ "$HEIGHT" -eq 640 ] || fail "the window is $WIDTH x $HEIGHT"

# The list "details" stands at (12, 82) with a border of a pixel and rows of 21 pixels. Left of the icons its cells
# show their background alone.
selected=0A64C8
plain=FFFFFF
row_color() { "$pixel" $((X + 12 + 3)) $((Y + 82 + 1 + 10 + 21 * ($1 - 1))); }
row_is() { [ "$(row_color "$1")" = "$2" ]; }
some_row_is() {
    local row
    for row in $(seq 1 15); do
        if row_is "$row" "$1"; then return 0; fi
    done
    return 1
}
no_row_is() { ! some_row_is "$1"; }
at() { xdotool mousemove $((X + $1)) $((Y + $2)); }

until_true 20 row_is 1 $selected || fail "the first row is $(row_color 1), not selected"
row_is 4 $plain || fail "the fourth row is $(row_color 4)"

at 100 $((82 + 1 + 10 + 21 * 3))
xdotool click 1
until_true 20 row_is 4 $selected || fail "after a click on it the fourth row is $(row_color 4)"
until_true 20 row_is 1 $plain || fail "and the first one is $(row_color 1)"

# The bar is at the list's right edge, 17 pixels wide, and its thumb begins below the arrow.
at $((12 + 714 - 10)) $((82 + 1 + 17 + 5))
xdotool mousedown 1
for step in 10 20 40 80 120; do at $((12 + 714 - 10)) $((82 + 1 + 17 + 5 + step)); done
until_true 20 no_row_is $selected || fail "after a drag of the thumb the selected row is still on the page"
xdotool mouseup 1
row_is 4 $plain || fail "after the drag the fourth row is $(row_color 4)"

xdotool key --clearmodifiers z
until_true 20 some_row_is $selected || fail "after a letter no selected row is on the page"

xdotool windowsize "$window" 760 500
corner_moved() {
    look_at_window
    [ "$WIDTH" -eq 760 ] && [ "$("$pixel" $((X + 760 - 12 - 100)) $((Y + 500 - 10)))" = DCDCDC ]
}
until_true 20 corner_moved || fail "the window did not take its new size"
list_moved() { [ "$("$pixel" $((X + 12 + 494 + 6)) $((Y + 82 + 40)))" = DCDCDC ]; }
until_true 20 list_moved || fail "the list did not follow the window's size"

xdotool key --clearmodifiers alt+F4
gone() { ! kill -0 "$program" 2>/dev/null; }
until_true 30 gone || fail "the window did not close"
code=0
wait "$program" || code=$?
[ $code -eq 0 ] || fail "the program ended with exit code $code"
echo "clicked, dragged, typed, resized and closed"
