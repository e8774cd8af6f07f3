// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

#include <QObject>
#include <QTimer>

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
    /** Pages were measured or read; several times a second at most. */
    void learnt();

private:
    void measureAll();
    void tell();

    std::shared_ptr<const Ofd::Document> m_document;
    QTimer m_timer;
    std::atomic<bool> m_isTold{false};
    std::atomic<bool> m_isStopped{false};
    std::thread m_thread;
};
