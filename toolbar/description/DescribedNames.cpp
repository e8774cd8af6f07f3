// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/DescribedNames.h"

#include "toolbar/description/CommandPlaces.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"

#include <algorithm>

namespace {

bool isArea(const QString &name)
{
    for (const QLatin1String area :
         {Section::appButton, Section::quickAccessBar, Section::tabBar, Section::searchBar,
          Section::additional, Area::whole, Area::topLine, Area::rows}) {
        if (name == area)
            return true;
    }
    return false;
}

/** Of controls that are made without a description, or found whatever their names are. */
bool isReserved(const QString &name)
{
    return name == Name::zoomBox || name == Name::pageField || name == Name::unfold
           || name == Name::rowMore;
}

} // namespace

DescribedNames::DescribedNames(const QList<Controller *> &records)
{
    add(records);
}

void DescribedNames::add(const QList<Controller *> &records)
{
    for (const Controller *record : records) {
        if (!record->name.isEmpty()) {
            const QString name = commandOf(record->name);
            m_names.append(record->name);
            if (!m_shortcuts.contains(name))
                m_reported.append(name);
            if (QString &shortcut = m_shortcuts[name]; shortcut.isEmpty())
                shortcut = record->shortcut;
        }
        add(record->children);
    }
}

bool DescribedNames::reach(const QString &name) const
{
    if (name.contains(Area::prefix)) {
        const QString quickEntry = name.section(QLatin1Char('/'), 1);
        return isArea(name)
               || (name.startsWith(Section::quickAccessBar)
                   && (quickEntry == Area::quickAccessSet || hasPart(quickEntry)));
    }
    return m_shortcuts.contains(commandOf(name)) || isReserved(name) || hasPart(name);
}

bool DescribedNames::hasPart(const QString &part) const
{
    // A part is enough for a button of quick access, and for every action if it has a "/".
    const bool isAnyMeant = part.contains(QLatin1Char('/'));
    return !part.isEmpty() && std::any_of(m_names.begin(), m_names.end(), [&](const QString &name) {
        return (isAnyMeant || name.startsWith(Prefix::quick)) && name.contains(part);
    });
}
