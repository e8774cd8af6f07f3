#include "toolbar/NewToolBar.h"

#include "toolbar/ActionData.h"
#include "toolbar/QtCompat.h"
#include "toolbar/QuickAccessSetting.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr QLatin1String customiseName = QtCompat::latin1("qt_set");
constexpr QLatin1String commandPrefix = QtCompat::latin1("qbar_");

} // namespace

QToolBar *NewToolBar::CreateQuickAccessBar()
{
    auto *bar = new QToolBar;
    bar->setObjectName(QLatin1String(Section::quickAccessBar));
    bar->setProperty("intoolbar", "true");
    bar->setIconSize(scaledIconSize(16.0));
    bar->setContextMenuPolicy(Qt::NoContextMenu);
    bar->setMovable(false);

    const QuickAccessSetting setting(m_quickAccessButtons);
    const QList<Controller *> records = sectionRecords(Section::quickAccessBar);
    for (const Controller *record : records) {
        if (record->name == customiseName)
            continue;
        QAction *action = createQuickAction(bar, *record);
        action->setVisible(setting.isShown(record->name, record->visible));
        bar->addAction(action);
        if (record->text.isEmpty())
            bar->widgetForAction(action)->setAccessibleName(toolTipTitle(record->tooltip));
        m_quickAccessNames.append(record->name);
    }
    // The button for what there is no room for has its menu from the toolkit, now or later.
    if (auto *extension = bar->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"))) {
        markExtensionMenu(extension);
        extension->installEventFilter(this);
    }
    return bar;
}

void NewToolBar::markExtensionMenu(const QObject *extension)
{
    const auto *button = qobject_cast<const QToolButton *>(extension);
    if (button && button->menu())
        button->menu()->setProperty("intoolbar", "true");
}

QAction *NewToolBar::createQuickAction(QToolBar *bar, const Controller &record)
{
    QAction *action = GetActionInTotal(record.name);
    if (!action) {
        action = new QAction(record.text, bar);
        // The host enables it when it answers DoRequestAuthority().
        action->setEnabled(false);
        ActionData::set(action, record.available);
        action->setIcon(icon(record.icon));
        // The icons for the coloured line are white, and the menu of what has no room is not.
        action->setIconVisibleInMenu(Skin::isLum());
        action->setObjectName(record.name);
    }
    action->setChecked(record.checked);
    SetWidgetToolTip(action, record.tooltip);
    connect(action, &QAction::triggered, this, &NewToolBar::Inner_DoQuickAccessBarActionSlot);
    return action;
}

QPushButton *NewToolBar::CreateQuickAccessSet(bool &visible)
{
    auto *menu = new QMenu(this);
    menu->setObjectName(customiseName);
    menu->setProperty("intoolbar", "true");
    menu->setProperty("toolbar", "true");
    menu->setProperty("module", "toolbarmenu");

    const QList<Controller *> records = sectionRecords(Section::quickAccessBar);
    for (const Controller *record : records) {
        if (record->name != customiseName)
            appendCustomiseEntry(menu, *record);
    }
    for (const Controller *record : records) {
        if (record->name == customiseName) {
            m_quickAccessSetButton = createCustomiseButton(menu, *record);
            visible = record->visible;
        }
    }
    return m_quickAccessSetButton;
}

void NewToolBar::appendCustomiseEntry(QMenu *menu, const Controller &record)
{
    const QuickAccessSetting setting(m_quickAccessButtons);
    auto *entry = new QAction(record.text, menu);
    entry->setIconVisibleInMenu(!menu->isEmpty());
    entry->setCheckable(record.checkable);
    entry->setChecked(setting.isShown(record.name, record.visible));
    entry->setObjectName(record.name);
    menu->addAction(entry);
    connect(entry, &QAction::triggered, this, &NewToolBar::Inner_DoUpdateQuickAccessBarSlot);
}

QPushButton *NewToolBar::createCustomiseButton(QMenu *menu, const Controller &record)
{
    QPushButton *button = createTopLineButton(record, nullptr);
    button->setProperty("module", "toolbarbutton");
    button->setStyleSheet(QStringLiteral("QPushButton::menu-indicator{image:none;}"));
    button->setMenu(menu);

    menu->setTitle(record.tooltip);
    const QList<QAction *> entries = menu->actions();
    if (!entries.isEmpty()) {
        auto *title = new QAction(record.tooltip, menu);
        title->setObjectName(QStringLiteral("qt_set_title"));
        title->setEnabled(false);
        title->setIconVisibleInMenu(true);
        menu->insertAction(entries.first(), title);
    }
    return button;
}

void NewToolBar::Inner_DoQuickAccessBarActionSlot()
{
    const auto *action = qobject_cast<QAction *>(sender());
    if (!action)
        return;

    // The host hears the command's own name (f_open), while the setting keeps the short name.
    QString command = action->objectName();
    const auto prefix = command.indexOf(commandPrefix);
    if (prefix >= 0)
        command = command.mid(prefix + commandPrefix.size());
    const HostAnswer answer;
    if (!command.isEmpty())
        Q_EMIT DoActive(command);
}

void NewToolBar::Inner_DoUpdateQuickAccessBarSlot()
{
    const auto *entry = qobject_cast<QAction *>(sender());
    if (!m_quickAccessBar || !entry)
        return;

    const QList<QAction *> actions = m_quickAccessBar->actions();
    for (QAction *action : actions) {
        if (action->objectName() == entry->objectName())
            action->setVisible(entry->isChecked());
    }
    m_quickAccessBar->setVisible(std::any_of(actions.begin(), actions.end(),
                                             [](QAction *action) { return action->isVisible(); }));
}

QString NewToolBar::GetQuickAccessButtonList()
{
    if (!m_quickAccessBar)
        return QString();

    QStringList shown;
    const QList<QAction *> actions = m_quickAccessBar->actions();
    for (const QAction *action : actions) {
        if (action->isVisible())
            shown.append(action->objectName());
    }
    return QuickAccessSetting::join(shown);
}
