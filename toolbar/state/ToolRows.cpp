// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/ToolRows.h"

#include "toolbar/description/Names.h"
#include "toolbar/widgets/ContextTab.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/RowPeek.h"

#include <QButtonGroup>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>

#include <algorithm>
#include <cstdlib>
#include <utility>

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

int positionOf(const QAbstractButton *tab)
{
    return tab->property(Property::tabIndex).toInt();
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

void ToolRows::usePeek(RowPeek *peek)
{
    m_peek = peek;
}

void ToolRows::click(const QAbstractButton *tab)
{
    // A tab that is left by name is no reason to lay rows over the pages.
    request(tab, m_peek && m_requests.isLeaving() ? By::Return : By::Click);
}

void ToolRows::show(const QString &name)
{
    request(name, By::Call);
}

void ToolRows::restore(const QString &name)
{
    request(name, By::Return);
}

void ToolRows::request(const QString &name, By by)
{
    for (const QPushButton *tab : m_members.tabs) {
        if (tab && tab->objectName() == name && !tab->isHidden() && tab->isEnabled()) {
            request(tab, by);
            return;
        }
    }
}

void ToolRows::request(const QAbstractButton *tab, By by)
{
    const int position = positionOf(tab);
    // A click on the tab on show while a tab is being opened returns to it.
    const bool folds =
        by == By::Click && position == m_members.stack->currentIndex() && !m_requests.isPending();
    const int request = m_requests.ask(position);
    auto *row = qobject_cast<MRMainToolBar *>(m_members.rows.value(tab->objectName()));
    const bool isNew = row && !row->isFilled();
    if (isNew) {
        const QPointer<ToolRows> self(this);
        Q_EMIT rowNeeded(row);
        // In its answer the host may have deleted the toolbar or let another tab be opened.
        if (!self || !m_requests.isLast(request))
            return;
        if (isContextHidden(position)) {
            m_requests.settle(m_members.stack->currentIndex());
            // The click has checked the tab that is not opened.
            if (QPushButton *shown = m_members.tabs.at(m_members.stack->currentIndex()))
                checkOnly(shown);
            return;
        }
    }
    if (!folds || isNew) {
        open(position, by);
        return;
    }
    m_requests.settle(position);
    toggleFolded();
}

void ToolRows::toggle(int tab)
{
    if (tab == m_members.stack->currentIndex())
        setFolded(m_members.stack->isVisible());
    else
        open(tab, By::Click);
}

/** Returns false if the host has deleted this: it may hear of the focus. */
bool ToolRows::endPeek()
{
    const QPointer<ToolRows> self(this);
    if (m_peek)
        m_peek->end();
    return !self.isNull();
}

void ToolRows::toggleFolded()
{
    if (!m_peek || !m_isFolded || !m_isRowWanted)
        setFolded(m_members.stack->isVisible());
    else if (m_peek->isActive())
        m_peek->end();
    else
        bringIntoView(By::Click);
}

void ToolRows::showFirst(int tab, bool isVisible, bool isChecked)
{
    showPage(tab);
    // A stack shows one page; that of a hidden tab is hidden with it.
    m_members.stack->currentWidget()->setVisible(isVisible);
    m_opened = {tab};
    if (!isChecked)
        return;
    m_announced = tab;
    checkOnly(m_members.tabs.at(tab));
}

void ToolRows::open(int tab, By by)
{
    const QPointer<ToolRows> self(this);
    showPage(tab);
    // Leaving a tab by name has hidden its row; opening the tab brings it back.
    if (m_members.currentRow && m_isRowWanted)
        m_members.currentRow->show();
    showExtraGroups(currentTab());
    bringIntoView(by);
    // Last, as the host may listen to the tabs.
    QPushButton *shown = self ? m_members.tabs.at(m_members.stack->currentIndex()) : nullptr;
    if (shown)
        checkOnly(shown);
    if (self)
        announce();
}

void ToolRows::bringIntoView(By by)
{
    if (by == By::Return && m_isFolded)
        return;
    // A toolbar that is not to be seen yet stays as it is.
    const bool canPeek = m_peek && m_isFolded && m_isRowWanted;
    if (canPeek && (m_peek->begin() || !m_members.stack->parentWidget()->isVisible()))
        return;
    if (!m_members.stack->isVisible())
        setFolded(false);
}

void ToolRows::announce()
{
    const int tab = m_members.stack->currentIndex();
    if (tab == m_announced)
        return;
    m_announced = tab;
    m_opened.removeOne(tab);
    m_opened.append(tab);
    Q_EMIT tabShown(currentTab());
}

bool ToolRows::isContextHidden(int tab) const
{
    const auto *contextTab = dynamic_cast<const ContextTab *>(m_members.tabs.at(tab));
    return contextTab && !contextTab->isContextShown();
}

void ToolRows::showContext(const QString &context, bool isShown)
{
    const QPointer<ToolRows> self(this);
    const QList<QPushButton *> tabs = m_members.tabs.objects();
    for (QPushButton *tab : tabs) {
        auto *contextTab = dynamic_cast<ContextTab *>(tab);
        if (contextTab && contextTab->context() == context)
            contextTab->setContextShown(isShown);
        if (!self)
            return;
    }
    leaveHiddenContext();
}

void ToolRows::leaveHiddenContext()
{
    // A tab that is being opened is the next one already.
    const bool isMovingOn = m_requests.isPending() && !isContextHidden(m_requests.tab());
    if (isMovingOn || !m_members.stack || !isContextHidden(m_members.stack->currentIndex()))
        return;
    if (!endPeek())
        return;
    if (const QAbstractButton *tab = tabToReturnTo())
        request(tab, By::Return);
}

const QAbstractButton *ToolRows::tabToReturnTo() const
{
    for (auto tab = m_opened.crbegin(); tab != m_opened.crend(); ++tab) {
        const QPushButton *button = m_members.tabs.at(*tab);
        if (button && !button->isHidden() && button->isEnabled())
            return button;
    }
    const int current = m_members.stack->currentIndex();
    const QPushButton *nearest = nullptr;
    int least = 0;
    for (int i = 0; i < m_members.stack->count(); ++i) {
        const QPushButton *button = m_members.tabs.at(i);
        const int distance = std::abs(i - current);
        if (button && !button->isHidden() && (!nearest || distance < least)) {
            nearest = button;
            least = distance;
        }
    }
    return nearest;
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
        auto next = buttons.indexOf(const_cast<QAbstractButton *>(tab));
        // The tab of a hidden context cannot be opened.
        do
            next = (next + 1) % buttons.size();
        while (buttons.at(next) != tab && isContextHidden(positionOf(buttons.at(next))));
        buttons.at(next)->click();
    }
    if (self)
        m_requests.endLeaving(position);
    return true;
}

