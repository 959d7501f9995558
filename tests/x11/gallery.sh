#!/usr/bin/env bash
# usage: gallery.sh GALLERY PIXEL
# The gallery in a real X server under a window manager, with real pointer and key events: a click selects, the
# scroll thumb drags, a letter jumps, the window resizes and closes. Looks at the pixels on the screen.
set -euo pipefail
gallery="$1"
pixel="$2"
[ -r /var/lib/dpkg/status ] || { echo "skipped: there is no package database here"; exit 77; }
# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
open_window "$gallery" --theme classic

# The list "details" stands at (152, 82) with a border of a pixel and rows of 21 pixels. Left of the icons its cells
# show their background alone.
selected=0A64C8
plain=FFFFFF
row_color() { pixel_at $((152 + 3)) $((82 + 1 + 10 + 21 * ($1 - 1))); }
row_is() { [ "$(row_color "$1")" = "$2" ]; }
some_row_is() {
    local row
    for row in $(seq 1 15); do
        if row_is "$row" "$1"; then return 0; fi
    done
    return 1
}
no_row_is() { ! some_row_is "$1"; }

until_true 20 row_is 1 $selected || fail "the first row is $(row_color 1), not selected"
until_true 20 row_is 4 $plain || fail "the fourth row is $(row_color 4)"

at 240 $((82 + 1 + 10 + 21 * 3))
xdotool click 1
until_true 20 row_is 4 $selected || fail "after a click on it the fourth row is $(row_color 4)"
until_true 20 row_is 1 $plain || fail "and the first one is $(row_color 1)"

# The bar is at the list's right edge, 17 pixels wide, and its thumb begins below the arrow.
at $((152 + 714 - 10)) $((82 + 1 + 17 + 5))
xdotool mousedown 1
for step in 10 20 40 80 120; do at $((152 + 714 - 10)) $((82 + 1 + 17 + 5 + step)); done
until_true 20 no_row_is $selected || fail "after a drag of the thumb the selected row is still on the page"
xdotool mouseup 1
until_true 20 row_is 4 $plain || fail "after the drag the fourth row is $(row_color 4)"

xdotool key --clearmodifiers z
until_true 20 some_row_is $selected || fail "after a letter no selected row is on the page"

xdotool windowsize "$window" 900 500
corner_moved() {
    look_at_window
    [ "$WIDTH" -eq 900 ] && [ "$(pixel_at $((900 - 6)) $((500 - 10)))" = DCDCDC ]
}
until_true 20 corner_moved || fail "the window did not take its new size"
list_moved() { [ "$(pixel_at $((152 + 494 + 6)) $((82 + 40)))" = DCDCDC ]; }
until_true 20 list_moved || fail "the list did not follow the window's size"

close_window
echo "clicked, dragged, typed, resized and closed"
