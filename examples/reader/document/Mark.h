// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QDate>
#include <QPair>
#include <QPolygonF>
#include <QString>
#include <QVector>

/** The kinds of marks. Marks are painted in the order of their list, not in that of the kinds. */
enum class MarkKind
{
    Highlight,
    Underline,
    WavyLine,
    DeleteLine,
    Revision,
    StraightLine,
    Arrow,
    Rectangle,
    Ellipse,
    Polygon,
    Polyline,
    Cloud,
    Ink,
    DisplayMask,
    PrintMask,
    TextBox,
    Note,
    RoundSeal,
    EdgeSeal,
    SquareSeal,
    SealPlace,
    Stamp,
    Picture,
    Watermark,
    Annotation ///< One of the file that this program has not drawn; its page paints it.
};

/** The page index of a mark that is on every page. */
constexpr int everyPage = -1;

/** One mark on a page, in page units. */
struct Mark
{
    MarkKind kind = MarkKind::Highlight;
    int page = 0;     ///< Counted from 0, or everyPage.
    QPolygonF points; ///< Two corners or ends; for ink all points; for text four per line.
    QString text;     ///< The sign of a revision, or the text of a box or stamp.
    QColor colour = Qt::red;
    qreal width = 2;
    int id = 0;      ///< Given by the document.
    QString creator; ///< Who drew it.
    QDate date;      ///< Of the last change.
    QString type;    ///< What the file calls an annotation.
    /** Its annotations in the file, by the index of a page in the file and in its list. */
    QVector<QPair<int, int>> origins;
    bool isEdited = false; ///< It is not any more what is in the file.
    bool isVisible = true; ///< As are the next two, what the file says.
    bool isPrinted = true;
    bool isReadOnly = false;

    QRectF rect() const { return points.boundingRect(); }
};

/** The name of a kind of mark, for lists. */
QString markName(MarkKind kind);
