// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/StateKeeper.h"

#include "toolbar/description/Names.h"
#include "toolbar/state/QuickAccessSetting.h"
#include "toolbar/state/ToolRows.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRGroupButton.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace {

/** The buttons that the description has, and not the user. */
QList<QAction *> describedButtons(const QToolBar *bar)
{
    QList<QAction *> buttons = bar ? bar->actions() : QList<QAction *>();
    const auto isAdded = [](const QAction *button) {
        return button->property(Property::added).isValid();
    };
    buttons.erase(std::remove_if(buttons.begin(), buttons.end(), isAdded), buttons.end());
    return buttons;
}

QStringList namesOf(const QList<QAction *> &buttons, bool areShown)
{
    QStringList names;
    for (const QAction *button : buttons) {
        if (button->isVisible() == areShown)
            names.append(button->objectName());
    }
    return names;
}

/** The command of that name in a menu or below; null if it is not to be seen there. */
QAction *shownEntry(const QMenu *menu, const QString &name)
{
    const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
    for (QAction *entry : entries) {
        if (!entry->isVisible())
            continue;
        QAction *found = entry->menu() ? shownEntry(entry->menu(), name)
                                       : (entry->objectName() == name ? entry : nullptr);
        if (found)
            return found;
    }
    return nullptr;
}

QString nameOf(const QAction *action)
{
    return action ? action->objectName() : QString();
}

} // namespace

StateKeeper::StateKeeper(ControlLists lists, ToolRows &rows)
    : m_lists(std::move(lists))
    , m_rows(rows)
{
    connect(&rows, &ToolRows::tabShown, this, &StateKeeper::noteTab);
    connect(&rows, &ToolRows::foldedChanged, this, &StateKeeper::note);
}

KeptState StateKeeper::state() const
{
    const QList<QAction *> buttons = describedButtons(m_lists.quickAccessBar);
    KeptState state;
    state.tab = m_rows.lastingTab();
    state.isFolded = m_rows.isFolded();
    state.shown = namesOf(buttons, true);
    state.hidden = namesOf(buttons, false);
    state.added = m_added;
    state.found = m_found;
    state.faces = m_faces;
    state.scale = m_scale;
    state.scheme = m_scheme;
    return state;
}

void StateKeeper::note()
{
    if (m_isRestoring)
        return;
    // One act of the user may be several changes: another tab unfolds the rows.
    const QString now = state().toText();
    if (std::exchange(m_told, now) == now)
        return;
    // Most changes are chosen from menus, which Qt still uses.
    const HostAnswer answer;
    Q_EMIT changed();
}

void StateKeeper::expect(const KeptState &state)
{
    m_expected = state;
    m_faces = state.faces;
}

void StateKeeper::restoreFirst()
{
    // A tab that could not be opened first is not opened after another one either.
    m_expected.tab.clear();
    restore(std::exchange(m_expected, {}));
}

void StateKeeper::restore(const KeptState &state)
{
    const QPointer<StateKeeper> self(this);
    m_isRestoring = true;
    restoreLists(state);
    restoreQuickAccess(state);
    restoreFaces(state);
    if (state.isFolded && *state.isFolded != m_rows.isFolded())
        m_rows.setFolded(*state.isFolded);
    if (!self)
        return;
    m_isRestoring = false;
    m_told = this->state().toText();
    m_shown = shownButtons();
    // Last, as the host is asked for states, and what happens in its answer is told of.
    restoreTab(state.tab);
}

/** Which buttons of the quick access bar are shown, in their order. */
std::vector<bool> StateKeeper::shownButtons() const
{
    std::vector<bool> shown;
    if (const QToolBar *bar = m_lists.quickAccessBar) {
        const QList<QAction *> buttons = bar->actions();
        for (const QAction *button : buttons)
            shown.push_back(button->isVisible());
    }
    return shown;
}

void StateKeeper::restoreLists(const KeptState &state)
{
    m_scale = state.scale.isEmpty() ? m_scale : state.scale;
    m_scheme = state.scheme.isEmpty() ? m_scheme : state.scheme;
    if (state.added)
        Q_EMIT addedRestored(*state.added);
    if (!state.found)
        return;
    m_found = state.found;
    Q_EMIT foundRestored(*m_found);
}

