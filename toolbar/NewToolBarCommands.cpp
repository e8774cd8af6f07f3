// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBarCommands.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Sections.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/ButtonRing.h"
#include "toolbar/widgets/FocusRing.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/Mnemonic.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <chrono>

namespace {

bool isOnRow(const CommandPlace &place)
{
    return place.tab != nullptr;
}

bool isIn(const CommandPlace &place, QLatin1String section)
{
    return place.record->section == section;
}

/** The sub-menu of that name; null if the menu has none, or has not been filled yet. */
QMenu *subMenu(const QMenu *menu, const QString &name)
{
    const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
    for (const QAction *entry : entries) {
        if (entry->menu() && entry->menu()->objectName() == name)
            return entry->menu();
    }
    return nullptr;
}

void outline(QWidget *control)
{
    constexpr double lineWidth = 2.5;
    constexpr std::chrono::seconds time(1);
    FocusRing::bringIntoView(control);
    auto *ring = new ButtonRing(control, lineWidth);
    QTimer::singleShot(time, ring, &QObject::deleteLater);
}

} // namespace

NewToolBar::Commands::Commands(NewToolBar &toolBar)
    : m_toolBar(toolBar)
    , m_places(toolBar.m_controllers)
{
    for (const QLatin1String section : {Section::appButton, Section::tabBar}) {
        int position = 0;
        for (const Controller *record : sectionRecords(toolBar.m_controllers, section))
            m_positions.insert(record, position++);
    }
}

QPushButton *NewToolBar::Commands::additionalButton(const CommandPlace &place) const
{
    return qobject_cast<QPushButton *>(m_toolBar.m_additionalWidgets.first(place.record->name));
}

QAction *NewToolBar::Commands::action(const CommandPlace &place) const
{
    if (!isIn(place, Section::quickAccessBar))
        return m_toolBar.m_actions.first(place.record->name);
    // The buttons of quick access have actions of their own.
    return actionOn(m_toolBar.m_quickAccessBar, place.record->name);
}

QWidget *NewToolBar::Commands::opener(const CommandPlace &place) const
{
    if (isIn(place, Section::quickAccessBar))
        return m_toolBar.m_quickAccessBar;
    if (isOnRow(place))
        return m_toolBar.m_tabButtons.at(m_positions.value(place.tab));
    const QList<const Controller *> way = m_places.way(place);
    const int none = -1;
    return m_toolBar.m_appButtonWidgets.at(way.isEmpty() ? none
                                                         : m_positions.value(way.first(), none));
}

CommandAccess::State NewToolBar::Commands::state(const CommandPlace &place) const
{
    if (isIn(place, Section::additional)) {
        const QPushButton *button = additionalButton(place);
        return {button != nullptr, button && !button->isHidden(), button && button->isEnabled()};
    }
    const QWidget *start = opener(place);
    State state = stateOfMenus(place);
    const QAction *command = action(place);
    state.isMade = command != nullptr;
    state.isVisible &=
        start && !start->isHidden() && (command ? command->isVisible() : place.record->visible);
    state.isEnabled &= start && start->isEnabled() && (!command || command->isEnabled());
    if (isOnRow(place) && command) {
        const QToolBar *row = m_toolBar.m_toolBars.value(place.tab->name);
        state.isEnabled &= row && row->isEnabled();
    }
    return state;
}

CommandAccess::State NewToolBar::Commands::stateOfMenus(const CommandPlace &place) const
{
    State state{true, true, true};
    if (place.holder == place.tab)
        return state;
    const QMenu *menu = nullptr;
    QList<const Controller *> way = m_places.way(place);
    if (!way.isEmpty()) {
        const auto *button = qobject_cast<const MRMenuButton *>(opener(place));
        menu = button ? button->GetMenu() : nullptr;
        way.removeFirst();
    }
    for (const Controller *holder : std::as_const(way)) {
        if (holder->type == Tag::buttonGroup)
            continue;
        const QAction *entry = nullptr;
        if (isOnRow(place) && !menu) {
            auto *drop =
                qobject_cast<MRDropButtonAction *>(m_toolBar.m_actions.first(holder->name));
            menu = drop ? drop->GetMenu() : nullptr;
            entry = drop;
        } else {
            menu = subMenu(menu, holder->name);
            entry = menu ? menu->menuAction() : nullptr;
        }
        state.isVisible &= entry ? entry->isVisible() : holder->visible;
        state.isEnabled &= !entry || entry->isEnabled();
    }
    return state;
}

QString NewToolBar::Commands::textOf(const Controller &record) const
{
    const Presentation &presentation = m_toolBar.m_parts->presentation;
    const QString text = withoutMnemonic(presentation.text(record));
    return text.isEmpty() ? toolTipTitle(presentation.toolTip(record)) : text;
}

