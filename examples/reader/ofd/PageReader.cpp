// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/PageReader.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Values.h"
#include "ofd/Wording.h"

#include <QXmlStreamReader>

namespace Ofd {

namespace {

constexpr QRectF usualArea(0, 0, 210, 297);
constexpr int mostLayers = 2000;
/** Before the content there are few short elements. */
constexpr int startBytes = 4096;
constexpr const char *backgroundOrder = "Background";
constexpr const char *bodyOrder = "Body";
constexpr const char *foregroundOrder = "Foreground";

QRectF sheetFrom(const QString &text)
{
    const QRectF box = Values::box(text);
    const qreal longest = std::max(box.width(), box.height());
    if (box.width() <= 0 || box.height() <= 0 || longest > Limits::pageSide)
        throw Fault{Wording::tr("页面尺寸“%1”超出范围。").arg(text.left(48))};
    return box;
}

/** The rectangle of the sheet from an area element; null if it has none. */
QRectF sheetOf(const XmlElement &area)
{
    const QString text = area.childText("PhysicalBox");
    return text.isEmpty() ? QRectF() : sheetFrom(text);
}

QString orderOf(const XmlElement &layer)
{
    const QString type = layer.attribute("Type");
    const bool isSpecial =
        type == QLatin1String(backgroundOrder) || type == QLatin1String(foregroundOrder);
    return isSpecial ? type : QString::fromLatin1(bodyOrder);
}

} // namespace

void PageReader::readCommon(const XmlElement &data, const QString &from)
{
    const XmlElement *area = data.child("PageArea");
    m_commonArea = area ? sheetOf(*area) : QRectF();
    if (m_commonArea.isNull())
        m_commonArea = usualArea;
    for (const XmlElement &element : data.children) {
        if (!element.is("TemplatePage"))
            continue;
        Template page;
        page.path = m_package.find(from, element.attribute("BaseLoc"));
        page.order = element.attribute("ZOrder");
        m_templates.insert(element.attribute("ID"), page);
    }
}

QRectF PageReader::measure(const QString &path) const
{
    QXmlStreamReader reader(m_package.readStart(path, startBytes));
    bool isInside = false;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::DTD || reader.name() == QLatin1String("Content"))
            return QRectF();
        if (reader.name() == QLatin1String("Area"))
            isInside = token == QXmlStreamReader::StartElement;
        if (!isInside || token != QXmlStreamReader::StartElement
            || reader.name() != QLatin1String("PhysicalBox"))
            continue;
        const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements);
        return reader.hasError() ? QRectF() : sheetFrom(text);
    }
    return QRectF();
}

Page PageReader::read(const QString &path)
{
    m_openTemplates.clear();
    if (m_templateObjects > Limits::templateObjects)
        forgetTemplates();
    const XmlElement content = XmlElement::parse(m_package.read(path), path);
    Page page;
    page.area = m_commonArea;
    if (const XmlElement *area = content.child("Area")) {
        const QRectF own = sheetOf(*area);
        page.area = own.isNull() ? m_commonArea : own;
    }
    page.layers = layersOf(content, path, &page.composites);
    return page;
}

/** Pages that are kept share the objects of their templates, which stay as long as they do. */
void PageReader::forgetTemplates()
{
    for (Template &page : m_templates) {
        page.layers.clear();
        page.composites.clear();
        page.isRead = false;
    }
    m_templateObjects = 0;
}

PageReader::Layers PageReader::layersOf(const XmlElement &page, const QString &path,
                                        Composites *composites)
{
    m_resources.addLists(page, "PageRes", path);
    m_resources.finish(composites);
    const Layers layers = templatesOf(page, backgroundOrder, composites)
                          + templatesOf(page, bodyOrder, composites) + ownLayersOf(page)
                          + templatesOf(page, foregroundOrder, composites);
    if (layers.size() > mostLayers)
        throw Fault{Wording::tr("页面的图层过多，超过 %1 个。").arg(mostLayers)};
    return layers;
}

PageReader::Layers PageReader::ownLayersOf(const XmlElement &page)
{
    Layers layers;
    const XmlElement *content = page.child("Content");
    if (!content)
        return layers;
    for (const char *order : {backgroundOrder, bodyOrder, foregroundOrder}) {
        for (const XmlElement &layer : content->children) {
            if (orderOf(layer) != QLatin1String(order))
                continue;
            const Style style = m_resources.styles().read(layer, Style());
            layers.append(
                std::make_shared<const Objects>(m_resources.objects().readAll(layer, style)));
        }
    }
    return layers;
}

PageReader::Layers PageReader::templatesOf(const XmlElement &page, const char *order,
                                           Composites *composites)
{
    Layers layers;
    for (const XmlElement &element : page.children) {
        if (!element.is("Template"))
            continue;
        const QString id = element.attribute("TemplateID");
        QString wanted = element.attribute("ZOrder");
        if (wanted.isEmpty())
            wanted = m_templates.value(id).order;
        if (wanted.isEmpty())
            wanted = QLatin1String(backgroundOrder);
        if (wanted != QLatin1String(order))
            continue;
        const Template &used = templateOf(id);
        layers += used.layers;
        for (auto own = used.composites.cbegin(); own != used.composites.cend(); ++own)
            composites->insert(own.key(), *own);
    }
    return layers;
}

const PageReader::Template &PageReader::templateOf(const QString &id)
{
    Template &known = m_templates[id];
    if (known.isRead)
        return known;
    if (m_openTemplates.contains(id))
        throw Fault{Wording::tr("模板页“%1”循环引用。").arg(id)};
    if (known.path.isEmpty()) {
        ++m_unsupported[Wording::tr("缺失的模板页")];
        return known;
    }
    m_openTemplates.insert(id);
    Template read = known;
    const XmlElement content = XmlElement::parse(m_package.read(read.path), read.path);
    read.layers = layersOf(content, read.path, &read.composites);
    read.isRead = true;
    m_openTemplates.remove(id);
    for (const auto &layer : std::as_const(read.layers))
        m_templateObjects += layer->size();
    // Reading may have inserted other templates, which invalidates references into the hash.
    return *m_templates.insert(id, read);
}

} // namespace Ofd
