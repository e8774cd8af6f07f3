// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/PagePainter.h"

#include <QImage>
#include <QMutex>
#include <QThread>
#include <QTransform>
#include <QVector>
#include <QWaitCondition>

#include <atomic>
#include <optional>

/** A rectangle of a page to be painted as a picture. */
struct Tile
{
    QString key;
    int index = 0;       ///< The PageContent::index().
    QPoint corner;       ///< In device pixels from the corner of the turned page.
    QSize size;          ///< In device pixels.
    QTransform toPixels; ///< From page units.
    qreal ratio = 1;     ///< Of the picture.
    PageColours colours;
};

/** Paints tiles of the pages of one file in a thread of its own, which ends with the object. */
class TilePainter : public QThread
{
    Q_OBJECT

public:
    struct Painted
    {
        QString key;
        QImage image;
    };

    explicit TilePainter(MakeContentPainter makePainter, QObject *parent = nullptr);
    ~TilePainter() override;

    /**
     * Replaces the tiles that are to be painted, the most urgent first. A tile that is being
     * painted and is not among them is abandoned.
     */
    void setWanted(const QVector<Tile> &tiles);
    /** The tiles that were painted since the last call. */
    QVector<Painted> takePainted();
    /** Ends the thread without waiting for it. Nothing is painted any more. */
    void stop();

Q_SIGNALS:
    /** There are tiles to take. */
    void painted();

protected:
    void run() override;

private:
    std::optional<Tile> next();
    bool deliver(const QImage &image);

    const MakeContentPainter m_makePainter;
    QMutex m_mutex; ///< For everything below.
    QWaitCondition m_hasChanged;
    QVector<Tile> m_wanted;
    QString m_current; ///< The tile that is being painted; empty between tiles.
    QVector<Painted> m_painted;
    bool m_isStopped = false;
    std::atomic_bool m_isAbandoned{false};
};
