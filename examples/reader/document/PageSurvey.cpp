// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/PageSurvey.h"

namespace {

constexpr int restTime = 100; // Milliseconds.

} // namespace

PageSurvey::PageSurvey(std::shared_ptr<const Ofd::Document> document)
    : m_document(std::move(document))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(restTime);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_isTold = false;
        Q_EMIT learnt();
    });
    m_document->pages->setListener([this] { tell(); });
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
    for (int page = 0; page < m_document->pageCount() && !m_isStopped; ++page) {
        m_document->pages->measure(page);
        // Otherwise the others that read from the package would hardly get their turn.
        std::this_thread::yield();
    }
    tell();
}

/** Any thread calls this. */
void PageSurvey::tell()
{
    if (!m_isTold.exchange(true))
        QMetaObject::invokeMethod(
            this, [this] { m_timer.start(); }, Qt::QueuedConnection);
}
