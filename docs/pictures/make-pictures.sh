#!/bin/bash
# Makes the pictures of README and manual from the running programs, in both languages, on a virtual
# screen and against the simulated instrument; run it after changing how a window looks.
#   make-pictures.sh [FOLDER]    takes the programs from FOLDER, build/bin unless given
# scripts/install-dependencies.sh installs what it needs as "pictures".
set -Eeuo pipefail
programs=$(readlink -f "${1:-$(dirname "$0")/../../build/bin}")
cd "$(dirname "$(readlink -f "$0")")/../.."

readonly programs pictures=$PWD/docs/pictures
readonly instrument=127.0.0.77
# Long enough for a chart that shows something.
readonly measuring_seconds=100
readonly watching_seconds=40

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
trap 'echo "Line $LINENO failed; the pictures are not complete." >&2' ERR

# start_screen WIDTHxHEIGHT: a screen of its own.
start_screen() {
    Xvfb -displayfd 3 -screen 0 "${1}x24" -dpi 96 -nolisten tcp 3>"$work/display" 2>/dev/null &
    children+=($!)
    until [[ -s $work/display ]]; do sleep 0.1; done
    DISPLAY=:$(<"$work/display")
    rm "$work/display"
    export DISPLAY QT_QPA_PLATFORM=xcb
}

# start FOLDER PROGRAM ARGUMENT...: starts it there and waits for its window.
start() {
    (cd "$1" && exec "${@:2}") 2>/dev/null &
    program=$!
    children+=("$program")
    until [[ -n $(top_window) ]]; do sleep 0.1; done
    sleep 2
}

stop() {
    kill "$program"
    wait "$program" 2>/dev/null || true
}

# The window of the program that lies above its others. Nobody else gives it the keyboard here.
top_window() {
    local window
    window=$(xdotool search --onlyvisible --pid "$program" '' 2>/dev/null | tail -n 1) || true
    # A window that has just come may not take the keyboard yet.
    [[ -z $window ]] || until xdotool windowfocus "$window" 2>/dev/null; do sleep 0.1; done
    echo "$window"
}

# press KEY...
press() {
    top_window >/dev/null
    sleep 0.3
    xdotool key --delay 60 "$@"
    sleep 0.7
}

# take NAME [CROP]: a picture of the whole screen, or of a part WIDTHxHEIGHT+X+Y.
take() {
    import -window root "$work/picture.png"
    convert "$work/picture.png" ${2:+-crop "$2" +repage} -strip +dither -colors 128 "PNG8:$pictures/$1.png"
}

# take_window NAME: a picture of the top window, framed, with the corners that it leaves clear in white.
take_window() {
    import -window "$(top_window)" "$work/picture.png"
    convert "$work/picture.png" -bordercolor black -border 1 -fuzz 8% -fill white \
        -draw 'color 0,0 floodfill' -shave 1x1 -bordercolor '#b0b6c0' -border 1 \
        -strip +dither -colors 128 "PNG8:$pictures/$1.png"
}

# console LANGUAGE SUFFIX
console() {
    local folder=$work/$1
    mkdir -p "$folder/DataRecord"
    cp "$programs/mz6218" "$folder/"
    printf 'language:%s\nIP:\nPath:%s\nInterval:1\nPeriod:2\n' "$1" "$folder/DataRecord" >"$folder/config.ini"
    "$programs/mz6218-sim" --listen "$instrument" --level -20 --noise 0.4 --seed 7 >"$work/simulator" &
    local simulator=$!
    children+=("$simulator")
    until grep -qs '^Listening' "$work/simulator"; do sleep 0.1; done
    start_screen 1120x800
    start "$folder" ./mz6218 --lan "$instrument"
    sleep "$measuring_seconds"
    take "console$2"
    press F7
    take_window "wait$2"
    sleep 4
    press Return # the result
    press ctrl+o
    take_window "connect-lan$2"
    press Escape
    press alt+c Return # to the serial link
    press ctrl+o
    take_window "connect-serial$2"
    stop
    kill "$simulator"
}

