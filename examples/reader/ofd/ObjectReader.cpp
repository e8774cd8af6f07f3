// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/ObjectReader.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Links.h"
#include "ofd/PathData.h"
#include "ofd/Values.h"
#include "ofd/Wording.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Ofd {

namespace {

constexpr int usualWeight = 400;

int quarterTurns(const XmlElement &element, const char *name)
{
    return int(std::lround(Values::number(element.attribute(name), 0) / 90)) % 4 * 90;
}

qreal alphaOf(const XmlElement &element)
{
    return std::clamp(Values::number(element.attribute("Alpha"), 255) / 255, 0.0, 1.0);
}

GlyphRange glyphRangeOf(const XmlElement &element)
{
    GlyphRange range;
    range.firstCode = int(Values::number(element.attribute("CodePosition"), 0));
    range.codeCount = int(Values::number(element.attribute("CodeCount"), 1));
    const QVector<qreal> glyphs = Values::numbers(element.childText("Glyphs"));
    for (const qreal glyph : glyphs)
        range.glyphs.append(quint32(std::max(0.0, glyph)));
    return range;
}

TextRun runOf(const XmlElement &element, QPointF before)
{
    TextRun run;
    run.text = element.text;
    run.start = QPointF(Values::number(element.attribute("X"), before.x()),
                        Values::number(element.attribute("Y"), before.y()));
    // There is a distance between two characters only, so further ones are not used.
    const int most = std::max(0, int(run.text.size()) - 1);
    run.deltaX = Values::deltas(element.attribute("DeltaX"), most);
    run.deltaY = Values::deltas(element.attribute("DeltaY"), most);
    return run;
}

/** Each area is a path of its own that restricts all painting. */
void checkAreas(const XmlElement &clips)
{
    std::size_t areas = clips.childCount();
    for (const XmlElement &clip : clips.children)
        areas = std::max(areas, clip.childCount());
    if (areas > Limits::clips)
        throw Fault{Wording::tr("图元的裁剪区过多，超过 %1 个。").arg(Limits::clips)};
}

} // namespace

Objects ObjectReader::readAll(const XmlElement &parent, const Style &wider)
{
    Objects objects;
    readInto(objects, parent, wider);
    return objects;
}

void ObjectReader::readInto(Objects &objects, const XmlElement &parent, const Style &wider)
{
    for (const XmlElement &element : parent.children) {
        if (element.is("PageBlock") && !element.attribute("Alpha").isEmpty())
            objects.append(blockOf(element, wider));
        else if (element.is("Layer") || element.is("PageBlock"))
            readInto(objects, element, m_styles.read(element, wider));
        else
            readOne(objects, element, wider);
    }
}

void ObjectReader::readOne(Objects &objects, const XmlElement &element, const Style &wider)
{
    if (!element.flag("Visible", true))
        return;
    if (++m_count > Limits::objects)
        throw Fault{Wording::tr("页面的图元过多，超过 %1 个。").arg(Limits::objects)};
    Object object = common(element, wider);
    if (element.is("TextObject"))
        object.content = textOf(element);
    else if (element.is("PathObject"))
        object.content = pathOf(element);
    else if (element.is("ImageObject"))
        object.content = imageOf(element);
    else if (element.is("CompositeObject"))
        object.content = Composite{reference(element, "ResourceID", m_resources.namedComposites)};
    else
        return countUnknown(element);
    objects.append(std::move(object));
}

void ObjectReader::countUnknown(const XmlElement &element)
{
    const bool isVideo = element.is("VideoObject");
    ++m_unsupported[isVideo ? Wording::tr("音频和视频") : Wording::tr("未知的图元")];
}

template <typename Table>
QString ObjectReader::reference(const XmlElement &element, const char *name, const Table &table)
{
    const QString id = element.attribute(name);
    if (!id.isEmpty() && !table.contains(id))
        ++m_unsupported[Wording::tr("缺失的资源")];
    return id;
}

Object ObjectReader::blockOf(const XmlElement &element, const Style &wider)
{
    Object object;
    object.alpha = alphaOf(element);
    const Objects inside = readAll(element, m_styles.read(element, wider));
    object.content = Group{std::make_shared<const Objects>(inside)};
    return object;
}

