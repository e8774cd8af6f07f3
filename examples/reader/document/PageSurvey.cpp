// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/PageSurvey.h"

#include <utility>

namespace {

constexpr int restTime = 100; // Milliseconds.

} // namespace

PageSurvey::PageSurvey(std::shared_ptr<const Ofd::Document> document)
    : m_document(std::move(document))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(restTime);
    connect(&m_timer, &QTimer::timeout, this, &PageSurvey::forward);
    m_document->pages->setListener([this](const QVector<int> &read) { tell(read); });
    m_thread = std::thread([this] { measureAll(); });
}

PageSurvey::~PageSurvey()
{
    m_document->pages->setListener(nullptr);
    m_isStopped = true;
    m_thread.join();
}

void PageSurvey::measureAll()
{
    QVector<int> pages;
    for (int page = 0; page < m_document->pageCount() && !m_isStopped; ++page) {
        m_document->pages->measure(page);
        pages.append(page);
        // Otherwise the others that read from the package would hardly get their turn.
        std::this_thread::yield();
    }
    tell(pages);
}

/** Any thread calls this. */
void PageSurvey::tell(const QVector<int> &pages)
{
    const QMutexLocker guard(&m_lock);
    m_pages += pages;
    if (!std::exchange(m_isTold, true))
        QMetaObject::invokeMethod(
            this, [this] { m_timer.start(); }, Qt::QueuedConnection);
}

void PageSurvey::forward()
{
    QVector<int> pages;
    {
        const QMutexLocker guard(&m_lock);
        m_isTold = false;
        pages = std::exchange(m_pages, {});
    }
    Q_EMIT learnt(pages);
}
