// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/TextWalk.h"

namespace {

constexpr int firstLook = 10; // Milliseconds. Small documents answer at once.
constexpr int laterLooks = 100;

} // namespace

TextWalk::TextWalk(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &TextWalk::follow);
}

TextWalk::~TextWalk()
{
    stop();
}

void TextWalk::start(const QList<Page> &pages, int first, bool isDown, const Visit &visit)
{
    stop();
    m_pages = pages;
    m_count = 0;
    m_isStopped = false;
    m_isDone = false;
    m_timer.start(firstLook);
    m_thread.reset(QThread::create([this, first, isDown, visit] { walk(first, isDown, visit); }));
    m_thread->start();
}

void TextWalk::stop()
{
    m_timer.stop();
    m_isStopped = true;
    if (m_thread)
        m_thread->wait();
    m_thread.reset();
    m_pages.clear();
}

void TextWalk::walk(int first, bool isDown, const Visit &visit)
{
    std::unique_ptr<ContentPainter> painter;
    const int count = int(m_pages.size());
    for (int i = 0; i < count && !m_isStopped; ++i) {
        const int index = (first + (isDown ? i : count - i)) % count;
        const Page &page = m_pages.at(index);
        if (!painter && !page.isTextRead)
            painter = page.content->painterMaker()();
        if (!visit(index, page.isTextRead ? page : page.withText(*painter)))
            break;
        ++m_count;
    }
    m_isDone = true;
}

void TextWalk::follow()
{
    m_timer.setInterval(laterLooks);
    if (m_isDone)
        stop();
    Q_EMIT stepped();
}
