#!/usr/bin/env bash
# usage: popups.sh GALLERY PIXEL
# Popups in a real X server under a window manager, with real pointer and key events, on the gallery's page of them:
# pressed and dragged into, cancelled by Esc, by Tab, and by presses on the form and on another program's window,
# scrolled by their bar, and at the edges of the screen. Looks at the pixels on the screen.
set -euo pipefail
gallery="$1"
pixel="$2"
# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
open_window "$gallery" --theme classic --page popups

# The page's left column begins at x 152: the colour's swatch at y 82, its buttons of 48 pixels at y 122, and below
# them the fields of the number at y 200 and of the list with icons at y 254, with arrows at their right ends.
swatch_color() { pixel_at 200 100; }
swatch_is() { [ "$(swatch_color)" = "$1" ]; }
first_color=0070E0
face=DCDCDC
grid_button=$((152 + 48 * 4 + 24))
number_arrow=428
number_top=200

# Where the popup is on the screen: PX, PY, PW and PH.
look_at_popup() {
    local report
    report="$(xwininfo -id "$(popup_id)")"
    PX="$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$report")"
    PY="$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$report")"
    PW="$(sed -n 's/^ *Width: *//p' <<<"$report")"
    PH="$(sed -n 's/^ *Height: *//p' <<<"$report")"
}
on_screen() { "$pixel" "$1" "$2"; }
# Its grid has cells of 10 pixels with lines of 1 around them. The fifth row begins with plain red.
cell_color() { on_screen $((PX + 1 + 11 * ($1 - 1) + 3)) $((PY + 1 + 11 * ($2 - 1) + 3)); }
to_cell() { xdotool mousemove $((PX + 1 + 11 * ($1 - 1) + 5)) $((PY + 1 + 11 * ($2 - 1) + 5)); }
grid_is_painted() { [ "$(cell_color 1 5)" = FF0000 ]; }
look_at_grid() {
    opened "no grid"
    look_at_popup
    until_true 20 grid_is_painted || fail "the grid's first plain red is $(cell_color 1 5)"
}
press() {
    at "$1" "$2"
    xdotool mousedown 1
}
# Never twice at the same point, so that two are no double click.
presses=0
open_by_click() {
    presses=$((presses + 1))
    press "$1" $(($2 + presses % 2 * 8 - 4))
    opened "after a press at $1, $2"
    xdotool mouseup 1
}

# Pressed, dragged into the grid and let go: the swatch follows, and the colour stays.
until_true 20 swatch_is $first_color || fail "the swatch begins as $(swatch_color)"
press $grid_button 146
look_at_grid
[ "$PX" -eq $((X + 152)) ] && [ "$PY" -eq $((Y + 170)) ] || fail "the grid is at $PX, $PY, the window at $X, $Y"
for column in 3 9 16; do
    to_cell $column 5
    color="$(cell_color $column 5)"
    until_true 20 swatch_is "$color" || fail "over $color the swatch is $(swatch_color)"
done
xdotool mouseup 1
closed "after the release"
chosen="$color"
until_true 20 swatch_is "$chosen" || fail "after the release the swatch is $(swatch_color), not $chosen"
[ "$chosen" != $first_color ] || fail "nothing was chosen"

# Opened by a click, moved over, and Esc: the chosen colour is back.
open_by_click $grid_button 146
look_at_grid
to_cell 12 8
color="$(cell_color 12 8)"
until_true 20 swatch_is "$color" || fail "without a button the swatch does not follow"
xdotool key --clearmodifiers Escape
closed "after Esc"
until_true 20 swatch_is "$chosen" || fail "Esc left $(swatch_color), not $chosen"

# A press on the form closes, and takes it back. So does one on the form's frame and one on another program.
for outside in form frame other; do
    if [ $outside = other ]; then
        "$gallery" --theme dark --page labels >"$folder/other.log" 2>&1 &
        other=$!
        children+=("$other")
        both_there() { [ "$(xdotool search --onlyvisible --name '^tvok gallery$' 2>/dev/null | wc -l)" -ge 2 ]; }
        until_true 60 both_there || fail "no second window came up"
        other_window="$(xdotool search --onlyvisible --name '^tvok gallery$' | grep -v "^$window$" | head -n 1)"
        xdotool windowmove "$other_window" 700 300
        xdotool windowactivate --sync "$window"
        settle
        front() { [ "$(pixel_at 560 $((HEIGHT - 5)))" = $face ]; }
        until_true 20 front || fail "the first window did not come to the front"
    fi
    open_by_click $grid_button 146
    look_at_grid
    to_cell 5 3
    color="$(cell_color 5 3)"
    until_true 20 swatch_is "$color" || fail "before a press on the $outside the swatch does not follow"
    case $outside in
    form) at 300 500 ;;
    frame) at 500 -10 ;;
    other) xdotool mousemove 1270 800 ;;
    esac
    xdotool mousedown 1
    closed "after a press on the $outside"
    xdotool mouseup 1
    until_true 20 swatch_is "$chosen" || fail "a press on the $outside left $(swatch_color)"
done
kill "$other"
other_gone() { ! kill -0 "$other" 2>/dev/null; }
until_true 20 other_gone || fail "the second gallery did not end"
xdotool windowactivate --sync "$window"
settle

