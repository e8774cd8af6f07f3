# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Converts a guide for Doxygen: headings get the anchors that links between the guides use, with the
# file name as a prefix; fences of code blocks keep only the language; and a link to a page that is not
# an input of Doxygen becomes its text.

FNR == 1 {
    guide = FILENAME
    sub(/.*\//, "", guide)
    sub(/\.md$/, "", guide)
}

/^```/ {
    inCode = !inCode
    sub(/ .*/, "")
    sub(/^```cmake/, "```")
}

!inCode && /^#+ / {
    anchor = $0
    sub(/^#+ /, "", anchor)
    anchor = tolower(anchor)
    gsub(/[^a-z0-9_ -]/, "", anchor)
    gsub(/ /, "-", anchor)
    $0 = $0 " {#" guide "-" anchor "}"
}

!inCode {
    gsub(/\]\(#/, "](#" guide "-")
    gsub(/\]\(host-guide\.md#/, "](#host-guide-")
    gsub(/\]\(description-format\.md#/, "](#description-format-")
    gsub(/\]\(skins\.md#/, "](#skins-")
}

!inCode {
    other = "\\[[^]]*\\]\\((docs/(architecture|quality)\\.md|(CONTRIBUTING|CHANGELOG)\\.md|LICENSE)\\)"
    while (match($0, other)) {
        text = substr($0, RSTART + 1, RLENGTH)
        sub(/\].*/, "", text)
        $0 = substr($0, 1, RSTART - 1) text substr($0, RSTART + RLENGTH)
    }
}

{ print }
