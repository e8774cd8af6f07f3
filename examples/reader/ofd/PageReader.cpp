// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/PageReader.h"

#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/Links.h"
#include "ofd/Values.h"
#include "ofd/Wording.h"

namespace Ofd {

namespace {

constexpr QRectF usualArea(0, 0, 210, 297);
constexpr int mostLayers = 2000;
constexpr const char *backgroundOrder = "Background";
constexpr const char *bodyOrder = "Body";
constexpr const char *foregroundOrder = "Foreground";

/** The rectangle of the sheet from an area element; null if it has none. */
QRectF sheetOf(const XmlElement &area)
{
    const QString text = area.childText("PhysicalBox");
    if (text.isEmpty())
        return QRectF();
    const QRectF box = Values::box(text);
    const qreal longest = std::max(box.width(), box.height());
    if (box.width() <= 0 || box.height() <= 0 || longest > Limits::pageSide)
        throw Fault{Wording::tr("页面尺寸“%1”超出范围。").arg(text.left(48))};
    return box;
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

Page PageReader::read(const XmlElement &element, const QString &from)
{
    Page page;
    page.area = m_commonArea;
    const QString path = m_package.find(from, element.attribute("BaseLoc"));
    if (path.isEmpty()) {
        ++m_unsupported[Wording::tr("缺失的页面")];
        return page;
    }
    if (m_read.contains(path))
        return m_read.value(path);
    const XmlElement content = XmlElement::parse(m_package.read(path), path);
    if (const XmlElement *area = content.child("Area")) {
        const QRectF own = sheetOf(*area);
        page.area = own.isNull() ? m_commonArea : own;
    }
    m_resources.addLists(content, "PageRes", path);
    m_resources.finish();
    page.layers = layersOf(content);
    page.links = Links::read(content, QPointF());
    m_read.insert(path, page);
    return page;
}

PageReader::Layers PageReader::layersOf(const XmlElement &page)
{
    const Layers layers = templatesOf(page, backgroundOrder) + templatesOf(page, bodyOrder)
                          + ownLayersOf(page) + templatesOf(page, foregroundOrder);
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

PageReader::Layers PageReader::templatesOf(const XmlElement &page, const char *order)
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
        if (wanted == QLatin1String(order))
            layers += layersOfTemplate(id);
    }
    return layers;
}

const PageReader::Layers &PageReader::layersOfTemplate(const QString &id)
{
    Template &page = m_templates[id];
    if (page.isRead)
        return page.layers;
    if (page.isBegun)
        throw Fault{Wording::tr("模板页“%1”循环引用。").arg(id)};
    if (page.path.isEmpty()) {
        ++m_unsupported[Wording::tr("缺失的模板页")];
        page.isRead = true;
        return page.layers;
    }
    page.isBegun = true;
    const QString path = page.path;
    const XmlElement content = XmlElement::parse(m_package.read(path), path);
    m_resources.addLists(content, "PageRes", path);
    m_resources.finish();
    const Layers layers = layersOf(content);
    // Reading may have inserted other templates, which invalidates references into the hash.
    Template &done = m_templates[id];
    done.layers = layers;
    done.isRead = true;
    return done.layers;
}

} // namespace Ofd
