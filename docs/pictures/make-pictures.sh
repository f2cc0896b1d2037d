#!/bin/bash
# Makes the pictures of the documents from the running programs, on a virtual screen and against the
# simulated instrument. Needs a finished build in build/; run it after changing how a window looks.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."

readonly pictures=$PWD/docs/pictures
readonly programs=$PWD/build/bin
# Long enough for a chart that shows something.
readonly measuring_seconds=100

# The console shows its folder: one with a name that looks well.
readonly work=/tmp/mz6218
mkdir "$work"
children=()
clean_up() {
    kill "${children[@]}" 2>/dev/null || true
    wait
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 130' INT TERM

# start_screen WIDTHxHEIGHT: a screen of its own, as large as the window that is to fill it.
start_screen() {
    Xvfb -displayfd 3 -screen 0 "${1}x24" -dpi 96 -nolisten tcp 3>"$work/display" 2>/dev/null &
    children+=($!)
    until [[ -s $work/display ]]; do sleep 0.1; done
    DISPLAY=:$(<"$work/display")
    rm "$work/display"
    export DISPLAY QT_QPA_PLATFORM=xcb
}

# console LANGUAGE PICTURE
console() {
    local folder=$work/$1
    mkdir -p "$folder/DataRecord"
    cp "$programs/mz6218" "$folder/"
    printf 'language:%s\nIP:\nPath:%s\nInterval:1\nPeriod:2\n' "$1" "$folder/DataRecord" >"$folder/config.ini"
    "$programs/mz6218-sim" --listen 127.0.0.77 --level -20 --noise 0.4 --seed 7 >"$work/simulator" &
    local simulator=$!
    children+=("$simulator")
    until grep -q '^Listening' "$work/simulator"; do sleep 0.1; done
    start_screen 1120x800
    (cd "$folder" && exec ./mz6218 --lan 127.0.0.77) 2>/dev/null &
    local program=$!
    children+=("$program")
    sleep "$measuring_seconds"
    import -window root "$pictures/$2"
    kill "$program" "$simulator"
}

console en console.png
console cn console-cn.png
