// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Objects.h"

#include <QCache>
#include <QHash>
#include <QMutex>
#include <QPair>

#include <functional>

namespace Ofd {

/** A mark on a page that is kept apart from its content. */
struct Annotation
{
    QString id;
    QString type; ///< As the file names it, such as "Link" or "Highlight".
    QString subtype;
    QString creator;
    QString date;   ///< Of the last change, as the file gives it.
    QString remark; ///< What it says, as plain text.
    QVector<QPair<QString, QString>> parameters;
    bool isVisible = true;
    bool isPrinted = true;
    bool isReadOnly = false;
    Object appearance;
    QVector<Link> links;
};

struct Page
{
    QRectF area; ///< The sheet, in the coordinates of the page.
    /** From back to front; pages share the objects of their templates. */
    QVector<std::shared_ptr<const Objects>> layers;
    QVector<Annotation> annotations; ///< Above the layers.
    QVector<Link> links;             ///< Of the content.
    /** Those of its own resources; Document::composite() looks here first. */
    QHash<QString, std::shared_ptr<const Objects>> composites;
    QString fault; ///< Why the page is empty, in one sentence; null for a page in order.
};

/** The pages of a document, each read when it is asked for. Threads may share it. */
class PageStore
{
public:
    /**
     * Reads a page; one that cannot be read has a fault and nothing else. No two threads call it.
     */
    using Reader = std::function<Page(int index)>;
    /** Finds the sheet of a page without reading it all; null if it fails. Threads may call it. */
    using Measurer = std::function<QRectF(int index)>;

    /** @param usualArea The sheet of pages that are not measured yet. */
    PageStore(int count, const QRectF &usualArea, Reader reader, Measurer measurer = nullptr);

    int count() const { return m_count; }
    /** The sheet of a page; the usual one of the document until it is measured or read. */
    QRectF area(int index) const;
    /** Measures a page, which takes much less time than to read it. */
    void measure(int index) const;
    /** Never null. It stays valid while it is held, also when the store forgets it. */
    std::shared_ptr<const Page> page(int index) const;
    /** Why a page is empty; null also as long as it was not read. */
    QString fault(int index) const;

    using Listener = std::function<void(const QVector<int> &read)>;
    /** Sets what is called when pages were read or tell() is called, in the thread that did. */
    void setListener(Listener listener) const;
    /** Calls the listener, also without pages if something else became known about the document. */
    void tell(const QVector<int> &read) const;

private:
    std::shared_ptr<const Page> known(int index) const;
    std::shared_ptr<const Page> readUnlessKnown(int index) const;

    using Kept = std::shared_ptr<const Page>;

    const QRectF m_usualArea;
    const Reader m_reader;
    const Measurer m_measurer;
    const int m_count;
    mutable QMutex m_reading;        ///< Locked before m_lock.
    mutable QMutex m_lock;           ///< Of what follows.
    mutable QVector<QRectF> m_areas; ///< Null for those that are not known.
    mutable QHash<int, QString> m_faults;
    mutable QCache<int, Kept> m_pages;
    mutable QMutex m_listening; ///< Of the listener.
    mutable Listener m_listener;
};

} // namespace Ofd
