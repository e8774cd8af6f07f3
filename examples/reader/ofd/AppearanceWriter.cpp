// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/AppearanceWriter.h"

#include "ofd/Values.h"

namespace Ofd {

namespace {

QString number(qreal value)
{
    // A thousandth of a millimetre is finer than any printer.
    QString text = QString::number(value, 'f', 3);
    while (text.endsWith(QChar(u'0')))
        text.chop(1);
    if (text.endsWith(QChar(u'.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString pointText(QPointF point)
{
    return number(point.x()) + QChar(u' ') + number(point.y());
}

QString boxText(const QRectF &box)
{
    return pointText(box.topLeft()) + QChar(u' ') + number(box.width()) + QChar(u' ')
           + number(box.height());
}

QString dataOf(const QPainterPath &path)
{
    QStringList data;
    QPointF start;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.isMoveTo())
            data << QStringLiteral("M");
        else if (element.isLineTo())
            data << QStringLiteral("L");
        else if (element.isCurveTo())
            data << QStringLiteral("B");
        data << pointText(element);
        if (element.isMoveTo())
            start = element;
        const bool isLast = i + 1 == path.elementCount() || path.elementAt(i + 1).isMoveTo();
        if (isLast && !element.isMoveTo() && QPointF(element) == start)
            data << QStringLiteral("C");
    }
    return data.join(QChar(u' '));
}

void writeColour(XmlCopy &copy, const char *name, const QColor &colour)
{
    QXmlStreamWriter &writer = copy.writer();
    writer.writeStartElement(copy.withPrefix(name));
    writer.writeAttribute(
        QStringLiteral("Value"),
        QStringLiteral("%1 %2 %3").arg(colour.red()).arg(colour.green()).arg(colour.blue()));
    if (colour.alpha() < 255)
        writer.writeAttribute(QStringLiteral("Alpha"), QString::number(colour.alpha()));
    writer.writeEndElement();
}

void writeStroke(QXmlStreamWriter &writer, const QPen &pen)
{
    writer.writeAttribute(QStringLiteral("LineWidth"), number(pen.widthF()));
    if (pen.capStyle() == Qt::RoundCap)
        writer.writeAttribute(QStringLiteral("Cap"), QStringLiteral("Round"));
    if (pen.capStyle() == Qt::SquareCap)
        writer.writeAttribute(QStringLiteral("Cap"), QStringLiteral("Square"));
    if (pen.joinStyle() == Qt::RoundJoin)
        writer.writeAttribute(QStringLiteral("Join"), QStringLiteral("Round"));
    if (pen.joinStyle() == Qt::BevelJoin)
        writer.writeAttribute(QStringLiteral("Join"), QStringLiteral("Bevel"));
    if (pen.style() == Qt::SolidLine)
        return;
    QStringList dashes;
    const QVector<qreal> pattern = pen.dashPattern();
    for (const qreal length : pattern)
        dashes << number(length * pen.widthF());
    writer.writeAttribute(QStringLiteral("DashPattern"), dashes.join(QChar(u' ')));
}

void writePath(XmlCopy &copy, const DrawnPath &drawn, QPointF origin, qint64 id)
{
    const bool isStroked = drawn.pen.style() != Qt::NoPen;
    const qreal margin = isStroked ? drawn.pen.widthF() : 0;
    const QRectF bounds = drawn.path.controlPointRect().adjusted(-margin, -margin, margin, margin);
    QXmlStreamWriter &writer = copy.writer();
    writer.writeStartElement(copy.withPrefix("PathObject"));
    writer.writeAttribute(QStringLiteral("ID"), QString::number(id));
    writer.writeAttribute(QStringLiteral("Boundary"), boxText(bounds.translated(-origin)));
    writer.writeAttribute(QStringLiteral("Stroke"), isStroked ? "true" : "false");
    writer.writeAttribute(QStringLiteral("Fill"), drawn.fill.isValid() ? "true" : "false");
    if (drawn.path.fillRule() == Qt::OddEvenFill && drawn.fill.isValid())
        writer.writeAttribute(QStringLiteral("Rule"), QStringLiteral("Even-Odd"));
    if (isStroked)
        writeStroke(writer, drawn.pen);
    if (drawn.fill.isValid())
        writeColour(copy, "FillColor", drawn.fill);
    if (isStroked)
        writeColour(copy, "StrokeColor", drawn.pen.color());
    copy.addElement("AbbreviatedData", dataOf(drawn.path.translated(-bounds.topLeft())));
    writer.writeEndElement();
}

void writeParameters(XmlCopy &copy, const AnnotationDraft &draft)
{
    if (draft.parameters.isEmpty())
        return;
    copy.writer().writeStartElement(copy.withPrefix("Parameters"));
    for (const auto &parameter : draft.parameters) {
        copy.writer().writeStartElement(copy.withPrefix("Parameter"));
        copy.writer().writeAttribute(QStringLiteral("Name"), parameter.first);
        copy.writer().writeCharacters(allowedInXml(parameter.second));
        copy.writer().writeEndElement();
    }
    copy.writer().writeEndElement();
}

} // namespace

void writeAnnotation(XmlCopy &copy, const AnnotationDraft &draft, qint64 &lastId)
{
    QXmlStreamWriter &writer = copy.writer();
    writer.writeStartElement(copy.withPrefix("Annot"));
    writer.writeAttribute(QStringLiteral("ID"), QString::number(++lastId));
    writer.writeAttribute(QStringLiteral("Type"), draft.type);
    writer.writeAttribute(QStringLiteral("Subtype"), draft.subtype);
    writer.writeAttribute(QStringLiteral("Creator"), allowedInXml(draft.creator));
    writer.writeAttribute(QStringLiteral("LastModDate"), draft.date);
    if (!draft.isPrinted)
        writer.writeAttribute(QStringLiteral("Print"), QStringLiteral("false"));
    // Without it, other readers may refuse to change the annotation.
    writer.writeAttribute(QStringLiteral("ReadOnly"), QStringLiteral("false"));
    if (!draft.remark.isEmpty())
        copy.addElement("Remark", allowedInXml(draft.remark));
    writeParameters(copy, draft);
    writer.writeStartElement(copy.withPrefix("Appearance"));
    writer.writeAttribute(QStringLiteral("Boundary"), boxText(draft.boundary));
    for (const DrawnPath &path : draft.paths)
        writePath(copy, path, draft.boundary.topLeft(), ++lastId);
    writer.writeEndElement();
    writer.writeEndElement();
}

} // namespace Ofd
