#!/usr/bin/env bash
# usage: popup.sh EXAMPLE PIXEL
# The palette of the popup's example in a real X server under a window manager: press and drag into it, Esc, a press
# outside, one in no window of the program, and places at the edges of the screen. Looks at the pixels on the screen.
set -euo pipefail
example="$1"
pixel="$2"
# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
title="Colour"
size="320 x 200"
open_window "$example"

# The field stands at (8, 8), 22 high, with its colour in a box at its left. The palette drops out at its lower left
# corner: cells of 10 pixels with a line of 1 between and around them.
form=DCDCDC
field_color() { pixel_at 18 18; }
field_is() { [ "$(field_color)" = "$1" ]; }
palette_top=0
cell() { echo $((8 + 11 * ($1 - 1) + 6)) $((palette_top + 11 * ($2 - 1) + 6)); }
cell_is() { [ "$(pixel_at $(cell "$1" "$2"))" = "$3" ]; }
look_below() { palette_top=$((field_bottom)); }
is_open() { cell_is 24 1 FFFFFF && cell_is 24 10 000000; }
is_closed() { ! is_open; }
# Never twice at the same point, so that two are no double click.
clicks=0
click_field() {
    clicks=$((clicks + 1))
    at $((100 + clicks % 2 * 40)) 18
    xdotool click 1
}
until_open() { until_true 20 is_open || fail "$1: the palette does not show"; }
until_closed() { until_true 20 is_closed || fail "$1: the palette still shows"; }

until_true 20 field_is FF0000 || fail "the field is $(field_color)"
field_is_below() { [ "$(pixel_at 100 26)" != "$form" ]; }
until_true 20 field_is_below || fail "the field is not where it should be"
field_bottom=28
while [ "$(pixel_at 100 $field_bottom)" != "$form" ]; do field_bottom=$((field_bottom + 1)); done
look_below

# Press, drag, release.
at 100 18
xdotool mousedown 1
until_open "pressed"
at $(cell 3 6)
until_true 20 field_is E07000 || fail "under the pointer is $(field_color)"
at $(cell 1 5)
until_true 20 field_is FF0000 || fail "under the pointer is $(field_color)"
at $(cell 3 6)
until_true 20 field_is E07000 || fail "under the pointer is $(field_color)"
xdotool mouseup 1
until_closed "released"
until_true 20 field_is E07000 || fail "after the release the field is $(field_color)"

# A press and release on the field leaves it open; the colour follows the pointer, and Esc puts the old one back.
click_field
until_open "clicked"
at $(cell 8 5)
until_true 20 field_is 80FF00 || fail "under the pointer is $(field_color)"
xdotool key Escape
until_closed "Esc"
until_true 20 field_is E07000 || fail "after Esc the field is $(field_color)"

# Keys go to the palette although the field keeps the focus.
click_field
until_open "clicked"
xdotool key End
until_true 20 field_is 000000 || fail "after End the field is $(field_color)"
xdotool key Return
until_closed "Enter"
until_true 20 field_is 000000 || fail "after Enter the field is $(field_color)"

# A press outside: on the form, and in no window of the program.
click_field
until_open "clicked"
at 300 190
xdotool click 1
until_closed "a press on the form"
click_field
until_open "clicked"
# Such a press is looked for from time to time: it lasts as long as a person's.
xdotool mousemove 1270 890 mousedown 1
until_closed "a press in no window"
xdotool mouseup 1

# At the edges of the screen it leaves the form: beyond its right edge, and upward.
move_to() {
    xdotool windowmove --sync "$window" "$1" "$2"
    settle
    look_at_window
}
move_to 1000 400
click_field
palette_top=$field_bottom
until_open "beyond the form"
xdotool key Escape
until_closed "Esc"
move_to 400 860
[ $((Y + field_bottom + 111)) -gt 1000 ] || fail "the window is not at the bottom: $Y"
palette_top=$((8 - 111))
click_field
until_open "upward"
at $(cell 15 5)
xdotool click 1
until_closed "chosen above"
close_window
echo "dragged, typed, cancelled and chosen at the edges"
