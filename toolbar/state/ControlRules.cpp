// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/ControlRules.h"

#include "toolbar/description/Names.h"
#include "toolbar/state/ControlLists.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

#include <algorithm>

using namespace ControlFinders;

namespace {

template <typename Object>
Controls named(const NamedList<Object> &list, const QString &name)
{
    Controls found;
    for (const qsizetype position : list.positions(name)) {
        if (Object *object = list.at(position))
            found.emplace_back(object);
    }
    return found;
}

// A field is set by the container that it shares with its caption.
Controls fields(const ControlLists &lists, const QString &name)
{
    const QWidget *field = nullptr;
    if (name == Name::zoomBox)
        field = lists.zoomBox;
    else if (name == Name::pageField)
        field = lists.pageField;
    return field ? Controls{field->parentWidget()} : Controls();
}

Controls additionalControls(const ControlLists &lists, const QString &name)
{
    return named(lists.additionalWidgets, name);
}

Controls groupButtons(const ControlLists &lists, const QString &name)
{
    return named(lists.groupButtons, name);
}

Controls quickSetButton(const ControlLists &lists, const QString &name)
{
    QPushButton *button = lists.quickAccessSetButton;
    return button && button->objectName() == name ? Controls{button} : Controls();
}

Controls dropButtons(const ControlLists &lists, const QString &name)
{
    return named(lists.dropButtons, name);
}

Controls tabs(const ControlLists &lists, const QString &name)
{
    return named(lists.tabButtons, name);
}

Controls appButtons(const ControlLists &lists, const QString &name)
{
    return named(lists.appButtons, name);
}

// The entries of the set button's menu go by the names of the menus that they open.
Controls setMenuEntries(const ControlLists &lists, const QString &name)
{
    Controls found;
    const auto *setButton = qobject_cast<MRMenuButton *>(lists.appButtons.at(1));
    const QMenu *menu = setButton ? setButton->GetMenu() : nullptr;
    const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
    for (QAction *entry : entries) {
        if (entry->menu() && entry->menu()->objectName() == name)
            found.emplace_back(entry);
    }
    return found;
}

// For controls that are set by name but not asked for by name, deliberately.
Controls none(const ControlLists &, const QString &)
{
    return {};
}

} // namespace

// clang-format off
constexpr std::array<ControlRule, 10> ControlRule::lookUpOrder{{
    // place             enabled visible enabling   found     applies         asked by
    {fields,             All,    All,    Any,       Never,    Always,         fields,         First},
    {actions,            All,    All,    Available, Never,    Always,         namedActions,   First},
    {additionalControls, All,    First,  Any,       WhenSet,  Always,         none,           First},
    {groupButtons,       All,    First,  Usable,    WhenSet,  Always,         none,           First},
    {quickEntries,       First,  First,  Available, WhenSet,  Always,         none,           First},
    {quickSetButton,     First,  First,  Any,       WhenSet,  Always,         none,           First},
    {dropButtons,        First,  First,  Any,       WhenSet,  IfNothingFound, dropButtons,    First},
    {tabs,               All,    All,    Any,       WhenLeft, IfNothingFound, tabs,           Last},
    {appButtons,         All,    All,    Any,       Never,    IfNothingFound, appButtons,     First},
    {setMenuEntries,     First,  First,  Any,       WhenSet,  IfNothingFound, setMenuEntries, First},
}};
// clang-format on

Controls ControlFinders::namedActions(const ControlLists &lists, const QString &name)
{
    QList<qsizetype> positions = lists.actions.positions(name);
    const QList<qsizetype> openers = lists.actions.positions(Prefix::menu + name);
    if (!openers.isEmpty()) {
        positions += openers;
        std::sort(positions.begin(), positions.end());
    }

    Controls found;
    for (const qsizetype position : std::as_const(positions)) {
        if (QAction *action = lists.actions.at(position))
            found.emplace_back(action);
    }
    return found;
}

Controls ControlFinders::actions(const ControlLists &lists, const QString &name)
{
    if (!name.contains(QLatin1Char('/')))
        return namedActions(lists, name);

    Controls found;
    const QString opener = Prefix::menu + name;
    for (QAction *action : lists.actions) {
        if (action->objectName().contains(name) || action->objectName() == opener)
            found.emplace_back(action);
    }
    return found;
}

Controls ControlFinders::quickEntries(const ControlLists &lists, const QString &name)
{
    Controls found;
    const QToolBar *bar = lists.quickAccessBar;
    const QList<QAction *> entries = bar ? bar->actions() : QList<QAction *>();
    for (QAction *entry : entries) {
        // What the user has added is as the command that has the name.
        if (entry->objectName().contains(name) && !entry->property(Property::added).isValid())
            found.emplace_back(entry);
    }
    return found;
}
