#!/bin/bash
# Makes the pictures of workbench.md from the running program on a virtual screen. Needs a finished
# build; run it after changing how the window looks.
#
# make-workbench-pictures.sh [BUILD]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
if [[ -z ${DISPLAY_IS_OURS:-} ]]; then
    DISPLAY_IS_OURS=1 exec xvfb-run -a -s "-screen 0 1280x800x24 -dpi 96" "$0" "$@"
fi

readonly pictures=$PWD/docs/pictures samples=$PWD/patterns/samples
readonly program=$(readlink -f "${1:-build}")/bin/mz6218-patterns
work=$(mktemp -d)
readonly work
export XDG_CONFIG_HOME=$work QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
trap 'kill "${running:-0}" 2>/dev/null || true; rm -rf "$work"' EXIT

# start ARGUMENTS...: the window, as large as the screen, its curves drawn.
start() {
    "$program" "$@" 2>/dev/null &
    running=$!
    window=$(xdotool search --sync --onlyvisible --pid "$running" | tail -1)
    xdotool windowsize "$window" 1280 800
    xdotool windowmove "$window" 0 0
    sleep 3
    xdotool windowfocus "$window"
}

stop() {
    kill "$running"
    wait "$running" 2>/dev/null || true
}

# click X Y [BUTTON]
click() {
    xdotool mousemove "$1" "$2" click "${3:-1}"
    sleep 0.5
}

readonly three=("$samples/dipole.csv" "$samples/patch.csv" "$samples/horn.csv")

for language in en cn; do
    start --language "$language" "${three[@]}"
    import -window root "$pictures/workbench-patterns-$language.png"
    stop
done

# One curve with its marker lines, selected in the list.
start --language en "$samples/array.csv"
xdotool key alt+v key n
click 100 160
import -window root "$pictures/workbench-lines.png"
stop

start --language en "${three[@]}"
xdotool key ctrl+r
sleep 1
xdotool key ctrl+a type "$work/report.pdf"
xdotool key Return
until [[ -s $work/report.pdf ]]; do sleep 0.2; done
pdftoppm -r 80 -png -singlefile "$work/report.pdf" "$pictures/workbench-report"
stop
