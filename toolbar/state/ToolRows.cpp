// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/ToolRows.h"

#include "toolbar/description/Names.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRScrollWidget.h"

#include <QButtonGroup>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>

namespace {

/** Checks the tab on show, or no tab at all if that one cannot be checked. */
void checkOnly(QAbstractButton *tab)
{
    const QPointer<QButtonGroup> group(tab->group());
    QAbstractButton *checked = group->checkedButton();
    if (tab->isCheckable() || !checked) {
        tab->setChecked(true);
        return;
    }
    // An exclusive group does not let go of its last check. Whoever hears of it may delete both.
    group->setExclusive(false);
    checked->setChecked(false);
    if (group)
        group->setExclusive(true);
}

void setVisible(QWidget *widget, bool isVisible)
{
    if (widget)
        widget->setVisible(isVisible);
}

} // namespace

ToolRows::ToolRows(const Members &members)
    : m_members(members)
{
}

void ToolRows::click(const QAbstractButton *tab)
{
    const int position = tab->property(Property::tabIndex).toInt();
    // A click on the tab on show while a tab is being opened returns to it.
    const bool folds = position == m_members.stack->currentIndex() && !m_requests.isPending();
    const int request = m_requests.ask(position);
    auto *row = qobject_cast<MRMainToolBar *>(m_members.rows.value(tab->objectName()));
    const bool isNew = row && !row->isFilled();
    if (isNew) {
        const QPointer<ToolRows> self(this);
        Q_EMIT rowNeeded(row);
        // In its answer the host may have deleted the toolbar or let another tab be opened.
        if (!self || !m_requests.isLast(request))
            return;
    }
    if (!folds || isNew) {
        open(position);
        return;
    }
    m_requests.settle(position);
    setFolded(m_members.stack->isVisible());
}

void ToolRows::toggle(int tab)
{
    if (tab == m_members.stack->currentIndex())
        setFolded(m_members.stack->isVisible());
    else
        open(tab);
}

void ToolRows::showFirst(int tab, bool isVisible, bool isChecked)
{
    showPage(tab);
    // A stack shows one page; that of a hidden tab is hidden with it.
    m_members.stack->currentWidget()->setVisible(isVisible);
    if (isChecked)
        checkOnly(m_members.tabs.at(tab));
}

void ToolRows::open(int tab)
{
    showPage(tab);
    // Leaving a tab by name has hidden its row; opening the tab brings it back.
    if (m_members.currentRow && m_isRowWanted)
        m_members.currentRow->show();
    showExtraGroups(currentTab());
    if (!m_members.stack->isVisible())
        setFolded(false);
    // Last, as the host may listen to the tabs.
    if (QPushButton *shown = m_members.tabs.at(m_members.stack->currentIndex()))
        checkOnly(shown);
}

void ToolRows::showPage(int tab)
{
    m_members.stack->setCurrentIndex(tab);
    m_requests.settle(m_members.stack->currentIndex());
    const QWidget *page = m_members.stack->currentWidget();
    m_members.currentRow = page ? page->findChild<MRScrollWidget *>() : nullptr;
}

bool ToolRows::leaveTab(const QAbstractButton *tab)
{
    // In its answer to the move the host may set the state of this tab once more.
    const int position = m_members.stack->currentIndex();
    if (currentTab() != tab->objectName() || !m_requests.beginLeaving(position))
        return false;

    // Folded and moved on whatever the state that the host has set, deliberately.
    showFoldButtons(true);
    setVisible(m_members.currentRow, false);
    const QPointer<ToolRows> self(this);
    // A tab that is being opened is the next one already.
    if (m_requests.tab() == position) {
        const QList<QAbstractButton *> buttons = tab->group()->buttons();
        const auto left = buttons.indexOf(const_cast<QAbstractButton *>(tab));
        buttons.at((left + 1) % buttons.size())->click();
    }
    if (self)
        m_requests.endLeaving(position);
    return true;
}

void ToolRows::setFolded(bool isFolded)
{
    showFoldButtons(isFolded);
    setVisible(m_members.stack, !isFolded);
}

void ToolRows::setShown(bool isShown)
{
    m_isRowWanted = isShown;
    if (!m_members.currentRow)
        return;

    showFoldButtons(!isShown);
    m_members.currentRow->setVisible(isShown);
    showExtraGroups(isShown ? currentTab() : QStringLiteral(" "));
}

ToolRows::State ToolRows::state() const
{
    if (!m_members.currentRow)
        return State::None;
    const QWidget *toolBar = m_members.stack->parentWidget();
    return m_members.currentRow->isVisibleTo(toolBar) ? State::Shown : State::Hidden;
}

void ToolRows::showFoldButtons(bool isFolded)
{
    setVisible(m_members.unfoldButton, isFolded);
    setVisible(m_members.foldButton, !isFolded);
}

QString ToolRows::currentTab() const
{
    const QPushButton *tab =
        m_members.tabs.at(m_members.stack ? m_members.stack->currentIndex() : -1);
    return tab ? tab->objectName() : QString();
}

void ToolRows::showExtraGroups(const QString &tabName)
{
    for (QWidget *panel : m_members.extraGroups)
        panel->setVisible(panel->objectName() == tabName);
}

void ToolRows::enableExtraGroups(bool isEnabled)
{
    for (QWidget *panel : m_members.extraGroups)
        panel->setEnabled(isEnabled);
}
