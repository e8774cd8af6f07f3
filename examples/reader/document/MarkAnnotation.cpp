// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/MarkAnnotation.h"

#include "ofd/Annotations.h"
#include "ofd/Fault.h"
#include "ofd/Values.h"

#include <QUuid>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>

namespace {

/** How a file names a kind of marks; the subtype is unique. */
struct Naming
{
    MarkKind kind;
    const char *type;
    const char *subtype;
};

constexpr Naming namings[] = {
    {MarkKind::Highlight, "Highlight", "Highlight"},
    {MarkKind::Underline, "Highlight", "Underline"},
    {MarkKind::WavyLine, "Highlight", "Squiggly"},
    {MarkKind::DeleteLine, "Highlight", "Strikeout"},
    {MarkKind::Revision, "Highlight", "Revision"},
    {MarkKind::StraightLine, "Path", "Line"},
    {MarkKind::Arrow, "Path", "Arrow"},
    {MarkKind::Rectangle, "Path", "Rectangle"},
    {MarkKind::Ellipse, "Path", "Ellipse"},
    {MarkKind::Polygon, "Path", "Polygon"},
    {MarkKind::Polyline, "Path", "Polyline"},
    {MarkKind::Cloud, "Path", "Cloud"},
    {MarkKind::Ink, "Path", "Pencil"},
    {MarkKind::DisplayMask, "Path", "DisplayMask"},
    {MarkKind::PrintMask, "Path", "PrintMask"},
    {MarkKind::TextBox, "Path", "TextBox"},
    {MarkKind::Note, "Path", "Note"},
    {MarkKind::RoundSeal, "Stamp", "RoundSeal"},
    {MarkKind::EdgeSeal, "Stamp", "EdgeSeal"},
    {MarkKind::SquareSeal, "Stamp", "SquareSeal"},
    {MarkKind::SealPlace, "Stamp", "SealPlace"},
    {MarkKind::Stamp, "Stamp", "Stamp"},
    {MarkKind::Picture, "Stamp", "Picture"},
    {MarkKind::Watermark, "Watermark", "Watermark"},
};

const QString pointsName = QStringLiteral("MarkPoints");
const QString textName = QStringLiteral("MarkText");
const QString colourName = QStringLiteral("MarkColour");
const QString widthName = QStringLiteral("MarkWidth");
const QString groupName = QStringLiteral("MarkOfEveryPage");
const QString boundaryName = QStringLiteral("MarkBoundary");
constexpr qreal widestLine = 1000;
constexpr qreal boundaryTolerance = 0.01; // In millimetres.

/** The shortest text from which exactly this number is read again. */
QString exact(qreal value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString pointsText(const QPolygonF &points)
{
    QStringList numbers;
    for (const QPointF &point : points)
        numbers << exact(point.x()) << exact(point.y());
    return numbers.join(QChar(u' '));
}

QPolygonF pointsOf(const QString &text)
{
    const QVector<qreal> numbers = Ofd::Values::numbers(text);
    QPolygonF points;
    for (int i = 0; i + 1 < numbers.size(); i += 2)
        points << QPointF(numbers.at(i), numbers.at(i + 1));
    return points;
}

QString boxText(const QRectF &box)
{
    return pointsText(QPolygonF() << box.topLeft() << QPointF(box.width(), box.height()));
}

bool areNear(const QRectF &a, const QRectF &b)
{
    return (a.topLeft() - b.topLeft()).manhattanLength() < boundaryTolerance
           && std::abs(a.width() - b.width()) < boundaryTolerance
           && std::abs(a.height() - b.height()) < boundaryTolerance;
}

QString parameter(const Ofd::Annotation &annotation, const QString &name)
{
    for (const auto &each : annotation.parameters) {
        if (each.first == name)
            return each.second;
    }
    return QString();
}

const Naming *namingOf(const Ofd::Annotation &annotation)
{
    const auto isIt = [&annotation](const Naming &naming) {
        return annotation.type == QLatin1String(naming.type)
               && annotation.subtype == QLatin1String(naming.subtype);
    };
    const auto *found = std::find_if(std::begin(namings), std::end(namings), isIt);
    return found == std::end(namings) ? nullptr : found;
}

/** Sets the shape of a mark of this program; returns false for any other annotation. */
bool readShape(Mark &mark, const Ofd::Annotation &annotation)
{
    const Naming *naming = namingOf(annotation);
    const QString boundary = parameter(annotation, boundaryName);
    if (!naming || !annotation.isVisible || boundary.isEmpty()
        || !areNear(Ofd::Values::box(boundary), annotation.appearance.boundary))
        return false;
    mark.kind = naming->kind;
    mark.points = pointsOf(parameter(annotation, pointsName));
    mark.text = parameter(annotation, textName);
    mark.colour = QColor(parameter(annotation, colourName));
    mark.width = Ofd::Values::number(parameter(annotation, widthName), -1);
    return !mark.points.isEmpty() && mark.colour.isValid() && mark.width >= 0
           && mark.width <= widestLine;
}

Mark markOf(const Ofd::Annotation &annotation, QPointF corner)
{
    Mark mark;
    bool isOwn = false;
    try {
        isOwn = readShape(mark, annotation);
    } catch (const Ofd::Fault &) {
        isOwn = false;
    }
    if (!isOwn) {
        const QRectF box = annotation.appearance.boundary.translated(-corner);
        mark = Mark();
        mark.kind = MarkKind::Annotation;
        mark.points << box.topLeft() / MarkAnnotation::millimetres
                    << box.bottomRight() / MarkAnnotation::millimetres;
        mark.text = annotation.remark;
        mark.type = annotation.type;
    }
    mark.isVisible = annotation.isVisible;
    mark.isPrinted = annotation.isPrinted;
    mark.isReadOnly = annotation.isReadOnly;
    mark.creator = annotation.creator;
    mark.date = QDate::fromString(annotation.date.left(10), Qt::ISODate);
    return mark;
}

/** Makes one mark of those that are the same on every page. */
void joinEveryPage(QList<Mark> &marks, const QHash<QString, QVector<int>> &groups, int pages)
{
    QVector<int> joined;
    for (const QVector<int> &group : groups) {
        // If another program has removed it from some pages, it stays on the others only.
        if (group.size() != pages)
            continue;
        Mark &first = marks[group.first()];
        first.page = everyPage;
        for (const int other : group.mid(1)) {
            first.origins += marks.at(other).origins;
            first.isReadOnly = first.isReadOnly || marks.at(other).isReadOnly;
        }
        joined += group.mid(1);
    }
    std::sort(joined.begin(), joined.end(), std::greater<>());
    for (const int index : std::as_const(joined))
        marks.removeAt(index);
}

} // namespace

Ofd::AnnotationDraft MarkAnnotation::draftOf(const Mark &mark)
{
    Ofd::AnnotationDraft draft;
    for (const Naming &naming : namings) {
        if (naming.kind == mark.kind) {
            draft.type = QLatin1String(naming.type);
            draft.subtype = QLatin1String(naming.subtype);
        }
    }
    draft.creator = mark.creator;
    draft.date = (mark.date.isValid() ? mark.date : QDate::currentDate()).toString(Qt::ISODate);
    draft.remark = mark.text;
    draft.isPrinted = mark.isPrinted && mark.kind != MarkKind::DisplayMask;
    draft.parameters = {{pointsName, pointsText(mark.points)},
                        {textName, mark.text},
                        {colourName, mark.colour.name(QColor::HexArgb)},
                        {widthName, exact(mark.width)}};
    if (mark.page == everyPage)
        draft.parameters.append({groupName, QUuid::createUuid().toString(QUuid::WithoutBraces)});
    return draft;
}

void MarkAnnotation::setAppearance(Ofd::AnnotationDraft &draft,
                                   const QVector<Ofd::DrawnPath> &paths, QPointF corner)
{
    const QTransform toFile = QTransform::fromScale(millimetres, millimetres)
                              * QTransform::fromTranslate(corner.x(), corner.y());
    draft.paths.clear();
    draft.boundary = QRectF();
    for (Ofd::DrawnPath drawn : paths) {
        drawn.path = toFile.map(drawn.path);
        drawn.pen.setWidthF(drawn.pen.widthF() * millimetres);
        const qreal margin = drawn.pen.style() == Qt::NoPen ? 0 : drawn.pen.widthF();
        draft.boundary |= drawn.path.controlPointRect().adjusted(-margin, -margin, margin, margin);
        draft.paths.append(drawn);
    }
    draft.parameters.append({boundaryName, boxText(draft.boundary)});
}

QList<Mark> MarkAnnotation::marksOf(const Ofd::Document &document, const Ofd::DocumentRoot &root)
{
    QList<Mark> marks;
    QHash<QString, QVector<int>> groups;
    const auto heads = Ofd::Annotations::heads(document, root);
    for (auto page = heads.cbegin(); page != heads.cend(); ++page) {
        document.pages->measure(page.key()); // An estimate would misplace marks.
        const QPointF corner = document.area(page.key()).topLeft();
        for (int i = 0; i < page->size(); ++i) {
            Mark mark = markOf(page->at(i), corner);
            mark.page = page.key();
            mark.origins.append({page.key(), i});
            const QString group = parameter(page->at(i), groupName);
            if (!group.isEmpty() && mark.kind != MarkKind::Annotation)
                groups[group].append(int(marks.size()));
            marks.append(mark);
        }
    }
    joinEveryPage(marks, groups, document.pageCount());
    return marks;
}
