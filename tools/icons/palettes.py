# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""The colours of the icons by role, one palette for each background."""

from drawing import Colour

#: Roles: ink (outlines), accent (the part that carries the meaning), tint (bodies), paper
#: (pages), red and rose (seals, deletion, proof marks), yellow (highlight, notes).
DARK = {
    "ink": Colour("#454545"),
    "accent": Colour("#0078c8"),
    "tint": Colour("#cfe8f9"),
    "paper": Colour("#ffffff"),
    "red": Colour("#cc2f38"),
    "rose": Colour("#fbe0e1"),
    "yellow": Colour("#ffd45c"),
}

#: For the top line of marodi, whose colour the host may change: white, and translucent white.
LIGHT = {
    "ink": Colour("#ffffff"),
    "accent": Colour("#ffffff"),
    "tint": Colour("#ffffff", 0.28),
    "paper": None,
    "red": Colour("#ffffff"),
    "rose": Colour("#ffffff", 0.28),
    "yellow": Colour("#ffffff", 0.28),
}

#: For lum: neutral and darker outlines and a deeper blue.
NEUTRAL = dict(
    DARK,
    ink=Colour("#333333"),
    accent=Colour("#1368ad"),
    tint=Colour("#d6e5f3"),
)

#: The backgrounds of each palette: menu, row, and a hovered or checked control on a row. DARK and
#: NEUTRAL are for the rows of marodi and lum, LIGHT for the top line of marodi.
GROUNDS = [
    (DARK, ("#ffffff", "#f5f5f5", "#eaeaea", "#d3d3d3")),
    (LIGHT, ("#008ad9", "#1460ab")),
    (NEUTRAL, ("#ffffff", "#f4f4f4", "#c3c6ca")),
]

#: The roles with a meaning, and their least contrast with each background.
TELLING_ROLES, LEAST_CONTRAST = ("ink", "accent", "red"), 3


def _luminance(value):
    channels = [int(value[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    red, green, blue = (c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4
                        for c in channels)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    """The contrast of two colours, from 1 to 21."""
    darker, lighter = sorted((_luminance(one), _luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


def faint_colours():
    """The roles with too little contrast, as (colour, background)."""
    return [(palette[role].value, ground) for palette, grounds in GROUNDS
            for role in TELLING_ROLES for ground in grounds
            if contrast(palette[role].value, ground) < LEAST_CONTRAST]
