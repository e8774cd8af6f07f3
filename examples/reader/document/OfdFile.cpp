// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/OfdFile.h"

#include "document/MarkAnnotation.h"
#include "document/OfdPainters.h"
#include "document/PageLinks.h"
#include "ofd/Fault.h"
#include "ofd/PageText.h"

#include <QPainter>

#include <utility>

namespace {

constexpr qreal unitsPerMillimetre = 96 / 25.4;
constexpr int faultPixels = 20;

QRectF toPageUnits(const QRectF &rect)
{
    return QRectF(rect.topLeft() * unitsPerMillimetre, rect.size() * unitsPerMillimetre);
}

/** Tells on a page that nothing else can be shown there. */
void paintFault(QPainter &painter, const QSizeF &size, const QString &sentence)
{
    QFont font;
    font.setPixelSize(faultPixels);
    painter.setFont(font);
    painter.setPen(Qt::darkGray);
    const QRectF sheet(QPointF(0, 0), size);
    painter.drawText(sheet.adjusted(faultPixels, faultPixels, -faultPixels, -faultPixels),
                     Qt::AlignCenter | Qt::TextWordWrap, sentence);
}

void paintInPageUnits(QPainter &painter, Ofd::Painter &pages, int index,
                      const HiddenAnnotations &hidden, const std::atomic_bool *isAbandoned)
{
    painter.save();
    painter.scale(unitsPerMillimetre, unitsPerMillimetre);
    pages.paint(painter, index, hidden.on(index), isAbandoned);
    painter.restore();
    const Ofd::PageStore &store = *pages.document().pages;
    const QString fault = store.fault(index);
    if (!fault.isEmpty())
        paintFault(painter, store.area(index).size() * unitsPerMillimetre,
                   OfdFile::faultOf(index, fault));
}

class OfdContentPainter : public ContentPainter
{
public:
    OfdContentPainter(const std::shared_ptr<const Ofd::Document> &document,
                      const std::shared_ptr<const HiddenAnnotations> &hidden)
        : m_painter(document)
        , m_hidden(hidden)
    {
    }

    void paint(QPainter &painter, int index, const std::atomic_bool &isAbandoned) override
    {
        paintInPageUnits(painter, m_painter, index, *m_hidden, &isAbandoned);
    }

private:
    Ofd::Painter m_painter;
    std::shared_ptr<const HiddenAnnotations> m_hidden;
};

/** One page of a document; all pages share the painters. */
class OfdPageContent : public PageContent
{
public:
    OfdPageContent(const std::shared_ptr<OfdPainters> &painters,
                   const std::shared_ptr<HiddenAnnotations> &hidden,
                   const std::shared_ptr<const PageLinks> &links, int page)
        : m_painters(painters)
        , m_hidden(hidden)
        , m_links(links)
        , m_page(page)
    {
    }

    void paint(QPainter &painter) const override
    {
        paintInPageUnits(painter, m_painters->here(), m_page, *m_hidden, nullptr);
    }

    QSizeF size() const override { return pages().area(m_page).size() * unitsPerMillimetre; }

    QString fault() const override
    {
        const QString fault = pages().fault(m_page);
        return fault.isEmpty() ? QString() : OfdFile::faultOf(m_page, fault);
    }

    MakeContentPainter painterMaker() const override
    {
        // Not this page: the last thread that has it deletes the fonts of the main thread.
        return [document = m_painters->document(), hidden = m_hidden] {
            return std::make_unique<OfdContentPainter>(document, hidden);
        };
    }

    int index() const override { return m_page; }

    int signatureAt(QPointF point) const override
    {
        const Ofd::Document &document = *m_painters->document();
        const QPointF place = point / unitsPerMillimetre + document.area(m_page).topLeft();
        int found = -1;
        // The last seal is on top of the others.
        for (const Ofd::Stamp &stamp : document.stamps.value(m_page)) {
            if (stamp.area().contains(place))
                found = stamp.signature;
        }
        return found;
    }

    void readText(Page &page) const override
    {
        Ofd::Painter &painter = m_painters->here();
        const Ofd::PageText text = textOf(painter.document(), m_page, painter.fonts());
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
        const auto page = m_painters->document()->page(m_page);
        return m_links->on(*page, m_hidden->on(m_page));
    }

private:
    const Ofd::PageStore &pages() const { return *m_painters->document()->pages; }

    std::shared_ptr<OfdPainters> m_painters;
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
    const auto painters = std::make_shared<OfdPainters>(document);
    hidden = std::make_shared<HiddenAnnotations>();
    const Ofd::DocumentRoot root(*document);
    const auto links = std::make_shared<const PageLinks>(*document, root);
    pages->clear();
    for (int i = 0; i < document->pageCount(); ++i) {
        Page page;
        page.content = std::make_shared<OfdPageContent>(painters, hidden, links, i);
        page.size = page.content->size();
        page.isTextRead = false;
        pages->append(page);
    }
    archive = document->package->archive();
    isSigned = !document->signatures.entries.isEmpty();
    information = document->information;
    outline = placesOf(document->outline);
    bookmarks = placesOf(document->bookmarks);
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
