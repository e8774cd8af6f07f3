// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/SplitButton.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/widgets/HoverSheets.h"

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
    // The base class does not get the event, and the sheet is set on every move: deliberate, as the
    // look of pressing and dragging depends on it.
    setStyleSheet(
        HoverSheets::inScheme(hoverSheet(isPointerOverArrow()), Appearance::coloursFor(this)));
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
