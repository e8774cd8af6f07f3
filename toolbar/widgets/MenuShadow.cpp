// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MenuShadow.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/ScreenDensity.h"

#include <QMenu>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

// At 96 dpi, in pixels.
constexpr double reach = 13.0;
constexpr double drop = 3.0; ///< The light comes from above.

constexpr double darkness = 0.2;
constexpr double darknessOnDark = 0.6; ///< On dark grounds less is not seen.

/** The strength of the shadow at @p distance of its reach, from 0 to 1. */
double strengthAt(double distance)
{
    return (1 - distance) * (1 - distance);
}

QColor shade(double alpha)
{
    QColor colour(Qt::black);
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

} // namespace

MenuShadow::MenuShadow(const QMenu *menu, double radius)
    : m_menu(menu)
    , m_radius(radius)
    , m_scale(ScreenDensity::scale(menu))
{
    setFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint
             | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus);
    QSurfaceFormat translucent = requestedFormat();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
}

void MenuShadow::appear()
{
    if (const QWindow *window = m_menu->windowHandle())
        setScreen(window->screen());
    follow();
    show();
    raise();
}

void MenuShadow::follow()
{
    const int margin = static_cast<int>(std::ceil((reach + drop) * m_scale));
    setGeometry(m_menu->geometry().adjusted(-margin, -margin, margin, margin));
    update();
}

void MenuShadow::paintEvent(QPaintEvent *)
{
    const QRectF panel = QRectF(m_menu->geometry()).translated(-position());
    const QRectF core = panel.translated(0, drop * m_scale);
    const double darkest = Appearance::coloursFor(m_menu) ? darknessOnDark : darkness;
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(QPoint(), size()), Qt::transparent);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);

    QPainterPath inner;
    inner.addRoundedRect(core, m_radius, m_radius);
    painter.fillPath(inner, shade(darkest));
    const double depth = reach * m_scale;
    for (double distance = 0; distance < depth; ++distance) {
        QPainterPath outer;
        const double out = distance + 1;
        outer.addRoundedRect(core.adjusted(-out, -out, out, out), m_radius + out, m_radius + out);
        painter.fillPath(outer - inner, shade(darkest * strengthAt((distance + 0.5) / depth)));
        inner = outer;
    }

    // Nothing darkens the menu from above or, where it is translucent, from below; but its smooth
    // edge lies on the shadow.
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setBrush(Qt::black);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(panel.adjusted(1, 1, -1, -1), m_radius, m_radius);
}
