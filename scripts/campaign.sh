#!/bin/bash
# Builds and runs one of the long campaigns; what they try is told in docs/reliability.md.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

usage() {
    cat <<'TEXT'
usage: scripts/campaign.sh faults|files|week [OPTION...]

Builds the campaign into build/ and runs it; the options are the campaign's own (--help lists them).
TEXT
}

case ${1-} in
faults) program=mz_faultcampaign ;;
files) program=mz_filecampaign ;;
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

scripts/install-dependencies.sh build run test
cmake --preset release
cmake --build build --target "$program" mz6218-sim
export QT_QPA_PLATFORM=offscreen
"build/tests/$program/$program" "$@"
