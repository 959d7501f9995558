#!/usr/bin/env bash
# usage: properties.sh GALLERY PIXEL
# The gallery's property list in a real X server under a window manager, with real pointer and key events: a colour is
# typed into its row, refused, taken back by Esc, picked by press and drag, picked and taken back, saved and restored.
# The label beside the list shows each of these, so this looks at the pixels of the label.
set -euo pipefail
gallery="$1"
pixel="$2"
# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
open_window "$gallery" --theme classic --page properties

# The list begins at (152, 82) with a border of a pixel and rows of 21 pixels; its bar of 17 pixels ends at x 581. The
# buttons of a row are 22 pixels wide and end at the bar. The label is in front of its colour at (950, 555).
row_middle() { echo $((82 + 1 + 10 + 21 * ($1 - 1))); }
label_color() { pixel_at 950 555; }
label_is() { [ "$(label_color)" = "$1" ]; }
label_is_not() { [ "$(label_color)" != "$1" ]; }
label_stays() { # COLOR WHY
    settle
    until_true 20 label_is "$1" || fail "$2: the label is $(label_color), not $1"
}
# The swatch in the row stands behind the caption column, whose width follows from the font: it is looked for.
swatch_is() {
    local x
    for x in $(seq 240 4 330); do
        if [ "$(pixel_at "$x" "$(($(row_middle 5) - 1))")" = "$1" ]; then return 0; fi
    done
    return 1
}
keys() { xdotool key --clearmodifiers "$@"; }
face=DCDCDC
selected=0A64C8

caption_is() { [ "$(pixel_at $((152 + 16 + 100)) $(($(row_middle "$1") - 8)))" = "$2" ]; }
until_true 20 caption_is 1 $face || fail "the first row is no group"
label_is FFFFFF || fail "the label begins as $(label_color)"

# Folded by the keyboard: four groups stand at the top then, the fourth open, and its colour is in the fifth row.
at 300 "$(row_middle 1)"
xdotool click 1
until_true 20 caption_is 1 $selected || fail "a click did not select the first group"
keys space
until_true 20 caption_is 2 $face || fail "Space did not fold the first group"
keys Down space
until_true 20 caption_is 3 $face || fail "Space did not fold the second group"
keys Down space
until_true 20 caption_is 4 $face || fail "Space did not fold the third group"
keys Down Down
row_is_current() { [ "$(pixel_at $((152 + 16 + 90)) $(($(row_middle 5) - 8)))" = $selected ]; }
until_true 20 row_is_current || fail "the arrows did not come to the fifth row"

# Typed into the row.
xdotool type --delay 20 '#FF8000'
label_stays FFFFFF "before Enter"
keys Return
until_true 20 label_is FF8000 || fail "after Enter the label is $(label_color)"
until_true 20 swatch_is FF8000 || fail "the row does not show the colour"

# Esc takes it back, and what is no colour is refused.
keys F2
xdotool type --delay 20 '#00FF00'
keys Escape
label_stays FF8000 "after Esc"
xdotool type --delay 20 'nonsense'
keys Return
label_stays FF8000 "after a text that is no colour"
keys Escape
swatch_is FF8000 || fail "the row lost its colour"

# Picked by press and drag.
below() { "$pixel" --area $((X + 340)) $((Y + $(row_middle 7))) 200 80; }
rows="$(below)"
nothing_below() { [ "$(below)" = "$rows" ]; }
something_below() { ! nothing_below; }
palette() { # presses the first button of the row
    at $((581 - 17 - 1 - 66 + 11)) "$1"
    xdotool mousedown 1
    until_true 20 something_below || fail "no palette came up"
}
palette "$(row_middle 5)"
at 420 $(($(row_middle 5) + 50))
until_true 20 label_is_not FF8000 || fail "the label does not follow the pointer"
tried="$(label_color)"
at 350 $(($(row_middle 5) + 70))
until_true 20 label_is_not "$tried" || fail "the label does not follow the pointer on"
chosen="$(label_color)"
xdotool mouseup 1
until_true 20 nothing_below || fail "the palette is still there"
label_stays "$chosen" "after the release"
swatch_is "$chosen" || fail "the row shows another colour than $chosen"

# Opened by a click, looked at, and Esc: the old value is back.
palette $(($(row_middle 5) + 4)) # not where it was pressed before, so that it is no double click
xdotool mouseup 1
settle
something_below || fail "the palette closed with the release"
at 440 $(($(row_middle 5) + 30))
until_true 20 label_is_not "$chosen" || fail "the label does not follow the pointer in an open palette"
keys Escape
until_true 20 nothing_below || fail "Esc did not close the palette"
label_stays "$chosen" "after Esc in the palette"
swatch_is "$chosen" || fail "Esc left another colour than $chosen in the row"

# Saved, changed and restored.
at 640 116
xdotool click 1
at 300 "$(row_middle 5)"
xdotool click 1
xdotool type --delay 20 '#123456'
keys Return
until_true 20 label_is 123456 || fail "after saving the label is $(label_color)"
at 900 116
xdotool click 1
until_true 20 label_is "$chosen" || fail "restored, the label is $(label_color), not $chosen"
swatch_is "$chosen" || fail "restored, the row shows another colour than $chosen"

close_window
echo "typed, refused, picked, took back, saved and restored a property"
