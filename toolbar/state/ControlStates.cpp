// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/ControlStates.h"

#include "toolbar/commands/ActionData.h"
#include "toolbar/description/Names.h"
#include "toolbar/state/Areas.h"
#include "toolbar/state/ToolRows.h"
#include "toolbar/widgets/DropMenuIndex.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/RowFit.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>
#include <QWidgetAction>

#include <algorithm>
#include <utility>

namespace {

/** The name of the actions that are shown and hidden together with the field of that name. */
QString companionName(const QString &name)
{
    if (name == Name::pageField)
        return Name::pageInput;
    if (name == Name::zoomBox)
        return Name::zoomList;
    return QString();
}

bool isUsable(const Control &control)
{
    return std::visit(
        [](const auto *object) {
            return object->property(Property::usable).toString() == QLatin1String("true");
        },
        control);
}

void enableAction(QAction *action, bool enabled)
{
    // A drop button's action also sets the state of its buttons.
    if (auto *dropAction = qobject_cast<MRDropButtonAction *>(action))
        dropAction->setEnabled(enabled);
    else
        action->setEnabled(enabled);
}

void enableIfAvailable(QAction *action, bool enabled)
{
    if (ActionData::isAvailable(action))
        enableAction(action, enabled);
}

void enableControl(const Control &control, ControlRule::Enabling enabling, bool enabled)
{
    if (QAction *const *action = std::get_if<QAction *>(&control)) {
        if (enabling == ControlRule::Available)
            enableIfAvailable(*action, enabled);
        else
            enableAction(*action, enabled);
    } else {
        std::get<QWidget *>(control)->setEnabled(enabled);
    }
}

/** A widget on a tool row takes its enabled state from its action whenever that is shown. */
void showRowWidget(QWidgetAction *action, bool visible)
{
    QPointer<QWidget> widget = action->defaultWidget();
    const bool isEnabled = widget->isEnabledTo(widget->parentWidget());
    action->setVisible(visible);
    if (widget)
        widget->setEnabled(isEnabled);
}

/** The next command that can be seen after @p hidden in the menu, round its end if need be. */
QAction *nextCommand(const QMenu &menu, QAction *hidden)
{
    const QList<QAction *> entries = menu.actions();
    // The button's own entry may not be in the menu; the search then begins with the first.
    const auto start = entries.indexOf(hidden);
    for (qsizetype step = 1; step <= entries.size(); ++step) {
        QAction *entry = entries.at((start + step) % entries.size());
        const bool isCommand = !entry->isSeparator() && !entry->menu();
        if (entry != hidden && isCommand && entry->isVisible())
            return entry;
    }
    return nullptr;
}

} // namespace

ControlStates::ControlStates(ControlLists lists, const DropMenuIndex &dropMenus, ToolRows &rows)
    : m_lists(std::move(lists))
    , m_dropMenus(dropMenus)
    , m_rows(rows)
{
}

void ControlStates::setEnabled(const QString &name, bool enabled)
{
    if (!Areas::isArea(name)) {
        setControls(name, State::Enabled, enabled);
        return;
    }

    const QPointer<ControlStates> self(this);
    const bool isRows = name == Area::rows;
    setArea(name, State::Enabled, enabled);
    if (self && isRows)
        m_rows.enableExtraGroups(enabled);
}

void ControlStates::setFirstActionEnabled(const QString &name, bool enabled)
{
    const Controls actions = ControlFinders::actions(m_lists, name);
    if (!actions.empty())
        enableControl(actions.front(), ControlRule::Available, enabled);
}

void ControlStates::setVisible(const QString &name, bool visible)
{
    if (Areas::isArea(name)) {
        showArea(name, visible);
        return;
    }

    const QPointer<ControlStates> self(this);
    const QString wanted = name;
    showCompanion(wanted, visible);
    if (self)
        setControls(wanted, State::Visible, visible);
}

void ControlStates::setControls(const QString &name, State state, bool on)
{
    const QPointer<ControlStates> self(this);
    // The host may change its own text in the middle.
    const QString wanted = name;
    bool isFound = false;
    for (const ControlRule &rule : ControlRule::lookUpOrder) {
        if (isFound && rule.applies == ControlRule::IfNothingFound)
            continue;
        if (setControlsOf(rule, wanted, state, on))
            isFound = true;
        if (!self)
            return;
    }
}

bool ControlStates::setControlsOf(const ControlRule &rule, const QString &name, State state,
                                  bool on)
{
    const QPointer<ControlStates> self(this);
    const bool isAboutEnabled = state == State::Enabled;
    const ControlRule::Match match = isAboutEnabled ? rule.enabled : rule.visible;
    bool isFound = false;
    for (const Control &control : rule.find(m_lists, name)) {
        if (isAboutEnabled && rule.enabling == ControlRule::Usable && !isUsable(control))
            continue;
        setControl(control, rule, state, on);
        if (rule.found == ControlRule::WhenSet)
            isFound = true;
        else if (self && rule.found == ControlRule::WhenLeft && leaveTab(control))
            isFound = true;
        if (!self || match == ControlRule::First)
            break;
    }
    return isFound;
}

void ControlStates::setControl(const Control &control, const ControlRule &rule, State state,
                               bool on)
{
    if (state == State::Enabled)
        enableControl(control, rule.enabling, on);
    else if (QAction *const *action = std::get_if<QAction *>(&control))
        showAction(*action, on);
    else
        std::get<QWidget *>(control)->setVisible(on);
}

