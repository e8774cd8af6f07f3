# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# shellcheck shell=bash
# Functions shared by the scripts of this folder, which source this file.

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

# The packages that every build and every window needs; need_qt and the scripts add more.
needed=(g++ cmake ninja-build fonts-noto-cjk)

# Set by start_xvfb and used by stop_xvfb.
xvfb_pid=
scratch=

say()
{
    printf '%s: %s\n' "${0##*/}" "$*"
}

die()
{
    say "$*" >&2
    exit 1
}

usage_error()
{
    say "$*; --help lists the options" >&2
    exit 2
}

# require_one_of OPTION VALUE CHOICE...
require_one_of()
{
    local option=$1 value=$2 choice
    shift 2
    for choice in "$@"; do
        [[ $value == "$choice" ]] && return
    done
    usage_error "$option takes one of: $*, not '$value'"
}

# need_qt VERSION: adds the headers of Qt, the plug-in for SVG icons, the library that the example
# reader opens files with, the tools for translations and the translations of Qt; also what tells
# whether an X server composes its windows, what spells Chinese texts, and what the reader needs for
# kinds of pictures that Qt does not decode and for signatures.
need_qt()
{
    needed+=(pkg-config libxcb1-dev libicu-dev libopenjp2-7-dev libjbig2dec0-dev libssl-dev)
    case $1 in
        5)
            needed+=(qtbase5-dev libqt5svg5 libquazip1-qt5-dev qt5-image-formats-plugins
                qttools5-dev qttranslations5-l10n)
            ;;
        6)
            needed+=(qt6-base-dev libqt6svg6 libquazip1-qt6-dev qt6-image-formats-plugins
                qt6-tools-dev qt6-l10n-tools qt6-translations-l10n)
            ;;
    esac
}

is_installed()
{
    [[ $(dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null) == installed* ]]
}

as_root()
{
    if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

# Waits for the lock, because an automatic upgrade may run after booting.
run_apt()
{
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -q -y -o DPkg::Lock::Timeout=300 "$@" </dev/null 2>&1
}

# Installs the missing packages; does not call apt if there are none.
install_needed()
{
    local package output missing=()
    command -v dpkg-query >/dev/null || die "this system has no Debian packages to build with"
    for package in "${needed[@]}"; do
        is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    ((EUID == 0)) || command -v sudo >/dev/null \
        || die "root or sudo is needed to install: ${missing[*]}"
    say "installing (this may take some minutes): ${missing[*]}"
    # The update fails if one of several sources is unreachable. That may be a source that is not
    # needed, so only a failure of the installation counts.
    output=$(run_apt update) || true
    output+=$'\n'$(run_apt install --no-install-recommends "${missing[@]}") || {
        printf '%s\n' "$output" >&2
        die "could not install: ${missing[*]}"
    }
}

# cached DIRECTORY NAME: the value of a setting in a build directory, empty if there is none.
cached()
{
    if [[ -f $1/CMakeCache.txt ]]; then
        sed -n "s/^$2:[A-Z]*=//p" "$1/CMakeCache.txt"
    fi
}

# is_configured DIRECTORY NAME=VALUE...
is_configured()
{
    local directory=$1 setting
    shift
    [[ -f $directory/build.ninja ]] || return 1
    for setting in "CMAKE_HOME_DIRECTORY=$root" "$@"; do
        [[ $(cached "$directory" "${setting%%=*}") == "${setting#*=}" ]] || return 1
    done
}

# configure DIRECTORY NAME=VALUE...: does nothing when the directory has these settings already;
# Ninja itself notices changed CMake files.
configure()
{
    local directory=$1 options=()
    shift
    is_configured "$directory" "$@" && return
    # CMake refuses the cache of a checkout that was moved or copied.
    [[ $(cached "$directory" CMAKE_HOME_DIRECTORY) == "$root" ]] || options+=(--fresh)
    command -v ccache >/dev/null && options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake "${options[@]}" "${@/#/-D}" -S "$root" -B "$directory" -G Ninja
}

# start_xvfb DPI: starts an X server on a free display number and exports DISPLAY.
start_xvfb()
{
    local dpi=$1 width height number reply
    # The size of the screen is proportional to the density, so that windows fit on every screen.
    width=$((dpi > 96 ? 1600 * dpi / 96 : 1600))
    height=$((dpi > 96 ? 1200 * dpi / 96 : 1200))
    scratch=$(mktemp -d)
    trap stop_xvfb EXIT
    # -noreset: after the last client has left, the next test would connect during a reset.
    exec {reply}< <(exec Xvfb -displayfd 3 -screen 0 "${width}x${height}x24" -dpi "$dpi" \
        -noreset -nolisten tcp -wr 3>&1 >"$scratch/xvfb.log" 2>&1)
    xvfb_pid=$!
    read -r -t 60 -u "$reply" number \
        || die "Xvfb does not start: $(tail -n 1 "$scratch/xvfb.log")"
    exec {reply}<&-
    use_display ":$number"
    ((dpi == 96)) || use_density "$dpi" "$width" "$height"
}

stop_xvfb()
{
    if [[ $xvfb_pid ]]; then
        kill "$xvfb_pid" 2>/dev/null || true
        wait "$xvfb_pid" 2>/dev/null || true
    fi
    rm -rf "$scratch"
}

# use_display DISPLAY: exports DISPLAY and removes the settings of the user's desktop.
use_display()
{
    unset WAYLAND_DISPLAY XDG_CURRENT_DESKTOP QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE \
        QT_FONT_DPI QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_AUTO_SCREEN_SCALE_FACTOR
    export DISPLAY=$1 QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=$scratch
}

# use_density DPI WIDTH HEIGHT: Qt 5 uses the density of the X server. Qt 6 also needs a monitor
# with a size in millimetres, and the density of the fonts.
use_density()
{
    local dpi=$1 width=$2 height=$3
    local size="$width/$((width * 254 / dpi / 10))x$height/$((height * 254 / dpi / 10))"
    xrandr --setmonitor dense "$size+0+0" screen >/dev/null
    export QT_FONT_DPI=$dpi
}
