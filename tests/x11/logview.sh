#!/usr/bin/env bash
# usage: logview.sh LOGVIEW PIXEL
# The log viewer in a real X server under a window manager, with real pointer and key events, on a log that another
# process writes to: it follows, keeps the place of a reader who scrolls away and counts the new lines, remembers the
# width of a column that was dragged, and copies a range. Looks at the pixels on the screen.
set -euo pipefail
logview="$1"
pixel="$2"

# shellcheck source=tests/x11/window.sh
source "$(dirname "$0")/window.sh"
command -v xclip >/dev/null || { echo "skipped: there is no xclip here"; exit 77; }
export HOME="$folder" XDG_CONFIG_HOME="$folder/config"
title=".* - log viewer"
size="1100 x 720"

# With LOGVIEW_PICTURES=FOLDER each state is also written there, for looking at it.
picture() {
    [ -n "${LOGVIEW_PICTURES:-}" ] || return 0
    sleep 0.5
    import -window root "$LOGVIEW_PICTURES/$1.png" || true
}

# Lines of three columns: a time, a level and a message.
log="$folder/some.log"
for ((i = 1; i <= 3000; i++)); do
    printf '2026-01-02 03:04:%02d ERROR line %d of the old ones\n' $((i % 60)) $i
done >"$log"
mkdir -p "$folder/config/tvok"

start() { open_window "$logview" "$@" "$log"; }

# The list begins at (0, 34) with a band of 22 pixels and rows of 18; the status line is the last 24 pixels.
selected=0A64C8
plain=FFFFFF
face=DCDCDC
row_y() { echo $((34 + 22 + 9 + 18 * ($1 - 1))); }
row_is() { [ "$(pixel_at 8 "$(row_y "$1")")" = "$2" ]; }

# All that stands in the rows' first 300 pixels, as one word.
page() {
    local points=() x y
    for ((y = 60; y < 600; y += 18)); do
        for ((x = 20; x < 300; x += 7)); do points+=($((X + x)) $((Y + y + 9))); done
    done
    "$pixel" "${points[@]}" | sha1sum
}
page_is() { [ "$(page)" = "$1" ]; }
page_is_not() { ! page_is "$1"; }
same_page_twice() {
    local first
    first="$(page)"
    sleep 0.3
    page_is "$first"
}
count_shows() { [ "$(pixel_at $((1100 - 160)) $((720 - 12)))" = $selected ]; }
count_is_gone() { ! count_shows; }

# Follows: what another process appends shows at once, and no count of new lines.
start --theme classic --follow
some_row_is() {
    local row
    for row in $(seq 1 36); do
        if row_is "$row" "$1"; then return 0; fi
    done
    return 1
}
end_is_shown() { ! row_is 1 $selected && some_row_is $selected; }
until_true 30 end_is_shown || fail "following does not begin at the end"
until_true 10 same_page_twice || fail "the page does not come to rest"
before="$(page)"
picture 1-follows
append() {
    local i
    for ((i = 1; i <= $1; i++)); do printf '2026-02-02 03:04:%02d INFO new line %d\n' $((i % 60)) $i; done >>"$log"
}
append 7
until_true 20 page_is_not "$before" || fail "appended lines do not show"
count_is_gone || fail "lines that are on the page are counted as new"

# A drag of the thumb, from the end of its bar to the middle; then the place is kept and new lines are counted.
bar=$((1100 - 9))
bottom=$((720 - 24)) # above the status line
at $bar $((bottom - 17 - 5))
xdotool mousedown 1
for step in 10 40 100 200 300; do at $bar $((bottom - 17 - 5 - step)); done
xdotool mouseup 1
no_row_is_selected() { ! some_row_is $selected; }
until_true 20 no_row_is_selected || fail "a drag of the thumb does not scroll away from the end"
until_true 10 same_page_twice || fail "the page does not come to rest after the drag"
place="$(page)"
append 40
until_true 20 count_shows || fail "new lines are not counted"
page_is "$place" || fail "new lines move the page of a reader who has scrolled away"
picture 2-scrolled-away

# Back at the end the new lines have been seen.
at 400 300
xdotool click 1
xdotool key --clearmodifiers End
until_true 20 count_is_gone || fail "the count stays at the end of the log"
picture 3-end

# The divider behind the first column: its edge is the one dark line in the band between the two names.
edge_of_first() {
    local x points=() colors
    for ((x = 60; x < 600; x++)); do points+=($((X + x)) $((Y + 34 + 4))); done
    mapfile -t colors < <("$pixel" "${points[@]}")
    for ((x = 60; x < 600; x++)); do
        if [ "${colors[$((x - 60))]}" != $face ]; then
            echo "$x"
            return
        fi
    done
    echo 0
}
edge="$(edge_of_first)"
[ "$edge" -gt 60 ] || fail "there is no divider in the header"
at "$edge" $((34 + 10))
xdotool mousedown 1
for step in 5 20 40 60; do at $((edge + step)) $((34 + 10)); done
xdotool mouseup 1
wider() { local now; now="$(edge_of_first)"; [ "$now" -ge $((edge + 58)) ] && [ "$now" -le $((edge + 62)) ]; }
until_true 20 wider || fail "the divider was at $edge and is at $(edge_of_first) after a drag by 60"
picture 4-wider

# A range by a click and a click with Shift, and its text on the clipboard.
xdotool key --clearmodifiers Home
until_true 20 row_is 1 $selected || fail "Home does not go to the first line"
at 300 "$(row_y 3)"
xdotool click 1
until_true 20 row_is 3 $selected || fail "a click does not select the third line"
at 300 "$(row_y 6)"
xdotool keydown shift click 1 keyup shift
until_true 20 row_is 5 $selected || fail "a click with Shift does not extend the range"
row_is 2 $plain && row_is 7 $plain || fail "the range is longer than it was drawn"
picture 5-range
xdotool key --clearmodifiers ctrl+c
copied() { [ "$(timeout 5 xclip -o -selection clipboard 2>/dev/null)" = "$(sed -n 3,6p "$log")" ]; }
until_true 20 copied || fail "the clipboard has: $(timeout 5 xclip -o -selection clipboard 2>&1 | head -c 1000)"
close_window

# The next start has the column's width.
start --theme classic
until_true 20 wider || fail "after a new start the divider is at $(edge_of_first), and was at $edge before the drag"
picture 6-next-start
close_window
echo "followed, scrolled away, sized, selected, copied and remembered"
