// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

#include <QMutex>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <atomic>
#include <thread>

/** Measures the pages of an open file in a thread, and tells what becomes known about its pages. */
class PageSurvey : public QObject
{
    Q_OBJECT

public:
    explicit PageSurvey(std::shared_ptr<const Ofd::Document> document);
    ~PageSurvey() override;
    Q_DISABLE_COPY(PageSurvey)

Q_SIGNALS:
    /**
     * Pages of the file were read, all were measured, or painting has left something out. Emitted
     * several times a second at most.
     */
    void learnt(const QVector<int> &pages);

private:
    void measureAll();
    void tell(const QVector<int> &pages);
    void forward();

    std::shared_ptr<const Ofd::Document> m_document;
    QTimer m_timer;
    std::atomic<bool> m_isStopped{false};
    QMutex m_lock;         ///< Of the next two.
    bool m_isTold = false; ///< Since learnt() was emitted.
    QVector<int> m_pages;  ///< Those that it did not have yet.
    std::thread m_thread;
};