# A record of two hours at ten seconds, with a quarter of an hour in which no reading came.
record_rows() {
    echo "time,start,n_valid,n_invalid,mean_dbm,min_dbm,max_dbm,sigma_db,last_dbm,frequency_hz,offset_db,relative,averaging,valid,reason"
    awk 'function clock(s) { return sprintf("2026-11-21T%02d:%02d:%02d.000+01:00", 8 + s / 3600, s / 60 % 60, s % 60) }
        BEGIN {
            srand(7)
            for (s = 0; s < 7200; s += 10) {
                printf "%s,%s,", clock(s + 10), clock(s)
                if (s >= 4000 && s < 4900) { print "0,20,,,,,,2450000000,0,0,16,0,timeout"; continue }
                level = -20 + 2 * sin(s / 900) + 0.3 * rand()
                printf "20,0,%.4f,%.2f,%.2f,0.0400,%.2f,2450000000,0,0,16,1,ok\n", level, level - 0.1, level + 0.1, level
            }
        }'
}

# watch LANGUAGE SUFFIX: the console with its panels for long watches, and a record opened again.
watch() {
    local folder=$work/watch-$1
    mkdir -p "$folder/DataRecord"
    cp "$programs/mz6218" "$folder/"
    printf 'language:%s\nIP:\nPath:%s\nInterval:1\nPeriod:2\n' "$1" "$folder/DataRecord" >"$folder/config.ini"
    echo '{"limits": {"high": -19.5, "low": -21, "watchHigh": true, "watchLow": true}}' >"$folder/console.json"
    record_rows >"$folder/bench-2026-11-21.csv"
    "$programs/mz6218-sim" --listen "$instrument" --level -20 --noise 0.4 --seed 7 >"$work/simulator" &
    local simulator=$!
    children+=("$simulator")
    until grep -qs '^Listening' "$work/simulator"; do sleep 0.1; done
    start_screen 1366x768
    start "$folder" ./mz6218 --lan "$instrument"
    xdotool windowmove "$(top_window)" 0 0 windowsize "$(top_window)" 1366 768
    press alt+v Down Return
    press alt+v Down Down Return
    press alt+v Down Down Down Return
    sleep "$watching_seconds"
    take "watch$2"
    press ctrl+shift+o
    xdotool type "$folder/bench-2026-11-21.csv"
    press Return
    sleep 2
    press a ctrl+shift+Left b ctrl+shift+Right ctrl+shift+Right
    take_window "record$2"
    stop
    kill "$simulator"
}

# select_curve ROW: in the list of curves.
select_curve() {
    xdotool mousemove 100 $((160 + 30 * $1)) click 1
    sleep 0.5
}

# menu_entry X Y NUMBER: chooses the entry that is the NUMBERth enabled one of the chart's menu.
menu_entry() {
    xdotool mousemove "$1" "$2" click 3
    sleep 0.5
    xdotool key --delay 60 --repeat "$3" Down
    xdotool key Return
    sleep 0.5
}

# workbench LANGUAGE SIZE FILE...: starts it with a window that fills the screen.
workbench() {
    start_screen "$2"
    XDG_CONFIG_HOME=$work/settings start patterns/samples "$programs/mz6218-patterns" --language "$1" "${@:3}"
    xdotool windowmove "$(top_window)" 0 0 windowsize "$(top_window)" "${2%x*}" "${2#*x}"
    sleep 2
}

# patterns LANGUAGE SUFFIX
patterns() {
    workbench "$1" 1280x800 dipole.csv patch.csv horn.csv array.csv
    take "workbench$2"
    press alt+v
    press m
    take_window "manager$2"
    stop
}

# markers LANGUAGE SUFFIX: markers, their table and the parameters on the cartesian chart.
markers() {
    workbench "$1" 1920x1080 horn.csv
    select_curve 0
    local x
    for x in 1460 1501 1576; do # side lobes and a half-power point
        menu_entry "$x" 180 3
    done
    menu_entry 1400 500 6
    take "markers$2" 828x778+1088+104
    stop
}

