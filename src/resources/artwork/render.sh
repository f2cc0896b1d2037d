#!/bin/sh
# Renders the artwork into the small files that are compiled into the programs and installed beside
# them. Run it after changing an SVG here and commit what it writes.
# Needs: librsvg2-bin, imagemagick, icoutils.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
resources=$(dirname "$here")
icons=$resources/../../packaging/icons/hicolor
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Another program on the path may bear the short name.
for candidate in /usr/bin/magick /usr/bin/convert magick convert; do
    if command -v "$candidate" >/dev/null; then
        magick=$candidate
        break
    fi
done

# render SOURCE SIZE TARGET
render() {
    rsvg-convert --width "$2" --height "$2" --output "$3" "$1"
}

# icon SOURCE-NAME PROGRAM ICO: up to 32 pixels the simplified drawing, above it the full one.
icon() {
    for size in 16 20 24 32 40 48 64 128 256 512; do
        source=$here/$1.svg
        [ "$size" -gt 32 ] || source=$here/$1-small.svg
        render "$source" "$size" "$work/$2-$size.png"
        case $size in
            512) ;;
            # The largest one is stored as PNG inside, which keeps the file small; without a filter, as
            # it is smaller still and read in a third of the time.
            256)
                "$magick" "$work/$2-$size.png" -define png:compression-filter=0 \
                    -define png:compression-level=9 "$work/$2-raw.png"
                set -- "$@" "--raw=$work/$2-raw.png"
                ;;
            *) set -- "$@" "$work/$2-$size.png" ;;
        esac
        case $size in 20 | 40) continue ;; esac
        mkdir -p "$icons/${size}x$size/apps"
        cp "$work/$2-$size.png" "$icons/${size}x$size/apps/$2.png"
    done
    ico=$3
    shift 3
    icotool --create --output "$ico" "$@"
}

# animation SIZE TARGET: one turn in a second. A GIF knows no half transparency, so the soft edges are
# laid over white, which suits every light background.
animation() {
    frames=25
    frame=0
    while [ "$frame" -lt "$frames" ]; do
        name=$(printf '%s/frame-%02d' "$work" "$frame")
        sed "s/@TURN@/$((frame * 3600 / frames / 10)).$((frame * 3600 / frames % 10))/" \
            "$here/waiting.svg" >"$name.svg"
        render "$name.svg" "$1" "$name.png"
        "$magick" "$name.png" \( +clone -alpha extract -threshold 4% \) \
            \( -clone 0 -background white -alpha remove -alpha off \) \
            -delete 0 +swap -alpha off -compose CopyOpacity -composite "$name.png"
        frame=$((frame + 1))
    done
    "$magick" -delay 4 -dispose Background "$work"/frame-*.png -loop 0 -layers OptimizeTransparency \
        -colors 64 "$2"
}

# control NAME SUFFIX COLOUR: a glyph of the style sheet at its size and at twice that.
control() {
    side=$(sed -n 's/^<svg .* width="\([0-9]*\)".*/\1/p' "$here/controls/$1.svg")
    sed "s/#46535F/$3/g" "$here/controls/$1.svg" >"$work/glyph.svg"
    target=$resources/qss/controls/$1$2
    render "$work/glyph.svg" "$side" "$target.png"
    render "$work/glyph.svg" $((side * 2)) "$target@2x.png"
}

mkdir -p "$resources/image" "$resources/img" "$resources/qss/controls"

icon console mz6218 "$resources/image/pt.ico"
icon workbench mz6218-patterns "$resources/image/patterns.ico"

# Four times the size at which they are shown, so that they stay sharp on a 4K screen.
render "$here/success.svg" 160 "$resources/img/successful.png"
render "$here/failure.svg" 160 "$resources/img/failing.png"
animation 40 "$resources/img/loading.gif"
animation 96 "$resources/image/loading.gif"

for arrow in arrow-down arrow-up; do
    control $arrow "" "#46535F"
    control $arrow -hover "#0687D0"
    control $arrow -disabled "#B9C3CC"
done
for glyph in arrow-left arrow-right close; do
    control $glyph "" "#46535F"
done
for glyph in check dash dot; do
    control $glyph "" "#FFFFFF"
    control $glyph -disabled "#8C99A5"
done
control check -menu "#0687D0"
control dot -menu "#0687D0"
