// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPixmap>
#include <QString>

class QPainter;

/** One large picture of several pictures with captions, without scaling. */
class PictureSheet
{
public:
    /** @param scale The scale of captions and distances: dots per inch divided by 96. */
    explicit PictureSheet(double scale);

    void add(const QString &caption, const QPixmap &picture);
    /** Begins a new row. */
    void breakRow();

    bool save(const QString &path) const;

private:
    struct Entry
    {
        QString caption;
        QPixmap picture;
        bool beginsRow;
    };

    int length(int designPixels) const;
    QSize cellSize(const Entry &entry) const;
    QList<QPoint> places(QSize *total) const;

    double m_scale;
    bool m_beginsRow = true;
    QList<Entry> m_entries;
};
