# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""The glyph, grid and background of each file of each skin."""

import re
from collections import namedtuple

import menu_file
import row_annotate
import row_document
import row_navigate
import row_page
import row_review
import row_security
import row_view
import several
import small_annotate
import small_file
import small_find
import small_navigate
import small_review
import small_view
from palettes import DARK, LIGHT, NEUTRAL

#: `path` is relative to Resources/<skin>/. `shown` is the natural width if it is not that of the
#: grid, `height` the height of the grid if the grid is not square.
Icon = namedtuple("Icon", "path glyph grid palette height shown", defaults=(None, None))

#: The number of files in each icon directory. The generator refuses to write another number.
COUNTS = {
    "marodi/icons": 3, "marodi/icons/icon16": 135, "marodi/icons/icon20": 15,
    "marodi/icons/icon24": 133, "marodi/icons/icon19-22": 1,
    "lum/icons/icon16": 31, "lum/icons/icon20": 11, "lum/icons/icon24": 67,
    "lum/icons/icon34": 1, "lum/icons/icon19-22": 1, "lum/drawings/icon16": 8,
}

#: Icons with one drawing on two backgrounds on purpose.
SAME_DRAWING = {("marodi/icons/more-black.svg", "marodi/icons/more-white.svg")}


def function_name(file_name):
    """The name of the glyph: FitWidth is fit_width; Print is print_, to keep Python's print."""
    return re.sub(r"(?<=[a-z])(?=[A-Z])", "_", file_name).lower()


def _glyphs(module, names):
    """The glyphs of a module by their file names."""
    found = {}
    for name in names.split():
        function = function_name(name)
        found[name] = getattr(module, function, None) or getattr(module, function + "_")
    return found


# The coloured line of marodi: application button, quick access, search options, folding; tabs.
_LINE_16 = {
    **_glyphs(several, "OpenFile Print Redo Save Set Undo"),
    **_glyphs(small_find, "Fold QuickAccess_Set Search_Set Unfold menu"),
}
_TAB_16 = _glyphs(small_navigate, "Tab_Annotate Tab_Read Tab_Security")

# Menus, search bar and small buttons.
_SEARCH_16 = _glyphs(small_find, "CheckMark Search Search_Next Search_Prev")
_FIELD_16 = _glyphs(small_find, "Find MatchCase RadioMark Search_Clear SubMenu WholeWord")
_ZOOM_16 = _glyphs(small_view, "FitHeight FitPage FitWidth OriginalSize ZoomIn ZoomOut")
_STEP_16 = _glyphs(small_view, "FirstPage LastPage NextPage PrevPage")
_MENU_16 = {
    **_glyphs(several, "PrintMask"),
    **_glyphs(small_find, "AdvancedSearch SelectAll TrackInfo Unselect"),
    **_glyphs(small_file, """
        About Close Copy Delete DeletePage Exit Export ExtractPage Help InsertBlankPage InsertPage
        OpenRecent Property ReplacePage SaveAs SaveEnvelope SelectPage Update"""),
    **_glyphs(small_view, """
        Background DoubleFlow DoublePage FullScreen GotoPage HandTool RotateAnticlockwise
        RotateClockwise SingleFlow SinglePage TextSelect Zoom ZoomArea"""),
    **_glyphs(small_navigate, """
        Annotation Attachment AttachmentSave Background_Daytime Background_Default
        Background_EyeGuard Background_Nighttime Background_Parchment Bookmark BookmarkAdd
        BookmarkDelete CustomTag Navigator Outline OutlineCollapse OutlineExpand Thumbnail"""),
    **_glyphs(small_annotate, """
        AffixImage AnnotDelete AnnotHide Arrow Cloud DeleteLine DisplayMask Ellipse Eraser
        Eraser_Large Eraser_Middle Eraser_Small FreeText Highlight NoteBox Pencil Polygon Polyline
        Rectangle Shape SignPen_05mm SignPen_1mm SoftPen_1mm SoftPen_2mm SoftPen_3mm StraightLine
        Tablet Underline Watermark WavyLine"""),
    **_glyphs(small_review, """
        Chapter Lock PageSeal SealDelete SealMark SealSign SealVerify Stamp revision_add
        revision_delete revision_increasespace revision_insertline revision_moveback
        revision_moveforward revision_moveout revision_reducespace revision_replace
        revision_view"""),
}

_FILE_20 = {
    **_glyphs(several, "OpenFile Print Save Set"),
    **_glyphs(menu_file, "About Exit Help OpenRecent Property SaveAs Update"),
}
_MORE_20 = _glyphs(menu_file, "ClearRecent Close Export SaveEnvelope")

