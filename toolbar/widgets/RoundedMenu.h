// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/MenuShadow.h"

#include <QObject>

#include <memory>

class QMenu;
class QPaintEvent;
class QToolBar;

/**
 * Round corners and a shadow for a menu, where the windowing system composes its windows. Anywhere
 * else the menu stays the rectangle with a frame that the skin makes of it.
 */
class RoundedMenu : public QObject
{
public:
    /** Dresses the menu when it is polished, with the window that it belongs to or later. */
    static void prepare(QMenu *menu);

    /** The same for the menu of what the bar has no room for, which Qt makes with the bar. */
    static void prepareExtensionOf(const QToolBar *bar);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class PolishWatch;

    explicit RoundedMenu(QMenu *menu);

    void appear();
    void paint(QPaintEvent *event);
    void roundCorners(const QRegion &exposed);
    QColor frameColour() const;

    QMenu *m_menu;
    double m_radius = 0;
    bool m_isComposed = false; ///< While the menu is open.
    std::unique_ptr<MenuShadow> m_shadow;
};
