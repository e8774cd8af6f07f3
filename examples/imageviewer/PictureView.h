// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <toolbar/ToolBarTypes.h>

#include <QFileInfoList>
#include <QImage>
#include <QWidget>

/** Shows one picture of a folder. It knows nothing of the toolbar. */
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);

    /** Shows a picture; its folder becomes the one to go through. */
    bool open(const QString &fileName);
    bool isOpen() const { return !m_picture.isNull(); }
    QString fileName() const;
    const QImage &picture() const { return m_picture; }

    int number() const { return m_index + 1; } ///< In the folder, counted from 1.
    int count() const { return int(m_files.size()); }
    void goTo(int number);
    /** Shows the next picture whose file name contains the text, round the folder's end. */
    bool find(const QString &text, int step, Qt::CaseSensitivity sensitivity);

    /** Such as "vzmode_fitpage" or "vzmode_125p"; empty without a picture. */
    QString zoomMode() const { return isOpen() ? m_zoomMode : QString(); }
    void setZoomMode(const QString &mode);
    double percent() const;
    void zoomBy(double factor);
    void turn(int degrees);
    void mirror();
    bool isMirrored() const { return m_isMirrored; }
    BackgroundStyle ground() const { return m_ground; }
    void setGround(BackgroundStyle ground);

Q_SIGNALS:
    void changed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    bool show(int index);
    void refresh();

    QFileInfoList m_files;
    int m_index = -1;
    QImage m_picture;
    QString m_zoomMode = QStringLiteral("vzmode_fitpage");
    BackgroundStyle m_ground = Background_Default;
    bool m_isMirrored = false;
    QPoint m_offset; ///< Of the picture's centre from that of the view.
    QPoint m_dragged;
};
