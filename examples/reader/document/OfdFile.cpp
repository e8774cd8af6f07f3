// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/OfdFile.h"

#include "document/MarkAnnotation.h"
#include "document/PageLinks.h"
#include "ofd/DocumentRoot.h"
#include "ofd/Fault.h"
#include "ofd/PageText.h"
#include "ofd/Painter.h"

#include <QPainter>

namespace {

constexpr qreal unitsPerMillimetre = 96 / 25.4;

QRectF toPageUnits(const QRectF &rect)
{
    return QRectF(rect.topLeft() * unitsPerMillimetre, rect.size() * unitsPerMillimetre);
}

/** One page of a document; all pages share a painter. */
class OfdPageContent : public PageContent
{
public:
    OfdPageContent(const std::shared_ptr<Ofd::Painter> &painter,
                   const std::shared_ptr<HiddenAnnotations> &hidden,
                   const std::shared_ptr<const PageLinks> &links, int page)
        : m_painter(painter)
        , m_hidden(hidden)
        , m_links(links)
        , m_page(page)
    {
    }

    void paint(QPainter &painter) const override
    {
        painter.save();
        painter.scale(unitsPerMillimetre, unitsPerMillimetre);
        m_painter->paint(painter, m_page, m_hidden->on(m_page));
        painter.restore();
    }

    void readText(Page &page) const override
    {
        const Ofd::PageText text = textOf(m_painter->document(), m_page, m_painter->fonts());
        page.text = text.text;
        page.boxes.clear();
        page.boxes.reserve(text.boxes.size());
        for (const QRectF &box : text.boxes)
            page.boxes.append(toPageUnits(box));
        page.lines.clear();
        for (const Ofd::TextSpan &span : text.lines) {
            TextLine line;
            line.start = span.start;
            line.length = span.length;
            line.rect = toPageUnits(span.rect);
            page.lines.append(line);
        }
    }

    QVector<PageLink> links() const override
    {
        const Ofd::Page &page = m_painter->document().pages.at(m_page);
        return m_links->on(page, m_hidden->on(m_page));
    }

private:
    std::shared_ptr<Ofd::Painter> m_painter;
    std::shared_ptr<HiddenAnnotations> m_hidden;
    std::shared_ptr<const PageLinks> m_links;
    int m_page;
};

QList<NamedPlace> placesOf(const QVector<Ofd::Target> &targets)
{
    QList<NamedPlace> places;
    for (const Ofd::Target &target : targets)
        places.append({target.title, target.depth, target.page});
    return places;
}

QString leftOutOf(const Ofd::Painter &painter)
{
    QMap<QString, int> counts = painter.unpaintable();
    const QMap<QString, int> &unsupported = painter.document().unsupported;
    for (auto kind = unsupported.cbegin(); kind != unsupported.cend(); ++kind)
        counts[kind.key()] += kind.value();
    QStringList parts;
    for (auto kind = counts.cbegin(); kind != counts.cend(); ++kind)
        parts.append(OfdFile::tr("%1 %2 处").arg(kind.key()).arg(kind.value()));
    return parts.isEmpty() ? QString()
                           : OfdFile::tr("未显示：%1").arg(parts.join(OfdFile::tr("，")));
}

} // namespace

bool OfdFile::read(const QString &fileName, QList<Page> *pages, QString *error)
{
    const std::shared_ptr<const Ofd::Document> read = Ofd::read(fileName, error);
    if (!read)
        return false;
    document = read;
    const auto painter = std::make_shared<Ofd::Painter>(document);
    hidden = std::make_shared<HiddenAnnotations>();
    const auto links = std::make_shared<const PageLinks>(*document);
    pages->clear();
    for (int i = 0; i < document->pages.size(); ++i) {
        Page page;
        page.size = document->pages.at(i).area.size() * unitsPerMillimetre;
        page.heading = tr("第 %1 页").arg(i + 1);
        page.content = std::make_shared<OfdPageContent>(painter, hidden, links, i);
        page.isTextRead = false;
        pages->append(page);
    }
    archive = document->package->archive();
    information = document->information;
    outline = placesOf(document->outline);
    bookmarks = placesOf(document->bookmarks);
    for (const Ofd::Attachment &attachment : document->attachments)
        attachments.append(attachment.name);
    leftOut = leftOutOf(*painter);
    readActs();
    return true;
}

void OfdFile::readActs()
{
    const Ofd::DocumentRoot root(*document);
    permissions = Ofd::Permissions::of(root.element);
    isSigned = root.isSigned;
    marks = MarkAnnotation::marksOf(*document);
}

QPointF OfdFile::cornerOf(int page) const
{
    return document->area(page).topLeft();
}

QByteArray OfdFile::attachment(int index, QString *error) const
{
    error->clear();
    try {
        return document->package->read(document->attachments.at(index).file);
    } catch (const Ofd::Fault &fault) {
        *error = fault.message;
        return QByteArray();
    }
}
