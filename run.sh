#!/bin/bash
# Builds what is missing and starts the programs; see ./run.sh --help.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"

readonly programs=$PWD/build/bin
readonly virtual_seconds=30

usage() {
    cat <<'TEXT'
usage: ./run.sh [--language en|cn]                        a simulated instrument
       ./run.sh [--language en|cn] --lan ADDRESS          an instrument in the network
       ./run.sh [--language en|cn] --serial PORT[:BAUD]   an instrument at a serial port
       ./run.sh --workbench [FILE...]                     the antenna pattern workbench
       ./run.sh [--language en|cn] --pattern-demo         a pattern measured in a simulated chamber

Installs what is missing (with sudo where needed, and it says what), builds into build/ and starts.
Without an address or a port the console is connected to a simulated MZ6218, which ends with it.
Settings, records (DataRecord) and logs (Log) lie beside the programs, in build/bin.

Without a display the console runs for 30 seconds on a virtual screen and leaves a picture, the day's
record file and the log in a folder that is named at the end.

Examples:
  ./run.sh --lan 192.168.1.20
  ./run.sh --serial /dev/ttyUSB0:115200
TEXT
}

console_options=()
simulated=true
workbench=false
demo=false
read_options() {
    while [[ $# -gt 0 ]]; do
        case $1 in
        -h | --help)
            usage
            exit 0
            ;;
        --lan | --serial | --language)
            [[ $# -ge 2 ]] || fail_usage "$1 needs a value."
            console_options+=("$1" "$2")
            [[ $1 == --language ]] || simulated=false
            shift 2
            ;;
        --pattern-demo)
            demo=true
            shift
            ;;
        --workbench)
            workbench=true
            shift
            workbench_files=("$@")
            return
            ;;
        *) fail_usage "Unknown option: $1" ;;
        esac
    done
}

fail_usage() {
    printf '%s\n\n' "$1" >&2
    usage >&2
    exit 2
}

has_display() {
    # A name like ":1" means a socket on this machine; a display elsewhere is taken at its word.
    [[ -n ${DISPLAY:-} ]] || return
    [[ $DISPLAY != :* && $DISPLAY != unix:* ]] && return
    local number=${DISPLAY#*:}
    [[ -S /tmp/.X11-unix/X${number%%.*} ]]
}

build() {
    [[ -f build/build.ninja || -f build/Makefile ]] || cmake --preset release
    cmake --build build --target "$@"
}

simulator_pid=
console_pid=
screen_pid=
state=
stop_all() {
    trap - EXIT INT TERM HUP
    local pid
    for pid in $console_pid $simulator_pid $screen_pid; do
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    # A job that was just being started has no name yet; it must not outlive its folder either.
    for pid in $(jobs -p); do
        kill "$pid" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    [[ -z $state ]] || rm -rf "$state"
}

# wait_until SECONDS COMMAND...: true as soon as the command succeeds.
wait_until() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        [[ $SECONDS -lt $deadline ]] || return 1
        sleep 0.05
    done
}

# try_simulator OPTIONS...: true when a simulator with these options is ready.
try_simulator() {
    : >"$state/simulator.txt" # it is looked into before the simulator has opened it
    "$programs/mz6218-sim" "$@" >"$state/simulator.txt" 2>"$state/simulator-errors.txt" &
    simulator_pid=$!
    if wait_until 10 simulator_has_spoken && grep -q '^Listening on' "$state/simulator.txt"; then
        return 0
    fi
    kill "$simulator_pid" 2>/dev/null || true
    wait "$simulator_pid" 2>/dev/null || true
    simulator_pid=
    return 1
}

simulator_has_spoken() {
    grep -q '^Listening on' "$state/simulator.txt" || ! kill -0 "$simulator_pid" 2>/dev/null
}

start_simulator() {
    # The console always connects to port 5001. Where another program holds it, this machine has more
    # addresses, and where it holds it on all of them there is still the simulator's serial port.
    local address options=()
    has_display || options=(--trace)
    for address in 127.0.0.1 127.0.0.{2..9}; do
        if try_simulator --listen "$address" "${options[@]}"; then
            [[ $address == 127.0.0.1 ]] ||
                echo "Port 5001 of 127.0.0.1 is taken; the simulated instrument is at $address."
            console_options+=(--lan "$address")
            return
        fi
    done
    if try_simulator --port 0 --serial "${options[@]}"; then
        local port
        port=$(sed -n 's/^Serial port: //p' "$state/simulator.txt")
        echo "TCP port 5001 is taken; the simulated instrument is at the serial port $port."
        console_options+=(--serial "$port")
        return
    fi
    echo "The simulated instrument did not start:" >&2
    cat "$state/simulator-errors.txt" >&2
    exit 1
}

