#!/bin/bash
# Builds and runs one of the long campaigns; what they try is told in docs/reliability.md.
# shellcheck disable=SC2317,SC2016 # carry_out is called by xargs
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

usage() {
    cat <<'TEXT'
usage: scripts/campaign.sh faults|files|recorder|sweep|watch|week [OPTION...]

  --slice         a few jobs only, as among the tests
  --only TEXT     only the jobs whose names hold this text
  --list          only lists the names of the jobs
  --jobs N        how many at a time (two a core)
  --scenarios N   random combinations beside the systematic ones (200; faults), or runs (200; sweep)
  --seed S        the same seed gives the same combinations or the same week (1)
  --days N        length of the run (7; watch, week)
  --keep          keeps records and logs, and says where (week)
  --built FOLDER  takes the programs in this build folder, and builds nothing
TEXT
}

campaign=${1-}
case $campaign in
faults) program=mz_faultcampaign ;;
files) program=mz_filecampaign ;;
watch) program=mz_watchrun ;;
recorder) program=mz_recordcampaign ;;
sweep) program=mz_sweepcampaign ;;
week) program=mz_longrun ;;
-h | --help)
    usage
    exit 0
    ;;
*)
    usage >&2
    exit 2
    ;;
esac
shift

slice='' only='' list='' keep='' built=''
jobs=$((2 * $(nproc))) scenarios=200 seed=1 days=7
while [[ $# -gt 0 ]]; do
    case $1 in
    --slice | --list | --keep) declare "${1#--}=${1#--}" ;;
    --only | --jobs | --scenarios | --seed | --days | --built)
        [[ $# -ge 2 ]] || { usage >&2 && exit 2; }
        declare "${1#--}=$2"
        shift
        ;;
    *)
        usage >&2
        exit 2
        ;;
    esac
    shift
done

if [[ -z $built ]]; then
    scripts/install-dependencies.sh build run test
    cmake --preset release
    cmake --build build --target "$program" mz6218-sim mz6218-cli
    built=build
fi
program=$(readlink -f "$built")/tests/$program/$program
export QT_QPA_PLATFORM=offscreen program

case $campaign in
faults)
    if [[ -n $slice ]]; then
        names=$("$program" list slice)
    else
        names=$("$program" list "$scenarios" "$seed")
    fi
    ;;
files) names=$("$program" list | sed "${slice:+s/\$/ in short/}") ;;
recorder)
    names=$("$program" list)
    # Each kind of fault would take too long for a test; the days lie around the change of the clocks.
    [[ -z $slice ]] || names=$'month 2026-10-24, 2 days\nmonth 2027-03-27, 2 days'
    ;;
sweep)
    [[ -z $slice ]] || scenarios=5
    # For each hundred one of the real program, which takes minutes.
    names=$(seq -f 'chamber %.0f' "$seed" $((seed + scenarios / 100 - 1)) &&
        seq -f 'sweep %.0f' "$seed" $((seed + scenarios - 1)))
    ;;
watch | week) names=$campaign ;;
esac
names=$(grep -F -- "$only" <<<"$names") || { echo "There is no such job." >&2 && exit 2; }
if [[ -n $list ]]; then
    echo "$names"
    exit 0
fi

# Beside the program, on the same file system: a link to the program in a folder of its own lets a job's
# files lie apart from those of the others.
folder=$(mktemp -d "$(dirname "$program")/jobs-XXXXXX")
trap 'rm -rf "$folder"' EXIT
export folder

# carry_out NAME: its lines, those of what is wrong with its name; a crash or a hang counts as well.
carry_out() {
    local place=$folder/$SLOT code=0
    mkdir -p "$place"
    [[ -e $place/console ]] || ln "$program" "$place/console"
    (cd "$place" && timeout --kill-after=5 900 ./console run "$1") >"$place/out" 2>"$place/err" || code=$?
    sed "s|^WRONG: |&$1: |" "$place/out"
    grep -q '^figure' "$place/out" && [[ $code -le 1 ]] && return
    printf 'WRONG: %s: ended with %d: %s\n' "$1" "$code" "$(tail -c 2000 "$place/err" | tr '\n' ' ')"
}
export -f carry_out

# Sums the figures up by their groups, as a table, and passes on what is wrong.
report() {
    awk -F '\t' '
        /^figure/ {
            if (!($2 in groups)) { groups[$2]; rows[++n] = $2 }
            if (!($3 in columns)) { columns[$3]; heads[++m] = $3 }
            sums[$2, $3] += $4
            all[$3] += $4
            next
        }
        { print; wrong += /^WRONG/ }
        END {
            line = "| |"; rule = "|---|"; total = "| **all** |"
            for (j = 1; j <= m; ++j) {
                line = line " " heads[j] " |"; rule = rule "--:|"; total = total " " all[heads[j]] " |"
            }
            print line "\n" rule
            for (i = 1; i <= n; ++i) {
                line = "| " rows[i] " |"
                for (j = 1; j <= m; ++j) line = line " " sums[rows[i], heads[j]] + 0 " |"
                print line
            }
            if (n > 1 && m > 1) print total
            print wrong + 0 " wrong"
            exit wrong > 0 || n == 0
        }'
}

# One run that is long by itself.
if [[ $campaign == w* ]]; then
    case $campaign in
    watch) length=${slice:+3} && length=${length:-$((days * 24))} ;;       # hours
    week) length=${slice:+45} && length=${length:-$((days * 24 * 60))} ;; # minutes
    esac
    code=0
    ln "$program" "$folder/console"
    (cd "$folder" && ./console "$length" "$seed") >"$folder/out" || code=$?
    report <"$folder/out" || code=1
    [[ -z $keep ]] || { trap - EXIT && echo "kept in $folder"; }
    exit $code
fi
xargs -d '\n' -P "$jobs" --process-slot-var=SLOT -I NAME bash -c 'carry_out "$1"' _ NAME <<<"$names" | report
