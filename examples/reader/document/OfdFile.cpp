// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/OfdFile.h"

#include "document/MarkAnnotation.h"
#include "document/OfdContentPainter.h"
#include "document/PageLinks.h"
#include "ofd/Fault.h"

#include <utility>

namespace {

/** One page of a document; all pages share a painter. */
class OfdPageContent : public PageContent
{
public:
    OfdPageContent(const std::shared_ptr<OfdContentPainter> &painter,
                   const std::shared_ptr<const PageLinks> &links, int page)
        : m_painter(painter)
        , m_links(links)
        , m_page(page)
    {
    }

    int index() const override { return m_page; }
    ContentPainter &painter() const override { return *m_painter; }

    MakeContentPainter painterMaker() const override
    {
        return [document = m_painter->document(), hidden = m_painter->hidden()] {
            return std::make_unique<OfdContentPainter>(document, hidden);
        };
    }

    QSizeF size() const override { return pages().area(m_page).size() * unitsPerMillimetre; }

    QString fault() const override
    {
        const QString fault = pages().fault(m_page);
        return fault.isEmpty() ? QString() : OfdFile::faultOf(m_page, fault);
    }

    int signatureAt(QPointF point) const override
    {
        const Ofd::Document &document = *m_painter->document();
        const QPointF place = point / unitsPerMillimetre + document.area(m_page).topLeft();
        int found = -1;
        // The last seal is on top of the others.
        for (const Ofd::Stamp &stamp : document.stamps.value(m_page)) {
            if (stamp.area().contains(place))
                found = stamp.signature;
        }
        return found;
    }

    QVector<PageLink> links() const override
    {
        const auto page = m_painter->document()->page(m_page);
        return m_links->on(*page, m_painter->hidden()->on(m_page));
    }

private:
    const Ofd::PageStore &pages() const { return *m_painter->document()->pages; }

    std::shared_ptr<OfdContentPainter> m_painter;
    std::shared_ptr<const PageLinks> m_links;
    int m_page;
};

QList<NamedPlace> placesOf(const QVector<Ofd::Target> &targets, const PageLinks &links)
{
    QList<NamedPlace> places;
    for (const Ofd::Target &target : targets)
        places.append(
            {target.title, target.depth, links.placeOf(target.destination), int(places.size())});
    return places;
}

} // namespace

QString OfdFile::faultOf(int page, const QString &fault)
{
    return tr("第 %1 页无法显示：%2").arg(page + 1).arg(fault);
}

QString OfdFile::leftOut() const
{
    if (!document)
        return QString();
    const QHash<QString, int> counts = document->unsupported.all();
    QStringList kinds = counts.keys();
    kinds.sort();
    QStringList parts;
    for (const QString &kind : std::as_const(kinds))
        parts.append(tr("%1 %2 处").arg(kind).arg(counts.value(kind)));
    QStringList sentences;
    if (!parts.isEmpty())
        sentences.append(tr("未显示：%1").arg(parts.join(tr("，"))));
    const int fonts = int(document->resources.fonts.all().size());
    if (m_testedFonts != fonts) // Pages may have fonts of their own.
        m_missingFonts = Ofd::FontSet::missing(document->resources);
    m_testedFonts = fonts;
    if (!m_missingFonts.isEmpty())
        sentences.append(tr("缺少字体：%1，以替代字体显示").arg(m_missingFonts.join(tr("、"))));
    return sentences.join(tr("；"));
}

bool OfdFile::read(const QString &fileName, QList<Page> *pages, QString *error, int body)
{
    const std::shared_ptr<const Ofd::Document> read = Ofd::read(fileName, error, body);
    if (!read)
        return false;
    document = read;
    hidden = std::make_shared<HiddenAnnotations>();
    const auto painter = std::make_shared<OfdContentPainter>(document, hidden);
    const Ofd::DocumentRoot root(*document);
    const auto links = std::make_shared<const PageLinks>(*document, root);
    pages->clear();
    for (int i = 0; i < document->pageCount(); ++i) {
        Page page;
        page.content = std::make_shared<OfdPageContent>(painter, links, i);
        page.size = page.content->size();
        page.isTextRead = false;
        pages->append(page);
    }
    archive = document->package->archive();
    isSigned = !document->signatures.entries.isEmpty();
    information = document->information;
    outline = placesOf(document->outline, *links);
    bookmarks = placesOf(document->bookmarks, *links);
    for (const Ofd::Attachment &attachment : document->attachments)
        attachments.append(attachment.name);
    permissions = Ofd::Permissions::of(root.element);
    marks = MarkAnnotation::marksOf(*document, root);
    return true;
}

QPointF OfdFile::cornerOf(int page) const
{
    document->pages->measure(page); // An estimate would misplace marks.
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