void StateKeeper::restoreQuickAccess(const KeptState &state)
{
    QToolBar *bar = m_lists.quickAccessBar;
    if (!bar || (state.shown.isEmpty() && state.hidden.isEmpty()))
        return;

    const auto isShown = [&state](const QAction *control) {
        const QString name = control->objectName();
        return state.shown.contains(name) || (control->isVisible() && !state.hidden.contains(name));
    };
    const QList<QAction *> buttons = describedButtons(bar);
    for (QAction *button : buttons)
        button->setVisible(isShown(button));
    showWhileUsed(bar);

    const QPushButton *setButton = m_lists.quickAccessSetButton;
    const QList<QAction *> entries =
        setButton && setButton->menu() ? setButton->menu()->actions() : QList<QAction *>();
    for (QAction *entry : entries) {
        const QString name = entry->objectName();
        if (state.shown.contains(name) || state.hidden.contains(name))
            entry->setChecked(state.shown.contains(name));
    }
}

void StateKeeper::restoreFaces(const KeptState &state)
{
    for (auto face = state.faces.cbegin(); face != state.faces.cend(); ++face) {
        m_faces.insert(face.key(), face.value());
        if (QToolButton *button = m_switchable.value(face.key()))
            restoreFace(button);
    }
}

void StateKeeper::restoreTab(const QString &tab)
{
    if (tab.isEmpty() || !m_lists.tabButtons.first(tab) || tab == m_rows.currentTab())
        return;
    const QPointer<StateKeeper> self(this);
    m_restoredTab = tab;
    m_rows.restore(tab);
    if (self)
        m_restoredTab.clear();
}

void StateKeeper::noteTab(const QString &tab)
{
    if (!tab.isEmpty() && tab == m_restoredTab)
        m_told = state().toText();
    else
        note();
}

void StateKeeper::takeSwitchable(QToolButton *button)
{
    const QString name = button->objectName();
    m_switchable.insert(name, button);
    m_describedFaces.insert(name, nameOf(shownCommand(button)));
    restoreFace(button);
    // By then the button, which was connected first, has the new face.
    if (button->menu())
        connect(button->menu(), &QMenu::triggered, button, [this, button] { noteFace(button); });
}

void StateKeeper::restoreFace(QToolButton *button) const
{
    const QString kept = m_faces.value(button->objectName());
    // Separators have no name either.
    QAction *entry = kept.isEmpty() ? nullptr : shownEntry(button->menu(), kept);
    if (!entry || entry == shownCommand(button))
        return;
    if (auto *dropButton = qobject_cast<MRDropButton *>(button))
        dropButton->SetAction(entry);
    else if (auto *groupButton = qobject_cast<MRGroupButton *>(button))
        groupButton->SetDefaultAction(entry);
}

void StateKeeper::noteFace(const QToolButton *button)
{
    const QString name = button->objectName();
    const QString entry = nameOf(shownCommand(button));
    // While it is as described it is not kept: another description may begin with another entry.
    if (entry.isEmpty() || entry == m_faces.value(name, m_describedFaces.value(name)))
        return;
    m_faces.insert(name, entry);
    note();
}

void StateKeeper::noteQuickAccess()
{
    // Asked at every change of visibility, of whatever control.
    std::vector<bool> shown = shownButtons();
    if (shown == m_shown)
        return;
    m_shown = std::move(shown);
    note();
}

void StateKeeper::noteLooks(const QString &scale, const QString &scheme)
{
    const QString newScale = scale.isEmpty() ? m_scale : scale;
    const QString newScheme = scheme.isEmpty() ? m_scheme : scheme;
    if (newScale == m_scale && newScheme == m_scheme)
        return;
    m_scale = newScale;
    m_scheme = newScheme;
    note();
}

void StateKeeper::setAdded(const QStringList &names)
{
    if (m_added == names)
        return;
    m_added = names;
    note();
}

void StateKeeper::setFound(const QStringList &names)
{
    if (m_found == names)
        return;
    m_found = names;
    note();
}