# The parameter lines, and a report on paper; in English.
lines_and_report() {
    workbench en 1280x800 array.csv
    press alt+v
    press n
    select_curve 0
    take workbench-lines
    stop
    workbench en 1280x800 dipole.csv patch.csv horn.csv
    press ctrl+r
    press ctrl+a
    xdotool type "$work/report.pdf"
    press Return
    until [[ -s $work/report.pdf ]]; do sleep 0.2; done
    pdftoppm -r 80 -png -singlefile "$work/report.pdf" "$work/report"
    convert "$work/report.png" -strip +dither -colors 128 "PNG8:$pictures/workbench-report.png"
    stop
}

# bench: how source, table, meter and computer stand together.
bench() {
    convert -size 486x150 xc:white -fill none -stroke '#0a6ebd' -strokewidth 2 \
        -draw 'polygon 20,52 62,34 62,88 20,70' -draw 'polygon 330,40 372,58 372,66 330,84' \
        -draw 'line 351,76 351,104' -draw 'rectangle 322,104 380,116' -draw 'arc 306,98 396,134 20,160' \
        -stroke '#9aa5b1' -draw 'stroke-dasharray 6 5 line 72,61 320,61' \
        -stroke '#0a6ebd' -draw 'rectangle 410,40 474,84' -draw 'line 372,62 410,62' \
        -stroke none -fill '#20303c' -font DejaVu-Sans -pointsize 12 \
        -draw "text 20,110 'source'" -draw "text 150,52 '>= 2D^2 / lambda'" \
        -draw "text 326,30 'AUT'" -draw "text 402,128 'rotctld'" -draw "text 416,66 'MZ6218'" \
        "$work/bench.png"
}

# measuring LANGUAGE SUFFIX: bench and dialog beside the curve as it grows, and the report.
measuring() {
    "$programs/mz6218-sim" --listen "$instrument" --pattern patterns/samples/horn.csv \
        --rotator 0 --rotator-speed 60 --noise 0.02 >"$work/simulator" &
    local simulator=$!
    children+=("$simulator")
    until grep -qs '^Listening' "$work/simulator"; do sleep 0.1; done
    start_screen 1280x800
    rm -rf "$work/settings" "$work"/horn*
    mkdir -p "$work/Documents"
    "$programs/mz6218-cli" --lan "$instrument" set frequency 10GHz >/dev/null
    HOME=$work XDG_CONFIG_HOME=$work/settings start "$work" "$programs/mz6218-patterns" --language "$1" \
        --measure "$instrument" --rotator "$(sed -n 's/^Rotator on //p' "$work/simulator")"
    press alt+l ctrl+a
    xdotool type horn.csv
    press alt+a
    xdotool type 0.2
    press alt+k
    sleep 2
    import -window "$(top_window)" "$work/dialog.png"
    press alt+s
    xdotool windowmove "$(top_window)" 0 0 windowsize "$(top_window)" 1280 800
    sleep 70
    import -window root "$work/live.png"
    until [[ -s $work/horn.csv ]]; do sleep 0.2; done
    sleep 8 # until the table is back
    press ctrl+r ctrl+a
    xdotool type "$work/horn.pdf"
    press Return
    until [[ -s $work/horn.pdf ]]; do sleep 0.2; done
    pdftoppm -r 90 -H 798 -png -singlefile "$work/horn.pdf" "$work/report"
    bench
    convert \( "$work/bench.png" "$work/dialog.png" -background white -append \) "$work/live.png" \
        \( "$work/report.png" -bordercolor '#b0b6c0' -border 1 \) +append -strip +dither -colors 128 "PNG8:$pictures/measuring$2.png"
    stop
    kill "$simulator"
}

for language in en cn; do
    suffix=
    [[ $language == en ]] || suffix=-$language
    console "$language" "$suffix"
    watch "$language" "$suffix"
    patterns "$language" "$suffix"
    markers "$language" "$suffix"
    measuring "$language" "$suffix"
done
lines_and_report
