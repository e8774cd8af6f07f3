// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <variant>
#include <vector>

class QAction;
class QString;
class QWidget;
struct ControlLists;

/** What a name addresses: an action, or a widget that stands for no action. */
using Control = std::variant<QAction *, QWidget *>;
using Controls = std::vector<Control>;

/**
 * How the controls of one place answer to their name. Where the places differ is said here and
 * nowhere else; who sets or reports a state walks through lookUpOrder and does as the rules say.
 */
struct ControlRule
{
    /** The controls of a name in the place, in the place's own order. */
    using Finder = Controls (*)(const ControlLists &lists, const QString &name);

    enum Match
    {
        All,
        First,
        Last
    };
    enum Enabling
    {
        Any,
        Available, ///< Leaves an action alone that is not available, but counts it as set.
        Usable     ///< Passes over a button whose property "usable" is not "true".
    };
    enum Found
    {
        Never,
        WhenSet,
        WhenLeft ///< When the control was the tab on show, which is left whatever the state.
    };
    enum Applies
    {
        Always,
        IfNothingFound
    };

    Finder find;
    Match enabled; ///< Those that the enabled state is set of.
    Match visible; ///< Those that the visible state is set of.
    Enabling enabling;
    Found found;
    Applies applies; ///< To setting; questions have no use for "found".
    Finder findAsked;
    Match asked; ///< The one that answers, for all places.

    /** The places in the order in which a name is looked up, for setting and for reporting. */
    static const std::array<ControlRule, 10> lookUpOrder;
};

/** Finders that are of use apart from their rules. */
namespace ControlFinders {

/** By the name, or "menu_" and the name. */
Controls namedActions(const ControlLists &lists, const QString &name);
/** Likewise; a name with "/" matches every action with that in its name, too. */
Controls actions(const ControlLists &lists, const QString &name);
/** By a part of their names, which carry prefixes. */
Controls quickEntries(const ControlLists &lists, const QString &name);

} // namespace ControlFinders
