#!/usr/bin/env bash
# Takes the pictures in docs/pictures/ anew: both skins, every tab, state and menu.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=common.sh
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

build=$root/build/qt5
folder=$root/docs/pictures
showcase=$root/examples/reader/showcase.xml

# picture_set SKIN DESCRIPTION DPI WIDTH PREFIX
picture_set()
{
    "$build/bin/mrtoolbar-pictures" --skin "$1" --description "$2" --width "$(($4 * $3 / 96))" \
        --out "$folder" --prefix "$5"
}

(($# == 0)) || usage_error "takes no options"
need_toolkit 5
needed+=(xvfb x11-xserver-utils)
install_needed
configure "$build" MRTOOLBAR_QT_MAJOR=5
cmake --build "$build" --target mrtoolbar-pictures

mkdir -p "$folder"
rm -f "$folder"/*.png
for dpi in 96 144; do
    start_xvfb "$dpi"
    for skin in marodi lum; do
        picture_set "$skin" release "$dpi" 1280 "$skin-release-${dpi}dpi"
        picture_set "$skin" "$showcase" "$dpi" 1000 "$skin-showcase-${dpi}dpi"
        picture_set "$skin" "$showcase" "$dpi" 500 "$skin-showcase-narrow-${dpi}dpi"
    done
    picture_set marodi debug "$dpi" 1280 "marodi-debug-${dpi}dpi"
    picture_set marodi debug "$dpi" 500 "marodi-debug-narrow-${dpi}dpi"
    stop_xvfb
    xvfb_pid=
done
say "pictures: $folder"
