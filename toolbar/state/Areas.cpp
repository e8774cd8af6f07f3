// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/Areas.h"

#include "toolbar/description/Names.h"
#include "toolbar/state/ControlLists.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QPushButton>
#include <QToolBar>

#include <algorithm>
#include <iterator>

namespace {

using Widgets = QList<QWidget *>;

Widgets present(Widgets widgets)
{
    widgets.removeAll(nullptr);
    return widgets;
}

Widgets wholeToolBar(const ControlLists &lists)
{
    return present({lists.wholeToolBar.data()});
}

Widgets appButtons(const ControlLists &lists)
{
    return lists.appButtons.objects();
}

Widgets topLine(const ControlLists &lists)
{
    return present({lists.topLine.data()});
}

Widgets quickAccess(const ControlLists &lists)
{
    return present({lists.quickAccessBar.data(), lists.quickAccessSetButton.data()});
}

Widgets quickAccessBar(const ControlLists &lists)
{
    return present({lists.quickAccessBar.data()});
}

Widgets search(const ControlLists &lists)
{
    return present({lists.searchBar.data(), lists.searchSetButton.data()});
}

Widgets searchField(const ControlLists &lists)
{
    return present({lists.searchBar.data()});
}

Widgets additionalControls(const ControlLists &lists)
{
    return lists.additionalWidgets.objects();
}

Widgets rows(const ControlLists &lists)
{
    Widgets widgets;
    for (QToolBar *row : lists.rows)
        widgets.append(row);
    return present(widgets);
}

Widgets currentRow(const ControlLists &lists)
{
    const MRScrollWidget *area = lists.currentRowArea;
    return present({area ? area->findChild<MRMainToolBar *>() : nullptr});
}

Widgets tabs(const ControlLists &lists)
{
    Widgets widgets;
    for (QPushButton *tab : lists.tabButtons)
        widgets.append(tab);
    return widgets;
}

struct AreaRule
{
    using Collector = Widgets (*)(const ControlLists &lists);

    QLatin1String name;
    Collector members;
    Collector askedMembers;
};

// Three areas report any of their members, the others one widget that represents them.
constexpr AreaRule areas[]{
    {Area::whole, wholeToolBar, wholeToolBar},
    {Section::appButton, appButtons, appButtons},
    {Area::topLine, topLine, topLine},
    {Section::quickAccessBar, quickAccess, quickAccessBar},
    {Section::searchBar, search, searchField},
    {Section::additional, additionalControls, additionalControls},
    {Area::rows, rows, currentRow},
    {Section::tabBar, tabs, tabs},
};

Widgets collect(const ControlLists &lists, const QString &name, AreaRule::Collector AreaRule::*whom)
{
    const auto *area = std::find_if(std::begin(areas), std::end(areas),
                                    [&name](const AreaRule &rule) { return name == rule.name; });
    return area == std::end(areas) ? Widgets() : (area->*whom)(lists);
}

} // namespace

bool Areas::isArea(const QString &name)
{
    return name.contains(Area::prefix);
}

QList<QWidget *> Areas::members(const ControlLists &lists, const QString &name)
{
    return collect(lists, name, &AreaRule::members);
}

QList<QWidget *> Areas::askedMembers(const ControlLists &lists, const QString &name)
{
    return collect(lists, name, &AreaRule::askedMembers);
}
