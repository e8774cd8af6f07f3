#include "toolbar/NewToolBar.h"

#include "toolbar/ActionData.h"
#include "toolbar/QtCompat.h"
#include "toolbar/ShownShortcuts.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/fields/RecentFiles.h"
#include "toolbar/widgets/CustomMenuStyle.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace {

constexpr int usedAppRecords = 2;
constexpr int appMenuIconSize = 20;
constexpr int setMenuIconSize = 16;

constexpr QLatin1String setButtonName = QtCompat::latin1("ab_set");
constexpr QLatin1String noIndicatorSheet =
    QtCompat::latin1("QPushButton::menu-indicator{image:none;height:0px;width:0px;}");

} // namespace

bool NewToolBar::CreateAppButton()
{
    m_recentFiles = new RecentFiles(this);
    connect(m_recentFiles, &RecentFiles::openFile, this, &NewToolBar::DoOpenFile);
    connect(m_recentFiles, &RecentFiles::clearing, this, &NewToolBar::DoActive);

    auto *appButton = new MRMenuButton(this, 0, 0, nullptr);
    appButton->setFlat(true);
    appButton->setProperty("module", "toolbarbutton");
    m_menuStyles.append(new CustomMenuStyle(appMenuIconSize));

    auto *setButton = new MRMenuButton(this, 0, 0, appButton);
    setButton->setFlat(true);
    setButton->setObjectName(setButtonName);

    const QList<Controller *> records = sectionRecords(Section::appButton).mid(0, usedAppRecords);
    if (!records.isEmpty())
        setUpAppButton(appButton, *records.first());
    if (records.size() == usedAppRecords)
        setUpSetButton(setButton, appButton, *records.last());
    else
        setButton->setFocusPolicy(Qt::NoFocus); // There is nothing to see of it, or to do.

    m_appButtonWidgets.append(appButton);
    m_appButtonWidgets.append(setButton);
    return true;
}

void NewToolBar::setUpAppButton(MRMenuButton *button, const Controller &record)
{
    button->setIcon(icon(record.icon));
    button->setIconSize(scaledIconSize(16.0));
    button->setObjectName(record.name);
    SetWidgetToolTip(button, record.tooltip);
    button->setProperty("loaded", "false");
    button->setStyleSheet(noIndicatorSheet);
    button->setText(record.text);
    if (record.text.isEmpty())
        button->setAccessibleName(toolTipTitle(record.tooltip));
    if (record.children.isEmpty())
        return;

    createAppMenu(button, record, m_menuStyles.first());
    connect(button, &QPushButton::clicked, this, &NewToolBar::Inner_SetUncheckedAppSetButtonSlot);
}

void NewToolBar::setUpSetButton(MRMenuButton *button, MRMenuButton *appButton,
                                const Controller &record)
{
    button->setIcon(icon(record.icon));
    button->setIconSize(scaledIconSize(16.0));
    button->setAccessibleName(toolTipTitle(record.tooltip));
    SetWidgetToolTip(button, record.tooltip);
    if (!record.children.isEmpty()) {
        m_menuStyles.append(new CustomMenuStyle(setMenuIconSize));
        createAppMenu(button, record, m_menuStyles.last());
        return;
    }
    // Without a menu of its own it is a second face of the application button.
    button->setCheckable(true);
    button->setStyleSheet(noIndicatorSheet);
    connect(button, &QPushButton::clicked, appButton, &QPushButton::click);
    connect(button, &QPushButton::pressed, this, &NewToolBar::Inner_SetCheckedAppButtonSlot);
}

void NewToolBar::createAppMenu(MRMenuButton *button, const Controller &record,
                               CustomMenuStyle *style)
{
    auto *menu = new QMenu(record.text, button);
    menu->setObjectName(record.name);
    menu->setProperty("module", "toolbarmenu");
    menu->setProperty("intoolbar", "true");
    menu->setStyle(style);
    button->SetMenu(menu);
}

MRMenuButton *NewToolBar::appButtonAt(int position) const
{
    return qobject_cast<MRMenuButton *>(m_appButtonWidgets.value(position));
}

void NewToolBar::Inner_DoDelayLoadMenuSlot()
{
    if (m_menusLoaded)
        return;

    const QList<Controller *> records = sectionRecords(Section::appButton).mid(0, usedAppRecords);
    for (int i = 0; i < records.size(); ++i) {
        if (const MRMenuButton *button = appButtonAt(i))
            AppendSubMenu(button->GetMenu(), records.at(i)->children, m_menuStyles.value(i));
    }
    // Set before the host is asked: its answer may pop a menu, or delete this toolbar.
    m_menusLoaded = true;
    Q_EMIT DoRequestAuthority();
}

