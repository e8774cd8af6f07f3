// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/build/AdditionalMaker.h"
#include "toolbar/build/AppButtonMaker.h"
#include "toolbar/build/QuickAccessMaker.h"
#include "toolbar/build/SearchMaker.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Sections.h"
#include "toolbar/state/QuickAccessSetting.h"
#include "toolbar/widgets/CustomMenuStyle.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

/** The menu of what a bar has no room for belongs to the toolbar, too. Qt makes it when needed. */
void markOverflowMenu(const QObject *overflowButton)
{
    const auto *button = qobject_cast<const QToolButton *>(overflowButton);
    if (button && button->menu())
        markMenu(button->menu(), false);
}

} // namespace

bool NewToolBar::CreateAppButton()
{
    const QList<Controller *> records = sectionRecords(m_controllers, Section::appButton);
    AppButtonMaker maker(m_parts->factory, m_menuStyles);
    MRMenuButton *appButton = maker.makeAppButton(records.value(0));
    MRMenuButton *setButton = maker.makeSetButton(appButton, records.value(1));
    for (MRMenuButton *button : {appButton, setButton}) {
        connect(button, &MRMenuButton::menuRequested, this, &NewToolBar::Inner_DoDelayLoadMenuSlot);
        m_appButtonWidgets.append(button);
    }
    if (appButton->GetMenu())
        connect(appButton, &QPushButton::clicked, this,
                &NewToolBar::Inner_SetUncheckedAppSetButtonSlot);
    if (setButton->isCheckable())
        connect(setButton, &QPushButton::pressed, this, &NewToolBar::Inner_SetCheckedAppButtonSlot);
    return true;
}

void NewToolBar::Inner_DoDelayLoadMenuSlot()
{
    if (m_menusLoaded)
        return;

    const QList<Controller *> records = appButtonRecords(m_controllers);
    for (int i = 0; i < records.size(); ++i) {
        if (const auto *button = qobject_cast<MRMenuButton *>(m_appButtonWidgets.at(i)))
            AppendSubMenu(button->GetMenu(), records.at(i)->children, m_menuStyles.value(i));
    }
    // Set before the host is asked: its answer may pop a menu, or delete this toolbar.
    m_menusLoaded = true;
    Q_EMIT DoRequestAuthority();
}

void NewToolBar::Inner_SetCheckedAppButtonSlot()
{
    if (auto *appButton = qobject_cast<MRMenuButton *>(m_appButtonWidgets.at(0)))
        appButton->setChecked(true);
    Inner_SetUncheckedAppSetButtonSlot();
}

void NewToolBar::Inner_SetUncheckedAppSetButtonSlot()
{
    if (auto *setButton = qobject_cast<MRMenuButton *>(m_appButtonWidgets.at(1)))
        setButton->setChecked(false);
}

QToolBar *NewToolBar::CreateQuickAccessBar()
{
    const QuickAccessMaker maker(m_parts->factory,
                                 sectionRecords(m_controllers, Section::quickAccessBar),
                                 m_quickAccessButtons);
    QToolBar *bar = maker.makeBar();
    const QList<QAction *> actions = bar->actions();
    for (const QAction *action : actions)
        connect(action, &QAction::triggered, this, &NewToolBar::Inner_DoQuickAccessBarActionSlot);

    if (auto *overflow = bar->findChild<QToolButton *>(Part::overflowButton)) {
        markOverflowMenu(overflow);
        overflow->installEventFilter(this);
    }
    return bar;
}

QPushButton *NewToolBar::CreateQuickAccessSet(bool &visible)
{
    const QList<Controller *> records = sectionRecords(m_controllers, Section::quickAccessBar);
    const QuickAccessMaker maker(m_parts->factory, records, m_quickAccessButtons);
    QMenu *menu = maker.makeMenu();
    const QList<QAction *> entries = menu->actions();
    for (const QAction *entry : entries)
        connect(entry, &QAction::triggered, this, &NewToolBar::Inner_DoUpdateQuickAccessBarSlot);

    for (const Controller *record : records) {
        if (record->name == Name::customise) {
            m_quickAccessSetButton = maker.makeCustomiseButton(menu, *record);
            visible = record->visible;
        }
    }
    return m_quickAccessSetButton;
}

void NewToolBar::Inner_DoQuickAccessBarActionSlot()
{
    const auto *action = qobject_cast<QAction *>(sender());
    if (!action)
        return;

    // The host hears the command's own name (f_open), while the setting keeps the short name.
    QString command = action->objectName();
    const auto prefix = command.indexOf(Prefix::quick);
    if (prefix >= 0)
        command = command.mid(prefix + Prefix::quick.size());
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
    showWhileUsed(m_quickAccessBar);
    m_parts->keeper.noteQuickAccess();
}

QString NewToolBar::GetQuickAccessButtonList()
{
    if (!m_quickAccessBar)
        return QString();

    QStringList shown;
    const QList<QAction *> actions = m_quickAccessBar->actions();
    for (const QAction *action : actions) {
        if (action->isVisible() && !action->property(Property::added).isValid())
            shown.append(action->objectName());
    }
    return QuickAccessSetting::join(shown);
}

QList<QWidget *> NewToolBar::CreateAddtionalControl()
{
    QList<QWidget *> controls;
    bool hasPeek = false;
    const AdditionalMaker maker(m_parts->factory);
    const auto take = [this, &controls](QPushButton *button) {
        connect(button, &QPushButton::clicked, this,
                &NewToolBar::Inner_DoAddtionalControlActionSlot);
        controls.append(button);
        return button;
    };
    const QList<Controller *> records = sectionRecords(m_controllers, Section::additional);
    for (const Controller *record : records) {
        if (record->type != Tag::button)
            continue;
        QPushButton *button = take(maker.makeButton(*record));
        if (record->name == Name::fold) {
            m_foldButton = button;
            m_unfoldButton = take(maker.makeUnfoldButton(button, *record));
            hasPeek = hasPeek || record->optIn().peek;
        }
    }
    if (hasPeek)
        addPeek();
    return controls;
}

void NewToolBar::Inner_DoAddtionalControlActionSlot()
{
    const auto *button = qobject_cast<QPushButton *>(sender());
    if (!button)
        return;

    const QString name = button->objectName();
    if (name == Name::findCommand)
        toggleFinder(const_cast<QPushButton *>(button));
    else if (name.contains(Word::fold, Qt::CaseInsensitive))
        m_parts->tabs.setFolded(true);
    else if (name.contains(Word::unfold, Qt::CaseInsensitive))
        m_parts->tabs.setFolded(false);
    else if (!name.isEmpty())
        Q_EMIT DoActive(name);
}

bool NewToolBar::eventFilter(QObject *watched, QEvent *event)
{
    if (m_parts->zoom.isBox(watched))
        m_parts->zoom.watch(*event);
    if (event->type() == QEvent::ActionAdded)
        markOverflowMenu(watched);
    return QWidget::eventFilter(watched, event);
}
