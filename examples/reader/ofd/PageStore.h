// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Objects.h"

#include <QCache>
#include <QHash>
#include <QMutex>

#include <functional>

namespace Ofd {

/** A mark on a page that is kept apart from its content. */
struct Annotation
{
    QString id;
    QString type; ///< As the file names it, such as "Link" or "Highlight".
    QString creator;
    QString remark; ///< What it says, as plain text.
    bool isVisible = true;
    Object appearance;
};

struct Page
{
    QRectF area; ///< The sheet, in the coordinates of the page.
    /** From back to front; pages share the objects of their templates. */
    QVector<std::shared_ptr<const Objects>> layers;
    QVector<Annotation> annotations; ///< Above the layers.
    /** Those of its own resources; Document::composite() looks here first. */
    QHash<QString, std::shared_ptr<const Objects>> composites;
    QString fault; ///< Why the page is empty, in one sentence; null for a page in order.
};

/** The pages of a document, each read when it is asked for. Threads may share it. */
class PageStore
{
public:
    /** Reads a page; one that cannot be read is empty and has a fault. No two threads call it. */
    using Reader = std::function<Page(int index)>;

    PageStore(const QVector<QRectF> &areas, Reader reader);

    int count() const { return m_count; }
    /** The sheet of a page; the usual one of the document until it is known. */
    QRectF area(int index) const;
    /** Never null. It stays valid while it is held, also when the store forgets it. */
    std::shared_ptr<const Page> page(int index) const;

private:
    std::shared_ptr<const Page> known(int index) const;

    using Kept = std::shared_ptr<const Page>;

    const int m_count;
    const Reader m_reader;
    mutable QMutex m_reading; ///< Locked before m_lock.
    mutable QMutex m_lock;    ///< Of what follows.
    mutable QVector<QRectF> m_areas;
    mutable QCache<int, Kept> m_pages;
};

} // namespace Ofd
