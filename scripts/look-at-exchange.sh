#!/bin/bash
# Two workbench windows and other programs exchange curves over a real X server: one window drags its
# curve into the other, which copies it for a text program; what a text program copies is pasted.
#
# look-at-exchange.sh PROGRAM SAMPLES; ends with 77 (skipped) where a tool is missing.
set -u

for tool in xvfb-run xdotool xclip import convert; do
    command -v "$tool" >/dev/null || { echo "skipped: no $tool"; exit 77; }
done
if [[ -z ${MZ_UNDER_X:-} ]]; then
    MZ_UNDER_X=1 exec xvfb-run -a -s "-screen 0 2200x800x24" "$0" "$@"
fi

readonly program=$1 samples=$2
work=$(mktemp -d)
readonly work
export XDG_CONFIG_HOME=$work QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 QT_FONT_DPI=96
# The first two colours of curves.
readonly blue='#0072B2' orange='#D55E00'
# Where a window has its list of curves and its cartesian chart, relative to its left edge.
readonly list=320x250+0+130 chart=380x400+720+130

children=()
clean_up() {
    kill "${children[@]}" 2>/dev/null
    wait 2>/dev/null
    rm -rf "$work"
}
trap clean_up EXIT

fail() {
    echo "FAILED: $1"
    exit 1
}

# within SECONDS COMMAND...: repeats the command until it succeeds.
within() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

# pixel OFFSET AREA COLOUR: the topmost pixel of that colour, as "x y" on the screen; fails without.
pixel() {
    local geometry=$2 place
    local left=$(($1 + $(cut -d+ -f2 <<<"$geometry"))) top
    top=$(cut -d+ -f3 <<<"$geometry")
    place=$(import -window root -crop "${geometry%%+*}+$left+$top" +repage "$work/area.png" &&
        convert "$work/area.png" txt:- 2>/dev/null | grep -i -m1 "$3" | cut -d: -f1)
    [[ -n $place ]] && echo "$((left + ${place%,*})) $((top + ${place#*,}))"
}

# open OFFSET FILE: a window at that place, known as soon as its curve is to be seen.
open() {
    "$program" "$2" 2>>"$work/log" &
    children+=($!)
    local id
    id=$(xdotool search --sync --onlyvisible --pid $! | tail -1)
    xdotool windowsize --sync "$id" 1100 760
    xdotool windowmove "$id" "$1" 0
    within 20 pixel "$1" $chart $blue >/dev/null || fail "no curve of $2"
    window=$id
}

# edit WINDOW KEY: an entry of its menu "Edit".
edit() {
    xdotool windowfocus --sync "$1" key --clearmodifiers alt+e key "$2"
}

# copies OFFSET WINDOW COLOUR FILE: the curve of that colour is, copied from there, that of the file.
copies() {
    local place
    place=$(pixel "$1" $list "$3") || return 1
    # shellcheck disable=SC2086 # two numbers
    xdotool mousemove $place click 1
    edit "$2" c
    within 2 matches "$4"
}

matches() {
    diff <(timeout 5 xclip -selection clipboard -o 2>/dev/null) <(tail -n +2 "$1") >/dev/null
}

open 0 "$samples/horn.csv"
readonly first=$window
open 1100 "$samples/patch.csv"
readonly second=$window

read -r x y < <(pixel 0 $chart $blue) || fail "no curve to drag"
xdotool mousemove "$x" $((y + 1)) mousedown 1
for step in {1..20}; do
    xdotool mousemove $((x + step * 35)) $((y + step * 10))
    sleep 0.03
done
xdotool mouseup 1
within 10 pixel 1100 $list $orange >/dev/null || fail "nothing was dropped"
within 10 copies 1100 "$second" $orange "$samples/horn.csv" || fail "another curve was dropped"

tail -n +2 "$samples/dipole.csv" | xclip -selection clipboard -i
edit "$first" p
within 10 pixel 0 $list $orange >/dev/null || fail "nothing was pasted"
within 10 copies 0 "$first" $orange "$samples/dipole.csv" || fail "another curve was pasted"
echo "passed"
