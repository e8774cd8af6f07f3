// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>

class QWindow;

/** Saves a picture of a window as soon as it is on the screen and has stopped changing. */
class Screenshot : public QObject
{
    Q_OBJECT

public:
    Screenshot(QWidget *window, const QString &fileName, QObject *parent = nullptr);

Q_SIGNALS:
    void saved();
    /** The window did not come up, or the file cannot be written. */
    void failed(const QString &reason);

private:
    void look();

    QWidget *m_window;
    QString m_fileName;
    QImage m_last;
    QTimer m_timer;
    int m_looks = 0;
};
