// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/PageStore.h"

namespace Ofd {

namespace {

constexpr int mostKilobytes = 64 << 10;

qint64 bytesOf(const Objects &objects)
{
    qint64 bytes = 0;
    for (const Object &object : objects) {
        bytes += qint64(sizeof(Object));
        if (const auto *text = std::get_if<Text>(&object.content)) {
            for (const TextRun &run : text->runs)
                bytes += qint64(sizeof(TextRun)) + run.text.size() * qint64(sizeof(QChar))
                         + (run.deltaX.size() + run.deltaY.size()) * qint64(sizeof(qreal));
        } else if (const auto *path = std::get_if<Path>(&object.content)) {
            bytes += path->path.elementCount() * qint64(sizeof(QPainterPath::Element));
        } else if (const auto *group = std::get_if<Group>(&object.content)) {
            bytes += bytesOf(*group->objects);
        }
        for (const Clip &clip : object.clips)
            bytes += clip.path.elementCount() * qint64(sizeof(QPainterPath::Element));
    }
    return bytes;
}

/** An estimate that is never too small by much. What pages share counts for each of them. */
int kilobytesOf(const Page &page)
{
    qint64 bytes = 0;
    for (const auto &layer : page.layers)
        bytes += bytesOf(*layer);
    for (const auto &composite : page.composites)
        bytes += bytesOf(*composite);
    bytes += page.links.size() * qint64(sizeof(Link));
    for (const Annotation &annotation : page.annotations)
        bytes += bytesOf({annotation.appearance}) + annotation.links.size() * qint64(sizeof(Link));
    return 1 + int(bytes >> 10);
}

} // namespace

PageStore::PageStore(int count, const QRectF &usualArea, Reader reader, Measurer measurer)
    : m_usualArea(usualArea)
    , m_reader(std::move(reader))
    , m_measurer(std::move(measurer))
    , m_count(count)
    , m_areas(count)
    , m_pages(mostKilobytes)
{
}

QRectF PageStore::area(int index) const
{
    const QMutexLocker guard(&m_lock);
    const QRectF &area = m_areas.at(index);
    return area.isNull() ? m_usualArea : area;
}

void PageStore::measure(int index) const
{
    {
        const QMutexLocker guard(&m_lock);
        if (!m_measurer || !m_areas.at(index).isNull())
            return;
    }
    const QRectF area = m_measurer(index);
    const QMutexLocker guard(&m_lock);
    // What a reader found out in the meantime is exact.
    if (m_areas.at(index).isNull())
        m_areas[index] = area;
}

std::shared_ptr<const Page> PageStore::known(int index) const
{
    const QMutexLocker guard(&m_lock);
    const Kept *kept = m_pages.object(index);
    return kept ? *kept : nullptr;
}

std::shared_ptr<const Page> PageStore::page(int index) const
{
    if (const Kept kept = known(index))
        return kept;
    const Kept page = readUnlessKnown(index);
    tell({index});
    return page;
}

std::shared_ptr<const Page> PageStore::readUnlessKnown(int index) const
{
    const QMutexLocker reading(&m_reading);
    // Another thread may have read it while this one waited.
    if (const Kept kept = known(index))
        return kept;
    const auto page = std::make_shared<Page>(m_reader(index));
    if (!page->fault.isNull())
        page->area = area(index);
    const QMutexLocker guard(&m_lock);
    m_areas[index] = page->area;
    if (!page->fault.isNull())
        m_faults.insert(index, page->fault);
    m_pages.insert(index, new Kept(page), kilobytesOf(*page));
    return page;
}

QString PageStore::fault(int index) const
{
    const QMutexLocker guard(&m_lock);
    return m_faults.value(index);
}

void PageStore::setListener(Listener listener) const
{
    const QMutexLocker guard(&m_listening);
    m_listener = std::move(listener);
}

void PageStore::tell(const QVector<int> &read) const
{
    const QMutexLocker guard(&m_listening);
    if (m_listener)
        m_listener(read);
}

} // namespace Ofd
