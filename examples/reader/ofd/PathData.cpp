// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/PathData.h"

#include "ofd/Values.h"

#include <QTransform>
#include <QVector>
#include <QtMath>

#include <cmath>

namespace Ofd {

namespace {

/** The number of arguments of a command; -1 for an unknown letter. */
int countOfNumbers(QChar command)
{
    switch (command.unicode()) {
    case u'M':
    case u'S':
    case u'L':
        return 2;
    case u'Q':
        return 4;
    case u'B':
        return 6;
    case u'A':
        return 7;
    case u'C':
        return 0;
    default:
        return -1;
    }
}

struct Arc
{
    qreal rx = 0;
    qreal ry = 0;
    qreal degrees = 0;
    bool isLarge = false;
    bool isClockwise = false;
    QPointF end;
};

/** Twice the area inside of the control points; negative for an anticlockwise path. */
qreal signedArea(const QPainterPath &path)
{
    qreal area = 0;
    QPointF start;
    QPointF last;
    const auto goTo = [&](QPointF next) {
        area += last.x() * next.y() - last.y() * next.x();
        last = next;
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo()) {
            goTo(start);
            start = last = element;
        }
        goTo(element);
    }
    goTo(start);
    return area;
}

/** The centre of the unit circle through two points, on the side that the flags select. */
QPointF centreBetween(QPointF from, QPointF to, bool isLarge, bool isClockwise)
{
    const QPointF half = (to - from) / 2;
    const qreal square = QPointF::dotProduct(half, half);
    const qreal height = std::sqrt(std::max(0.0, 1 - square)) / std::sqrt(square);
    const QPointF across(-half.y() * height, half.x() * height);
    const QPointF middle = (from + to) / 2;
    return isLarge == isClockwise ? middle - across : middle + across;
}

void appendArc(QPainterPath &path, const Arc &arc)
{
    const QPointF start = path.currentPosition();
    if (start == arc.end)
        return;
    if (arc.rx <= 0 || arc.ry <= 0) {
        path.lineTo(arc.end);
        return;
    }
    // In coordinates where the ellipse is the unit circle, the chord determines the arc.
    QTransform toPath;
    toPath.rotate(arc.degrees);
    toPath.scale(arc.rx, arc.ry);
    const QTransform toCircle = toPath.inverted();
    QPointF from = toCircle.map(start);
    QPointF to = toCircle.map(arc.end);
    const qreal tooLong = std::max(1.0, std::hypot(to.x() - from.x(), to.y() - from.y()) / 2);
    from /= tooLong;
    to /= tooLong;
    toPath = QTransform::fromScale(tooLong, tooLong) * toPath;

    const QPointF centre = centreBetween(from, to, arc.isLarge, arc.isClockwise);
    const qreal first = std::atan2(from.y() - centre.y(), from.x() - centre.x());
    qreal sweep = std::atan2(to.y() - centre.y(), to.x() - centre.x()) - first;
    if (arc.isClockwise && sweep < 0)
        sweep += 2 * M_PI;
    else if (!arc.isClockwise && sweep > 0)
        sweep -= 2 * M_PI;
    QPainterPath piece(from);
    // Qt counts angles anticlockwise.
    piece.arcTo(QRectF(centre - QPointF(1, 1), QSizeF(2, 2)), -qRadiansToDegrees(first),
                -qRadiansToDegrees(sweep));
    path.connectPath(toPath.map(piece));
}

void append(QPainterPath &path, QChar command, const QVector<qreal> &v)
{
    switch (command.unicode()) {
    case u'M':
    case u'S':
        path.moveTo(v.at(0), v.at(1));
        break;
    case u'L':
        path.lineTo(v.at(0), v.at(1));
        break;
    case u'Q':
        path.quadTo(v.at(0), v.at(1), v.at(2), v.at(3));
        break;
    case u'B':
        path.cubicTo(v.at(0), v.at(1), v.at(2), v.at(3), v.at(4), v.at(5));
        break;
    case u'A':
        appendArc(path,
                  {v.at(0), v.at(1), v.at(2), v.at(3) != 0, v.at(4) != 0, {v.at(5), v.at(6)}});
        break;
    case u'C':
        path.closeSubpath();
        break;
    }
}

} // namespace

QPainterPath pathFromData(const QString &data, bool *isWhole)
{
    QPainterPath path;
    qsizetype at = 0;
    const auto skipTo = [&](auto stops) {
        while (at < data.size() && !stops(data.at(at)))
            ++at;
    };
    // Commands are capitals; a small "e" is part of a number.
    const auto isCommand = [](QChar c) {
        return c.isLetter() && c != QChar(u'e') && c != QChar(u'E');
    };
    const auto isSomething = [](QChar c) { return !c.isSpace() && c != QChar(u','); };
    for (skipTo(isSomething); at < data.size(); skipTo(isSomething)) {
        const QChar command = data.at(at++);
        const qsizetype from = at;
        skipTo(isCommand);
        const QVector<qreal> values = Values::numbers(QStringView(data).mid(from, at - from));
        const int wanted = countOfNumbers(command);
        const bool isKnown = wanted >= 0 && values.size() >= wanted;
        if (isWhole)
            *isWhole = isKnown;
        if (!isKnown)
            break;
        append(path, command, values);
    }
    return path;
}

void unite(QPainterPath &path, const QPainterPath &other)
{
    const QPainterPath clockwise = signedArea(other) < 0 ? other.toReversed() : other;
    if (path.isEmpty()) {
        path = clockwise;
        path.setFillRule(other.fillRule());
        return;
    }
    path.setFillRule(Qt::WindingFill);
    path.addPath(clockwise);
}

} // namespace Ofd
