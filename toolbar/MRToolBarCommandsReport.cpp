// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/MRToolBarCommandsPrivate.h"

#include "toolbar/NewToolBar.h"
#include "toolbar/description/Names.h"

#include <algorithm>

namespace {

/** Whether checking the control leaves the shape button as it is. */
bool isShape(const QString &name)
{
    return name.contains(Prefix::shape);
}

} // namespace

bool MRToolBarCommands::Entry::usable(const QString &name) const
{
    if (isBound)
        return action && action->isEnabled();
    return !usableWhen || usableWhen(name);
}

std::optional<bool> MRToolBarCommands::Entry::visible(const QString &name) const
{
    if (action)
        return action->isVisible();
    return visibleWhen ? std::optional<bool>(visibleWhen(name)) : std::nullopt;
}

std::optional<bool> MRToolBarCommands::Entry::checked(const QString &name) const
{
    if (action && action->isCheckable())
        return action->isChecked();
    return checkedWhen ? std::optional<bool>(checkedWhen(name)) : std::nullopt;
}

QString MRToolBarCommands::Entry::shownText() const
{
    if (text)
        return text();
    // Without mnemonic and dots, as buttons show it.
    return action ? action->iconText() : QString();
}

QString MRToolBarCommands::Entry::shownToolTip() const
{
    if (toolTip)
        return toolTip();
    if (!action || action->toolTip().isEmpty())
        return QString();
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    if (!keys.isEmpty())
        return QStringLiteral("%1 (%2)").arg(action->toolTip(), keys);
    // Qt answers with the text where the action has no tooltip of its own.
    return action->toolTip() == action->iconText() ? QString() : action->toolTip();
}

QList<MRToolBarCommands::Private::Named> MRToolBarCommands::Private::allNamed() const
{
    const NewToolBar *widget = toolBar ? toolBar->m_toolBar.data() : nullptr;
    QList<Named> all;
    for (const QString &name : names) {
        const EntryPointer entry = entries.value(name);
        if (!entry->isIfDescribed || (widget && widget->IsDescribed(name)))
            all.append({name, entry});
    }
    if (prefixes.isEmpty() || !widget)
        return all;
    const QStringList described = widget->CommandNames();
    for (const QString &name : described) {
        const EntryPointer meant = entries.contains(name) ? nullptr : entry(name);
        if (meant)
            all.append({name, meant});
    }
    return all;
}

void MRToolBarCommands::Private::tell(bool everything)
{
    if (everything) {
        m_toldValues.clear();
        for (Told &told : m_told) {
            // Texts and icons stay with the toolbar for controls that are made later.
            told.usable.reset();
            told.visible.reset();
            told.checked.reset();
            told.shortcut.reset();
        }
    }
    if (m_isTelling) {
        m_isToTellAgain = true;
        return;
    }
    m_isTelling = true;
    tellAll();
    m_isTelling = false;
    // Disabled as a whole, the toolbar has not taken what it was told.
    if (toolBar && !toolBar->GetCompositeEnable(Area::whole))
        m_told.clear();
    if (std::exchange(m_isToTellAgain, false) && owner)
        owner->update();
}

void MRToolBarCommands::Private::tellAll()
{
    const QList<Named> commands = allNamed();
    for (const Named &command : commands)
        tellStates(command);
    for (const Named &command : commands)
        tellTexts(command);
    tellValues();
    tellChecked(commands);
}

void MRToolBarCommands::Private::tellStates(const Named &command)
{
    QString name = command.first;
    const bool isUsable = command.second->usable(name);
    const std::optional<bool> isVisible = command.second->visible(name);
    // The told states are looked up after the host's functions, which may add commands.
    if (toolBar && m_told[name].usable != isUsable) {
        m_told[name].usable = isUsable;
        toolBar->DoSetControlUsableStateSlot(name, isUsable);
    }
    if (toolBar && isVisible && m_told[name].visible != isVisible) {
        m_told[name].visible = isVisible;
        toolBar->DoSetControlVisibleStateSlot(name, *isVisible);
    }
}

void MRToolBarCommands::Private::tellTexts(const Named &command)
{
    QString name = command.first;
    const EntryPointer &entry = command.second;
    const QString text = entry->shownText();
    const QString toolTip = entry->shownToolTip();
    const QIcon icon = entry->action ? entry->action->icon() : QIcon();
    const qint64 key = icon.isNull() ? 0 : icon.cacheKey();
    // The told texts are looked up each time: whatever is told may run code of the host.
    if (toolBar && std::exchange(m_told[name].text, text) != text)
        toolBar->DoSetControlTextSlot(name, text);
    if (toolBar && std::exchange(m_told[name].toolTip, toolTip) != toolTip)
        toolBar->DoSetControlToolTipSlot(name, toolTip);
    if (toolBar && std::exchange(m_told[name].icon, key) != key)
        toolBar->DoSetControlIconSlot(name, icon);
    tellShortcut(command);
}

void MRToolBarCommands::Private::tellShortcut(const Named &command)
{
    const QPointer<NewToolBar> widget = toolBar ? toolBar->m_toolBar : nullptr;
    const QPointer<QAction> action = command.second->action;
    if (!widget || !action)
        return;
    if (!widget->window()->actions().contains(action))
        widget->window()->addAction(action);
    const QKeySequence described = widget->DescribedShortcut(command.first);
    if (action->shortcut().isEmpty() && !described.isEmpty())
        action->setShortcut(described);
    if (!widget || !action || m_told[command.first].shortcut == action->shortcut())
        return;
    m_told[command.first].shortcut = action->shortcut();
    widget->ShowShortcut(command.first, action->shortcut());
}

void MRToolBarCommands::Private::tellValues()
{
    const QStringList valueNames = values.keys();
    for (const QString &name : valueNames) {
        const Value value = values.value(name);
        const QVariant now = value.get ? value.get() : QVariant();
        if (!toolBar || m_toldValues.value(name) == now)
            continue;
        m_toldValues.insert(name, now);
        value.tell(*toolBar, now);
    }
}

void MRToolBarCommands::Private::tellChecked(const QList<Named> &commands)
{
    bool isShapeReleased = false;
    for (const Named &command : commands) {
        if (!isShape(command.first) && tellChecked(command, false))
            isShapeReleased = true;
    }
    // Every other control that is checked by name releases the button of the shapes.
    for (const Named &command : commands) {
        if (isShape(command.first))
            tellChecked(command, isShapeReleased);
    }
}

bool MRToolBarCommands::Private::tellChecked(const Named &command, bool again)
{
    QString name = command.first;
    const std::optional<bool> isChecked = command.second->checked(name);
    if (!toolBar || !isChecked || (!again && m_told[name].checked == isChecked))
        return false;
    const bool isMade = toolBar->IsSupportByToolBar(name);
    // A disabled control would keep the check for the next click and not report that.
    if (isMade && *isChecked && !toolBar->GetCompositeEnable(name))
        return false;
    m_told[name].checked = isChecked;
    if (!again && isMade && toolBar->GetControlCheckedState(name) == *isChecked)
        return false;
    toolBar->DoSetControlCheckedStateSlot(name, *isChecked);
    return true;
}

void MRToolBarCommands::Private::forget(const QString &value)
{
    for (Told &told : m_told)
        told.checked.reset();
    m_toldValues.remove(value);
}

void MRToolBarCommands::Private::stop()
{
    // Told nothing yet, the next toolbar is told everything.
    toolBar.clear();
    m_told.clear();
    m_toldValues.clear();
}
