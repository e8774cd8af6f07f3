// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <optional>

/**
 * Measures the time between two clicks. A busy application handles clicks late and then all at
 * once, but each event of the window system tells when it happened.
 */
class ClickClock : public QObject
{
public:
    /** Watches the events of the application, as only they tell that. */
    explicit ClickClock(QObject *parent);

    /**
     * Begins anew with the click that is being handled. To be called for each, be it made by mouse,
     * key or program.
     * @return the milliseconds from the last click to this one
     */
    qint64 restart();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Click
    {
        std::optional<qint64> happened; ///< By the window system's clock; for its events only.
        qint64 handled = 0;             ///< By the clock of this process.
    };

    void note(qint64 time);

    QElapsedTimer m_clock;
    std::optional<qint64> m_eventTime; ///< Of the event that is being handled.
    Click m_last;
};
