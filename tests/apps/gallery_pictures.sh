#!/usr/bin/env bash
# usage: gallery_pictures.sh GALLERY
# In memory the gallery writes a picture of every scene in every theme and says where; with --trace also the calls.
set -euo pipefail
gallery="$(realpath "$1")"
folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
cd "$folder"

output="$("$gallery" --headless pictures/new --trace calls.txt)"
[[ "$output" == *"12 pictures are in pictures/new"* ]] || { echo "said: $output"; exit 1; }
for theme in classic dark contrast; do
    for scene in "" -scrolled -selected -resized; do
        file="pictures/new/lists-$theme$scene.png"
        [ "$(head -c 8 "$file" | od -An -tx1 | tr -d ' ')" = 89504e470d0a1a0a ] || { echo "$file is no PNG"; exit 1; }
    done
done
if cmp -s pictures/new/lists-dark.png pictures/new/lists-classic.png; then echo "themes look alike"; exit 1; fi
if cmp -s pictures/new/lists-dark.png pictures/new/lists-dark-scrolled.png; then echo "nothing scrolled"; exit 1; fi
grep -q '^ExtTextOutA .*"Package\|^DrawTextA .*"Package' calls.txt || { echo "no call tells the heading"; exit 1; }

output="$(env -u DISPLAY -u WAYLAND_DISPLAY SDL_VIDEODRIVER= "$gallery" --theme dark 2>&1)"
[ -f out/lists-dark.png ] && [ ! -e out/lists-classic.png ] || { echo "without a display: $output"; exit 1; }

code=0
"$gallery" --headless /dev/null/nowhere 2>message || code=$?
[ "$code" -eq 1 ] && grep -q nowhere message || { echo "exit code $code, said: $(cat message)"; exit 1; }
