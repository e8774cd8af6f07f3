// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

#include <memory>
#include <optional>

class QMenu;

/**
 * The style of the application button's menus: it scales their icons with the screen and draws
 * the arrow of a sub-menu. Text, icon and ground of an item are the style sheet's.
 */
class CustomMenuStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** @param smallIconSize side of an item's icon at 96 dpi, in pixels */
    explicit CustomMenuStyle(int smallIconSize);

    void setSmallIconSize(int smallIconSize);

    /** Has the icons follow this instead of the screen. */
    void setScale(float scale);

    /** Gives a menu the style, which lives at least as long as the menu from now on. */
    static void share(const std::shared_ptr<CustomMenuStyle> &style, QMenu *menu);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;

private:
    void DrawCustomMenuItem(const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const;

    int m_smallIconSize;
    std::optional<float> m_scale;
};
