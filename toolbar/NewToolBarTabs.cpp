// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/build/TabMaker.h"
#include "toolbar/description/CommandPlaces.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Sections.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QButtonGroup>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

QButtonGroup *NewToolBar::CreateTabBar(QList<bool> &visibleTabs)
{
    auto *group = new QButtonGroup(this);
    m_toolRowStack = TabMaker::makeStack(this);
    m_mainLayout->addWidget(m_toolRowStack);
    if (m_controllers.isEmpty())
        return nullptr;

    int shownTab = 0;
    const TabMaker maker(m_parts->factory, m_alignment);
    const QList<Controller *> tabs = sectionRecords(m_controllers, Section::tabBar);
    for (int position = 0; position < tabs.size(); ++position) {
        const Controller &tab = *tabs.at(position);
        QPushButton *button = maker.makeButton(tab, position);
        connect(button, &QPushButton::clicked, this, &NewToolBar::Inner_DoUpdateMainToolBarSlot);
        group->addButton(button);
        m_tabButtons.append(button);
        visibleTabs.append(tab.visible);
        if (tab.checked)
            shownTab = position;

        QWidget *page = TabMaker::addPage(m_toolRowStack);
        if (tab.children.isEmpty())
            continue;
        MRMainToolBar *row = maker.addRow(page, tab);
        if (tab.checked)
            AddToolBarAction(tab.children, row, false, true);
        m_toolBars.insert(tab.name, row);
        if (tab.scalable)
            m_extraGroups.append(
                TabMaker::addExtraGroup(page, CreateExtraGroup(tab.children), tab));
    }
    if (!tabs.isEmpty())
        m_parts->tabs.showFirst(shownTab, tabs.at(shownTab)->visible, tabs.at(shownTab)->checked);
    return group;
}

void NewToolBar::Inner_DoUpdateMainToolBarSlot()
{
    if (const auto *tab = qobject_cast<QPushButton *>(sender()))
        m_parts->tabs.click(tab);
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
