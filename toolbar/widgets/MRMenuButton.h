// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QPushButton>

class QMenu;

/** A push button that pops its menu at a place of the toolbar's choosing. */
class MRMenuButton : public QPushButton
{
    Q_OBJECT

public:
    /**
     * @param dx, dy offset of the menu from its computed place, in pixels
     * @param anchor widget beside which the menu appears while that is visible; may be null
     */
    MRMenuButton(QWidget *parent, int dx, int dy, QWidget *anchor);

    /** Sets the menu to pop, which the button does not own; null for none. */
    void SetMenu(QMenu *menu);
    QMenu *GetMenu() const;

public Q_SLOTS:
    /** Pops the menu and returns when it is closed. The button may be gone by then. */
    void PopMenuSlot();

Q_SIGNALS:
    /** The menu is about to be popped: whoever fills it late does so now. */
    void menuRequested();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPoint menuPosition() const;

    int m_dx;
    int m_dy;
    QPointer<QWidget> m_anchor;
    QPointer<QMenu> m_menu;
};
