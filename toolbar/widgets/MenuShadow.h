// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRasterWindow>

class QMenu;

/**
 * A soft shadow around an open menu. It is a window of its own, which the pointer does not meet:
 * the menu keeps its geometry, and with it its place at the edges of the screen and beside its
 * parent.
 */
class MenuShadow : public QRasterWindow
{
public:
    /** @param radius of the menu's corners, in device-independent pixels */
    MenuShadow(const QMenu *menu, double radius);

    /** Appears beneath the menu, which is about to be mapped. */
    void appear();
    /** Takes the menu's new place. */
    void follow();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QMenu *m_menu;
    double m_radius;
    double m_scale;
};
