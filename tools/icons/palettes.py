"""The colours of the icons by role, one palette for each ground they stand on."""

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

#: For the theme-coloured strip, whose colour the host may change: white, and white that lets
#: the ground through.
LIGHT = {
    "ink": Colour("#ffffff"),
    "accent": Colour("#ffffff"),
    "tint": Colour("#ffffff", 0.28),
    "paper": None,
    "red": Colour("#ffffff"),
    "rose": Colour("#ffffff", 0.28),
    "yellow": Colour("#ffffff", 0.28),
}

#: The second skin: a neutral, darker line and a deeper blue.
NEUTRAL = dict(
    DARK,
    ink=Colour("#333333"),
    accent=Colour("#1368ad"),
    tint=Colour("#d6e5f3"),
)
