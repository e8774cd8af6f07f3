// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Rules.h"
#include "tools/check/Vocabulary.h"

#include <QMap>
#include <QPair>
#include <QSet>

namespace {

using Members = QVector<const SourceElement *>;

/** The elements that count, by group. Those with one name are one member: they share an action. */
QMap<QString, Members> membersByGroup(const SourceDocument &document,
                                      bool (*counts)(const Controller &))
{
    QMap<QString, Members> groups;
    QSet<QPair<QString, QString>> known;
    for (const SourceElement &element : document.elements) {
        const QString group = element.record.group;
        if (group.isEmpty() || !counts(element.record)
            || !Vocabulary::usesAttribute(element.role, QStringLiteral("group")))
            continue;
        const QPair<QString, QString> member(group, element.record.name);
        if (!known.contains(member))
            groups[group].append(&element);
        known.insert(member);
    }
    return groups;
}

bool isCheckable(const Controller &record)
{
    return record.checkable;
}

bool isChecked(const Controller &record)
{
    return record.checkable && record.checked;
}

} // namespace

void Rules::checkGroups(const SourceDocument &document, Findings &findings)
{
    const QMap<QString, Members> groups = membersByGroup(document, isCheckable);
    for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
        if (group->size() == 1)
            findings.warn("group-of-one", group->first()->positionOf("group"),
                          QStringLiteral("'%1' is alone in the group '%2', so once checked it "
                                         "cannot be unchecked; add its alternatives or remove "
                                         "'group'")
                              .arg(group->first()->record.name, group.key()));
    }

    const QMap<QString, Members> checked = membersByGroup(document, isChecked);
    for (auto group = checked.cbegin(); group != checked.cend(); ++group) {
        const SourceElement &first = *group->first();
        for (auto member = group->cbegin() + 1; member != group->cend(); ++member)
            findings.warn("group-checked-twice", (*member)->positionOf("checked"),
                          QStringLiteral("the group '%1' already starts with '%2' in line %3 "
                                         "checked; the one that is built last stays so")
                              .arg(group.key(), first.record.name)
                              .arg(first.position.line));
    }
}
