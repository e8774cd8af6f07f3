// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/assist/WindowShortcuts.h"

#include "toolbar/QtCompat.h"
#include "toolbar/assist/ForeignShortcuts.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>

#include <algorithm>

namespace {

/** The modifiers without those that a layout may need for the character itself. */
Qt::KeyboardModifiers commandModifiers(Qt::KeyboardModifiers modifiers)
{
    return modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

/** Whether the key may be one of the sequence; Qt decides that in the end. */
bool mayBeOf(const QKeySequence &sequence, const QKeyEvent &key)
{
    for (int i = 0; i < sequence.count(); ++i) {
        const QtCompat::KeyPart part(sequence, i);
        if (part.key() == key.key()
            && commandModifiers(part.modifiers()) == commandModifiers(key.modifiers()))
            return true;
    }
    return false;
}

void collectWanted(const QList<Controller *> &records, QList<const Controller *> &wanted)
{
    for (const Controller *record : records) {
        if (record->optIn().shortcutscope == Word::windowScope && !record->shortcut.isEmpty())
            wanted.append(record);
        collectWanted(record->children, wanted);
    }
}

} // namespace

QList<const Controller *> WindowShortcuts::wantedBy(const QList<Controller *> &records)
{
    QList<const Controller *> wanted;
    collectWanted(records, wanted);
    return wanted;
}

WindowShortcuts::WindowShortcuts(const QList<const Controller *> &wanted,
                                 const CommandPlaces &places, QWidget *window, Usable isUsable)
    : m_window(window)
    , m_isUsable(std::move(isUsable))
{
    QHash<const Controller *, CommandPlace> placeOf;
    for (const CommandPlace &place : places.all()) {
        placeOf.insert(place.record, place);
        if (!place.record->group.isEmpty())
            m_groups.insert(place.record->name, place.record->group);
    }
    for (const Controller *record : wanted) {
        const auto place = placeOf.constFind(record);
        // The top line has no shortcuts.
        if (place != placeOf.cend() && place->holder)
            add(*place);
    }
    // The focus may be in another window by then, such as a floating dock.
    QCoreApplication::instance()->installEventFilter(this);
}

WindowShortcuts::~WindowShortcuts()
{
    for (const Entry &entry : m_entries) {
        if (!entry.shortcut)
            continue;
        entry.shortcut->setEnabled(false);
        entry.shortcut->deleteLater();
    }
}

void WindowShortcuts::add(const CommandPlace &place)
{
    const QKeySequence sequence(place.record->shortcut);
    const bool isKnown =
        std::any_of(m_entries.begin(), m_entries.end(),
                    [&sequence](const Entry &entry) { return entry.shortcut->key() == sequence; });
    if (sequence.isEmpty() || isKnown)
        return;

    // The window is the parent because Qt ignores the shortcuts of a hidden one, and the toolbar
    // may be hidden.
    auto *shortcut = new QShortcut(sequence, m_window);
    connect(shortcut, &QShortcut::activated, this, [this, place] { Q_EMIT pressed(place); });
    m_entries.push_back({shortcut, place});
    m_reported.insert(place.record->name, {});
}

void WindowShortcuts::noteEnabled(const QString &name, bool isEnabled)
{
    note(name, &Reported::isEnabled, isEnabled);
}

void WindowShortcuts::noteVisible(const QString &name, bool isVisible)
{
    note(name, &Reported::isVisible, isVisible);
}

void WindowShortcuts::noteChecked(const QString &name, bool isChecked)
{
    const QString group = isChecked ? m_groups.value(name) : QString();
    for (auto other = m_reported.begin(); other != m_reported.end() && !group.isEmpty(); ++other) {
        if (m_groups.value(other.key()) == group)
            other->isChecked = false;
    }
    note(name, &Reported::isChecked, isChecked);
}

void WindowShortcuts::forgetChecked()
{
    for (Reported &reported : m_reported)
        reported.isChecked.reset();
}

void WindowShortcuts::note(const QString &name, std::optional<bool> Reported::*state, bool value)
{
    for (const QString &command : {name, QString(Prefix::menu + name)}) {
        const auto reported = m_reported.find(command);
        if (reported != m_reported.end())
            (*reported).*state = value;
    }
}

void WindowShortcuts::restore(QAction *command)
{
    const Reported reported = m_reported.take(command->objectName());
    if (reported.isEnabled && ActionData::isAvailable(command))
        command->setEnabled(*reported.isEnabled);
    if (reported.isVisible)
        command->setVisible(*reported.isVisible);
    if (reported.isChecked)
        command->setChecked(*reported.isChecked);
}

bool WindowShortcuts::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride || !watched->isWidgetType())
        return false;
    // Comes up to the window from the focused widget, unless that keeps the key, before Qt looks
    // the key up.
    if (static_cast<QWidget *>(watched)->isWindow())
        follow(*static_cast<QKeyEvent *>(event));
    return false;
}

void WindowShortcuts::follow(const QKeyEvent &key)
{
    for (const Entry &entry : m_entries) {
        if (!entry.shortcut || !mayBeOf(entry.shortcut->key(), key))
            continue;
        // Switched off, it leaves the key to the focused widget, as a disabled action does.
        entry.shortcut->setEnabled(m_isUsable(entry.place)
                                   && !isReportedAway(entry.place.record->name)
                                   && !isTaken(entry.shortcut->key()));
    }
}

bool WindowShortcuts::isReportedAway(const QString &name) const
{
    const Reported reported = m_reported.value(name);
    return !reported.isEnabled.value_or(true) || !reported.isVisible.value_or(true);
}

bool WindowShortcuts::isTaken(const QKeySequence &sequence) const
{
    return ForeignShortcuts::reach(m_window->window(), sequence,
                                   [this](const QShortcut *shortcut) { return isOwn(shortcut); });
}

bool WindowShortcuts::isOwn(const QShortcut *shortcut) const
{
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [shortcut](const Entry &entry) { return entry.shortcut == shortcut; });
}