# Tab moves the focus on and closes.
open_by_click $grid_button 146
xdotool key --clearmodifiers Tab
closed "after Tab"
until_true 20 swatch_is "$chosen" || fail "Tab left $(swatch_color)"

# The scroll bar of the numbers: a press on its arrow scrolls and chooses nothing, and so does a drag of its thumb.
open_by_click $number_arrow $((number_top + 12))
look_at_popup
[ "$PW" -eq 288 ] && [ "$PY" -eq $((Y + number_top + 24)) ] || fail "the numbers are at $PX, $PY, $PW wide"
field() { "$pixel" --area $((X + 154)) $((Y + number_top + 2)) 100 20; }
rows() { "$pixel" --area "$PX" "$PY" $((PW - 17)) "$PH"; }
rows_differ() { [ "$(rows)" != "$1" ]; }
numbers_are_painted() { [ "$(on_screen $((PX + 200)) $((PY + 10)))" = FFFFFF ]; }
until_true 20 numbers_are_painted || fail "the numbers are not painted"
value="$(field)"
value_stays() { [ "$(field)" = "$value" ]; }
before="$(rows)"
xdotool mousemove $((PX + PW - 8)) $((PY + PH - 8))
xdotool click 1
until_true 20 rows_differ "$before" || fail "a press on the arrow of the bar did not scroll"
is_open || fail "a press on the bar closed the popup"
before="$(rows)"
thumb=$((PY + 17))
while [ "$thumb" -lt $((PY + PH - 17)) ] &&
    [ "$(on_screen $((PX + PW - 8)) $thumb)" = "$(on_screen $((PX + PW - 8)) $((PY + 18)))" ]; do
    thumb=$((thumb + 1))
done
[ "$thumb" -lt $((PY + PH - 17)) ] || fail "the bar shows no thumb"
xdotool mousemove $((PX + PW - 8)) $((thumb + 4))
xdotool mousedown 1
for step in 10 20 30; do xdotool mousemove $((PX + PW - 8)) $((thumb + 4 + step)); done
until_true 20 rows_differ "$before" || fail "a drag of the thumb did not scroll"
xdotool mouseup 1
is_open || fail "a drag of the thumb closed the popup"
until_true 20 value_stays || fail "the scroll bar changed the number"
xdotool key --clearmodifiers Escape
closed "after scrolling"
until_true 20 value_stays || fail "after scrolling and Esc the number is another"

# A letter in the list of a million: the first of that letter is shown, and Enter takes it.
virtual_top=308
virtual_field() { "$pixel" --area $((X + 154)) $((Y + virtual_top + 2)) 200 20; }
virtual_is() { [ "$(virtual_field)" = "$1" ]; }
virtual_changed() { [ "$(virtual_field)" != "$1" ]; }
open_by_click $number_arrow $((virtual_top + 12))
value="$(virtual_field)"
at 600 20
xdotool key --clearmodifiers s
until_true 20 virtual_changed "$value" || fail "a letter did not jump"
value="$(virtual_field)"
xdotool key --clearmodifiers Return
closed "after Enter"
until_true 20 virtual_is "$value" || fail "Enter did not keep the entry"

# At the edges of the screen, the window partly off it.
window_at() { look_at_window; [ "$X" -eq "$1" ] && [ "$Y" -eq "$2" ]; }
move_to() { # X Y of the window's own area
    look_at_window
    local tries
    for tries in 1 2 3 4; do
        if window_at "$1" "$2"; then
            settle
            return 0
        fi
        xdotool windowmove --sync "$window" "$1" "$2"
        until_true 2 window_at "$1" "$2" && continue
        # What the window manager adds for its frame is taken off again.
        xdotool windowmove --sync "$window" $(($1 + $1 - X)) $(($2 + $2 - Y))
        until_true 2 window_at "$1" "$2" || true
    done
    fail "the window is at $X, $Y, not at $1, $2"
}
inside_screen() {
    [ "$PX" -ge 0 ] && [ "$PY" -ge 0 ] && [ $((PX + PW)) -le 1600 ] && [ $((PY + PH)) -le 1000 ]
}
opens_at() { # X Y of the window, where the grid is to be, and the column to choose from
    move_to "$1" "$2"
    open_by_click $grid_button 146
    look_at_grid
    inside_screen || fail "with the window at $1, $2 the grid leaves the screen: $PX, $PY, $PW x $PH"
    [ "$PX" -eq "$3" ] && [ "$PY" -eq "$4" ] || fail "with the window at $1, $2 the grid is at $PX, $PY, not at $3, $4"
    [ "$(swatch_color)" != "$(cell_color "$5" 5)" ] || fail "column $5 would change nothing"
    color="$(cell_color "$5" 5)"
    to_cell "$5" 5
    xdotool click 1
    closed "with the window at $1, $2"
    until_true 20 swatch_is "$color" || fail "with the window at $1, $2 $color was not taken"
}
# The grid is 265 x 111. At the left it keeps to the screen's edge, at the right also; at the bottom it opens upward.
opens_at -180 60 0 230 2
opens_at 1220 60 $((1600 - 265)) 230 6
opens_at 60 800 212 $((800 + 122 - 111)) 11
opens_at 1220 820 $((1600 - 265)) $((820 + 122 - 111)) 20
move_to 40 40

close_window
echo "dragged into popups, cancelled and scrolled them, and opened them at the edges of the screen"
