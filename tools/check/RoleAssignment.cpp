// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/RoleAssignment.h"

#include "toolbar/description/Names.h"
#include "tools/check/SourceDocument.h"
#include "tools/check/Vocabulary.h"

namespace {

constexpr int usedAppButtons = 2;

bool mentions(const QString &name, const char *word)
{
    return name.contains(QLatin1String(word), Qt::CaseInsensitive);
}

Role searchButtonRole(const QString &name)
{
    if (mentions(name, "next") || mentions(name, "prev"))
        return Role::SearchButton;
    return mentions(name, "st_set") ? Role::SearchSet : Role::NamelessSearchButton;
}

/** In a menu an element with children is a sub-menu, whatever its tag. */
Role entryRole(const SourceElement &element)
{
    if (!element.children.isEmpty())
        return Role::SubMenu;
    return element.record.type == Tag::separator ? Role::Separator : Role::MenuEntry;
}

/** Assigns the role of one element after another; that of the parent is already assigned. */
class RoleAssignment
{
public:
    explicit RoleAssignment(const SourceDocument &document)
        : m_document(document)
    {
    }

    Role roleOf(const SourceElement &element)
    {
        const SourceElement &parent = m_document.parentOf(element);
        if (parent.role == Role::Root)
            return Vocabulary::sectionRole(element.tag);
        if (Vocabulary::holdsEntries(parent.role))
            return entryRole(element);

        const Role role = Vocabulary::roleBelow(parent.role, element.record.type);
        switch (role) {
        case Role::AppButton:
            return ++m_appButtons > usedAppButtons ? Role::SurplusAppButton : role;
        case Role::QuickButton:
            return element.record.name == QLatin1String("qt_set") ? Role::QuickSet : role;
        case Role::SearchButton:
            return searchButtonRole(element.record.name);
        case Role::Extra:
            return parent.record.scalable ? role : Role::IdleExtra;
        default:
            return role;
        }
    }

private:
    const SourceDocument &m_document;
    int m_appButtons = 0;
};

} // namespace

void assignRoles(SourceDocument &document)
{
    RoleAssignment assignment(document);
    document.elements.front().role = Role::Root;
    // The elements are sorted so that parents come before their children.
    for (std::size_t i = 1; i < document.elements.size(); ++i)
        document.elements[i].role = assignment.roleOf(document.elements[i]);
}
