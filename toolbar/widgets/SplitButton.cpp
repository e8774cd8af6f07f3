// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/SplitButton.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"

#include <QKeyEvent>
#include <QStyleOptionToolButton>

#include <utility>

void SplitButton::keyPressEvent(QKeyEvent *event)
{
    // The arrow has no key of its own in Qt.
    if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier))
        showMenu();
    else
        QToolButton::keyPressEvent(event);
}

void SplitButton::mouseMoveEvent(QMouseEvent *)
{
    // The base class does not get the event: deliberate, as the look of pressing and dragging
    // depends on it.
    const Hover now = hover();
    // When the pointer leaves the button, that gets another sheet.
    if (m_hover == now && styleSheet() == m_hoverSheet)
        return;
    m_hover = now;
    m_hoverSheet = hoverSheet(now.isOverArrow, Appearance::coloursFor(this));
    // Qt styles the button anew also for the same text.
    if (styleSheet() != m_hoverSheet)
        setStyleSheet(m_hoverSheet);
}

bool SplitButton::Hover::operator==(const Hover &other) const
{
    return isOverArrow == other.isOverArrow && hasMenu == other.hasMenu && isLum == other.isLum
           && scale == other.scale && look == other.look;
}

SplitButton::Hover SplitButton::hover() const
{
    return {isPointerOverArrow(), menu() != nullptr, Skin::isLum(), ScreenDensity::scale(this),
            m_look};
}

void SplitButton::changeEvent(QEvent *event)
{
    QToolButton::changeEvent(event);
    if (event->type() != QEvent::StyleChange)
        return;
    // Another scheme is another sheet of the toolbar.
    const SchemeLook look = Appearance::lookFor(this);
    if (std::exchange(m_look, look) != look)
        followScheme();
}

bool SplitButton::isPointerOverArrow() const
{
    // Without a part of its own for the arrow the style reports the whole button.
    if (popupMode() != MenuButtonPopup)
        return false;

    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QRect arrow =
        style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, this);
    return arrow.isValid() && arrow.contains(mapFromGlobal(QCursor::pos()));
}
