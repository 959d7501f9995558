#!/usr/bin/env bash
# usage: gallery_switches.sh GALLERY
# Switches that are not understood end with exit code 2, a reason and the usage, and open nothing.
set -euo pipefail
gallery="$1"
failed=0

refuses() {
    local reason="$1" code=0 output
    shift
    output="$("$gallery" "$@" 2>&1 >/dev/null)" || code=$?
    if [ "$code" -ne 2 ] || [[ "$output" != *"$reason"* ]] || [[ "$output" != *"usage: gallery"* ]]; then
        echo "gallery $*: exit code $code, said: $output"
        failed=1
    fi
}

refuses "unknown switch --unknown" --unknown
refuses "unknown switch stray" stray
refuses "--theme needs a value" --theme
refuses "--headless needs a value" --headless ""
refuses "plaid" --theme plaid
refuses "--scale has to be a number from 0.5 to 4" --scale 5
refuses 'there is no page "nowhere"' --page nowhere
exit $failed
