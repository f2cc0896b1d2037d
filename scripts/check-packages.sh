#!/bin/bash
# Makes the packages of a finished build and uses each as a user would: installs or unpacks it into a
# fresh root that holds what it asks for and nothing else, and starts the programs there as an ordinary
# user. The packages stay in BUILD-FOLDER/packages, the machine stays as it is. Needs the right of root,
# for another root and another user.
#   check-packages.sh [BUILD-FOLDER]     ends with 77 where even root may not mount, as in a container
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

build=$(readlink -f "${1:-build}")
readonly user=+1000:+1000 home=/home/user
readonly instrument=127.62.18.1 # port 5001 of 127.0.0.1 may be taken
# What the README of the portable archive asks of a desktop.
readonly desktop=(libgl1 libx11-xcb1 libxrender1 libsm6 libice6 libfontconfig1 libfreetype6 libpng16-16
    libharfbuzz0b libglib2.0-0 libdbus-1-3 libgssapi-krb5-2 libcups2 libzstd1 zlib1g fonts-dejavu-core)

[[ $EUID -eq 0 ]] || exec sudo scripts/check-packages.sh "$build"
if ! unshare --mount mount -t proc proc /mnt 2>/dev/null; then
    echo "skipped: a root of its own needs the right to mount"
    exit 77
fi

state=$(mktemp -d /var/tmp/mz6218-packages.XXXXXX)
declare -A pids=()
clean_up() {
    trap - EXIT INT TERM HUP
    local pid
    for pid in "${pids[@]}"; do
        kill -KILL "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    rm -rf "$state"
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM
trap 'exit 129' HUP

fail() {
    echo "FAILED: $1" >&2
    tail -n 20 "$state"/*.txt >&2
    exit 1
}

# check WHAT COMMAND...
check() {
    local what=$1
    shift
    "$@" || fail "$what"
    echo "  $what"
}

# check_soon WHAT COMMAND...: the command has half a minute to succeed.
check_soon() {
    local what=$1 deadline=$((SECONDS + 30))
    shift
    until "$@" 2>/dev/null; do
        [[ $SECONDS -lt $deadline ]] || fail "$what (within 30 seconds)"
        sleep 0.1
    done
    echo "  $what"
}

# --- A fresh root

# The given packages, the essential ones, and all that these depend on.
closure() {
    local essential
    # shellcheck disable=SC2016 # dpkg's own variables
    essential=$(dpkg-query --show --showformat='${Package} ${Essential}\n' | sed -n 's/ yes$//p')
    # shellcheck disable=SC2016,SC2086 # as above, and a list of names
    apt-cache depends --recurse --installed --no-recommends --no-suggests --no-conflicts --no-breaks \
        --no-replaces --no-enhances $essential "$@" | grep -v '^[ <|]' | sort -u |
        xargs dpkg-query --show --showformat='${db:Status-Status} ${binary:Package}\n' 2>/dev/null |
        sed -n 's/^installed //p'
}

# make_root NAME PACKAGE...: a copy of these packages' files, which dpkg there knows of.
make_root() {
    root=$state/$1
    shift
    local info=$root/var/lib/dpkg/info folder packages package
    mkdir -p "$root"/{etc,tmp,proc,dev,var/lib/dpkg/{updates,triggers}} "$info" "$root$home"
    for folder in bin sbin lib lib32 lib64 libx32; do
        mkdir -p "$root/usr/$folder"
        ln -s "usr/$folder" "$root/$folder"
    done
    mapfile -t packages < <(closure "$@")
    for package in "${packages[@]}"; do
        cp /var/lib/dpkg/info/"$package".list "$info"
    done
    dpkg-query --status "${packages[@]}" >"$root/var/lib/dpkg/status"
    # A slim machine lacks documents that its packages list.
    sort -u "$info"/*.list | grep -v '^/\.$' |
        tar -C / --create --no-recursion --ignore-failed-read --files-from - 2>/dev/null |
        tar -C "$root" --extract --keep-directory-symlink
    ldconfig -r "$root"
    chown "$user" "$root$home"
    chmod 700 "$root$home"
    chmod 1777 "$root/tmp"
}

# All files there, without what the user may write and what dpkg notes.
listing() {
    (cd "$root" && find . \( -path ".$home" -o -path ./tmp -o -path ./var/lib/dpkg \) -prune -o \
        \( -type d -printf '%p\n' -o -printf '%p %s %m %T@ %l\n' \) | sort)
}

# inside COMMAND...: becomes this command there, run by the user.
inside() {
    # shellcheck disable=SC2016 # the inner shell's variables
    exec unshare --mount sh -ec '
        root=$1
        shift
        mount -t proc proc "$root/proc"
        mount --rbind /dev "$root/dev"
        mkdir -p "$root/tmp/.X11-unix"
        mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
        exec chroot --userspec='$user' --groups= "$root" env --ignore-environment --chdir='$home' "$@"
    ' sh "$root" HOME="$home" PATH=/usr/bin:/bin LC_ALL=C.UTF-8 DISPLAY="$DISPLAY" XDG_RUNTIME_DIR="$home" "$@"
}

# --- Programs there

# start NAME [VARIABLE=VALUE...] COMMAND...: in the background; what it prints goes into NAME.txt.
start() {
    (inside "${@:2}") >"$state/$1.txt" 2>&1 &
    pids[$1]=$!
}

# stop NAME: asks it to end, as the end of a session does; its exit code.
stop() {
    local pid=${pids[$1]} code=0
    unset "pids[$1]"
    kill "$pid"
    wait "$pid" || code=$?
    return $code
}

has_window() {
    [[ -n $(xdotool search --onlyvisible --name "$1") ]]
}

tells_version() {
    [[ $(inside "$1" --version) == "${1##*/} $version" ]]
}

