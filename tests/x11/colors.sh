#!/usr/bin/env bash
# usage: colors.sh GALLERY PIXEL
# A colour selector in a real X server under a window manager, with real pointer and key events, on the gallery's page
# of colours: a colour is chosen by press and drag, others are cancelled by Esc, by a press outside and by another
# program, one comes from the system's colours by keys, and one from the colour dialog. The list beside it follows all the while. Looks at the pixels on the screen.
set -euo pipefail
gallery="$1"
pixel="$2"
# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
open_window "$gallery" --theme classic --page colors

# The selectors begin at x 152, 54 pixels apart; each has its swatch at the left and its buttons from x 355 on. The
# list's first row is at y 84, its fourth, which is selected, at y 147; at x 800 no text of them stands.
background=148
selected=256
swatch() { pixel_at 164 "$1"; }
row() { pixel_at 800 94; }
selected_row() { pixel_at 800 157; }
first_arrow=365
second_arrow=385
dots=405

# The grid hangs below the selector, with cells of 10 pixels and lines of 1 around them.
grid=160
cell_x() { echo $((152 + 1 + 11 * ($1 - 1) + $2)); }
cell_y() { echo $((grid + 1 + 11 * ($1 - 1) + $2)); }
cell_color() { pixel_at "$(cell_x "$1" 3)" "$(cell_y "$2" 3)"; }
to_cell() { at "$(cell_x "$1" 5)" "$(cell_y "$2" 5)"; }
grid_is_painted() { [ "$(cell_color 1 5)" = FF0000 ]; }
look_at_grid() {
    opened "no grid"
    until_true 20 grid_is_painted || fail "the grid's first plain red is $(cell_color 1 5)"
}
press() {
    at "$1" "$2"
    xdotool mousedown 1
}
# Never twice at the same point, so that two are no double click.
presses=0
click_on() {
    presses=$((presses + 1))
    press "$1" $(($2 + presses % 2 * 8 - 4))
    xdotool mouseup 1
}
shows() { [ "$(swatch $background)" = "$1" ] && [ "$(row)" = "$1" ]; }
shows_swatch() { [ "$(swatch $background)" = "$1" ]; } # where another window covers the list
now() { echo "the swatch is $(swatch $background) and the row $(row)"; }

# Pressed, dragged into the grid and let go: swatch and list follow, and the colour stays.
until_true 20 shows FFFFFF || fail "at the beginning $(now)"
press $first_arrow $background
look_at_grid
for cell in "3 2" "9 3" "16 2"; do
    # shellcheck disable=SC2086
    to_cell $cell
    # shellcheck disable=SC2086
    color="$(cell_color $cell)"
    until_true 20 shows "$color" || fail "over $color $(now)"
done
xdotool mouseup 1
closed "after the release"
chosen="$color"
until_true 20 shows "$chosen" || fail "after the release $(now), not $chosen"
[ "$chosen" != FFFFFF ] || fail "nothing was chosen"

# Opened by a click, moved over, and Esc: the chosen colour is back. Once more with a press outside.
for end in Escape outside; do
    click_on $first_arrow $background
    look_at_grid
    to_cell 12 8
    color="$(cell_color 12 8)"
    until_true 20 shows "$color" || fail "without a button $(now)"
    if [ $end = outside ]; then
        at 300 550
        xdotool click 1
    else
        xdotool key --clearmodifiers "$end"
    fi
    closed "after $end"
    until_true 20 shows "$chosen" || fail "after $end $(now), not $chosen"
done

# Another program that comes to the front closes it as well, and stays there.
"$gallery" --theme dark --page labels >"$folder/other.log" 2>&1 &
other=$!
children+=("$other")
find_other() { other_window="$(xdotool search --onlyvisible --name '^tvok gallery$' 2>/dev/null | grep -v "^$window$")"; }
until_true 60 find_other || fail "no second window came up"
xdotool windowmove "$other_window" 700 300
settle
active() { [ "$(xdotool getactivewindow 2>/dev/null)" = "$1" ]; }
activate() {
    xdotool windowactivate "$1"
    until_true 20 active "$1" || fail "the window $1 did not come to the front"
    settle
}
activate "$window"
click_on $first_arrow $background
look_at_grid
to_cell 5 8
color="$(cell_color 5 8)"
until_true 20 shows "$color" || fail "without a button $(now)"
activate "$other_window"
closed "after another program came to the front"
until_true 20 shows_swatch "$chosen" || fail "after another program came to the front $(now), not $chosen"
active "$other_window" || fail "the other program did not stay in front"
kill "$other"
other_gone() { ! kill -0 "$other" 2>/dev/null; }
until_true 20 other_gone || fail "the second gallery did not end"
activate "$window"
until_true 20 shows "$chosen" || fail "back in front $(now), not $chosen"

# The system's colours by keys: a letter finds the first that begins with it, and Enter takes it.
before="$(selected_row)"
[ "$(swatch $selected)" = "$before" ] || fail "the selected row is $before, its selector $(swatch $selected)"
click_on $second_arrow $selected
opened "no list"
at 600 20
selected_changed() { [ "$(selected_row)" != "$1" ] && [ "$(swatch $selected)" = "$(selected_row)" ]; }
xdotool key --clearmodifiers d
until_true 20 selected_changed "$before" || fail "a letter left the selected row $(selected_row)"
system="$(selected_row)"
xdotool key --clearmodifiers Return
closed "after Enter"
system_stays() { [ "$(selected_row)" = "$system" ]; }
until_true 20 system_stays || fail "Enter left the selected row $(selected_row), not $system"

# The dialog: Esc takes nothing, and a basic colour and Enter take that.
dialog=""
find_dialog() { dialog="$(xdotool search --onlyvisible --name '^Color$' 2>/dev/null | head -n 1)" && [ -n "$dialog" ]; }
no_dialog() { ! find_dialog; }
open_dialog() {
    click_on $dots $background
    until_true 20 find_dialog || fail "no dialog came up"
    activate "$dialog"
}
open_dialog
xdotool key --clearmodifiers Escape
until_true 20 no_dialog || fail "Esc did not close the dialog"
until_true 20 shows "$chosen" || fail "after a cancelled dialog $(now), not $chosen"
activate "$window"
open_dialog
# Its basic colours begin at 8, 26 with cells of 24 x 22: red is the first of the third row.
report="$(xwininfo -id "$dialog")"
left="$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$report")"
top="$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$report")"
xdotool mousemove $((left + 8 + 12)) $((top + 26 + 2 * 22 + 11))
xdotool click 1
xdotool key --clearmodifiers Return
until_true 20 no_dialog || fail "Enter did not close the dialog"
until_true 20 shows FF0000 || fail "after the dialog $(now)"

activate "$window"
close_window
echo "chose colours by drag, keys and dialog, and took them back by Esc and a press outside"
