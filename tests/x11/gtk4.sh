#!/usr/bin/env bash
# usage: gtk4.sh EXAMPLE PIXEL
# A form inside a GTK 4 widget in a real X server under a window manager: a click, a held scroll arrow, the wheel,
# typed and composed text, the clipboard, a popup, the focus, another size and scale, closing. Looks at the pixels on
# the screen; the window's title is the item that was chosen last.
set -euo pipefail
example="$1"
pixel="$2"
# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
command -v xclip >/dev/null || { echo "skipped: there is no xclip here"; exit 77; }
# Without the desktop's services around it: they are not what is tested, and each is waited for.
export GDK_BACKEND=x11 GSK_RENDERER=cairo GTK_IM_MODULE=gtk-im-context-simple GTK_A11Y=none GSETTINGS_BACKEND=memory
export GIO_USE_VFS=local HOME="$folder" XDG_CONFIG_HOME="$folder" XDG_RUNTIME_DIR="$folder"
unset DBUS_SESSION_BUS_ADDRESS

title="Item 3"
size="320 x 200"
open_window "$example" # which a task of another thread has given its title

is_titled() { [ "$(xdotool getwindowname "$window" 2>/dev/null)" = "$1" ]; }
titled() { until_true 20 is_titled "$1" || fail "$2: the title is $(xdotool getwindowname "$window")"; }

# The list stands at (8, 36) with a line around it. Rows are 19 pixels high, and empty left of their text.
selected=0A64C8
# Never twice at the same point, so that two are no double click.
clicks=0
click_row() {
    clicks=$((clicks + 1))
    at $((60 + clicks % 2 * 40)) $((37 + 9 + 19 * ($1 - 1)))
    xdotool click 1
}
row_is() { [ "$(pixel_at 20 $((37 + 9 + 19 * ($1 - 1))))" = "$2" ]; }
until_true 20 row_is 3 $selected || fail "the third row is not selected"
click_row 2
titled "Item 2" "after a click on it"
until_true 20 row_is 2 $selected || fail "after a click the second row is not selected"
until_true 20 row_is 3 FFFFFF || fail "after a click on the second row the third still is selected"

# A held arrow of the scroll bar scrolls on by a timer, all the way down; the wheel goes two notches of three rows back.
at 303 184
xdotool mousedown 1
until_true 20 row_is 2 FFFFFF || fail "the arrow does not scroll"
sleep 2
xdotool mouseup 1
click_row 8
titled "Item 40" "after the arrow was held"
at 60 100
xdotool click 4 click 4
until_true 20 row_is 8 FFFFFF || fail "the wheel does not scroll"
click_row 8
titled "Item 34" "after two notches of the wheel"

# Typed, composed, taken back, copied for others, and pasted from others.
at 60 18
xdotool click 1
xdotool type --delay 50 'Abc 12!x'
xdotool key --delay 50 BackSpace dead_acute e ctrl+a ctrl+c
holds() { [ "$(timeout 5 xclip -o -selection clipboard 2>/dev/null)" = "$1" ]; }
until_true 20 holds 'Abc 12!é' || fail "the clipboard holds $(xclip -o -selection clipboard)"
text_is_selected() { pixel_at 14 11 | grep -q $selected; }
until_true 20 text_is_selected || fail "the text does not show that it is selected"
printf 'über' | xclip -i -selection clipboard >/dev/null 2>&1
pasted() { xdotool key --delay 50 Home shift+End ctrl+v ctrl+a ctrl+c && sleep 0.2 && holds 'über'; }
until_true 20 pasted || fail "after pasting the clipboard holds $(xclip -o -selection clipboard)"

# While another window has the focus, the text does not show its selection.
until_true 20 text_is_selected || fail "the pasted text does not show that it is selected"
"$example" >"$folder/other.log" 2>&1 &
other=$!
children+=("$other")
text_is_quiet() { ! text_is_selected; }
xdotool search --sync --onlyvisible --pid $other >/dev/null
xdotool windowmove "$window" 20 40
settle
look_at_window
until_true 20 text_is_quiet || fail "the text still looks as with the focus"
kill "$other"
until_true 20 text_is_selected || fail "the focus did not come back"

# A popup within the surface, and the colour dialog, for which the program waits in its own loop. Both hide a row.
click_row 5
titled "Item 31" "after a click on the fifth row"
middle_is() { [ "$(pixel_at 250 $((37 + 9 + 19 * 4)))" = "$1" ]; }
until_true 20 middle_is $selected || fail "the fifth row is not selected"
at 285 18
xdotool click 1
until_true 20 middle_is FFFFFF || fail "the popup does not show"
xdotool key Escape
until_true 20 middle_is $selected || fail "the popup still shows"
at 303 18
xdotool click 1
middle_is_dialog() { ! middle_is $selected; }
until_true 20 middle_is_dialog || fail "the colour dialog does not show"
xdotool key Escape
until_true 20 middle_is $selected || fail "the colour dialog still shows"

# Another size: the list, which the program keeps as large as the form, follows.
xdotool windowsize "$window" 500 400
list_grew() { look_at_window && [ "$WIDTH" -eq 500 ] && [ "$(pixel_at 470 370)" = FFFFFF ]; }
until_true 20 list_grew || fail "the list did not follow the window's size: $WIDTH x $HEIGHT"
close_window

# With two screen pixels for each of the window's, which stay sharp.
size="640 x 400"
GDK_SCALE=2 open_window "$example"
# Across the list's left line, which begins at 8.
line_is_sharp() {
    local colors
    mapfile -t colors < <("$pixel" $((X + 15)) $((Y + 200)) $((X + 16)) $((Y + 200)) $((X + 17)) $((Y + 200)) \
        $((X + 18)) $((Y + 200)))
    [ "${colors[0]}" != "${colors[1]}" ] && [ "${colors[1]}" = "${colors[2]}" ] && [ "${colors[2]}" != "${colors[3]}" ]
}
until_true 20 line_is_sharp || fail "at the double scale the list's line is not two sharp pixels"
at 120 $((2 * (37 + 9 + 19)))
xdotool click 1
titled "Item 2" "at the double scale, after a click on it"
close_window
echo "clicked, held, scrolled, typed, pasted, waited, resized and scaled"
