#!/usr/bin/env bash
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Builds the example reader and opens it; --help lists the options.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=common.sh
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

example=mrtoolbar-reader
qt=5
skin=marodi
language=zh_CN
description=
dpi=
screenshot=

show_help()
{
    cat <<'END'
Usage: scripts/demo.sh [OPTION]...
Opens the example reader, after installing and building what it needs (Debian 12).
Without a display it opens on one of its own, and a picture of the window is saved.

  --qt 5|6            version of Qt to build with (5)
  --skin marodi|lum   skin to show (marodi)
  --language NAME     texts of the reader itself: zh_CN or en (zh_CN)
  --description FILE  toolbar description to show: a file, reader for the reader's own, or
                      release or debug for the skin's own (reader)
  --dpi N             density of a display of its own, 48 to 384 (96); no window on yours
  --screenshot FILE   save a picture of the window to this .png file and end
  --help              show this text
END
}

require_description()
{
    [[ $1 == release || $1 == debug || (-f $1 && -r $1) ]] || usage_error "--description: cannot read a file '$1'"
}

require_dpi()
{
    if ! [[ $1 =~ ^[1-9][0-9]{1,2}$ ]] || (($1 < 48 || $1 > 384)); then
        usage_error "--dpi takes a number from 48 to 384, not '$1'"
    fi
}

require_screenshot()
{
    local folder
    [[ $1 == ?*.png ]] || usage_error "--screenshot takes a file name ending in .png, not '$1'"
    folder=$(dirname -- "$1")
    [[ -d $folder && -w $folder && ! -d $1 ]] || usage_error "--screenshot: cannot write '$1'"
}

read_options()
{
    while (($#)); do
        case $1 in
            --qt) require_one_of "$1" "${2-}" 5 6 && qt=$2 ;;
            --skin) require_one_of "$1" "${2-}" marodi lum && skin=$2 ;;
            --language) require_one_of "$1" "${2-}" zh_CN en && language=$2 ;;
            --description) require_description "${2-}" && description=$2 ;;
            --dpi) require_dpi "${2-}" && dpi=$2 ;;
            --screenshot) require_screenshot "${2-}" && screenshot=$2 ;;
            --help) show_help && exit ;;
            *) usage_error "unknown option '$1'" ;;
        esac
        shift 2
    done
}

needs_own_display()
{
    [[ $dpi || -z ${DISPLAY-}${WAYLAND_DISPLAY-} ]]
}

need_display()
{
    if needs_own_display; then
        needed+=(xvfb)
        # Contains xrandr, which use_density calls.
        [[ ${dpi:-96} == 96 ]] || needed+=(x11-xserver-utils)
    elif [[ -z ${DISPLAY-} ]]; then
        # A Wayland session without an X server needs the platform plug-in of Qt for Wayland.
        case $qt in
            5) needed+=(qtwayland5) ;;
            6) needed+=(qt6-wayland) ;;
        esac
    fi
}

open_example()
{
    local arguments=(--sample --skin "$skin" --language "$language")
    if needs_own_display; then
        : "${screenshot:=$build/$example-$skin-${dpi:-96}dpi.png}"
        start_xvfb "${dpi:-96}"
    elif [[ -z ${DISPLAY-} ]]; then
        # Without this, Qt 5 would look for an X server.
        export QT_QPA_PLATFORM=wayland
    fi
    [[ -z $description ]] || arguments+=(--description "$description")
    [[ -z $screenshot ]] || arguments+=(--screenshot "$screenshot")
    "$build/bin/$example" "${arguments[@]}" || die "the example ended with an error ($?)"
    [[ -z $screenshot ]] || say "picture of the window: $screenshot"
}

read_options "$@"
build=$root/build/qt$qt
need_qt "$qt"
need_display
install_needed
configure "$build" "MRTOOLBAR_QT_MAJOR=$qt"
cmake --build "$build" --target "$example"
open_example
