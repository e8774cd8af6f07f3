#!/usr/bin/env bash
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# at_dpi.sh DPI COMMAND...: runs a command on a screen of that density.
set -euo pipefail

dpi=$1
shift
numbers=$(mktemp -u)
mkfifo "$numbers"
Xvfb -displayfd 3 -screen 0 2600x1800x24 -dpi "$dpi" 3>"$numbers" 2>/dev/null &
server=$!
trap 'kill "$server"; rm -f "$numbers"' EXIT
read -r number <"$numbers"
DISPLAY=:$number QT_QPA_PLATFORM=xcb "$@"
