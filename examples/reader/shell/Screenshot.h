// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>

class QWindow;

/** Saves a picture of a window when it is visible and does not change any more. */
class Screenshot : public QObject
{
    Q_OBJECT

public:
    Screenshot(QWidget *window, const QString &fileName, QObject *parent = nullptr);

Q_SIGNALS:
    void saved();
    /** The window did not become visible, or the file cannot be written. */
    void failed(const QString &reason);

private:
    void look();

    QWidget *m_window;
    QString m_fileName;
    QImage m_last;
    QTimer m_timer;
    int m_looks = 0;
};
