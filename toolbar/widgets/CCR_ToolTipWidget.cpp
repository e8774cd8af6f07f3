// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/CCR_ToolTipWidget.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/SchemePalette.h"
#include "toolbar/skin/ScreenDensity.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds lifetime(2000);
constexpr int cornerBox = 10; ///< Side of the box that a rounded corner is a quarter of.
constexpr int cornerRadius = 5;

void addCorner(QPainterPath &path, qreal x, qreal y, int startAngle)
{
    path.arcTo(x, y, cornerBox, cornerBox, startAngle, 90);
}

/** The left, lower and right edges of a body from @p left to @p right, with all four corners. */
void addBody(QPainterPath &path, qreal left, qreal right, qreal bottom)
{
    path.lineTo(left + cornerRadius, 0);
    addCorner(path, left, 0, 90);
    path.lineTo(left, bottom - cornerRadius);
    addCorner(path, left, bottom - cornerBox, 180);
    path.lineTo(right - cornerRadius, bottom);
    addCorner(path, right - cornerBox, bottom - cornerBox, 270);
    path.lineTo(right, cornerRadius);
    addCorner(path, right - cornerBox, 0, 0);
}

} // namespace

CCR_ToolTipWidget::CCR_ToolTipWidget(QWidget *parent)
    : QWidget(parent, Qt::FramelessWindowHint)
    , m_label(new QLabel(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    new SchemePalette(this);

    auto *layout = new QHBoxLayout(this);
    layout->addStretch();
    layout->addWidget(m_label);
    // The bubble's own margins reach 5 pixels beyond its upper and right edge. A widget takes no
    // negative margins, so they are added to those that the style gives the layout.
    const int dpi = ScreenDensity::credible(logicalDpiX());
    const QMargins bubbleMargins(dpi * 20 / 96 + 5, -5, -5, 5);
    layout->setContentsMargins(layout->contentsMargins() + bubbleMargins);

    // Deliberately not single-shot: a bubble that is shown again closes again.
    connect(&m_closeTimer, &QTimer::timeout, this, &CCR_ToolTipWidget::TimeOutCloseWidget);
    m_closeTimer.start(lifetime);
}

void CCR_ToolTipWidget::setLabelText(QString text)
{
    const int room = ScreenDensity::credible(logicalDpiX()) * 10 / 96;
    m_label->setFixedSize(qMax(0, width() - room), qMax(0, height() - room));
    m_label->setText(text);
}

void CCR_ToolTipWidget::setDerection(Derection derection)
{
    m_derection = derection;
    update();
}

void CCR_ToolTipWidget::setStartPos(int startPos)
{
    m_startPos = startPos;
    update();
}

void CCR_ToolTipWidget::setTriangleInfo(int width, int height)
{
    m_triangleWidth = width;
    m_triangleHeight = height;
    update();
}

void CCR_ToolTipWidget::TimeOutCloseWidget()
{
    close();
}

void CCR_ToolTipWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const SchemeColours *colours = Appearance::coloursFor(this);
    painter.setPen(colours ? colours->frame : QColor(0, 0, 0, 255));
    painter.setBrush(colours ? colours->raised : QColor(245, 245, 245, 255));
    painter.drawPath(m_derection == DerectionUpright ? uprightPath() : slantedPath());
}

QPainterPath CCR_ToolTipWidget::slantedPath() const
{
    // The host's measures may add up to more than an int holds.
    const qreal pointerEnd = qreal(m_triangleWidth) + m_startPos;
    QPainterPath path(QPointF(m_startPos, m_triangleHeight));
    addBody(path, m_triangleWidth, width() - 1, height() - 1);
    path.lineTo(pointerEnd, m_triangleHeight);
    path.lineTo(m_derection == DerectionMirrored ? pointerEnd : m_startPos, 0);
    path.lineTo(m_startPos, m_triangleHeight);
    return path;
}

QPainterPath CCR_ToolTipWidget::uprightPath() const
{
    // The body gives way at the top, so that the triangle stands on it within the widget.
    const qreal pointerStart = qreal(m_triangleWidth) + m_startPos + cornerRadius;
    QPainterPath path(QPointF(pointerStart, 0));
    addBody(path, m_triangleWidth, width() - 1, height() - 1);
    path.lineTo(pointerStart + m_triangleWidth, 0);
    path.lineTo(pointerStart + m_triangleWidth / 2.0, m_triangleHeight);
    path.closeSubpath();
    return path;
}
