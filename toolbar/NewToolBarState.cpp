// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/FocusEntry.h"
#include "toolbar/widgets/MRScrollWidget.h"

#include <QAction>
#include <QStackedWidget>
#include <QToolBar>

void NewToolBar::DoSetControlUsableStateSlot(QString &objName, bool usable)
{
    if (m_isFirstUsableCall && m_toolRowStack)
        m_toolRowStack->setEnabled(true);
    m_isFirstUsableCall = false;

    const QPointer<NewToolBar> self(this);
    // Once the whole toolbar is disabled, this slot enables nothing any more, deliberately.
    if (m_hostToolBar && !m_hostToolBar->isEnabled())
        return;
    if (m_parts->windowShortcuts)
        m_parts->windowShortcuts->noteEnabled(objName, usable);
    if (m_parts->added)
        m_parts->added->setWaiting(objName, &QAction::setEnabled, usable);
    if (m_currentScrollWidget && !m_currentScrollWidget->isEnabled())
        m_parts->states.setFirstActionEnabled(objName, usable);
    else
        m_parts->states.setEnabled(objName, usable);
    if (self && m_parts->finder)
        m_parts->finder->followStates();
}

void NewToolBar::DoSetControlVisibleStateSlot(QString &objName, bool visible)
{
    if (m_parts->windowShortcuts)
        m_parts->windowShortcuts->noteVisible(objName, visible);
    const QPointer<NewToolBar> self(this);
    m_parts->states.setVisible(objName, visible);
    if (self && m_parts->finder)
        m_parts->finder->followStates();
    if (self && m_parts->added)
        m_parts->added->setWaiting(objName, &QAction::setVisible, visible);
    if (self)
        m_parts->keeper.noteQuickAccess();
}

void NewToolBar::DoSetControlCheckedStateSlot(QString &objName, bool checked)
{
    const auto colon = objName.indexOf(QLatin1Char(':'));
    if (colon >= 0)
        objName.truncate(colon);
    if (m_parts->windowShortcuts)
        m_parts->windowShortcuts->noteChecked(objName, checked);
    if (m_parts->added)
        m_parts->added->setWaiting(objName, &QAction::setChecked, checked);
    m_parts->checkedStates.setChecked(objName, checked);
}

bool NewToolBar::GetCompositeEnable(QString name)
{
    return m_parts->states.isEnabled(name);
}

bool NewToolBar::GetCompositeVisible(QString name)
{
    return m_parts->states.isVisible(name);
}

bool NewToolBar::GetControlCheckState(QString name)
{
    return m_parts->checkedStates.isChecked(name);
}

bool NewToolBar::IsSupportByToolBar(QString name)
{
    return GetActionInTotal(name) != nullptr;
}

QRect NewToolBar::GetControlGeometry(QString name)
{
    return m_parts->states.geometry(name);
}

void NewToolBar::SetControlText(const QString &name, const QString &text)
{
    m_parts->presentation.setText(name, text);
    if (m_parts->finder)
        m_parts->finder->followTexts();
}

void NewToolBar::SetControlToolTip(const QString &name, const QString &tip)
{
    m_parts->presentation.setToolTip(name, tip);
    if (m_parts->finder)
        m_parts->finder->followTexts();
}

void NewToolBar::SetControlIcon(const QString &name, const QIcon &icon)
{
    m_parts->presentation.setIcon(name, icon);
    if (m_parts->finder)
        m_parts->finder->followStates();
}

bool NewToolBar::SetControlFocus(const QString &name)
{
    return name.isEmpty() ? FocusEntry::enterFirst(this) : FocusEntry::enterControl(this, name);
}

void NewToolBar::ResetToolbarState()
{
    const QPointer<NewToolBar> self(this);
    DoSetZoomModeSlot(Name::actualSize);
    if (!self)
        return;
    DoSetTotalPageSlot(QStringLiteral(" "));
    DoSetPageNumSlot(QStringLiteral(" "));
    if (m_parts->windowShortcuts)
        m_parts->windowShortcuts->forgetChecked();
    m_parts->checkedStates.uncheckAll();
    const QStringList added = self && m_parts->added ? m_parts->added->names() : QStringList();
    for (const QString &name : added)
        m_parts->added->setWaiting(name, &QAction::setChecked, false);
}
