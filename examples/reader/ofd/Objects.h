// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Link.h"
#include "ofd/Paint.h"

#include <QPainterPath>
#include <QPen>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QVector>

#include <memory>
#include <optional>
#include <variant>

/** The content of pages as it was read. Lengths are in millimetres, before a matrix is applied. */
namespace Ofd {

/** Drawing parameters; unset ones are inherited from the enclosing element. */
struct Style
{
    std::optional<qreal> lineWidth;
    std::optional<Qt::PenCapStyle> cap;
    std::optional<Qt::PenJoinStyle> join;
    std::optional<qreal> miterLimit;
    std::optional<qreal> dashOffset;
    std::optional<QVector<qreal>> dashes;
    std::optional<Paint> fill;
    std::optional<Paint> stroke;

    /** These parameters, with unset ones taken from @p wider. */
    Style over(const Style &wider) const;
    /** Black, whatever the stroke is. */
    QPen pen() const;
};

/** Glyphs of an embedded font for some of the characters of one run. */
struct GlyphRange
{
    int firstCode = 0;
    int codeCount = 1;
    QVector<quint32> glyphs;
};

/** Characters that are placed one by one, starting at a point of the baseline. */
struct TextRun
{
    QString text;
    QPointF start;
    QVector<qreal> deltaX;
    QVector<qreal> deltaY;
    QVector<GlyphRange> glyphs;
};

struct Text
{
    QString font; ///< The identifier of the resource.
    qreal size = 0;
    qreal horizontalScale = 1;
    int readDirection = 0; ///< From a character to the next one, in degrees clockwise.
    int charDirection = 0; ///< The rotation of each character, in degrees clockwise.
    int weight = 400;
    bool isItalic = false;
    bool isFilled = true;
    bool isStroked = false;
    QVector<TextRun> runs;
};

struct Path
{
    QPainterPath path;
    bool isFilled = false;
    bool isStroked = true;
};

/** The frame of a picture, inside of its edges. */
struct Border
{
    Style line;
    QSizeF cornerRadii;
};

struct Image
{
    QString resource;
    QString substitute; ///< Painted instead of a resource that cannot be; empty if there is none.
    QString mask;       ///< A picture that is white where this one is visible; may be empty.
    std::optional<Border> border;
};

struct Composite
{
    QString resource;
};

struct Object;
using Objects = QVector<Object>;

/** Objects with a common placement, such as the appearance of an annotation. */
struct Group
{
    std::shared_ptr<const Objects> objects;
};

/** One region that content is clipped to: the union of its areas, which are paths or text. */
struct Clip
{
    struct TextArea
    {
        Text text;
        QTransform place; ///< To the coordinates of the page or group.
    };

    QPainterPath path; ///< The union of the paths, in the coordinates of the page or group.
    QVector<TextArea> texts;
};

struct Object
{
    QRectF boundary;
    QTransform matrix; ///< From object coordinates to those of the boundary.
    Style style;
    qreal alpha = 1;
    QVector<Clip> clips; ///< Their intersection is visible.
    std::variant<Path, Text, Image, Composite, Group> content;
    std::shared_ptr<const Link> link; ///< Without an area; null for most objects.

    /** From the coordinates of the object to those of its page or group. */
    QTransform placement() const
    {
        return matrix * QTransform::fromTranslate(boundary.x(), boundary.y());
    }
};

} // namespace Ofd
