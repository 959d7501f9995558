#!/usr/bin/env bash
# usage: feed.sh GALLERY PIXEL
# The gallery's live feed in a real X server under a window manager: goes there by the list of pages, drags a header
# divider and a thumb while rows come in, and looks at the pixels on the screen: rows that a reader scrolled to stay.
set -euo pipefail
gallery="$1"
pixel="$2"
# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
open_window "$gallery" --theme classic

# The list of pages stands at the left with rows of 28 pixels from y 58 on. Its rows show their background beside the
# icon.
selected=0A64C8
page_is() { [ "$(pixel_at 4 $((58 + 28 * ($1 - 1) + 14)))" = $selected ]; }
until_true 20 page_is 1 || fail "the first page is not the one that is shown"
at 60 $((58 + 28 + 14))
xdotool click 1
until_true 20 page_is 2 || fail "a click on the second page did not show it"

# The left list stands at (152, 82), 472 pixels wide; the right one beside it at 636. Both have a border of a pixel, a
# header of 23 pixels and rows of 20. The widths of their columns: 22, 94, 66, …
left=153
right=637
rows=106
picture_of() { "$pixel" --area $((X + $1)) $((Y + $2)) "$3" "$4"; }
rows_of() { picture_of "$1" $rows 450 400; }
# What stands where the bar's thumb can be, and what stands above the lists: the count of newer rows.
news_of() { picture_of $(($1 + 250)) 62 220 18; }

changes() { [ "$(rows_of "$1")" != "$2" ]; }
for list in $left $right; do
    before="$(rows_of $list)"
    until_true 20 changes $list "$before" || fail "no rows come in at $list"
done

# A divider. The edge of the header's button is dark; behind the drag it stands 40 pixels further on.
edge=$((left + 22 + 94))
dark_at() { [ "$(pixel_at "$1" 90)" = "$edge_color" ]; }
edge_color="$(pixel_at $((edge - 1)) 90)"
plain_color="$(pixel_at $((edge - 20)) 90)"
[ "$edge_color" != "$plain_color" ] || fail "the header shows no divider"
at $edge 90
xdotool mousedown 1
for step in 10 20 30 40; do at $((edge + step)) 90; done
xdotool mouseup 1
until_true 20 dark_at $((edge + 40 - 1)) || fail "the divider is not where it was dragged to"
plain_at() { ! dark_at "$1"; }
until_true 20 plain_at $((edge - 1)) || fail "the divider is also still where it was"

# The thumbs. On the left it begins at the top, on the right it ends at the bottom; each is dragged to the middle.
list_bottom=529
drag_bar() {
    at "$1" "$2"
    xdotool mousedown 1
    for step in 1 2 3 4 5; do at "$1" $(($2 + ($3 - $2) * step / 5)); done
    until_true 20 thumb_at "$1" "$3" || fail "the thumb at $1 is not where it was dragged to"
}
thumb_at() { [ "$(pixel_at "$1" "$2")" != "$(pixel_at "$1" $(($2 - 100)))" ]; }
drag_bar $((left + 453 + 8)) $((83 + 17 + 4)) 300
news="$(news_of $left)"
more_news() { [ "$(news_of "$1")" != "$news" ]; }
until_true 20 more_news $left || fail "no rows wait while the thumb is held"
xdotool mouseup 1
drag_bar $((right + 453 + 8)) $((list_bottom - 17 - 4)) 300
xdotool mouseup 1
at 500 20

# Now both readers are away from the newest row: the rows stay and the counts of newer ones go on.
for list in $left $right; do
    news="$(news_of $list)"
    until_true 20 more_news $list || fail "the feed stands still at $list"
    before="$(rows_of $list)"
    news="$(news_of $list)"
    for round in 1 2 3; do
        until_true 20 more_news $list || fail "the feed stands still at $list in round $round"
        news="$(news_of $list)"
        [ "$(rows_of $list)" = "$before" ] || fail "the rows at $list did not stay"
    done
done

# Ctrl+Tab goes on to the next page, and with Shift back.
xdotool key --clearmodifiers ctrl+Tab
until_true 20 page_is 3 || fail "Ctrl+Tab did not go on"
xdotool key --clearmodifiers ctrl+shift+Tab
until_true 20 page_is 2 || fail "Ctrl+Shift+Tab did not go back"

close_window
echo "chose pages, dragged a divider and two thumbs while rows came in, and the rows stayed"
