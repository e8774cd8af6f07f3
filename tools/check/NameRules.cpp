// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/Names.h"
#include "tools/check/Rules.h"
#include "tools/check/Vocabulary.h"

#include <QHash>

namespace {

/** Names must be unique among the controls that the library looks up together. */
enum class Scope
{
    None,
    Action,  ///< Buttons of rows and entries of menus: one action for each name.
    Control, ///< Other controls of rows, which are in the same list as the actions.
    SubMenu,
    Quick,
    Tab,
    Search,
    Additional,
    App,
    Extra,
};

Scope scopeOf(Role role)
{
    static const QHash<int, Scope> scopes{
        {int(Role::RowButton), Scope::Action},    {int(Role::GroupButton), Scope::Action},
        {int(Role::MenuEntry), Scope::Action},    {int(Role::RowMenu), Scope::Control},
        {int(Role::GroupMenu), Scope::Control},   {int(Role::ComboBox), Scope::Control},
        {int(Role::RowLabel), Scope::Control},    {int(Role::RowField), Scope::Control},
        {int(Role::SubMenu), Scope::SubMenu},     {int(Role::QuickButton), Scope::Quick},
        {int(Role::QuickSet), Scope::Quick},      {int(Role::Tab), Scope::Tab},
        {int(Role::SearchLabel), Scope::Search},  {int(Role::SearchField), Scope::Search},
        {int(Role::SearchButton), Scope::Search}, {int(Role::SearchSet), Scope::Search},
        {int(Role::AppButton), Scope::App},       {int(Role::AdditionalButton), Scope::Additional},
        {int(Role::ExtraLabel), Scope::Extra},    {int(Role::ExtraField), Scope::Extra},
        {int(Role::ExtraButton), Scope::Extra},
    };
    return scopes.value(int(role), Scope::None);
}

bool isInRow(Scope scope)
{
    return scope == Scope::Action || scope == Scope::Control;
}

/** The first attribute in which two elements that share an action differ; only one can apply. */
QString disagreement(const SourceElement &one, const SourceElement &other)
{
    if (one.record.text != other.record.text)
        return QStringLiteral("text");
    return one.record.checkable != other.record.checkable ? QStringLiteral("checkable") : QString();
}

/** How two elements of that name get what each of them describes. */
QString mendOfSharing(const QString &name)
{
    return name.startsWith(Prefix::menu)
               ? QStringLiteral("describe both alike")
               : QStringLiteral("name one of them 'menu_%1', which triggers '%1' too, or describe "
                                "both alike")
                     .arg(name);
}

void checkSharing(const SourceElement &element, const SourceElement &earlier, Findings &findings)
{
    const SourcePosition position = element.namePosition();
    const QString name = element.record.name;
    const int line = earlier.position.line;
    const QString difference = disagreement(element, earlier);
    if (difference.isEmpty())
        findings.note("shared-action", position,
                      QStringLiteral("'%1' shares its action with line %2: one state, and the text "
                                     "and icon of whichever is built first")
                          .arg(name)
                          .arg(line));
    else
        findings.warn(
            "shared-action-differs", position,
            QStringLiteral("'%1' shares its action with line %2, where '%3' differs; only "
                           "one of the two can count, and which depends on what the "
                           "user opens first; %4")
                .arg(name)
                .arg(line)
                .arg(difference, mendOfSharing(name)));
}

void checkPair(const SourceElement &element, const SourceElement &earlier, Findings &findings)
{
    const Scope scope = scopeOf(element.role);
    const Scope earlierScope = scopeOf(earlier.role);
    if (scope == Scope::Action && earlierScope == Scope::Action) {
        checkSharing(element, earlier, findings);
        return;
    }
    const SourcePosition position = element.namePosition();
    const QString where = QStringLiteral("'%1' also names %2 in line %3")
                              .arg(element.record.name, Vocabulary::noun(earlier.role))
                              .arg(earlier.position.line);
    if (scope == Scope::Tab && earlierScope == Scope::Tab)
        findings.warn("duplicate-name", position,
                      where + QStringLiteral(": both would fill the same row; rename one"));
    else if (isInRow(scope) && isInRow(earlierScope))
        findings.warn("duplicate-name", position,
                      where
                          + QStringLiteral(": one can be taken for the other when the library "
                                           "looks for the name; rename one"));
    else if (scope == earlierScope)
        findings.warn("duplicate-name", position,
                      where + QStringLiteral(": the host cannot tell the two apart; rename one"));
    else
        findings.note("same-name", position,
                      where
                          + QStringLiteral(", which has a state of its own; the host addresses "
                                           "both by the one name"));
}

/** Remembers names, to compare an element with the nearest one of its name: scope, row, other. */
class NamesSeen
{
public:
    const SourceElement *earlier(const SourceElement &element) const
    {
        const QString name = element.record.name;
        const Scope scope = scopeOf(element.role);
        if (const SourceElement *same = m_byScope.value(key(scope, name)))
            return same;
        const Scope other = scope == Scope::Action ? Scope::Control : Scope::Action;
        const SourceElement *inRow = isInRow(scope) ? m_byScope.value(key(other, name)) : nullptr;
        return inRow ? inRow : m_first.value(name);
    }

    void insert(const SourceElement &element)
    {
        const QString name = element.record.name;
        const QString scoped = key(scopeOf(element.role), name);
        if (!m_byScope.contains(scoped))
            m_byScope.insert(scoped, &element);
        if (!m_first.contains(name))
            m_first.insert(name, &element);
    }

private:
    static QString key(Scope scope, const QString &name)
    {
        return QString::number(int(scope)) + QLatin1Char(' ') + name;
    }

    QHash<QString, const SourceElement *> m_byScope;
    QHash<QString, const SourceElement *> m_first;
};

/** The entries of a combo box are identified by name, so none should occur twice. */
void checkItems(const SourceDocument &document, const SourceElement &box, Findings &findings)
{
    QHash<QString, int> lines;
    for (const int index : box.children) {
        const SourceElement &item = document.at(index);
        const QString name = item.record.name;
        if (name.isEmpty())
            continue;
        if (lines.contains(name))
            findings.warn("duplicate-entry", item.position,
                          QStringLiteral("the box already offers '%1' in line %2; remove one")
                              .arg(name)
                              .arg(lines.value(name)));
        else
            lines.insert(name, item.position.line);
    }
}

} // namespace

void Rules::checkNames(const SourceDocument &document, Findings &findings)
{
    NamesSeen seen;
    for (const SourceElement &element : document.elements) {
        if (element.role == Role::ComboBox)
            checkItems(document, element, findings);
        if (scopeOf(element.role) == Scope::None || element.record.name.isEmpty())
            continue;
        if (const SourceElement *earlier = seen.earlier(element))
            checkPair(element, *earlier, findings);
        seen.insert(element);
    }
}