# Waits for the console in a way that a signal can interrupt, and returns its exit code.
console_ends() {
    local code=0
    wait "$console_pid" || code=$?
    console_pid=
    return $code
}

run_on_screen() {
    # The console's files lie beside it, also those that it writes before its window is there.
    (cd "$programs" && exec ./mz6218 "${console_options[@]}") &
    console_pid=$!
    console_ends
}

start_virtual_screen() {
    Xvfb -displayfd 3 -screen 0 1120x800x24 -dpi 96 -nolisten tcp 3>"$state/display" 2>"$state/screen.txt" &
    screen_pid=$!
    if ! wait_until 20 test -s "$state/display"; then
        echo "The virtual screen did not start:" >&2
        cat "$state/screen.txt" >&2
        exit 1
    fi
    DISPLAY=:$(<"$state/display")
    export DISPLAY
    unset WAYLAND_DISPLAY
}

run_on_virtual_screen() {
    local folder
    folder=$PWD/build/virtual-screen/$(date +%Y-%m-%d_%H-%M-%S)
    mkdir -p "$folder"
    # The console keeps its files beside itself: a copy keeps this run's apart from the operator's.
    cp "$programs/mz6218" "$folder/"
    start_virtual_screen
    echo "There is no display: running for $virtual_seconds seconds on a virtual screen."
    (cd "$folder" && QT_QPA_PLATFORM=xcb exec ./mz6218 "${console_options[@]}") 2>"$folder/console.txt" &
    console_pid=$!
    local deadline=$((SECONDS + virtual_seconds))
    while [[ $SECONDS -lt $deadline ]]; do
        if ! kill -0 "$console_pid" 2>/dev/null; then
            echo "The console ended by itself:" >&2
            cat "$folder/console.txt" >&2
            exit 1
        fi
        sleep 0.2
    done
    import -window root "$folder/console.png"
    kill "$console_pid"
    console_ends || true
    [[ ! -f $state/simulator.txt ]] || cp "$state/simulator.txt" "$folder/simulator.txt"
    rm -f "$folder/mz6218"
    echo "What it left is in $folder:"
    (cd "$folder" && find . -type f | sort)
    local kind
    for kind in console.png 'DataRecord/*.csv' 'Log/*/*.txt'; do
        compgen -G "$folder/$kind" >/dev/null || { echo "There is no $kind among it." >&2 && exit 1; }
    done
}

read_options "$@"
# Before the first command: one that ends well just as Ctrl+C comes would make bash go on.
trap stop_all EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP
needed=(build run)
has_display || needed+=(virtual)
scripts/install-dependencies.sh "${needed[@]}"

if $workbench; then
    has_display || { echo "The workbench needs a display." >&2 && exit 1; }
    build mz6218-patterns
    exec "$programs/mz6218-patterns" "${workbench_files[@]}"
fi

run_demo() {
    has_display || { echo "The workbench needs a display." >&2 && exit 1; }
    # Ports that other programs hold are not the demonstration's concern.
    local chamber=(--pattern patterns/samples/horn.csv --rotator-speed 60) rotator
    try_simulator "${chamber[@]}" --rotator 4533 || try_simulator --port 0 "${chamber[@]}" --rotator 0 || {
        echo "The simulated chamber did not start:" >&2
        cat "$state/simulator-errors.txt" >&2
        exit 1
    }
    rotator=$(sed -n 's/^Rotator on //p' "$state/simulator.txt")
    local meter
    meter=$(sed -n 's/^Listening on //p' "$state/simulator.txt")
    echo "The chamber: meter at $meter, rotator at $rotator. Press Check, then Start."
    "$programs/mz6218-patterns" "${console_options[@]}" --measure "$meter" --rotator "$rotator" &
    console_pid=$!
    console_ends
}

if $demo; then
    build mz6218-patterns mz6218-sim
else
    build mz6218 mz6218-sim
fi
state=$(mktemp -d)
if $demo; then
    run_demo
    exit
fi
if $simulated; then
    start_simulator
fi
if has_display; then
    run_on_screen
else
    run_on_virtual_screen
fi
