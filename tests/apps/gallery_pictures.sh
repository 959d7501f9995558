#!/usr/bin/env bash
# usage: gallery_pictures.sh GALLERY
# In memory the gallery writes a picture of every scene in every theme and says where; with --trace also the calls.
set -euo pipefail
gallery="$(realpath "$1")"
folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
cd "$folder"

output="$("$gallery" --headless pictures/new --trace calls.txt)"
[[ "$output" == *"177 pictures are in pictures/new"* ]] || { echo "said: $output"; exit 1; }
for theme in classic dark contrast; do
    for name in lists-@ lists-@-scrolled lists-@-selected lists-@-resized \
        feed-@ feed-@-scrolled feed-@-waiting feed-@-turned feed-@-resized \
        columns-@ columns-@-dragged columns-@-sorted columns-@-added columns-@-resized \
        labels-@ labels-@-pressed labels-@-tabbed labels-@-resized \
        buttons-@ buttons-@-held buttons-@-edited \
        popups-@ popups-@-8x2 popups-@-8x8 popups-@-16x8 popups-@-24x8 popups-@-24x10 popups-@-system \
        popups-@-numbers popups-@-stored popups-@-million \
        colors-@ colors-@-focused colors-@-preview colors-@-chosen colors-@-system colors-@-cancelled \
        properties-@ properties-@-selected properties-@-checked properties-@-edited properties-@-colors \
        properties-@-numbers properties-@-choices properties-@-folded properties-@-flat properties-@-unsorted \
        properties-@-restored properties-@-scrolled \
        design-@ design-@-selected design-@-resized design-@-undone design-@-running \
        workbench-@ workbench-@-events workbench-@-edited workbench-@-colors workbench-@-choice; do
        file="pictures/new/${name/@/$theme}.png"
        [ "$(head -c 8 "$file" | od -An -tx1 | tr -d ' ')" = 89504e470d0a1a0a ] || { echo "$file is no PNG"; exit 1; }
    done
done
if cmp -s pictures/new/lists-dark.png pictures/new/lists-classic.png; then echo "themes look alike"; exit 1; fi
if cmp -s pictures/new/lists-dark.png pictures/new/lists-dark-scrolled.png; then echo "nothing scrolled"; exit 1; fi
for heading in Package Symbol; do
    grep -q "^\(ExtTextOutA\|DrawTextA\) .*\"$heading" calls.txt || { echo "no call tells the heading $heading"; exit 1; }
done

# The feed's clock stands still between its steps, so its pictures are the same each time.
"$gallery" --page feed --theme classic --headless again >message
grep -q '^5 pictures are in again' message || { echo "one page alone said: $(cat message)"; exit 1; }
for file in again/*.png; do
    cmp "$file" "pictures/new/${file#again/}" || exit 1
done

output="$(env -u DISPLAY -u WAYLAND_DISPLAY SDL_VIDEODRIVER= "$gallery" --theme dark 2>&1)"
[ -f out/lists-dark.png ] && [ ! -e out/lists-classic.png ] || { echo "without a display: $output"; exit 1; }

code=0
"$gallery" --headless /dev/null/nowhere 2>message || code=$?
[ "$code" -eq 1 ] && grep -q nowhere message || { echo "exit code $code, said: $(cat message)"; exit 1; }
