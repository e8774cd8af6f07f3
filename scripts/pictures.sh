#!/usr/bin/env bash
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Takes the pictures of the toolbar; --help lists the options.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=common.sh
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

version=5
pages=
folder=
showcase=$root/examples/reader/showcase.xml

show_help()
{
    cat <<'END'
Usage: scripts/pictures.sh [OPTION]...
Takes every tab, menu and state of the described toolbars in both skins at 96, 120, 144 and 192
dpi, one sheet each, at 96 and 192 dpi in every scheme, and the sheet of the icons, after installing
what that needs (Debian 12).

  --pages        take the pictures that README.md and the guides show instead
  --qt 5|6       version of Qt (5)
  --out FOLDER   where to (build/pictures; with --pages docs/pictures)
  --help         show this text
END
}

read_options()
{
    while (($#)); do
        case $1 in
            --pages) pages=1 ;;
            --qt) require_one_of "$1" "${2-}" 5 6 && version=$2 && shift ;;
            --out) [[ -n ${2-} ]] || usage_error "--out needs a folder"; folder=$2; shift ;;
            --help) show_help && exit ;;
            *) usage_error "unknown option '$1'" ;;
        esac
        shift
    done
}

# build_programs TARGET...
build_programs()
{
    configure "$build" "MRTOOLBAR_QT_MAJOR=$version"
    cmake --build "$build" --target "$@"
}

# take_sheet NAME SKIN DESCRIPTION WIDTH [OPTION]...
take_sheet()
{
    "$build/bin/mrtoolbar-pictures" --skin "$2" --description "$3" --width "$4" "${@:5}" \
        --out "$folder/$1-${dpi}dpi.png" 2> >(grep -v 'parse stylesheet' >&2)
}

take_sheets_at_density()
{
    local skin
    for skin in marodi lum; do
        take_sheet "$skin-release" "$skin" release 1280
        take_sheet "$skin-showcase" "$skin" "$showcase" 1000
        take_sheet "$skin-showcase-narrow" "$skin" "$showcase" 500
    done
    take_sheet marodi-debug marodi debug 1280
    take_sheet marodi-debug-narrow marodi debug 500
}

take_schemes_at_density()
{
    local skin scheme
    for skin in marodi lum; do
        for scheme in light dark contrast; do
            take_sheet "$skin-$scheme" "$skin" "$showcase" 1000 --scheme "$scheme"
        done
        take_sheet "$skin-system" "$skin" "$showcase" 1000 --scheme system --dark-palette
    done
}

take_sheets()
{
    local dpi
    build_programs mrtoolbar-pictures mrtoolbar-contactsheet
    for dpi in 96 120 144 192; do
        start_xvfb "$dpi"
        take_sheets_at_density
        case $dpi in 96 | 192) take_schemes_at_density ;; esac
        stop_xvfb
        xvfb_pid=
    done
    QT_QPA_PLATFORM=offscreen "$build/bin/mrtoolbar-contactsheet" --out "$folder/icons.png"
}

# The status bar shows the path of the file as given, so a relative path is passed.
take_reader()
{
    local skin
    cd -- "$root"
    for skin in marodi lum; do
        "$build/bin/mrtoolbar-reader" --skin "$skin" --language zh_CN --screenshot "$folder/reader-$skin.png" \
            examples/reader/samples/text.ofd
    done
}

# take_example PROGRAM PICTURE [X Y [X Y]]: takes the window after the start of the program, or
# after a click at the first position in the window, with the pointer at the second one.
take_example()
{
    local program=$1 picture=$folder/guide/$2.png example window
    local X Y WIDTH HEIGHT
    "$build/bin/mrtoolbar-$program" 2>/dev/null &
    example=$!
    window=$(timeout 20 xdotool search --sync --onlyvisible --pid "$example" | tail -n 1)
    xdotool windowsize --sync "$window" 640 200
    eval "$(xdotool getwindowgeometry --shell "$window")"
    if (($# >= 4)); then
        xdotool mousemove $((X + $3)) $((Y + $4)) sleep 0.5 click 1
        (($# < 6)) || xdotool mousemove $((X + $5)) $((Y + $6))
    fi
    sleep 1
    import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage "$picture"
    kill "$example"
    wait "$example" 2>/dev/null || true
    say "$picture"
}

take_guides()
{
    mkdir -p "$folder/guide"
    "$build/bin/mrtoolbar-guide-pictures" "$build/tests/guides/blocks" "$folder/guide" \
        2> >(grep -v 'parse stylesheet' >&2)
    take_example owndescription owndescription 35 19
    take_example ownskin ownskin-night
    take_example ownskin ownskin-forest 290 65 320 180
}

# take_scheme SKIN SCHEME
take_scheme()
{
    "$build/bin/mrtoolbar-pictures" --skin "$1" --description "$showcase" --width 1000 \
        --scheme "$2" --out "$folder/guide/scheme-$1-$2.png" 2> >(grep -v 'parse stylesheet' >&2)
}

take_pages()
{
    build_programs mrtoolbar-reader mrtoolbar-guide-pictures mrtoolbar-owndescription \
        mrtoolbar-ownskin mrtoolbar-pictures
    start_xvfb 96
    take_reader
    take_guides
    take_scheme marodi dark
    take_scheme lum contrast
}

read_options "$@"
if [[ $pages ]]; then
    : "${folder:=$root/docs/pictures}"
    needed+=(xvfb imagemagick xdotool)
else
    : "${folder:=$root/build/pictures}"
    # x11-xserver-utils contains xrandr, which use_density calls.
    needed+=(xvfb x11-xserver-utils)
fi
mkdir -p -- "$folder"
folder=$(cd -- "$folder" && pwd)
need_qt "$version"
install_needed
build=$root/build/qt$version
if [[ $pages ]]; then take_pages; else take_sheets; fi
say "pictures: $folder"
