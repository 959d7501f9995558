#!/usr/bin/env bash
# usage: designer.sh GALLERY PIXEL
# The gallery's page of the designer in a real X server under a window manager, with real pointer and key events: a
# control is dragged, taken back and done again by keys, resized by a handle and saved; a type is dragged out of the
# palette; the form runs. Looks at the pixels on the screen and at the saved file.
set -euo pipefail
gallery="$(realpath "$1")"
pixel="$(realpath "$2")"
# shellcheck source=tests/x11/window.sh
source "$(dirname "$(realpath "$0")")/window.sh"
cd "$folder" # where "form.toml" is saved
open_window "$gallery" --theme classic --page design

# The designed form's own area begins at x 337, y 147. Its control "mark" is at 8, 312 and 280 x 24
# pixels large. Handles are filled with the highlight colour.
form_x=337
form_y=147
face=DCDCDC
handle=0A64C8
of_form() { pixel_at $((form_x + $1)) $((form_y + $2)); }
to() { at $((form_x + $1)) $((form_y + $2)); }
handle_at() { [ "$(of_form "$1" "$2")" = "$handle" ]; }
no_handle_at() { [ "$(of_form "$1" "$2")" != "$handle" ]; }
is_face() { [ "$(of_form "$1" "$2")" = "$face" ]; }
drag() {
    to "$1" "$2"
    xdotool mousedown 1
    to $((($1 + $3) / 2)) $((($2 + $4) / 2))
    to "$3" "$4"
    xdotool mouseup 1
}
command() { # number
    at $((312 + 58 * ($1 - 1) + 20)) 82
    xdotool click 1
}

# A point of the grid, and nothing selected yet.
until_true 20 is_face 452 318 || fail "beside the controls the form is $(of_form 452 318)"
no_handle_at 8 312 || fail "something is selected at the start"

# Dragged by 83 to the right: the grid makes that 80.
drag 60 324 143 324
until_true 20 handle_at 88 312 || fail "no handle at the left top: $(of_form 88 312)"
until_true 20 handle_at 367 335 || fail "no handle at the right bottom: $(of_form 367 335)"
until_true 20 is_face 12 324 || fail "where the control was is $(of_form 12 324)"

# Taken back and done again by keys.
xdotool key --clearmodifiers ctrl+z
until_true 20 handle_at 8 312 || fail "Ctrl+Z left no handle at the old place: $(of_form 8 312)"
until_true 20 is_face 292 324 || fail "Ctrl+Z left pixels: $(of_form 292 324)"
xdotool key --clearmodifiers ctrl+y
until_true 20 handle_at 88 312 || fail "Ctrl+Y did not move it again"

# The right handle, with Shift off the grid.
drag 367 324 407 324
until_true 20 handle_at 407 312 || fail "a drag of the right handle gave no handle at 407: $(of_form 407 312)"

command 3
saved() { [ -s form.toml ]; }
until_true 20 saved || fail "nothing was saved"
line() { sed -n '/^name = "mark"/,/^\[/s/^'"$1"' = //p' form.toml; }
[ "$(line left)" = 88 ] || fail "the file has left = $(line left)"
[ "$(line width)" = 320 ] || fail "the file has width = $(line width)"

# Out of the palette: its second type is TextBox, and the drag ends at 344, 312 of the grid.
at 220 $((82 + 26 + 13))
xdotool mousedown 1
to 200 200
to 430 311
xdotool mouseup 1
until_true 20 handle_at 432 312 || fail "no new control at 432, 312: $(of_form 432 312)"
command 3
added() { grep -q '^name = "TextBox1"' form.toml; }
until_true 20 added || fail "the new control is not in the file"
xdotool key --clearmodifiers Delete
until_true 20 no_handle_at 432 312 || fail "Del left it there"

# It runs in a window of its own, and that one closes alone.
command 6
running=""
find_running() { running="$(xdotool search --onlyvisible --name '^Orders$' 2>/dev/null | head -n 1)" && [ -n "$running" ]; }
until_true 20 find_running || fail "the form does not run"
has_size() { xwininfo -id "$running" | grep -q "Width: 456" && xwininfo -id "$running" | grep -q "Height: 344"; }
until_true 20 has_size || fail "the running form has another size"
xdotool windowactivate --sync "$running"
settle
xdotool key --clearmodifiers alt+F4
not_running() { ! xdotool search --onlyvisible --name '^Orders$' >/dev/null 2>&1; }
until_true 20 not_running || fail "the running form did not close"
xdotool windowactivate --sync "$window"
settle
close_window
echo "dragged, took back, resized, saved, added from the palette and ran a form"
