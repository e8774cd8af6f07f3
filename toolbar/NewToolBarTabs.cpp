// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/build/TabMaker.h"
#include "toolbar/description/CommandPlaces.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Sections.h"
#include "toolbar/state/TabDoubleClicks.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/RowPeek.h"

#include <QButtonGroup>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

QButtonGroup *NewToolBar::CreateTabBar(QList<bool> &visibleTabs)
{
    auto *group = new QButtonGroup(this);
    m_toolRowStack = TabMaker::makeStack(this);
    m_mainLayout->addWidget(m_toolRowStack);
    if (m_controllers.isEmpty())
        return nullptr;

    const TabMaker maker(m_parts->factory, m_alignment);
    const QList<Controller *> tabs = sectionRecords(m_controllers, Section::tabBar);
    const int keptTab = this->keptTab(tabs);
    int shownTab = -1;
    for (int position = 0; position < tabs.size(); ++position) {
        const Controller &tab = *tabs.at(position);
        const bool isOpen = keptTab < 0 ? TabMaker::isOpenAtFirst(tab) : position == keptTab;
        QPushButton *button = maker.makeButton(tab, {m_toolRowStack, position}, isOpen);
        connect(button, &QPushButton::clicked, this, &NewToolBar::Inner_DoUpdateMainToolBarSlot);
        group->addButton(button);
        m_tabButtons.append(button);
        visibleTabs.append(tab.visible);
        // Without a checked tab the first one that is there from the beginning.
        if (isOpen || (shownTab < 0 && tab.optIn().context.isEmpty()))
            shownTab = position;

        QWidget *page = TabMaker::addPage(m_toolRowStack);
        if (tab.children.isEmpty())
            continue;
        MRMainToolBar *row = maker.addRow(page, tab, isOpen);
        if (isOpen)
            AddToolBarAction(tab.children, row, false, true);
        m_toolBars.insert(tab.name, row);
        if (tab.scalable)
            m_extraGroups.append(
                TabMaker::addExtraGroup(page, CreateExtraGroup(tab.children), tab));
    }
    if (!tabs.isEmpty()) {
        shownTab = std::max(shownTab, 0);
        const Controller &first = *tabs.at(shownTab);
        m_parts->tabs.showFirst(shownTab, first.visible,
                                keptTab >= 0 || TabMaker::isOpenAtFirst(first));
    }
    return group;
}

/** The position of the tab that a kept state opens; -1 if there is none to be seen. */
int NewToolBar::keptTab(const QList<Controller *> &tabs) const
{
    const QString name = m_parts->keeper.expectedTab();
    const auto kept = std::find_if(tabs.begin(), tabs.end(), [&name](const Controller *tab) {
        // One that belongs to a selection waits for that.
        return tab->name == name && tab->visible && tab->optIn().context.isEmpty();
    });
    return name.isEmpty() || kept == tabs.end() ? -1 : static_cast<int>(kept - tabs.begin());
}

void NewToolBar::Inner_DoUpdateMainToolBarSlot()
{
    if (const auto *tab = qobject_cast<QPushButton *>(sender()))
        m_parts->tabs.click(tab);
}

void NewToolBar::ShowContext(const QString &name, bool shown)
{
    m_parts->tabs.showContext(name, shown);
}

void NewToolBar::ShowTab(const QString &name)
{
    m_parts->tabs.show(name);
}

void NewToolBar::addPeek()
{
    auto *peek = new RowPeek(this, m_mainLayout, m_toolRowStack);
    m_parts->tabs.usePeek(peek);
    if (m_tabButtonGroup)
        new TabDoubleClicks(m_parts->tabs, m_tabButtonGroup->buttons(), peek);
    // Whatever the user does is over before the host does it.
    connect(this, &NewToolBar::DoActive, peek, &RowPeek::end);
    connect(this, &NewToolBar::DoDoubleActive, peek, &RowPeek::end);
    connect(this, &NewToolBar::DoGotoPage, peek, &RowPeek::end);
    connect(this, &NewToolBar::DoOpenFile, peek, &RowPeek::end);
    connect(this, &NewToolBar::DoSetZoomMode, peek, [this, peek] {
        if (!m_parts->zoom.isReportingBack())
            peek->end();
    });
    connect(this, &NewToolBar::DoSearchContent, peek, &RowPeek::end);
    connect(this, &NewToolBar::DoSetBackground, peek, &RowPeek::end);
}

bool NewToolBar::InitMainToolBar(QString index)
{
    if (index.isEmpty() || !m_toolRowStack)
        return false;

    m_parts->tabs.toggle(index.toInt());
    return true;
}

bool NewToolBar::AddToolBarAction(const QList<Controller *> &records, QToolBar *row, bool ignored,
                                  bool addToRow)
{
    Q_UNUSED(ignored)
    return m_parts->rows.fill(row, records, addToRow);
}

bool NewToolBar::AppendSubMenu(QMenu *menu, const QList<Controller *> &items, QProxyStyle *style)
{
    return m_parts->menus.append(menu, items, style);
}

/**
 * Makes the row or the menus that a command stands on, if they are not yet; the host is asked for
 * the states then. Returns false if it has deleted this toolbar in its answer.
 */
bool NewToolBar::makeCommand(const CommandPlace &place)
{
    const QPointer<NewToolBar> self(this);
    if (place.tab) {
        auto *row = qobject_cast<MRMainToolBar *>(m_toolBars.value(place.tab->name));
        if (row && !row->isFilled())
            m_parts->receiver.fillRow(row);
    } else if (place.record->section == Section::appButton) {
        Inner_DoDelayLoadMenuSlot();
    }
    return !self.isNull();
}

QWidget *NewToolBar::CreateExtraGroup(const QList<Controller *> &children)
{
    return m_parts->panels.makeExtraGroup(children);
}

QWidget *NewToolBar::CreateButtonGroupWidget(const QList<Controller *> &children, QToolBar *row)
{
    return m_parts->panels.makeButtonGroup(children, row);
}

void NewToolBar::CreateActionGroup(const QString &name, QObject *row)
{
    m_parts->factory.makeGroup(name, row);
}

void NewToolBar::SetExtraGroupVisible(QString tabName)
{
    m_parts->tabs.showExtraGroups(tabName);
}

void NewToolBar::SetExtraGroupEnable(bool enable)
{
    m_parts->tabs.enableExtraGroups(enable);
}
