// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/CustomMenuStyle.h"

#include "toolbar/skin/Scale.h"
#include "toolbar/skin/ScreenDensity.h"

#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QWidget>

namespace {

/** Where the arrow of a sub-menu stands: half as high as the item, by its trailing edge. */
QRect subMenuArrowRect(const QStyleOptionMenuItem &item)
{
    const QRect rect = item.rect;
    const int side = (rect.height() - 4) / 2;
    const QRect arrow(rect.right() - 2 - side,
                      rect.top() + rect.height() / 2 - (rect.height() - 4) / 4, side, side);
    return QStyle::visualRect(item.direction, rect, arrow);
}

} // namespace

CustomMenuStyle::CustomMenuStyle(int smallIconSize)
    : m_smallIconSize(smallIconSize)
{
}

void CustomMenuStyle::setSmallIconSize(int smallIconSize)
{
    m_smallIconSize = smallIconSize;
}

void CustomMenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                    QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void CustomMenuStyle::drawControl(ControlElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const
{
    if (element == CE_MenuItem)
        DrawCustomMenuItem(option, painter, widget);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

int CustomMenuStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                 const QWidget *widget) const
{
    if (metric != PM_SmallIconSize)
        return QProxyStyle::pixelMetric(metric, option, widget);

    if (const auto chosen = Scale::chosenFor(widget))
        return ScreenDensity::scaled(m_smallIconSize, *chosen);
    // Not the menu's own dpi: menus of one toolbar agree before they have met a screen.
    const QWidget screenProbe;
    return ScreenDensity::scaled(m_smallIconSize, ScreenDensity::factor(&screenProbe));
}

void CustomMenuStyle::DrawCustomMenuItem(const QStyleOption *option, QPainter *painter,
                                         const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (!item || item->menuItemType != QStyleOptionMenuItem::SubMenu)
        return;

    painter->save();
    QStyleOptionMenuItem arrow = *item;
    arrow.rect = subMenuArrowRect(*item);
    arrow.state = item->state & State_Enabled;
    const PrimitiveElement direction =
        item->direction == Qt::RightToLeft ? PE_IndicatorArrowLeft : PE_IndicatorArrowRight;
    proxy()->drawPrimitive(direction, &arrow, painter, widget);
    painter->restore();
}
