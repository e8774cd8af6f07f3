// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/commands/Backgrounds.h"

#include <QAction>
#include <QActionGroup>
#include <QLineEdit>

QAction *NewToolBar::GetActionInTotal(QString name)
{
    return m_actions.first(name);
}

QActionGroup *NewToolBar::GetActionGroup(QString name)
{
    return m_actionGroups.first(name);
}

void NewToolBar::Inner_DoBarActionSlot()
{
    if (auto *action = qobject_cast<QAction *>(sender()))
        m_parts->commands.dispatch(action);
}

void NewToolBar::Inner_DoDelayActionSlot()
{
    m_parts->commands.reportDelayed();
}

void NewToolBar::DoSetBackgoundSlot(BackgroundStyle style)
{
    // Checked, not triggered: the host is not told of its own choice.
    if (QAction *action = m_actions.first(Backgrounds::name(style)))
        action->setChecked(true);
}

void NewToolBar::DoSetPageNumSlot(QString pageNum)
{
    m_parts->pages.showPage(pageNum);
}

void NewToolBar::DoSetTotalPageSlot(QString totalPage)
{
    m_parts->pages.showTotal(totalPage);
}

void NewToolBar::Inner_DoGotoPageSlot()
{
    auto *field = qobject_cast<QLineEdit *>(sender());
    if (!field)
        return;
    if (const auto page = m_parts->pages.enter(field))
        Q_EMIT DoGotoPage(*page);
}

void NewToolBar::DoSetZoomModeSlot(QString mode)
{
    m_parts->zoom.showMode(mode);
}

void NewToolBar::Inner_DoSetZoomModeSlot(QString text)
{
    m_parts->zoom.choose(text);
}

void NewToolBar::DoUpdateRecentFileSlot(QStringList paths)
{
    m_parts->recentFiles.show(paths);
}

void NewToolBar::Inner_DoOpenRecentFileSlot(QAction *action)
{
    m_parts->recentFiles.choose(action);
}