Object ObjectReader::common(const XmlElement &element, const Style &wider)
{
    Object object;
    object.boundary = Values::box(element.attribute("Boundary"));
    object.matrix = Values::matrix(element.attribute("CTM"));
    object.style = m_styles.read(element, wider);
    reference(element, "DrawParam", m_styles);
    object.alpha = alphaOf(element);
    object.clips = clipsOf(element, object.placement());
    object.link = Links::of(element);
    return object;
}

Text ObjectReader::textOf(const XmlElement &element)
{
    Text text;
    text.font = reference(element, "Font", m_resources.fonts);
    text.size = Values::number(element.attribute("Size"), 0);
    if (text.size < 0 || text.size > Limits::fontSize)
        throw Fault{Wording::tr("字号 %1 超出范围。").arg(text.size)};
    text.horizontalScale = Values::number(element.attribute("HScale"), 1);
    text.readDirection = quarterTurns(element, "ReadDirection");
    text.charDirection = quarterTurns(element, "CharDirection");
    text.weight = int(Values::number(element.attribute("Weight"), usualWeight));
    text.isItalic = element.flag("Italic", false);
    text.isFilled = element.flag("Fill", true);
    text.isStroked = element.flag("Stroke", false);
    QVector<GlyphRange> glyphs;
    for (const XmlElement &part : element.children) {
        if (part.is("CGTransform"))
            glyphs.append(glyphRangeOf(part));
        if (!part.is("TextCode"))
            continue;
        // A run without a position begins at the position of the one before.
        text.runs.append(runOf(part, text.runs.isEmpty() ? QPointF() : text.runs.last().start));
        text.runs.last().glyphs = glyphs;
        glyphs.clear();
    }
    return text;
}

Image ObjectReader::imageOf(const XmlElement &element)
{
    Image image;
    image.resource = reference(element, "ResourceID", m_resources.images);
    image.substitute = reference(element, "Substitution", m_resources.images);
    image.mask = reference(element, "ImageMask", m_resources.images);
    const XmlElement *border = element.child("Border");
    if (!border)
        return image;
    // The name without the "t" is that of the standard.
    QString across = border->attribute("HorizonalCornerRadius");
    if (across.isEmpty())
        across = border->attribute("HorizontalCornerRadius");
    const qreal down = Values::number(border->attribute("VerticalCornerRadius"), 0);
    image.border = {m_styles.readBorder(*border), {Values::number(across, 0), down}};
    return image;
}

Path ObjectReader::pathOf(const XmlElement &element)
{
    Path path;
    bool isWhole = true;
    path.path = pathFromData(element.childText("AbbreviatedData"), &isWhole);
    if (!isWhole)
        ++m_unsupported[Wording::tr("残缺的图形")];
    const bool isEvenOdd = element.attribute("Rule") == QLatin1String("Even-Odd");
    path.path.setFillRule(isEvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
    path.isFilled = element.flag("Fill", false);
    path.isStroked = element.flag("Stroke", true);
    // A path keeps its bounds when they are first asked for, which threads that share it must not.
    path.path.controlPointRect();
    return path;
}

QVector<Clip> ObjectReader::clipsOf(const XmlElement &element, const QTransform &placement)
{
    QVector<Clip> clips;
    const XmlElement *all = element.child("Clips");
    if (!all)
        return clips;
    checkAreas(*all);
    // Clips that are not transformed with the object are in the coordinates of its page or group.
    const QTransform toParent = all->flag("TransFlag", true) ? placement : QTransform();
    for (const XmlElement &clip : all->children) {
        Clip areas;
        bool hasArea = false;
        for (const XmlElement &area : clip.children) {
            for (const XmlElement &shape : area.children)
                addArea(areas, shape, Values::matrix(area.attribute("CTM")) * toParent);
            hasArea = hasArea || !area.children.empty();
        }
        if (hasArea)
            clips.append(areas);
    }
    return clips;
}

void ObjectReader::addArea(Clip &clip, const XmlElement &shape, const QTransform &toParent)
{
    const QRectF boundary = Values::box(shape.attribute("Boundary"));
    const QTransform place = Values::matrix(shape.attribute("CTM"))
                             * QTransform::fromTranslate(boundary.x(), boundary.y()) * toParent;
    if (shape.is("Text"))
        clip.texts.append({textOf(shape), place});
    else if (shape.is("Path"))
        unite(clip.path, place.map(pathOf(shape).path));
}

} // namespace Ofd
