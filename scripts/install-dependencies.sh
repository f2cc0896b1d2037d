#!/bin/bash
# Installs the Debian packages that are missing, and says which. Sets of packages, any number of them:
#   build   compiling the programs          run      running them
#   virtual running them without a display  test     building and running the tests
#   ci      the checks of .ci/run           bench    the benchmarks
#   pictures making the documents' pictures
set -euo pipefail

declare -A sets=(
    # The fonts are those of the manual.
    [build]="cmake g++ make ninja-build python3 libcli11-dev qtbase5-dev libqt5charts5-dev libqt5serialport5-dev
             qttools5-dev qttools5-dev-tools fonts-dejavu-core fonts-wqy-microhei"
    # Qt's own texts in Chinese, and fonts for both languages.
    [run]="qttranslations5-l10n fonts-dejavu-core fonts-wqy-microhei"
    [virtual]="xvfb xauth imagemagick"
    [test]="libhamlib-utils xvfb locales mold xauth xclip xdotool imagemagick nec2c"
    [ci]="clang clang-format clang-tidy g++-mingw-w64-x86-64-posix desktop-file-utils git libclang-rt-dev
          llvm nsis prometheus shellcheck"
    [pictures]="xvfb xauth imagemagick xdotool poppler-utils"
    [bench]="libqwt-qt5-dev libqcustomplot-dev python3-pandas"
)

usage() {
    sed -n '2,6s/^# \?//p' "$0"
    echo "usage: $(basename "$0") SET..."
}

wanted=()
for name in "$@"; do
    case $name in
    -h | --help)
        usage
        exit 0
        ;;
    esac
    if [[ -z ${sets[$name]:-} ]]; then
        echo "There is no set \"$name\"." >&2
        usage >&2
        exit 2
    fi
    read -ra packages -d '' <<<"${sets[$name]}" || true
    wanted+=("${packages[@]}")
done

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "This system has no apt-get. If the build misses something, install what these Debian" \
        "packages hold: ${wanted[*]}" >&2
    exit 0
fi

missing=()
for package in "${wanted[@]}"; do
    state=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
    [[ $state == installed || " ${missing[*]} " == *" $package "* ]] || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

as_root=()
if [[ $EUID -ne 0 ]]; then
    if ! command -v sudo >/dev/null; then
        echo "Missing packages: ${missing[*]}" >&2
        echo "There is no sudo here; install them as root: apt-get install ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "Installing: ${missing[*]}"
apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 --quiet=2)
# An outdated index is good enough as long as it still leads to the packages.
"${apt[@]}" update || echo "The package index could not be brought up to date; trying the present one." >&2
"${apt[@]}" install --yes --no-install-recommends "${missing[@]}" >/dev/null
