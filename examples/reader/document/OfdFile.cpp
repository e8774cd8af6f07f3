// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/OfdFile.h"

#include "ofd/PageText.h"
#include "ofd/Painter.h"

#include <QPainter>

namespace {

constexpr qreal unitsPerMillimetre = 96 / 25.4;

QRectF toPageUnits(const QRectF &rect)
{
    return QRectF(rect.topLeft() * unitsPerMillimetre, rect.size() * unitsPerMillimetre);
}

void paintInPageUnits(QPainter &painter, Ofd::Painter &pages, int index,
                      const std::atomic_bool *isAbandoned)
{
    painter.save();
    painter.scale(unitsPerMillimetre, unitsPerMillimetre);
    pages.paint(painter, index, isAbandoned);
    painter.restore();
}

class OfdContentPainter : public ContentPainter
{
public:
    explicit OfdContentPainter(const std::shared_ptr<const Ofd::Document> &document)
        : m_painter(document)
    {
    }

    void paint(QPainter &painter, int index, const std::atomic_bool &isAbandoned) override
    {
        paintInPageUnits(painter, m_painter, index, &isAbandoned);
    }

private:
    Ofd::Painter m_painter;
};

/** One page of a document; in the main thread all pages share a painter. */
class OfdPageContent : public PageContent
{
public:
    OfdPageContent(const std::shared_ptr<Ofd::Painter> &painter, int page)
        : m_painter(painter)
        , m_page(page)
    {
    }

    void paint(QPainter &painter) const override
    {
        paintInPageUnits(painter, *m_painter, m_page, nullptr);
    }

    MakeContentPainter painterMaker() const override
    {
        // Not this page: the last thread that has it deletes the fonts of the main thread.
        return [document = m_painter->sharedDocument()] {
            return std::make_unique<OfdContentPainter>(document);
        };
    }

    int index() const override { return m_page; }

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

private:
    std::shared_ptr<Ofd::Painter> m_painter;
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
    const QHash<QString, int> unsupported = painter.document().unsupported.all();
    for (auto kind = unsupported.cbegin(); kind != unsupported.cend(); ++kind)
        counts[kind.key()] += kind.value();
    QStringList parts;
    for (auto kind = counts.cbegin(); kind != counts.cend(); ++kind)
        parts.append(OfdFile::tr("%1 %2 处").arg(kind.key()).arg(kind.value()));
    QStringList sentences;
    if (!parts.isEmpty())
        sentences.append(OfdFile::tr("未显示：%1").arg(parts.join(OfdFile::tr("，"))));
    const QStringList fonts = Ofd::FontSet::missing(painter.document().resources);
    if (!fonts.isEmpty())
        sentences.append(
            OfdFile::tr("缺少字体：%1，以替代字体显示").arg(fonts.join(OfdFile::tr("、"))));
    return sentences.join(OfdFile::tr("；"));
}

} // namespace

bool OfdFile::read(const QString &fileName, QList<Page> *pages, QString *error)
{
    const std::shared_ptr<const Ofd::Document> document = Ofd::read(fileName, error);
    if (!document)
        return false;
    const auto painter = std::make_shared<Ofd::Painter>(document);
    pages->clear();
    for (int i = 0; i < document->pageCount(); ++i) {
        Page page;
        page.size = document->page(i)->area.size() * unitsPerMillimetre;
        page.heading = tr("第 %1 页").arg(i + 1);
        page.content = std::make_shared<OfdPageContent>(painter, i);
        page.isTextRead = false;
        pages->append(page);
    }
    archive = document->package->archive();
    information = document->information;
    outline = placesOf(document->outline);
    bookmarks = placesOf(document->bookmarks);
    attachments = document->attachments;
    leftOut = leftOutOf(*painter);
    return true;
}
