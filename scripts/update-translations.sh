#!/bin/sh
# Brings src/resources/translations up to date with the texts in the sources and lists what a person
# has yet to translate (with Qt Linguist: linguist src/resources/translations/lx_cn.ts).
set -eu
exec python3 "$(dirname "$0")/translations.py" update "$@"
