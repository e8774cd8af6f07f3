"""Which file of which skin shows which glyph, on which grid and ground."""

from collections import namedtuple

import glyphs_annotate as annotate
import glyphs_file as file
import glyphs_find as find
import glyphs_review as review
import glyphs_view as view
from palettes import DARK, LIGHT, NEUTRAL

#: `path` is relative to Resources/<skin>/. `shown` is the natural width where it is not the
#: grid's, `height` the grid's height where it is no square.
Icon = namedtuple("Icon", "path glyph grid palette height shown", defaults=(None, None))

_APP_16 = {
    "Fold": file.fold, "OpenFile": file.open_file, "Print": file.print_file,
    "QuickAccess_Set": file.quick_access_set, "Redo": file.redo, "Save": file.save,
    "Search_Set": find.search_options, "Set": file.settings, "Undo": file.undo,
    "menu": file.menu,
}
_SEARCH_16 = {
    "CheckMark": file.check_mark, "Search": find.search, "Search_Next": find.search_next,
    "Search_Prev": find.search_previous,
}
_MENU_16 = {
    "AdvancedSearch": find.advanced_search, "Find": find.find,
    "InsertBlankPage": file.insert_blank_page, "InsertPage": file.insert_page,
    "PrintMask": file.print_mask, "SelectAll": find.select_all, "SelectPage": find.select_page,
    "TrackInfo": find.trace_information, "Unselect": find.unselect,
}
_FILE_20 = {
    "About": file.about, "Exit": file.exit_program, "Help": file.help_mark,
    "OpenFile": file.open_file, "OpenRecent": file.open_recent, "Print": file.print_file,
    "Property": file.property_sheet, "Save": file.save, "SaveAs": file.save_as,
    "Set": file.settings, "Update": file.update,
}
_CLOSE_20 = {"Close": file.close_document}
_VIEW_24 = {
    "DoublePage": view.double_page, "FirstPage": view.first_page, "FitHeight": view.fit_height,
    "FitPage": view.fit_page, "FitWidth": view.fit_width, "FullScreen": view.full_screen,
    "HandTool": view.hand_tool, "LastPage": view.last_page, "NextPage": view.next_page,
    "OriginalSize": view.original_size, "PrevPage": view.previous_page,
    "RotateAnticlockwise": view.rotate_anticlockwise, "RotateClockwise": view.rotate_clockwise,
    "SingleFlow": view.single_flow, "SinglePage": view.single_page,
    "TextSelect": view.text_select, "ZoomIn": view.zoom_in, "ZoomOut": view.zoom_out,
}
_EDIT_24 = {
    "AffixImage": annotate.affix_image, "Arrow": annotate.arrow_shape,
    "Background": view.background, "Chapter": review.square_seal, "Cloud": annotate.cloud,
    "DeleteLine": annotate.delete_line, "DisplayMask": annotate.display_mask,
    "DoubleFlow": view.double_flow, "Ellipse": annotate.ellipse, "Eraser": annotate.eraser,
    "Eraser_Large": annotate.eraser_large, "Eraser_Middle": annotate.eraser_middle,
    "Eraser_Small": annotate.eraser_small, "FreeText": annotate.free_text,
    "Highlight": annotate.highlight, "NoteBox": annotate.note_box, "PageSeal": review.page_seal,
    "Pencil": annotate.pencil, "Polygon": annotate.polygon, "Polyline": annotate.polyline,
    "Rectangle": annotate.rectangle, "Redo": file.redo, "SaveEnvelope": review.save_envelope,
    "SealMark": review.seal_mark, "SealSign": review.seal_sign, "Shape": annotate.shape,
    "SignPen_05mm": annotate.sign_pen_05, "SignPen_1mm": annotate.sign_pen_1,
    "SoftPen_1mm": annotate.soft_pen_1, "SoftPen_2mm": annotate.soft_pen_2,
    "SoftPen_3mm": annotate.soft_pen_3, "Stamp": review.stamp,
    "StraightLine": annotate.straight_line, "Tablet": annotate.tablet,
    "Underline": annotate.underline, "Undo": file.undo, "Watermark": annotate.watermark,
    "WavyLine": annotate.wavy_line,
    "revision_add": review.proof_add, "revision_delete": review.proof_delete,
    "revision_increasespace": review.proof_increase_space,
    "revision_insertline": review.proof_insert_line,
    "revision_moveback": review.proof_move_back,
    "revision_moveforward": review.proof_move_forward,
    "revision_reducespace": review.proof_reduce_space,
    "revision_replace": review.proof_replace, "revision_view": review.proof_view,
}


def _family(grid, palette, *groups):
    return [Icon(f"icons/icon{grid}/{name}.svg", glyph, grid, palette)
            for group in groups for name, glyph in group.items()]


def _bare(palette):
    """The arrows that the sheets and the scroll buttons name, without a size directory."""
    return [
        Icon("icons/icon19-22/arrowDown.svg", file.arrow_down, 8, palette),
        Icon("extendLeft.svg", file.extend_left, 12, palette),
        Icon("extendRight.svg", file.extend_right, 12, palette),
    ]


SKINS = {
    "marodi": [
        *_family(16, LIGHT, _APP_16),
        *_family(16, DARK, _SEARCH_16, _MENU_16),
        *_family(20, DARK, _FILE_20, _CLOSE_20),
        *_family(24, DARK, _VIEW_24, _EDIT_24),
        Icon("icons/icon24/revision_moveout.png", review.proof_move_out, 24, DARK, shown=48),
        Icon("icons/more-white.svg", file.more, 16, LIGHT),
        Icon("icons/more-black.svg", file.more, 16, DARK),
        Icon("icons/h_software.svg", file.software_mark, 33, LIGHT, height=11),
        *_bare(DARK),
    ],
    "lum": [
        *_family(16, NEUTRAL, _APP_16, _SEARCH_16),
        *_family(20, NEUTRAL, _FILE_20),
        *_family(24, NEUTRAL, _VIEW_24, {"OpenFile": file.open_file}),
        # Named as a 34 pixel icon but shown at 24, so it is drawn on the grid it is seen on.
        Icon("icons/icon34/Background.svg", view.background, 24, NEUTRAL, shown=34),
        *_bare(NEUTRAL),
    ],
}
