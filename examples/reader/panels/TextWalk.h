// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Page.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>

/** Goes through the texts of all pages in a thread, keeping one of them at a time. */
class TextWalk : public QObject
{
    Q_OBJECT

public:
    /** Called in the thread with each page and its text; ends the walk by returning false. */
    using Visit = std::function<bool(int index, const Page &page)>;

    explicit TextWalk(QObject *parent = nullptr);
    ~TextWalk() override;
    Q_DISABLE_COPY(TextWalk)

    /** Begins at @p first and goes round, down or up; ends an earlier walk. */
    void start(const QList<Page> &pages, int first, bool isDown, const Visit &visit);
    /** Waits for the page that is being visited; stepped() does not follow. */
    void stop();

    bool isActive() const { return m_timer.isActive(); }
    int visitedCount() const { return m_count; }

Q_SIGNALS:
    /** Pages were visited; several times a second, and once after the last one. */
    void stepped();

private:
    void walk(int first, bool isDown, const Visit &visit);
    void follow();

    QTimer m_timer;
    QList<Page> m_pages; ///< Empty without a thread, which must not be the last that has them.
    std::atomic<int> m_count{0};
    std::atomic<bool> m_isStopped{false};
    std::atomic<bool> m_isDone{false};
    std::unique_ptr<QThread> m_thread; ///< Not std::thread: Qt keeps fonts for a time by a timer.
};
