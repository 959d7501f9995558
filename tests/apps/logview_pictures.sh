#!/usr/bin/env bash
# usage: logview_pictures.sh LOGVIEW
# Shows a log that this script writes, as pictures, and checks what the viewer says of logs it cannot open.
set -euo pipefail
logview="$1"
folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
export HOME="$folder" XDG_CONFIG_HOME="$folder/config"

for ((i = 1; i <= 5000; i++)); do
    printf '2026-01-02T03:04:%02d.%03d %s worker-%d did step %d\n' $((i % 60)) $((i % 1000)) \
        "$([ $((i % 50)) -eq 0 ] && echo ERROR || echo INFO)" $((i % 8)) "$i"
done >"$folder/some.log"

"$logview" --headless "$folder/pictures" "$folder/some.log" >"$folder/said"
[ "$(wc -l <"$folder/said")" -eq 4 ] || { echo "four pictures were to be written"; cat "$folder/said"; exit 1; }
while read -r picture; do
    [ "$(head -c 4 "$picture" | tail -c 3)" = PNG ] || { echo "$picture is no picture"; exit 1; }
done <"$folder/said"
cmp -s "$folder/pictures/logview-1-first-page.png" "$folder/pictures/logview-2-end-and-mark.png" &&
    { echo "the end of the log looks like its first page"; exit 1; }

expect_refusal() {
    local words="$1"
    shift
    if "$logview" --headless "$folder/none" "$@" 2>"$folder/error"; then echo "$*: was accepted"; exit 1; fi
    grep -q "$words" "$folder/error" || { echo "$*: said"; cat "$folder/error"; exit 1; }
}
expect_refusal 'no such file' "$folder/missing.log"
expect_refusal 'a folder' "$folder"
expect_refusal 'no switch' --nonsense
expect_refusal 'cannot be used' --pattern '(' "$folder/some.log"
printf 'one\ntwo\n' | "$logview" --headless "$folder/piped" - >/dev/null
echo "the log viewer's pictures are as they should be"
