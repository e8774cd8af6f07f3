// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MRMenuButton.h"

#include "toolbar/skin/Skin.h"

#include <QMenu>

MRMenuButton::MRMenuButton(QWidget *parent, int dx, int dy, QWidget *anchor)
    : QPushButton(parent)
    , m_dx(dx)
    , m_dy(dy)
    , m_anchor(anchor)
{
    connect(this, &QPushButton::clicked, this, &MRMenuButton::PopMenuSlot);
}

void MRMenuButton::SetMenu(QMenu *menu)
{
    if (m_menu)
        m_menu->disconnect(this);
    m_menu = menu;
    // The pointer leaves the button below the open menu, for which Qt does not repaint.
    if (menu)
        connect(menu, &QMenu::aboutToHide, this, qOverload<>(&QWidget::update));
}

QMenu *MRMenuButton::GetMenu() const
{
    return m_menu;
}

void MRMenuButton::PopMenuSlot()
{
    if (!m_menu)
        return;

    // Filling the menu asks the host for states, and the host may delete the button in its answer.
    const QPointer<MRMenuButton> self(this);
    Q_EMIT menuRequested();
    // Nothing of this object is touched once the menu has closed.
    if (self && m_menu)
        m_menu->exec(menuPosition());
}

void MRMenuButton::paintEvent(QPaintEvent *event)
{
    // Where there is nothing to see, the pointer must not bring up an empty square.
    if (!icon().isNull() || !text().isEmpty())
        QPushButton::paintEvent(event);
}

QPoint MRMenuButton::menuPosition() const
{
    QPoint position;
    if (m_anchor && m_anchor->isVisible()) {
        // The anchor's own position is mapped from this button, deliberately: the two stand side
        // by side, and the menu lands where the skins' menus have their width for.
        position = QPoint(m_anchor->x() - m_anchor->width() - 6,
                          m_anchor->y() + m_anchor->height() / 2 + 4);
    } else if (Skin::isLum()) {
        position = QPoint(0, y() + height());
    } else {
        position = QPoint(0, y() + height() / 2 + 4);
    }
    return mapToGlobal(position + QPoint(m_dx, m_dy));
}
