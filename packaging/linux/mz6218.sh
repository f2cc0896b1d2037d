#!/bin/sh
# Starts the meter console from a folder of the user's own: it keeps settings, records and logs beside
# its program file, and the installed one lies where an ordinary user may not write.
set -eu

installed=$(readlink -f "$(dirname "$(readlink -f "$0")")/../lib/mz6218/bin")
folder=${MZ6218_HOME:-${XDG_DATA_HOME:-${HOME:-}/.local/share}/mz6218}

# Puts the installed console into the folder. A copy, not a link: the program finds its folder by the
# file that runs. It is put in place whole, so that an update during a measurement leaves the running
# console alone.
bring_up_to_date() {
    cmp -s "$installed/mz6218" "$folder/mz6218" && return
    new=$(mktemp "$folder/.mz6218.XXXXXX") || return
    cp "$installed/mz6218" "$new" && chmod 755 "$new" && mv -f "$new" "$folder/mz6218" && return
    rm -f "$new"
    return 1
}

if mkdir -p "$folder" && folder=$(cd "$folder" && pwd) && [ -w "$folder" ] && bring_up_to_date &&
    [ -x "$folder/mz6218" ]; then
    ln -sfn "$installed/help.pdf" "$folder/help.pdf" || true
    cd "$folder"
    exec "$folder/mz6218" "$@"
fi

# Its window says what cannot be written; most users never see this text.
echo "mz6218: cannot keep settings, records and log in \"$folder\"." >&2
echo "mz6218: the variable MZ6218_HOME names another folder." >&2
exec "$installed/mz6218" "$@"