QString NewToolBar::Commands::text(const CommandPlace &place) const
{
    const QString text = textOf(*place.record);
    return text.isEmpty() ? place.record->name : text;
}

QString NewToolBar::Commands::toolTip(const CommandPlace &place) const
{
    return m_toolBar.m_parts->presentation.toolTip(*place.record);
}

QString NewToolBar::Commands::reason(const CommandPlace &place) const
{
    const QString tip = m_toolBar.m_parts->presentation.disabledToolTip(*place.record);
    // Of a card the lines below the title say why.
    const QString below = tip.section(QLatin1Char(';'), 1, 1);
    return below.isEmpty() ? toolTipTitle(tip) : below;
}

QIcon NewToolBar::Commands::icon(const CommandPlace &place) const
{
    return m_toolBar.m_parts->presentation.icon(*place.record);
}

bool NewToolBar::Commands::isIconForTopLine(const CommandPlace &place) const
{
    const bool isOnTopLine = !place.holder;
    return isOnTopLine && !Skin::isLum()
           && m_toolBar.m_parts->presentation.iconByName(*place.record).isNull();
}

QString NewToolBar::Commands::where(const CommandPlace &place) const
{
    if (isIn(place, Section::quickAccessBar))
        return tr("快速访问工具栏");
    QStringList names;
    const QList<const Controller *> way = m_places.way(place);
    for (const Controller *holder : way)
        names.append(holder->type == Tag::buttonGroup ? QString() : textOf(*holder));
    names.removeAll(QString());
    return names.join(QStringLiteral(" › "));
}

bool NewToolBar::Commands::make(const CommandPlace &place)
{
    return m_toolBar.makeCommand(place);
}

void NewToolBar::Commands::trigger(const CommandPlace &place)
{
    if (isIn(place, Section::additional)) {
        if (QPushButton *button = additionalButton(place))
            button->click();
    } else if (QAction *command = action(place)) {
        // The menus that it stands in hear of it, and with them the buttons that show their choice.
        command->trigger();
    }
}

void NewToolBar::Commands::openTab(const CommandPlace &place)
{
    m_toolBar.m_parts->tabs.show(place.tab->name);
}

void NewToolBar::Commands::reveal(const CommandPlace &place)
{
    const QPointer<NewToolBar> self(&m_toolBar);
    if (isOnRow(place))
        openTab(place);
    if (!self)
        return;
    // The row is laid out first.
    QTimer::singleShot(0, &m_toolBar, [this, place] {
        QWidget *control = shownControl(place);
        if (control && control->isVisible())
            outline(control);
    });
}

QWidget *NewToolBar::Commands::shownControl(const CommandPlace &place) const
{
    if (isIn(place, Section::additional))
        return additionalButton(place);
    if (isOnRow(place))
        return rowControl(place);
    QToolBar *bar = m_toolBar.m_quickAccessBar;
    if (!isIn(place, Section::quickAccessBar) || !bar)
        return opener(place);
    QWidget *button = buttonOn(bar, place.record->name);
    return button && button->isVisible() ? button : bar->findChild<QWidget *>(Part::overflowButton);
}

QWidget *NewToolBar::Commands::rowControl(const CommandPlace &place) const
{
    QToolBar *row = m_toolBar.m_toolBars.value(place.tab->name);
    if (!row)
        return nullptr;
    // Of an entry, the button that opens its menu.
    QString name = place.record->name;
    const QList<const Controller *> way = m_places.way(place);
    for (qsizetype i = way.size() - 1; i > 0; --i) {
        if (way.at(i)->type != Tag::buttonGroup)
            name = way.at(i)->name;
    }
    QWidgetList controls;
    for (const qsizetype position : m_toolBar.m_groupButtons.positions(name))
        controls.append(m_toolBar.m_groupButtons.at(position));
    controls.append(buttonOn(row, name));
    controls.append(buttonOn(row, Name::rowMore));
    for (QWidget *control : std::as_const(controls)) {
        if (control && row->isAncestorOf(control) && control->isVisible())
            return control;
    }
    return row->findChild<QWidget *>(Part::overflowButton);
}

QWidget *NewToolBar::Commands::topLine() const
{
    return m_toolBar.m_topWidget;
}

FindLook NewToolBar::Commands::look() const
{
    constexpr QRgb defaultAccent = 0xff1460ab;
    const QColor mainColour(Skin::mainColour(m_toolBar.m_skinMap));
    const SchemeColours *colours = m_toolBar.m_appearance->colours();
    const QWidget *button = m_toolBar.m_appButtonWidgets.at(0);
    FindLook look;
    look.isLight = !colours;
    look.colours =
        colours ? *colours
                : lightFindColours(mainColour.isValid() ? mainColour : QColor(defaultAccent));
    look.scale = ScreenDensity::factor(&m_toolBar);
    look.font = button ? button->font() : m_toolBar.font();
    return look;
}