bool ControlStates::leaveTab(const Control &tab)
{
    const auto *button = qobject_cast<QAbstractButton *>(std::get<QWidget *>(tab));
    return button && m_rows.leaveTab(button);
}

void ControlStates::setArea(const QString &name, State state, bool on)
{
    const QPointer<ControlStates> self(this);
    const QList<QWidget *> widgets = Areas::members(m_lists, name);
    for (QWidget *widget : widgets) {
        if (state == State::Enabled)
            widget->setEnabled(on);
        else
            widget->setVisible(on);
        if (!self)
            return;
    }
}

void ControlStates::showArea(const QString &name, bool visible)
{
    if (name == Area::rows)
        m_rows.setShown(visible);
    else if (name == Section::additional)
        showAdditionalControls(visible);
    else if (name.startsWith(Section::quickAccessBar) && name != Section::quickAccessBar)
        showQuickAccess(name, visible);
    else
        setArea(name, State::Visible, visible);
}

void ControlStates::showAdditionalControls(bool visible)
{
    const QPointer<ControlStates> self(this);
    const ToolRows::State rows = m_rows.state();
    const QList<QWidget *> controls = m_lists.additionalWidgets.objects();
    for (QWidget *control : controls) {
        const QString name = control->objectName();
        // Of the two fold buttons only the one that can do something comes back.
        const bool stays = visible
                           && ((name.contains(Word::unfold) && rows != ToolRows::State::Hidden)
                               || (name.contains(Word::fold) && rows != ToolRows::State::Shown));
        if (!stays)
            control->setVisible(visible);
        if (!self)
            return;
    }
}

void ControlStates::showQuickAccess(const QString &name, bool visible)
{
    const QStringList parts = name.split(QLatin1Char('/'));
    if (parts.size() != 2)
        return;
    if (parts.last() == Area::quickAccessSet) {
        if (QPushButton *button = m_lists.quickAccessSetButton)
            button->setVisible(visible);
        return;
    }

    const QPointer<ControlStates> self(this);
    for (const Control &entry : ControlFinders::quickEntries(m_lists, parts.last())) {
        auto *action = std::get<QAction *>(entry);
        const QString entryName = action->objectName();
        showAction(action, visible);
        if (self)
            checkCustomiseEntries(entryName, visible);
        if (!self)
            return;
    }
}

void ControlStates::checkCustomiseEntries(const QString &name, bool checked)
{
    const QPushButton *button = m_lists.quickAccessSetButton;
    const QPointer<QMenu> menu = button ? button->menu() : nullptr;
    const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
    for (QAction *entry : entries) {
        if (menu && entry->isCheckable() && entry->objectName() == name)
            entry->setChecked(checked);
    }
}

void ControlStates::showCompanion(const QString &name, bool visible)
{
    const QString companion = companionName(name);
    if (companion.isEmpty())
        return;

    const QPointer<ControlStates> self(this);
    const QList<qsizetype> positions = m_lists.actions.positions(companion);
    for (const qsizetype position : positions) {
        if (QAction *action = m_lists.actions.at(position))
            showAction(action, visible);
        if (!self)
            return;
    }
}

void ControlStates::showAction(QAction *action, bool visible)
{
    const QPointer<ControlStates> self(this);
    if (auto *dropAction = qobject_cast<MRDropButtonAction *>(action))
        dropAction->setVisible(visible);
    else if (auto *widgetAction = qobject_cast<QWidgetAction *>(action);
             widgetAction && widgetAction->defaultWidget())
        showRowWidget(widgetAction, visible);
    else
        action->setVisible(visible);
    if (self && !visible)
        replaceCurrentEntry(action);
}

void ControlStates::replaceCurrentEntry(QAction *hidden)
{
    const QList<MRDropButton *> buttons = m_dropMenus.buttonsOf(hidden);
    for (MRDropButton *button : buttons) {
        if (button->GetCurrentAction() == hidden && button->menu())
            button->SetAction(nextCommand(*button->menu(), hidden));
    }
}

bool ControlStates::isEnabled(const QString &name) const
{
    return report(name, State::Enabled);
}

bool ControlStates::isVisible(const QString &name) const
{
    return report(name, State::Visible);
}

bool ControlStates::report(const QString &name, State state) const
{
    if (Areas::isArea(name)) {
        const QList<QWidget *> widgets = Areas::askedMembers(m_lists, name);
        return std::any_of(widgets.begin(), widgets.end(),
                           [state](QWidget *widget) { return read(widget, state); });
    }
    for (const ControlRule &rule : ControlRule::lookUpOrder) {
        const Controls controls = rule.findAsked(m_lists, name);
        if (!controls.empty())
            return read(rule.asked == ControlRule::Last ? controls.back() : controls.front(),
                        state);
    }
    return false;
}

bool ControlStates::read(const Control &control, State state)
{
    return std::visit(
        [state](const auto *object) {
            return state == State::Enabled ? object->isEnabled() : object->isVisible();
        },
        control);
}

QRect ControlStates::geometry(const QString &name) const
{
    QRect geometry;
    for (const Control &control : ControlFinders::namedActions(m_lists, name)) {
        for (const QToolBar *row : m_lists.rows) {
            if (!row)
                continue;
            geometry = row->actionGeometry(std::get<QAction *>(control));
            const RowFit *fit = geometry.isValid() ? nullptr : RowFit::of(row);
            if (fit)
                geometry = fit->geometry(std::get<QAction *>(control));
            if (geometry.isValid()) {
                geometry.moveTopLeft(row->mapToGlobal(geometry.topLeft()));
                return geometry;
            }
        }
    }
    return geometry;
}
