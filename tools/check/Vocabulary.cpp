// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/Vocabulary.h"

#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/description/Names.h"

#include <QDomDocument>
#include <QHash>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace {

struct RoleTraits
{
    Role role;
    const char *noun;
    const char *attributes; ///< The attributes that are used, separated by blanks.
};

constexpr RoleTraits allTraits[]{
    {Role::Root, "the root", "prefix shortcutscope"},
    {Role::AppButton, "an application button", "name action text icon tooltip disabletip keytip"},
    {Role::QuickButton, "a quick access button",
     "name action text icon tooltip disabletip available checkable visible keywords keytip"},
    {Role::QuickSet, "the customise button",
     "name action text icon tooltip disabletip visible quickadd keytip"},
    {Role::Tab, "a tab",
     "name action text disabletip checkable checked visible scalable context contextcolour keytip"},
    {Role::RowButton, "a button of a row",
     "name action text icon tooltip disabletip group checkable checked visible "
     "usable available doubleclick shrink keywords shortcut shortcutscope keytip"},
    {Role::RowMenu, "a menu of a row",
     "name action text icon tooltip disabletip index checkable switchable "
     "withaction visible usable available shrink keytip"},
    {Role::ButtonGroup, "a button group", "visible shrink"},
    {Role::GroupButton, "a button of a group",
     "name action text icon tooltip disabletip group checkable checked visible "
     "usable available doubleclick keywords shortcut shortcutscope keytip"},
    {Role::GroupMenu, "a menu of a group",
     "name action text icon tooltip disabletip index checkable switchable "
     "withaction visible usable available keytip"},
    {Role::ComboBox, "a combo box", "name action text disabletip index editable visible keytip"},
    {Role::Item, "an entry of a combo box", "name action text"},
    {Role::RowLabel, "a label of a row", "name action text disabletip visible"},
    {Role::RowField, "a field of a row", "name action text disabletip visible keytip"},
    {Role::Separator, "a separator", ""},
    {Role::Extra, "an extra group", "usable"},
    {Role::ExtraLabel, "a label of an extra group", "name action text disabletip"},
    {Role::ExtraField, "a field of an extra group", "name action tooltip disabletip"},
    {Role::ExtraButton, "a button of an extra group", "name action text icon tooltip disabletip"},
    {Role::SubMenu, "a sub-menu", "name action text disabletip icon visible"},
    {Role::MenuEntry, "a menu entry",
     "name action text icon tooltip disabletip group shortcut checkable checked visible "
     "usable available doubleclick keywords shortcutscope"},
    {Role::SearchLabel, "the label of the search bar", "name action text icon"},
    {Role::SearchField, "the search field", "name action tooltip disabletip"},
    {Role::SearchButton, "a search button", "name action text icon tooltip disabletip usable"},
    {Role::SearchSet, "the button of the search options",
     "name action text icon tooltip disabletip checkable"},
    {Role::AdditionalButton, "an additional button",
     "name action text icon tooltip disabletip checkable checked peek keywords keytip"},
};

const RoleTraits &traits(Role role)
{
    static constexpr RoleTraits section{Role::Nothing, "a section", ""};
    const auto found = std::find_if(std::begin(allTraits), std::end(allTraits),
                                    [role](const RoleTraits &each) { return each.role == role; });
    return found == std::end(allTraits) ? section : *found;
}

using Kinds = std::vector<std::pair<const char *, Role>>;

/** The elements that belong below a role, and the role of any other element there. */
struct Place
{
    Kinds kinds;
    Role otherwise = Role::Nothing;
};

const Place &placeBelow(Role parent)
{
    static const Place menu{{{"menuitem", Role::MenuEntry},
                             {"menu", Role::SubMenu},
                             {Tag::separator.data(), Role::Separator}},
                            Role::MenuEntry};
    static const QHash<int, Place> table{
        {int(Role::AppSection), {{{"menu", Role::AppButton}}, Role::AppButton}},
        {int(Role::QuickSection), {{{"button", Role::QuickButton}}, Role::QuickButton}},
        {int(Role::TabSection), {{{"tabbutton", Role::Tab}}, Role::Tab}},
        {int(Role::SearchSection),
         {{{"label", Role::SearchLabel},
           {"lineedit", Role::SearchField},
           {"button", Role::SearchButton}}}},
        {int(Role::AdditionalSection), {{{"button", Role::AdditionalButton}}}},
        {int(Role::Tab),
         {{{"button", Role::RowButton},
           {"menu", Role::RowMenu},
           {"buttongroup", Role::ButtonGroup},
           {"combobox", Role::ComboBox},
           {"label", Role::RowLabel},
           {"lineedit", Role::RowField},
           {Tag::separator.data(), Role::Separator},
           {"extra", Role::Extra}}}},
        {int(Role::ButtonGroup), {{{"button", Role::GroupButton}, {"menu", Role::GroupMenu}}}},
        {int(Role::ComboBox), {{{"item", Role::Item}}, Role::Item}},
        {int(Role::Extra), {{{"label", Role::ExtraLabel}, {"lineedit", Role::ExtraField}}}},
        {int(Role::ExtraField), {{{"button", Role::ExtraButton}}}},
    };
    static const Place nothing;

    if (Vocabulary::holdsEntries(parent))
        return menu;
    const auto found = table.find(int(parent));
    return found == table.end() ? nothing : *found;
}

