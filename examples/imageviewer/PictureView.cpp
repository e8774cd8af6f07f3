// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "PictureView.h"

#include <toolbar/MRToolBarCommands.h>

#include <QDir>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>
#include <QTransform>
#include <QWheelEvent>

#include <algorithm>

namespace {

QStringList patterns()
{
    QStringList patterns;
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats)
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    return patterns;
}

QColor colourOf(BackgroundStyle ground)
{
    switch (ground) {
    case Background_Daytime:
        return Qt::white;
    case Background_Nighttime:
        return QColor(0x1E, 0x1F, 0x22);
    default:
        return QColor(0xD8, 0xDA, 0xDD);
    }
}

} // namespace

PictureView::PictureView(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(320, 200);
}

bool PictureView::open(const QString &fileName)
{
    const QFileInfo file(fileName);
    const QFileInfoList files =
        file.absoluteDir().entryInfoList(patterns(), QDir::Files, QDir::Name | QDir::IgnoreCase);
    const auto index = files.indexOf(file);
    if (index < 0 || !QImageReader(fileName).canRead())
        return false;
    m_files = files;
    return show(int(index));
}

bool PictureView::show(int index)
{
    QImageReader reader(m_files.at(index).absoluteFilePath());
    reader.setAutoTransform(true);
    m_index = index;
    // A file that cannot be read any more leaves the view empty.
    m_picture = reader.read();
    m_isMirrored = false;
    refresh();
    return isOpen();
}

void PictureView::refresh()
{
    m_offset = QPoint();
    update();
    Q_EMIT changed();
}

QString PictureView::fileName() const
{
    return m_index < 0 ? QString() : m_files.at(m_index).absoluteFilePath();
}

void PictureView::goTo(int number)
{
    if (number >= 1 && number <= count())
        show(number - 1);
}

bool PictureView::find(const QString &text, int step, Qt::CaseSensitivity sensitivity)
{
    for (int distance = 1; distance <= count(); ++distance) {
        const int index = (m_index + step * distance + 2 * count()) % count();
        if (m_files.at(index).fileName().contains(text, sensitivity))
            return show(index);
    }
    return false;
}

void PictureView::setZoomMode(const QString &mode)
{
    m_zoomMode = mode;
    refresh();
}

double PictureView::percent() const
{
    const double given = MRToolBarCommands::zoomPercent(m_zoomMode);
    if (given > 0 || !isOpen())
        return given;
    const double byWidth = 100.0 * width() / m_picture.width();
    const double byHeight = 100.0 * height() / m_picture.height();
    return m_zoomMode == QLatin1String("vzmode_fitwidth") ? byWidth : std::min(byWidth, byHeight);
}

void PictureView::zoomBy(double factor)
{
    setZoomMode(MRToolBarCommands::zoomMode(qRound(qBound(10.0, percent() * factor, 6400.0))));
}

void PictureView::turn(int degrees)
{
    m_picture = m_picture.transformed(QTransform().rotate(degrees));
    refresh();
}

void PictureView::mirror()
{
    m_picture = m_picture.transformed(QTransform::fromScale(-1, 1));
    m_isMirrored = !m_isMirrored;
    refresh();
}

void PictureView::setGround(BackgroundStyle ground)
{
    m_ground = ground;
    refresh();
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), colourOf(m_ground));
    QRect place(QPoint(), m_picture.size() * percent() / 100.0);
    place.moveCenter(rect().center() + m_offset);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_picture);
}

void PictureView::wheelEvent(QWheelEvent *event)
{
    const int steps = event->angleDelta().y() / 120;
    if (event->modifiers() & Qt::ControlModifier)
        zoomBy(1 + 0.1 * steps);
    else
        goTo(number() - steps);
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    m_dragged = event->pos();
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    m_offset += event->pos() - m_dragged;
    m_dragged = event->pos();
    update();
}
