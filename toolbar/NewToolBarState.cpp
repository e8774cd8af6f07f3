// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/description/DescriptionLog.h"
#include "toolbar/description/Names.h"
#include "toolbar/widgets/FocusEntry.h"
#include "toolbar/widgets/MRScrollWidget.h"

#include <QAction>
#include <QKeySequence>
#include <QStackedWidget>
#include <QToolBar>

void NewToolBar::DoSetControlUsableStateSlot(QString &objName, bool usable)
{
    reportUnknown(objName);
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
    reportUnknown(objName);
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
    reportUnknown(objName);
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
    reportUnknown(name);
    m_parts->presentation.setText(name, text);
    if (m_parts->finder)
        m_parts->finder->followTexts();
}

void NewToolBar::SetControlToolTip(const QString &name, const QString &tip)
{
    reportUnknown(name);
    m_parts->presentation.setToolTip(name, tip);
    if (m_parts->finder)
        m_parts->finder->followTexts();
}

void NewToolBar::SetControlIcon(const QString &name, const QIcon &icon)
{
    reportUnknown(name);
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

QStringList NewToolBar::CommandNames() const
{
    return describedNames().reported();
}

bool NewToolBar::IsDescribed(const QString &name) const
{
    return describedNames().reach(name);
}

QKeySequence NewToolBar::DescribedShortcut(const QString &name) const
{
    return QKeySequence(describedNames().shortcut(name));
}

void NewToolBar::ShowShortcut(const QString &name, const QKeySequence &sequence)
{
    for (const QString &actionName : {name, QString(Prefix::menu + name)}) {
        for (const qsizetype position : m_actions.positions(actionName)) {
            if (QAction *action = m_actions.at(position))
                m_parts->shortcuts.showOnly(action, sequence);
        }
    }
}

const DescribedNames &NewToolBar::describedNames() const
{
    if (!m_parts->names)
        m_parts->names.emplace(m_controllers);
    return *m_parts->names;
}

void NewToolBar::reportUnknown(const QString &name) const
{
    // Looking the name up costs something only for those who want to know.
    if (descriptionLog().isWarningEnabled() && !IsDescribed(name))
        qCWarning(descriptionLog, "no control is described with the name \"%ls\"",
                  qUtf16Printable(name));
}
