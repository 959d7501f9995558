#!/usr/bin/env bash
# usage: workbench.sh GALLERY PIXEL
# The gallery's workbench in a real X server under a window manager, with real pointer and key events: a click on a
# control brings its properties, one of them is edited, the theme and the scale change by clicks, and the panes go and
# come. Looks at the pixels on the screen.
set -euo pipefail
gallery="$1"
pixel="$2"
[ -r /var/lib/dpkg/status ] || { echo "skipped: there is no package database here"; exit 77; }
# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
size="730 x 430"
open_window "$gallery" --theme classic --scale 0.5

# Points are those at the scale 1; `scale` is in percent.
scale=50
scaled_pixel_at() { pixel_at $(($1 * scale / 100)) $(($2 * scale / 100)); }
click_at() {
    at $(($1 * scale / 100)) $(($2 * scale / 100))
    xdotool click 1
}
picture_of() { "$pixel" --area $((X + $1)) $((Y + $2)) "$3" "$4"; }
is_color() { [ "$(scaled_pixel_at "$1" "$2")" = "$3" ]; }
keys() { xdotool key --clearmodifiers "$@"; }

# The inspector begins at x 1120: its line from y 70 on, its list from y 100 on. The lists of the page "lists": details
# at (152, 82), sections at (878, 82). The tool bar is at y 640: themes at 198, scales at 448.
face=DCDCDC
selected=0A64C8
white=FFFFFF
line_of() { picture_of 1122 72 260 20; }
rows_of() { picture_of 1136 102 250 500; }
# The tool bar is above the event log at the window's lower edge.
bar_y() { echo $((HEIGHT * 100 / scale - 190 - 15)); }
theme() { click_at $((198 + 62 * ($1 - 1) + 20)) "$(bar_y)"; }
scale_to() { click_at $((scales + 50 * ($1 - 1) + 20)) "$(bar_y)"; }
scales=$((198 + 62 * 3 + 2 + 12 + 46))

# Begun at half its size, and as large as it is to be by a click: the corner stays where it is.
has_width() { look_at_window; [ "$WIDTH" -ge "$1" ] && [ "$WIDTH" -le "$2" ]; }
corner="$X $Y"
scale_to 1
until_true 20 has_width 1460 1460 || fail "at 100 % the window is $WIDTH x $HEIGHT"
[ "$HEIGHT" -eq 860 ] || fail "at 100 % the window is $HEIGHT pixels high"
[ "$X $Y" = "$corner" ] || fail "the window went from $corner to $X $Y"
scale=100
title_is_there() { is_color 1000 20 $white && is_color 5 500 $face; }
until_true 20 title_is_there || fail "at 100 % the window shows nothing"

is_color 1400 75 $white || is_color 1380 75 $white || fail "the inspector's line is $(scaled_pixel_at 1380 75)"
line="$(line_of)"
rows="$(rows_of)"
line_changed() { [ "$(line_of)" != "$line" ]; }
line_is_back() { [ "$(line_of)" = "$line" ]; }
rows_changed() { [ "$(rows_of)" != "$rows" ]; }

# A click on a control of the page brings its name and its properties.
click_at 960 200
until_true 20 line_changed || fail "after a click on another control the line is the same"
until_true 20 rows_changed || fail "and so are its properties"
click_at 300 200
until_true 20 line_is_back || fail "after a click on the first control its name is not back"

# F6 goes into the list; End shows the last rows, Home the first ones.
keys F6
settle
keys End
rows="$(rows_of)"
keys Home
until_true 20 rows_changed || fail "F6 did not go to the inspector: Home and End do nothing in its list"

# Dark, by a click. The page's background is dark then, and light again behind another click.
theme 2
page_color() { scaled_pixel_at 1000 20; }
is_dark() { [ "$(page_color)" = 1E1E20 ]; }
is_light() { [ "$(page_color)" = $white ]; }
until_true 20 is_dark || fail "after a click on dark the banner is $(page_color)"
theme 3
is_black() { [ "$(page_color)" = 000000 ]; }
until_true 20 is_black || fail "after a click on contrast the banner is $(page_color)"
theme 1
until_true 20 is_light || fail "after a click on classic the banner is $(page_color)"

# Larger, by a click: the window fits the screen, and each pixel has its place.
scale_to 2
until_true 20 has_width 1500 1600 || fail "at 125 % the window is $WIDTH x $HEIGHT"
[ "$HEIGHT" -le 1000 ] || fail "at 125 % the window is $HEIGHT pixels high"
settle # the window manager moves what reaches beyond the screen
look_at_window
scale=125
list_is_scaled() { is_color 5 500 $face && is_color 5 $((58 + 14)) $selected; }
until_true 20 list_is_scaled || fail "the list of pages is not where 125 % puts it"
row_is_selected() { is_color 155 $((82 + 11 + 21 * ($1 - 1))) $selected; }
click_at 300 $((82 + 11 + 21 * 5))
until_true 20 row_is_selected 6 || fail "at 125 % a click on the sixth row did not select it"

# Back again: also the part of the window that the screen had no room for.
scale_to 1
until_true 20 has_width 1460 1460 || fail "back at 100 % the window is $WIDTH x $HEIGHT"
settle
look_at_window
[ "$HEIGHT" -eq 860 ] || fail "back at 100 % the window is $HEIGHT pixels high"
scale=100
until_true 20 row_is_selected 6 || fail "at 100 % the sixth row is not selected"

# Without the panes the page has their room, and the list at its right edge goes there.
list_is_at_the_edge() { [ "$(picture_of 1400 100 40 300)" != "$beside" ]; }
beside="$(picture_of 1400 100 40 300)"
keys F9
until_true 20 list_is_at_the_edge || fail "F9 did not hide the inspector"
keys F9
beside_again() { [ "$(picture_of 1400 100 40 300)" = "$beside" ]; }
until_true 20 beside_again || fail "F9 did not show the inspector again"

close_window
echo "selected by clicks, went to the inspector, changed the theme and the scale, hid and showed the panes"
