#include "toolbar/NewToolBar.h"

#include "toolbar/ControlVisitor.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QAction>
#include <QButtonGroup>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace {

template <typename Object>
QList<QObject *> namedObjects(const NamedList<Object> &list, const QString &name)
{
    QList<QObject *> found;
    for (const qsizetype position : list.positions(name))
        found.append(list.at(position));
    return found;
}

template <typename Widget>
void appendPresent(QList<QWidget *> &widgets, Widget *widget)
{
    if (widget)
        widgets.append(widget);
}

} // namespace

void NewToolBar::visitControls(const QString &name, ControlVisitor &visitor)
{
    using Finder = QList<QObject *> (NewToolBar::*)(const QString &) const;
    static constexpr std::pair<ControlPlace, Finder> lookUpOrder[]{
        {ControlPlace::Field, &NewToolBar::fieldContainers},
        {ControlPlace::Action, &NewToolBar::matchingActions},
        {ControlPlace::Additional, &NewToolBar::matchingAdditionalControls},
        {ControlPlace::GroupButton, &NewToolBar::matchingGroupButtons},
        {ControlPlace::QuickEntry, &NewToolBar::matchingQuickEntries},
        {ControlPlace::QuickSetButton, &NewToolBar::matchingQuickSetButton},
        {ControlPlace::DropButton, &NewToolBar::matchingDropButtons},
        {ControlPlace::Tab, &NewToolBar::matchingTabs},
        {ControlPlace::AppButton, &NewToolBar::matchingAppButtons},
        {ControlPlace::AppMenu, &NewToolBar::matchingAppMenus},
    };

    // Leaving a tab asks the host, which may delete this toolbar.
    const QPointer<NewToolBar> self(this);
    const QString wanted = name;
    for (const auto &[place, find] : lookUpOrder) {
        const QList<QObject *> controls = (this->*find)(wanted);
        for (QObject *control : controls) {
            const VisitResult result = visitor.visit(place, control);
            if (!self || result == VisitResult::Stop)
                return;
            if (result == VisitResult::NextPlace)
                break;
        }
    }
}

QList<QObject *> NewToolBar::fieldContainers(const QString &name) const
{
    const QWidget *field = nullptr;
    if (name == QLatin1String("v_zoom"))
        field = m_zoomBox;
    else if (name == QLatin1String("d_gotopage"))
        field = m_pageNumberEdit;
    return field ? QList<QObject *>{field->parentWidget()} : QList<QObject *>();
}

QList<QObject *> NewToolBar::namedActions(const QString &name) const
{
    QList<qsizetype> positions = m_actions.positions(name);
    const QList<qsizetype> openers = m_actions.positions(QLatin1String("menu_") + name);
    if (!openers.isEmpty()) {
        positions += openers;
        std::sort(positions.begin(), positions.end());
    }

    QList<QObject *> actions;
    for (const qsizetype position : std::as_const(positions))
        actions.append(m_actions.at(position));
    return actions;
}

QList<QObject *> NewToolBar::matchingActions(const QString &name) const
{
    if (!name.contains(QLatin1Char('/')))
        return namedActions(name);

    QList<QObject *> actions;
    const QString menuName = QLatin1String("menu_") + name;
    for (QAction *action : m_actions) {
        if (action->objectName().contains(name) || action->objectName() == menuName)
            actions.append(action);
    }
    return actions;
}

QList<QObject *> NewToolBar::matchingAdditionalControls(const QString &name) const
{
    return namedObjects(m_additionalWidgets, name);
}

QList<QObject *> NewToolBar::matchingGroupButtons(const QString &name) const
{
    return namedObjects(m_groupButtons, name);
}

QList<QObject *> NewToolBar::matchingQuickEntries(const QString &name) const
{
    QList<QObject *> entries;
    const QList<QAction *> actions =
        m_quickAccessBar ? m_quickAccessBar->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->objectName().contains(name))
            entries.append(action);
    }
    return entries;
}

QList<QObject *> NewToolBar::matchingQuickSetButton(const QString &name) const
{
    const bool matches = m_quickAccessSetButton && m_quickAccessSetButton->objectName() == name;
    return matches ? QList<QObject *>{m_quickAccessSetButton} : QList<QObject *>();
}

QList<QObject *> NewToolBar::matchingDropButtons(const QString &name) const
{
    return namedObjects(m_dropButtons, name);
}

QList<QObject *> NewToolBar::matchingTabs(const QString &name) const
{
    return namedObjects(m_tabButtons, name);
}

QList<QObject *> NewToolBar::matchingAppButtons(const QString &name) const
{
    QList<QObject *> buttons;
    for (QWidget *button : m_appButtonWidgets) {
        if (button->objectName() == name)
            buttons.append(button);
    }
    return buttons;
}

QList<QObject *> NewToolBar::matchingAppMenus(const QString &name) const
{
    QList<QObject *> entries;
    const MRMenuButton *setButton = appButtonAt(1);
    const QMenu *menu = setButton ? setButton->GetMenu() : nullptr;
    const QList<QAction *> actions = menu ? menu->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->menu() && action->menu()->objectName() == name)
            entries.append(action);
    }
    return entries;
}

QList<QWidget *> NewToolBar::areaWidgets(const QString &name) const
{
    QList<QWidget *> widgets;
    if (name == QLatin1String("toolbar_whole")) {
        appendPresent(widgets, m_hostToolBar.data());
    } else if (name == QLatin1String(Section::appButton)) {
        widgets = m_appButtonWidgets;
    } else if (name == QLatin1String("toolbar_toptoolbar")) {
        appendPresent(widgets, m_topWidget);
    } else if (name == QLatin1String(Section::quickAccessBar)) {
        appendPresent(widgets, m_quickAccessBar);
        appendPresent(widgets, m_quickAccessSetButton);
    } else if (name == QLatin1String(Section::searchBar)) {
        appendPresent(widgets, m_searchBar);
        appendPresent(widgets, m_searchSetButton);
    } else if (name == QLatin1String(Section::additional)) {
        widgets = m_additionalWidgets.objects();
    } else if (name == QLatin1String("toolbar_maintoolbar")) {
        for (QToolBar *row : m_toolBars)
            widgets.append(row);
    } else if (name == QLatin1String(Section::tabBar)) {
        for (QPushButton *button : m_tabButtons)
            widgets.append(button);
    }
    return widgets;
}

QList<QWidget *> NewToolBar::askedAreaWidgets(const QString &name) const
{
    // Three areas answer for any of their members, the others for the one that stands for them.
    QList<QWidget *> widgets;
    if (name == QLatin1String(Section::quickAccessBar))
        appendPresent(widgets, m_quickAccessBar);
    else if (name == QLatin1String(Section::searchBar))
        appendPresent(widgets, m_searchBar);
    else if (name == QLatin1String("toolbar_maintoolbar"))
        appendPresent(widgets, m_currentScrollWidget
                                   ? m_currentScrollWidget->findChild<MRMainToolBar *>()
                                   : nullptr);
    else
        widgets = areaWidgets(name);
    return widgets;
}
