// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/EndFade.h"

#include "toolbar/skin/ScreenDensity.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

constexpr double designWidth = 24.0;

} // namespace

EndFade::EndFade(Qt::Edge edge, QWidget *area)
    : Panel(area)
    , m_edge(edge)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void EndFade::follow(const QRect &view)
{
    QRect place = view;
    place.setWidth(ScreenDensity::scaled(designWidth, ScreenDensity::factor(this)));
    if (m_edge == Qt::RightEdge)
        place.moveRight(view.right());
    setGeometry(place);
}

void EndFade::paintEvent(QPaintEvent *)
{
    // The skin's sheet has put the ground of the rows into the palette of the area.
    const QColor ground = parentWidget()->palette().color(parentWidget()->backgroundRole());
    QColor clear = ground;
    clear.setAlpha(0);
    QLinearGradient gradient(0, 0, width(), 0);
    gradient.setColorAt(m_edge == Qt::LeftEdge ? 0.0 : 1.0, ground);
    gradient.setColorAt(m_edge == Qt::LeftEdge ? 1.0 : 0.0, clear);
    QPainter(this).fillRect(rect(), gradient);
}