bool NewToolBar::AppendSubMenu(QMenu *menu, const QList<Controller *> &items, QProxyStyle *style)
{
    if (!menu || items.isEmpty())
        return false;

    for (const Controller *record : items) {
        if (!record)
            continue;
        CreateActionGroup(record->group, menu);
        if (!record->children.isEmpty())
            appendMenu(menu, *record, style);
        else if (record->type == QLatin1String(separatorTag))
            menu->addSeparator();
        else
            appendMenuItem(menu, *record);
    }
    return true;
}

void NewToolBar::appendMenu(QMenu *menu, const Controller &record, QProxyStyle *style)
{
    QMenu *subMenu = createSubMenu(menu, record, style);
    AppendSubMenu(subMenu, record.children, style);
    menu->addMenu(subMenu)->setVisible(record.visible);
}

// Apart from what calls itself, which thereby needs little of the stack for each level.
QMenu *NewToolBar::createSubMenu(QMenu *menu, const Controller &record, QProxyStyle *style)
{
    const bool isForRecentFiles = RecentFiles::isMenuName(record.name);
    QMenu *subMenu = isForRecentFiles ? m_recentFiles->createMenu(record.text, menu)
                                      : new QMenu(record.text, menu);
    subMenu->setObjectName(record.name);
    subMenu->setProperty("intoolbar", "true");
    if (menu->property("toolbar").toString() == QLatin1String("true"))
        subMenu->setProperty("toolbar", "true");
    subMenu->setIcon(icon(record.icon));
    if (style)
        subMenu->setStyle(style);
    if (isForRecentFiles)
        connect(subMenu, &QMenu::triggered, this, &NewToolBar::Inner_DoOpenRecentFileSlot);
    return subMenu;
}

void NewToolBar::appendMenuItem(QMenu *menu, const Controller &record)
{
    QAction *action = GetActionInTotal(record.name);
    const bool isNew = !action;
    if (isNew)
        action = createMenuAction(menu, record);

    if (QActionGroup *group = GetActionGroup(record.group))
        group->addAction(action);
    // These menus belong to no window: what they show does not act, elsewhere as little as here.
    if (record.section == QLatin1String(Section::appButton))
        m_shortcuts->show(action, QKeySequence(record.shortcut));
    else
        m_shortcuts->activate(action, QKeySequence(record.shortcut));
    action->setStatusTip(record.tooltip);
    action->setCheckable(record.checkable);
    action->setChecked(record.checked);
    action->setVisible(record.visible);
    if (record.doubleclick)
        ActionData::addDoubleClick(action);
    if (isNew)
        m_actions.append(action);
    menu->addAction(action);
    connectMenuAction(action, record, isNew);

    // Both the menu and the item would report a cleared history; the menu's slot does it.
    if (menu == m_recentFiles->menu() && RecentFiles::isClearName(record.name))
        disconnect(action, &QAction::triggered, this, nullptr);
}

QAction *NewToolBar::createMenuAction(QMenu *menu, const Controller &record)
{
    auto *action = new QAction(record.text, menu);
    const bool isInToolBar = menu->property("toolbar").toString() == QLatin1String("true");
    // Elsewhere every item waits for the host's answer to DoRequestAuthority().
    action->setEnabled(isInToolBar && record.available && record.usable);
    ActionData::set(action, record.available);
    if (!record.icon.isEmpty())
        action->setIcon(icon(record.icon));
    action->setIconVisibleInMenu(true);
    action->setObjectName(record.name);
    return action;
}

void NewToolBar::connectMenuAction(QAction *action, const Controller &record, bool isNew)
{
    if (record.section == QLatin1String(Section::searchBar)) {
        connect(action, &QAction::triggered, this, &NewToolBar::Inner_DoSearchBarActionSlot,
                Qt::UniqueConnection);
        return;
    }
    const bool isCommandSection = record.section == QLatin1String(Section::tabBar)
                                  || record.section == QLatin1String(Section::appButton)
                                  || record.section == QLatin1String(Section::additional);
    if (isNew && isCommandSection)
        connectCommand(action);
}

void NewToolBar::DoUpdateRecentFileSlot(QStringList paths)
{
    m_recentFiles->show(paths);
}

void NewToolBar::Inner_DoOpenRecentFileSlot(QAction *action)
{
    m_recentFiles->choose(action);
}

void NewToolBar::Inner_SetCheckedAppButtonSlot()
{
    if (MRMenuButton *appButton = appButtonAt(0))
        appButton->setChecked(true);
    if (MRMenuButton *setButton = appButtonAt(1))
        setButton->setChecked(false);
}

void NewToolBar::Inner_SetUncheckedAppSetButtonSlot()
{
    if (MRMenuButton *setButton = appButtonAt(1))
        setButton->setChecked(false);
}
