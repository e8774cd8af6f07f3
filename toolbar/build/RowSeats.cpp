// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/RowSeats.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/ButtonForm.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/MoreButton.h"
#include "toolbar/widgets/RowFit.h"

#include <QMenu>
#include <QToolBar>

namespace {

/** The icon with some room at its sides, and with the arrow of a menu. */
void fitBareButton(QToolButton *button, const Presentation &how)
{
    const bool isOnRow = qobject_cast<QToolBar *>(button->parentWidget());
    constexpr double rowButton = 36.0;
    constexpr double groupButton = 24.0;
    constexpr double arrow = 10.0;
    const double width = (isOnRow ? rowButton : groupButton) + (button->menu() ? arrow : 0.0);
    ButtonForm::of(button)->setBareWidth(how.bareWidth(width));
}

void fitMoreButton(QToolButton *button, const Presentation &how)
{
    constexpr double width = 28.0;
    button->setFixedWidth(how.bareWidth(width));
}

/** A button as a tool bar makes them for its actions. */
QToolButton *makeRowButton(QToolBar *row, QAction *command)
{
    auto *button = new QToolButton(row);
    button->setAutoRaise(true);
    button->setIconSize(row->iconSize());
    button->setToolButtonStyle(row->toolButtonStyle());
    QObject::connect(row, &QToolBar::iconSizeChanged, button, &QToolButton::setIconSize);
    button->setDefaultAction(command);
    return button;
}

QWidgetAction *addPlace(QToolBar *row, QWidget *control, const QString &name)
{
    auto *place = new QWidgetAction(row);
    place->setObjectName(name);
    place->setDefaultWidget(control);
    row->addAction(place);
    return place;
}

} // namespace

RowSeats::RowSeats(ControlFactory &factory)
    : m_factory(factory)
{
}

QWidget *RowSeats::addButton(QToolBar *row, QAction *command, const Controller &record)
{
    if (record.optIn().shrink == 0) {
        row->addAction(command);
        return row->widgetForAction(command);
    }
    QToolButton *button = makeRowButton(row, command);
    ButtonForm::give(button);
    QWidgetAction *place = addPlace(row, button, record.name);
    m_factory.presentation().fit<&fitBareButton>(button);
    addDisabledTip(command, record, m_factory.presentation());
    fitOf(row)->add({place, command, {button}, record.optIn().shrink});
    return button;
}

void RowSeats::addMenu(QToolBar *row, MRDropButtonAction *action, const Controller &record)
{
    if (record.optIn().shrink == 0) {
        row->addAction(action);
        return;
    }
    auto *button = static_cast<MRDropButton *>(action->requestWidget(row));
    ButtonForm::give(button);
    QWidgetAction *place = addPlace(row, button, record.name);
    button->setPlace(place);
    m_factory.presentation().fit<&fitBareButton>(static_cast<QToolButton *>(button));
    if (QMenu *menu = action->GetMenu())
        addDisabledTip(menu->menuAction(), record, m_factory.presentation());
    fitOf(row)->add({place, action, {button}, record.optIn().shrink});
}

void RowSeats::addGroup(QToolBar *row, MRButtonGroup *action, const Controller &record)
{
    row->addAction(action);
    if (record.optIn().shrink == 0)
        return;
    const QList<QToolButton *> buttons = action->defaultWidget()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        ButtonForm::give(button);
        m_factory.presentation().fit<&fitBareButton>(button);
    }
    for (const Controller *child : record.children) {
        QAction *command = child ? m_factory.action(child->name) : nullptr;
        if (command)
            addDisabledTip(command, *child, m_factory.presentation());
    }
    fitOf(row)->add({action, nullptr, buttons, record.optIn().shrink});
}

RowFit *RowSeats::fitOf(QToolBar *row)
{
    if (RowFit *fit = RowFit::of(row))
        return fit;
    QMenu *menu = m_factory.makeMenu(m_factory.owner(), true);
    menu->setProperty(Property::module, Module::menu);
    menu->setObjectName(Name::rowMore);
    menu->setToolTipsVisible(true);
    auto *fit = new RowFit(row, menu);
    m_factory.presentation().fit<&fitMoreButton>(static_cast<QToolButton *>(fit->moreButton()));
    return fit;
}

void RowSeats::close(const QToolBar *row)
{
    if (RowFit *fit = RowFit::of(row))
        fit->close();
}
