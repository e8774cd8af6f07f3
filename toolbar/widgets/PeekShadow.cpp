// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/PeekShadow.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/ScreenDensity.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace {

// At 96 dpi, in pixels.
constexpr double reach = 7.0;
constexpr double edgeWidth = 1.0;

QColor shade(int alpha)
{
    return QColor(0, 0, 0, alpha);
}

} // namespace

PeekShadow::PeekShadow(const QWidget *toolBar, QWidget *window)
    : Panel(window)
    , m_toolBar(toolBar)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PeekShadow::follow(const QRect &rows)
{
    const int depth = ScreenDensity::scaled(reach, ScreenDensity::factor(m_toolBar));
    setGeometry(rows.left(), rows.bottom() + 1, rows.width(), depth);
    show();
    raise();
}

void PeekShadow::paintEvent(QPaintEvent *)
{
    // The toolbar may be gone already.
    if (!m_toolBar)
        return;
    const SchemeColours *colours = Appearance::coloursFor(m_toolBar);
    QLinearGradient gradient(0, 0, 0, height());
    // On dark pages less is not seen. A shadow fades faster than it should by equal steps.
    gradient.setColorAt(0.0, shade(colours ? 130 : 56));
    gradient.setColorAt(0.4, shade(colours ? 54 : 20));
    gradient.setColorAt(1.0, shade(0));
    QPainter painter(this);
    painter.fillRect(rect(), gradient);
    const int edge =
        std::max(1, ScreenDensity::scaled(edgeWidth, ScreenDensity::factor(m_toolBar)));
    const QColor line = colours ? colours->divider : shade(40);
    painter.fillRect(QRect(0, 0, width(), edge), line);
}