# Tool rows. The first groups are those of both skins.
_START_24 = {
    **_glyphs(several, "OpenFile Print Redo Save Set Undo"),
    **_glyphs(row_document, "Find Property SaveAs SaveEnvelope"),
    **_glyphs(row_view, """
        DoubleFlow DoublePage FirstPage FitHeight FitPage FitWidth FullScreen GotoPage HandTool
        LastPage NextPage OriginalSize PrevPage RotateAnticlockwise RotateClockwise SingleFlow
        SinglePage TextSelect ZoomIn ZoomOut"""),
    **_glyphs(row_navigate, """
        Annotation Attachment Background_Daytime Background_Default Background_EyeGuard
        Background_Nighttime Background_Parchment Bookmark CustomTag Navigator Outline
        Thumbnail"""),
}
_MARK_24 = {
    **_glyphs(row_annotate, """
        AffixImage Arrow Cloud DeleteLine DisplayMask Ellipse Eraser FreeText Highlight NoteBox
        Pencil Polygon Polyline Rectangle Shape StraightLine Tablet Underline Watermark
        WavyLine"""),
    **_glyphs(row_review, "Chapter PageSeal SealMark SealSign Stamp"),
}
_MORE_24 = {
    **_glyphs(several, "PrintMask"),
    **_glyphs(row_document, """
        About AdvancedSearch Close Copy Delete Export Help OpenRecent PrintPreview SelectAll
        SelectPage SendMail Snapshot TrackInfo Unselect Update"""),
    **_glyphs(row_page, """
        CropPage DeletePage ExtractPage InsertBlankPage InsertPage MovePage ReplacePage"""),
    **_glyphs(row_view, """
        Background ExitFullScreen NextView Present PrevView ReadAloud SplitView Zoom ZoomArea"""),
    **_glyphs(row_navigate, "AttachmentAdd BookmarkAdd"),
    **_glyphs(row_annotate, """
        AnnotDelete AnnotHide Callout Colour Eraser_Large Eraser_Middle Eraser_Small FillColour
        LineWidth SignPen_05mm SignPen_1mm SoftPen_1mm SoftPen_2mm SoftPen_3mm
        WatermarkDelete"""),
    **_glyphs(row_security, "Certificate Lock SealDelete SealVerify"),
    **_glyphs(row_review, """
        revision_accept revision_add revision_delete revision_increasespace revision_insertline
        revision_moveback revision_moveforward revision_reducespace revision_reject
        revision_replace revision_view"""),
}


# No description names them: they are what larger icons look like in menus and on small buttons.
_DRAWN_16 = _glyphs(small_view, """
    DoublePage FullScreen HandTool RotateAnticlockwise RotateClockwise SingleFlow SinglePage
    TextSelect""")


def _family(grid, palette, *groups):
    return [Icon(f"icons/icon{grid}/{name}.svg", glyph, grid, palette)
            for group in groups for name, glyph in group.items()]


def _bare(palette):
    """The arrows of the style sheets and scroll buttons, which are in no size directory."""
    return [
        Icon("icons/icon19-22/arrowDown.svg", several.arrow_down, 8, palette),
        Icon("extendLeft.svg", several.extend_left, 12, palette),
        Icon("extendRight.svg", several.extend_right, 12, palette),
    ]


SKINS = {
    "marodi": [
        *_family(16, LIGHT, _LINE_16, _TAB_16),
        *_family(16, DARK, _SEARCH_16, _FIELD_16, _ZOOM_16, _STEP_16, _MENU_16),
        *_family(20, DARK, _FILE_20, _MORE_20),
        *_family(24, DARK, _START_24, _MARK_24, _MORE_24),
        Icon("icons/icon24/revision_moveout.png", row_review.revision_moveout, 24, DARK, shown=48),
        Icon("icons/more-white.svg", small_find.more, 16, LIGHT),
        Icon("icons/more-black.svg", small_find.more, 16, DARK),
        Icon("icons/h_software.svg", several.software_mark, 33, LIGHT, height=11),
        *_bare(DARK),
    ],
    "lum": [
        *_family(16, NEUTRAL, _LINE_16, _SEARCH_16, _FIELD_16, _ZOOM_16, _STEP_16),
        *[icon._replace(path=icon.path.replace("icons/", "drawings/", 1))
          for icon in _family(16, NEUTRAL, _DRAWN_16)],
        *_family(20, NEUTRAL, _FILE_20),
        *_family(24, NEUTRAL, _START_24, _MARK_24),
        # In the folder for 34 pixels but shown at 24, so it is drawn on the grid of 24.
        Icon("icons/icon34/Background.svg", row_view.background, 24, NEUTRAL, shown=34),
        *_bare(NEUTRAL),
    ],
}
