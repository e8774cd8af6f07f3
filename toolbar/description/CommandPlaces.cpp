// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/CommandPlaces.h"

#include "toolbar/description/Controller.h"
#include "toolbar/description/Sections.h"

namespace {

/** Whether a record without others below it is a command, by its place. */
bool isCommand(const Controller &record, const CommandPlace &place)
{
    if (record.name.isEmpty() || record.name == Name::customise || record.type == Tag::separator)
        return false;
    // In a menu every element is an entry, whatever its tag.
    const bool isInMenu =
        place.holder && place.holder != place.tab && place.holder->type != Tag::buttonGroup;
    return isInMenu || record.type == Tag::button;
}

/** Whether what stands below the record are commands of their own. */
bool holdsCommands(const Controller &record)
{
    return !record.children.isEmpty() && record.type != Tag::comboBox && record.type != Tag::extra
           && record.type != Tag::lineEdit;
}

} // namespace

QString commandOf(const QString &name)
{
    for (const QLatin1String prefix : {Prefix::menu, Prefix::quick}) {
        if (name.startsWith(prefix))
            return name.mid(prefix.size());
    }
    return name;
}

CommandPlaces::CommandPlaces(const QList<Controller *> &records)
{
    const QList<Controller *> appButtons = appButtonRecords(records);
    for (const Controller *button : appButtons)
        add(button->children, button, nullptr);
    add(sectionRecords(records, Section::quickAccessBar), nullptr, nullptr);
    add(sectionRecords(records, Section::additional), nullptr, nullptr);
    const QList<Controller *> tabs = sectionRecords(records, Section::tabBar);
    for (const Controller *tab : tabs)
        add(tab->children, tab, tab);
}

QList<const Controller *> CommandPlaces::way(const CommandPlace &place) const
{
    QList<const Controller *> way;
    for (const Controller *holder = place.holder; holder; holder = m_holders.value(holder))
        way.prepend(holder);
    return way;
}

void CommandPlaces::add(const QList<Controller *> &records, const Controller *holder,
                        const Controller *tab)
{
    for (const Controller *record : records) {
        const CommandPlace place{record, holder, tab};
        if (holdsCommands(*record)) {
            m_holders.insert(record, holder);
            add(record->children, record, tab);
        } else if (record->children.isEmpty() && isCommand(*record, place)) {
            m_places.append(place);
        }
    }
}