void ToolRows::setFolded(bool isFolded)
{
    if (!endPeek())
        return;
    showFoldButtons(isFolded);
    setVisible(m_members.stack, !isFolded);
    if (std::exchange(m_isFolded, isFolded) != isFolded)
        Q_EMIT foldedChanged(isFolded);
}

void ToolRows::setShown(bool isShown)
{
    m_isRowWanted = isShown;
    if (!isShown && !endPeek())
        return;
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
    if (m_peek && m_peek->isActive())
        return State::Hidden;
    const QWidget *toolBar = m_members.stack->parentWidget();
    return m_members.currentRow->isVisibleTo(toolBar) ? State::Shown : State::Hidden;
}

void ToolRows::showFoldButtons(bool isFolded)
{
    setVisible(m_members.unfoldButton, isFolded);
    setVisible(m_members.foldButton, !isFolded);
}

QString ToolRows::nameOf(int tab) const
{
    const QPushButton *button = m_members.tabs.at(tab);
    return button ? button->objectName() : QString();
}

QString ToolRows::currentTab() const
{
    return nameOf(m_members.stack ? m_members.stack->currentIndex() : -1);
}

QString ToolRows::lastingTab() const
{
    const auto last = std::find_if(m_opened.crbegin(), m_opened.crend(), [this](int tab) {
        return m_members.tabs.at(tab) && !dynamic_cast<const ContextTab *>(m_members.tabs.at(tab));
    });
    return last == m_opened.crend() ? QString() : nameOf(*last);
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
