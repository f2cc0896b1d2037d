#!/bin/bash
# look-at-wait-box.sh PROGRAM...: starts mz_waitbox, by itself or under Wine, on a virtual screen of its
# own, and fails unless the red letters of the box are seen on it.
# shellcheck disable=SC2317 # called by the trap
set -euo pipefail
[[ $# -gt 0 ]] || { sed -n '2,3s/^# //p' "$0" >&2 && exit 2; }

folder=$(mktemp -d)
screen_pid=
program_pid=
clean_up() {
    local pid
    for pid in $program_pid $screen_pid; do
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    rm -rf "$folder"
}
trap clean_up EXIT

Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp 3>"$folder/display" 2>/dev/null &
screen_pid=$!
for ((i = 0; i < 200; ++i)); do
    [[ -s $folder/display ]] && break
    sleep 0.05
done
DISPLAY=:$(<"$folder/display")
export DISPLAY

"$@" >/dev/null 2>&1 &
program_pid=$!
deadline=$((SECONDS + 25))
while [[ $SECONDS -lt $deadline ]] && kill -0 "$program_pid" 2>/dev/null; do
    import -window root "$folder/screen.png"
    red=$(convert "$folder/screen.png" -fill white +opaque '#FF0000' -fill black -opaque '#FF0000' \
        -format '%[fx:int((1-mean)*w*h)]' info:)
    if [[ $red -gt 300 ]]; then
        echo "The wait box shows $red red pixels."
        exit 0
    fi
    sleep 0.2
done
echo "The wait box does not show." >&2
exit 1