template <typename Record>
bool anySet(const Record &record, std::initializer_list<QString Record::*> fields)
{
    return std::any_of(fields.begin(), fields.end(),
                       [&record](QString Record::*field) { return !(record.*field).isEmpty(); });
}

/** Whether any switch of the record differs from its default. */
bool anySwitched(const Controller &record)
{
    return !record.usable || !record.available || !record.visible || record.checkable
           || record.checked || record.check || record.editable || record.switchable
           || record.withaction || record.scalable || record.doubleclick || record.optIn().peek
           || record.optIn().quickadd;
}

Controller parsed(const QString &attribute, const QString &value)
{
    QDomDocument factory;
    QDomElement element = factory.createElement(QStringLiteral("button"));
    element.setAttribute(attribute, value);
    Controller record;
    GetElementAttributes(&element, &record);
    return record;
}

Vocabulary::AttributeKind kindByParsing(const QString &name)
{
    using Kind = Vocabulary::AttributeKind;
    const Controller numbered = parsed(name, QStringLiteral("7"));
    if (numbered.index != 0 || numbered.optIn().shrink != 0)
        return Kind::Number;
    const bool isText = anySet<Controller>(
        numbered,
        {&Controller::text, &Controller::name, &Controller::icon, &Controller::arrow,
         &Controller::layout, &Controller::output, &Controller::tooltip, &Controller::disabletip,
         &Controller::group, &Controller::shortcut, &Controller::dropicon});
    if (isText
        || anySet<OptInAttributes>(numbered.optIn(),
                                   {&OptInAttributes::keywords, &OptInAttributes::keytip,
                                    &OptInAttributes::shortcutscope, &OptInAttributes::context,
                                    &OptInAttributes::contextcolour}))
        return Kind::Text;
    if (anySwitched(parsed(name, QStringLiteral("true"))))
        return Kind::TrueOnly;
    if (anySwitched(parsed(name, QStringLiteral("false"))))
        return Kind::FalseOnly;
    return Kind::Unknown;
}

} // namespace

Vocabulary::AttributeKind Vocabulary::attributeKind(const QString &name)
{
    static const QHash<QString, AttributeKind> known = [] {
        QHash<QString, AttributeKind> kinds;
        for (const QString &attribute : attributes())
            kinds.insert(attribute, kindByParsing(attribute));
        return kinds;
    }();
    const auto found = known.constFind(name);
    return found != known.cend() ? *found : kindByParsing(name);
}

const QStringList &Vocabulary::attributes()
{
    static const QStringList names =
        QStringLiteral(
            "name action text icon tooltip disabletip group shortcut index checkable checked check "
            "visible usable available editable switchable withaction scalable doubleclick dropicon "
            "arrow layout output shrink keywords keytip shortcutscope context contextcolour peek "
            "quickadd")
            .split(QLatin1Char(' '));
    return names;
}

QStringList Vocabulary::usedAttributes(Role role)
{
    return QString::fromLatin1(traits(role).attributes).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool Vocabulary::usesAttribute(Role role, const QString &name)
{
    return usedAttributes(role).contains(name);
}

bool Vocabulary::isForeignAttribute(Role role, const QString &name)
{
    if (role == Role::Root && name.startsWith(QLatin1String("xmlns")))
        return true;
    return name.startsWith(QLatin1String("xml:")) || name.startsWith(QLatin1String("xsi:"));
}

bool Vocabulary::isFormerAttribute(const QString &name)
{
    return name == QLatin1String("min_width") || name == QLatin1String("max_width");
}

QStringList Vocabulary::elements()
{
    QStringList names;
    for (const Role parent :
         {Role::AppSection, Role::SubMenu, Role::Tab, Role::TabSection, Role::ComboBox}) {
        for (const QString &name : elementsBelow(parent)) {
            if (!names.contains(name))
                names.append(name);
        }
    }
    return names;
}

QStringList Vocabulary::elementsBelow(Role parent)
{
    QStringList names;
    for (const auto &[tag, role] : placeBelow(parent).kinds)
        names.append(QLatin1String(tag));
    return names;
}

Role Vocabulary::roleBelow(Role parent, const QString &tag)
{
    const Place &place = placeBelow(parent);
    const auto found =
        std::find_if(place.kinds.begin(), place.kinds.end(),
                     [&tag](const auto &kind) { return tag == QLatin1String(kind.first); });
    return found == place.kinds.end() ? place.otherwise : found->second;
}

QStringList Vocabulary::sections()
{
    return {Section::appButton, Section::quickAccessBar, Section::tabBar, Section::searchBar,
            Section::additional};
}

Role Vocabulary::sectionRole(const QString &tag)
{
    static constexpr Role roles[]{Role::AppSection, Role::QuickSection, Role::TabSection,
                                  Role::SearchSection, Role::AdditionalSection};
    const auto position = sections().indexOf(tag);
    return position < 0 ? Role::Nothing : roles[position];
}

bool Vocabulary::holdsEntries(Role role)
{
    return role == Role::AppButton || role == Role::RowMenu || role == Role::GroupMenu
           || role == Role::SubMenu || role == Role::SearchSet;
}

bool Vocabulary::isLeftOut(Role role)
{
    return role == Role::Nothing || role == Role::SurplusAppButton || role == Role::IdleExtra
           || role == Role::NamelessSearchButton;
}

QString Vocabulary::noun(Role role)
{
    return QString::fromLatin1(traits(role).noun);
}
