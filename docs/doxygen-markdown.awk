# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

# Converts a guide for Doxygen: headings get the anchors that links between the guides use, with the
# file name as a prefix; fences of code blocks keep only the language; a picture is named without its
# folder; the text of a link has no backticks, which Doxygen would print; and a link to a page that is
# not an input of Doxygen becomes its text.

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
    gsub(/\]\((docs\/)?host-guide\.md#/, "](#host-guide-")
    gsub(/\]\((docs\/)?description-format\.md#/, "](#description-format-")
    gsub(/\]\((docs\/)?skins\.md#/, "](#skins-")
}

!inCode {
    pages = "docs/(architecture|quality)\\.md|(CONTRIBUTING|CHANGELOG)\\.md|LICENSE"
    files = "(docs/)?uiconfig\\.xsd|toolbar/MRToolBar\\.h|(\\.\\./)?examples/[a-z]+"
    other = "\\[[^]]*\\]\\((" pages "|" files ")\\)"
    while (match($0, other)) {
        text = substr($0, RSTART + 1, RLENGTH)
        sub(/\].*/, "", text)
        $0 = substr($0, 1, RSTART - 1) text substr($0, RSTART + RLENGTH)
    }
}

!inCode {
    line = ""
    while (match($0, /\[[^]]*\]\([^)]*\)/)) {
        link = substr($0, RSTART, RLENGTH)
        if (RSTART > 1 && substr($0, RSTART - 1, 1) == "!")
            sub(/\(.*\//, "(", link)
        else
            gsub(/`/, "", link)
        line = line substr($0, 1, RSTART - 1) link
        $0 = substr($0, RSTART + RLENGTH)
    }
    $0 = line $0
}

{ print }
