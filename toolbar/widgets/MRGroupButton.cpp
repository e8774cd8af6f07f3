// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/MRGroupButton.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/HoverSheets.h"

#include <QActionEvent>

namespace {

constexpr char initialSheet[] =
    "QToolButton::menu-button{background:transparent;border:2px solid transparent;"
    "border-left:2px solid transparent;border-top-right-radius:2px;"
    "border-bottom-right-radius:2px;} "
    "QToolButton{background:transparent;border:2px solid transparent;}";

constexpr char leftSheet[] =
    "QToolButton::menu-button{background:transparent;border:2px solid transparent;"
    "border-left:2px solid transparent;border-top-right-radius:2px;"
    "border-bottom-right-radius:2px;} "
    "QToolButton{background:transparent;border:2px solid transparent;} "
    "QToolButton:checked{background:[checked];}";

} // namespace

MRGroupButton::MRGroupButton(QWidget *parent)
    : SplitButton(parent)
{
    setMouseTracking(true);
    setStyleSheet(QString::fromLatin1(initialSheet));
}

void MRGroupButton::SetIcon(QIcon icon)
{
    m_icon = icon;
    setIcon(icon);
}

void MRGroupButton::SetDefaultAction(QAction *action)
{
    if (!action)
        return;

    // The action shown so far no longer has a say in the icon.
    if (QAction *former = defaultAction())
        disconnect(former, &QAction::toggled, this, &MRGroupButton::ChangeIcon);
    setDefaultAction(action);
    if (action->icon().isNull()) {
        ChangeIcon(true);
        connect(action, &QAction::toggled, this, &MRGroupButton::ChangeIcon);
    }
}

void MRGroupButton::ChangeIcon(bool)
{
    if (!m_icon.isNull())
        setIcon(m_icon);
}

void MRGroupButton::actionEvent(QActionEvent *event)
{
    QToolButton::actionEvent(event);
    // The base class copies the action's icon on every change, on enabling for instance.
    const QAction *action = defaultAction();
    if (event->type() == QEvent::ActionChanged && action && action->icon().isNull())
        ChangeIcon(true);
}

void MRGroupButton::mouseMoveEvent(QMouseEvent *event)
{
    if (isCheckable())
        SplitButton::mouseMoveEvent(event);
}

QString MRGroupButton::hoverSheet(bool isOverArrow, const SchemeColours *colours) const
{
    return HoverSheets::groupButton(menu() && isOverArrow, Skin::isLum(), colours);
}

void MRGroupButton::leaveEvent(QEvent *event)
{
    m_wasLeft = true;
    followScheme();
    QToolButton::leaveEvent(event);
}

void MRGroupButton::followScheme()
{
    if (!m_wasLeft)
        return;
    // The checked colour is that of marodi in both skins, deliberately.
    constexpr bool isLum = false;
    setStyleSheet(
        HoverSheets::filled(QString::fromLatin1(leftSheet), isLum, Appearance::coloursFor(this)));
}

MRButtonGroup::MRButtonGroup(QObject *parent)
    : QWidgetAction(parent)
{
}
