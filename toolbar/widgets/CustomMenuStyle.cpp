// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/CustomMenuStyle.h"

#include "toolbar/skin/ScreenDensity.h"

#include <QMenu>
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

/**
 * A style must be deleted after the menus that use it: each of them has one of these among its
 * children.
 */
class StyleShare : public QObject
{
public:
    StyleShare(std::shared_ptr<CustomMenuStyle> style, QMenu *menu)
        : QObject(menu)
        , m_style(std::move(style))
    {
    }

private:
    std::shared_ptr<CustomMenuStyle> m_style;
};

} // namespace

CustomMenuStyle::CustomMenuStyle(int smallIconSize)
    : m_smallIconSize(smallIconSize)
{
}

void CustomMenuStyle::setSmallIconSize(int smallIconSize)
{
    m_smallIconSize = smallIconSize;
}

void CustomMenuStyle::setScale(float scale)
{
    m_scale = scale;
}

void CustomMenuStyle::share(const std::shared_ptr<CustomMenuStyle> &style, QMenu *menu)
{
    new StyleShare(style, menu);
    menu->setStyle(style.get());
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

    if (m_scale)
        return ScreenDensity::scaled(m_smallIconSize, *m_scale);
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