# has_records FOLDER NUMBER: at least so many, below the heading.
has_records() {
    [[ $(cat "$1"/DataRecord/*.csv | wc -l) -gt $2 ]]
}

# records_begin_with FOLDER FILE
records_begin_with() {
    cat "$1"/DataRecord/*.csv | head -c "$(stat -c %s "$2")" | cmp - "$2"
}

# qt_is_in FOLDER NAME: all of the Qt that the program has loaded, platform plugin included.
qt_is_in() {
    local loaded
    loaded=$(grep -oE '/.*/(libQt5|libq|qtbase_)[^/]*$' "/proc/${pids[$2]}/maps" | sort -u)
    grep -q 'libqxcb\.so' <<<"$loaded" && ! grep -vF "$1/" <<<"$loaded"
}

# has_loaded NAME FILE
has_loaded() {
    grep -qF "/$2" "/proc/${pids[$1]}/maps"
}

# check_programs BIN FOLDER QT SAMPLES: the programs of BIN are started; the console is to keep its files
# in FOLDER; Qt is to come from below QT.
check_programs() {
    local bin=$1 folder=$root$2 program
    listing >"$state/before"
    for program in mz6218 mz6218-cli mz6218-sim mz6218-patterns; do
        check "$program tells its version" tells_version "$bin/$program"
    done
    start simulator "$bin/mz6218-sim" --listen $instrument
    check_soon "the simulated instrument listens" grep -q '^Listening on' "$state/simulator.txt"

    start console "$bin/mz6218" --language cn --lan $instrument
    check_soon "the console records" has_records "$folder" 1
    check "it uses the right Qt" qt_is_in "$3" console
    [[ ! -d $root$3/translations ]] || check "Qt's own texts are Chinese" has_loaded console qtbase_zh_CN.qm
    check "it has the manual" test -s "$root$(readlink "$folder/help.pdf" || echo "$2/help.pdf")"
    check "it logs" test -n "$(find "$folder/Log" -type f)"
    check "it ends when asked to" stop console
    check "it keeps its settings" grep -qx "IP:$instrument" "$folder/config.ini"

    sed -i 's/^Interval:.*/Interval:7/; s/^Period:.*/Period:3/' "$folder/config.ini"
    cp "$folder/config.ini" "$state/settings"
    cat "$folder"/DataRecord/*.csv >"$state/records"
    start console "$bin/mz6218" --lan $instrument
    check_soon "a second start records too" has_records "$folder" 2
    check "it ends when asked to" stop console
    check "it kept the settings" cmp "$folder/config.ini" "$state/settings"
    check "it kept the records" records_begin_with "$folder" "$state/records"

    start workbench "$bin/mz6218-patterns" "$4/horn.csv"
    check_soon "the workbench opens a curve" has_window ' - Antenna Pattern Workbench$'
    check "it uses the right Qt" qt_is_in "$3" workbench
    check "it ends when asked to" stop workbench
    check "the simulated instrument ends when asked to" stop simulator
    listing >"$state/after"
    check "nothing but the user's own files was written" diff "$state/before" "$state/after"
}

# --- The Debian package

install_package() {
    dpkg --root="$root" --install "$1" >"$state/dpkg.txt" 2>&1
}

remove_package() {
    dpkg --root="$root" --purge mz6218 >"$state/dpkg.txt" 2>&1
}

# The same package as of a later version, with another console.
make_upgrade() {
    dpkg-deb --raw-extract "$1" "$state/later"
    sed -i 's/^Version:.*/&.later/' "$state/later/DEBIAN/control"
    echo later >>"$state/later/usr/lib/mz6218/bin/mz6218"
    dpkg-deb --build --root-owner-group "$state/later" "$state/later.deb" >/dev/null
}

# Where this machine runs systemd, the package's unit is started with the package's program; elsewhere
# the unit is read by systemd's own check, and that is said.
check_unit() {
    local unit=mz6218-record@.service instance=mz6218-record@packagecheck page
    # Apart from dpkg, which leaves out manuals and documents on slim machines.
    dpkg-deb --extract "$1" "$state/extracted"
    for page in mz6218 mz6218-cli mz6218-sim mz6218-patterns; do
        check "manual page of $page" gzip --test "$state/extracted/usr/share/man/man1/$page.1.gz"
    done
    check "completion" bash -n "$root/usr/share/bash-completion/completions/mz6218-cli"
    check "the example of a configuration is one that works" example_works
    if [[ ! -d /run/systemd/system ]]; then
        echo "  not checked: the unit itself, since systemd does not run here"
        return
    fi
    if [[ -e /usr/lib/systemd/system/$unit || -e /etc/mz6218/packagecheck.toml ]]; then
        echo "  not checked: the unit itself, since the package is installed on this machine"
        return
    fi
    install -D -m 644 "$root/usr/lib/sysusers.d/mz6218.conf" /run/sysusers.d/mz6218.conf
    systemd-sysusers mz6218.conf
    sed "s|/usr/bin/mz6218-cli|$build/bin/mz6218-cli|; /^ProtectHome=/d" "$root/usr/lib/systemd/system/$unit" \
        >/run/systemd/system/$unit
    install -d /etc/mz6218
    printf 'lan = "127.0.0.1:1"\nname = "packagecheck"\n[record]\nevery = "1s"\n' >/etc/mz6218/packagecheck.toml
    systemctl daemon-reload
    check "the unit starts" systemctl start "$instance"
    check_soon "it writes rows" grep -q link /var/lib/mz6218/packagecheck-*.csv
    check "it ends when asked to" systemctl stop "$instance"
    check "it ended well" test "$(systemctl show --value --property Result "$instance")" = success
    rm -f /run/systemd/system/$unit /run/sysusers.d/mz6218.conf /etc/mz6218/packagecheck.toml \
        /var/lib/mz6218/packagecheck-*
    systemctl daemon-reload
}

# With its address changed to one where nobody answers, it is the link that fails and not a word in it.
example_works() {
    local code=0
    sed 's/192.168.1.20/127.0.0.1:1/; s|^out = .*|out = "/tmp/example"|' \
        "$state/extracted/usr/share/doc/mz6218/examples/bench1.toml" >"$root/tmp/example.toml"
    (inside /usr/bin/mz6218-cli --config /tmp/example.toml record --no-wait) 2>"$state/example.txt" || code=$?
    [[ $code -eq 3 ]]
}

check_debian_package() {
    local package=$1 folder=$home/.local/share/mz6218 depends
    depends=$(dpkg-deb --field "$package" Depends | sed 's/([^)]*)//g; s/[,|]/ /g')
    # shellcheck disable=SC2086 # a list of names
    make_root debian $depends
    listing >"$state/without"
    check "it installs with all that it depends on" install_package "$package"
    check "desktop entries" desktop-file-validate "$root"/usr/share/applications/mz6218*.desktop
    check "licence" test -s "$root/usr/share/doc/mz6218/copyright"
    check_unit "$package"
    check_programs /usr/bin "$folder" /usr/lib /usr/lib/mz6218/samples

    make_upgrade "$package"
    check "a later version installs" install_package "$state/later.deb"
    start console mz6218
    check_soon "it starts" has_window '^MZ6218 '
    check "it ends when asked to" stop console
    check "it was the later version" cmp "$root$folder/mz6218" "$root/usr/lib/mz6218/bin/mz6218"
    check "it kept the settings" cmp "$root$folder/config.ini" "$state/settings"
    check "it kept the records" records_begin_with "$root$folder" "$state/records"

    start console MZ6218_HOME=/usr/share/mz6218 mz6218
    check_soon "a folder that cannot be written is told on the screen" has_window '^Note$'
    check "and on the terminal" grep -q 'cannot keep settings.*/usr/share/mz6218' "$state/console.txt"
    check "it ends when asked to" stop console

    check "it can be removed" remove_package
    listing >"$state/after"
    check "it leaves nothing behind" diff "$state/without" "$state/after"
    check "but what the user measured" has_records "$root$folder" 2
}

# --- The portable archive

check_portable_archive() {
    local folder="$home/my 测量 folder"
    make_root portable "${desktop[@]}"
    check "there is no Qt" test -z "$(find "$root" -name 'libQt5*')"
    mkdir "$root$folder"
    tar -C "$root$folder" --extract --no-same-owner --strip-components 1 --file "$1"
    chown -R "$user" "$root$folder"
    check "licences" test -s "$root$folder/licences/LICENSE" -a -s "$root$folder/licences/libqt5core5a.txt"
    check_programs "$folder/bin" "$folder/bin" "$folder" "$folder/samples"
}

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
as_user=()
[[ -z ${SUDO_USER:-} ]] || as_user=(sudo -u "$SUDO_USER")
rm -rf "$build/packages"
(cd "$build" && "${as_user[@]}" cpack -B "$build/packages") >"$state/cpack.txt" 2>&1 || fail "cpack"

mkdir -p /tmp/.X11-unix
Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$state/display" 2>"$state/screen.txt" &
pids[screen]=$!
check_soon "a virtual screen" test -s "$state/display"
DISPLAY=:$(<"$state/display")
export DISPLAY

for package in "$build"/packages/*.deb; do
    echo "${package##*/}:"
    check_debian_package "$package"
done
for package in "$build"/packages/*.tar.gz; do
    echo "${package##*/}:"
    check_portable_archive "$package"
done
