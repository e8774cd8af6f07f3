#!/usr/bin/env bash
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Builds the library with both versions of Qt and runs its tests; --help lists the options.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=common.sh
source "$(dirname -- "${BASH_SOURCE[0]}")/common.sh"

suppressions=$root/tests/support/lsan.supp
versions=(5 6)
# With the prefix of packages, whose paths CMake chooses by it.
settings=(MRTOOLBAR_WERROR=ON CMAKE_INSTALL_PREFIX=/usr)
suffix=
result=0

show_help()
{
    cat <<'END'
Usage: scripts/test.sh [OPTION]...
Builds everything on Qt 5 and on Qt 6 and runs the tests of both, after installing what they
need (Debian 12). Ends with an error if anything fails on either.

  --qt 5|6    only this version of Qt
  --sanitize  with the address and undefined-behaviour sanitizers
  --help      show this text
END
}

read_options()
{
    while (($#)); do
        case $1 in
            --qt) require_one_of "$1" "${2-}" 5 6 && versions=("$2") && shift ;;
            --sanitize) sanitize ;;
            --help) show_help && exit ;;
            *) usage_error "unknown option '$1'" ;;
        esac
        shift
    done
}

sanitize()
{
    [[ -r $suppressions ]] || die "cannot read $suppressions"
    settings+=("MRTOOLBAR_SANITIZE=address,undefined")
    suffix=-sanitize
    export LSAN_OPTIONS="suppressions='$suppressions':print_suppressions=0"
    export UBSAN_OPTIONS=print_stacktrace=1
    # Without GL, because its driver leaks memory and is unloaded before the leak can be attributed.
    export QT_XCB_GL_INTEGRATION=none
}

# build VERSION
build()
{
    local directory=$root/build/qt$1$suffix
    say "building with Qt $1"
    configure "$directory" "MRTOOLBAR_QT_MAJOR=$1" "${settings[@]}" && cmake --build "$directory"
}

# run_tests VERSION: one test after the other, as they share the pointer and the focus.
run_tests()
{
    say "testing with Qt $1"
    # Overwrites freed memory, so that its use fails, in Qt as well. The sanitizers detect it
    # without these settings.
    [[ $suffix ]] || local -x GLIBC_TUNABLES=glibc.malloc.tcache_count=0 MALLOC_PERTURB_=165
    ctest --test-dir "$root/build/qt$1$suffix" --output-on-failure --no-tests=error --timeout 300
}

read_options "$@"
needed+=(xvfb python3 libxml2-utils pkg-config clang-format
    dpkg-dev file lintian appstream desktop-file-utils)
for version in "${versions[@]}"; do
    need_qt "$version"
done
install_needed

# The tests run after both builds, so that their summaries are at the end of the output.
built=()
unbuilt=()
for version in "${versions[@]}"; do
    if build "$version"; then built+=("$version"); else unbuilt+=("$version"); fi
done
for version in "${unbuilt[@]}"; do
    say "the build with Qt $version failed, its tests do not run" >&2
    result=1
done

start_xvfb 96
for version in "${built[@]}"; do
    run_tests "$version" || result=1
done
exit "$result"
