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
    for (const Annotation &annotation : page.annotations)
        bytes += bytesOf({annotation.appearance});
    return 1 + int(bytes >> 10);
}

} // namespace

PageStore::PageStore(const QVector<QRectF> &areas, Reader reader)
    : m_count(int(areas.size()))
    , m_reader(std::move(reader))
    , m_areas(areas)
    , m_pages(mostKilobytes)
{
}

QRectF PageStore::area(int index) const
{
    const QMutexLocker guard(&m_lock);
    return m_areas.at(index);
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
    const QMutexLocker reading(&m_reading);
    // Another thread may have read it while this one waited.
    if (const Kept kept = known(index))
        return kept;
    const auto page = std::make_shared<const Page>(m_reader(index));
    const QMutexLocker guard(&m_lock);
    m_areas[index] = page->area;
    m_pages.insert(index, new Kept(page), kilobytesOf(*page));
    return page;
}

} // namespace Ofd
