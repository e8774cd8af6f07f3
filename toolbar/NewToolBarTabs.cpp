#include "toolbar/NewToolBar.h"

#include "toolbar/TabRequests.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr char tabIndexProperty[] = "tabindex";

Qt::Alignment rowAlignment(ToolBarAlignment alignment)
{
    switch (alignment) {
    case ToolBarLeft:
        return Qt::AlignLeft;
    case ToolBarRight:
        return Qt::AlignRight;
    case ToolBarCenter:
        break;
    }
    return Qt::AlignCenter;
}

/** Checks the tab on show, or no tab at all if that one cannot be checked. */
void checkOnly(QAbstractButton *tab)
{
    const QPointer<QButtonGroup> group(tab->group());
    QAbstractButton *checked = group->checkedButton();
    if (tab->isCheckable() || !checked) {
        tab->setChecked(true);
        return;
    }
    // An exclusive group does not let go of its last check. Whoever hears of it may delete both.
    group->setExclusive(false);
    checked->setChecked(false);
    if (group)
        group->setExclusive(true);
}

} // namespace

QButtonGroup *NewToolBar::CreateTabBar(QList<bool> &visibleTabs)
{
    auto *group = new QButtonGroup(this);
    m_toolRowStack = new QStackedWidget(this);
    m_toolRowStack->setObjectName(QStringLiteral("tabwidget"));
    // The host's first report of a usable state enables it.
    m_toolRowStack->setEnabled(false);
    m_mainLayout->addWidget(m_toolRowStack);
    if (m_controllers.isEmpty())
        return nullptr;

    int shownTab = 0;
    const QList<Controller *> tabs = sectionRecords(Section::tabBar);
    for (int index = 0; index < tabs.size(); ++index) {
        const Controller &tab = *tabs.at(index);
        QPushButton *button = createTabButton(tab, index);
        group->addButton(button);
        m_tabButtons.append(button);
        createTabPage(tab);
        visibleTabs.append(tab.visible);
        if (tab.checked)
            shownTab = index;
    }
    showTabPage(shownTab);
    if (tabs.isEmpty())
        return group;
    // A stack shows one page; that of a hidden tab is hidden with it.
    m_toolRowStack->currentWidget()->setVisible(tabs.at(shownTab)->visible);
    if (tabs.at(shownTab)->checked)
        checkOnly(m_tabButtons.at(shownTab));
    return group;
}

QPushButton *NewToolBar::createTabButton(const Controller &tab, int index)
{
    auto *button = new QPushButton;
    button->setProperty("intoolbar", "true");
    button->setText(tab.text);
    button->setObjectName(tab.name);
    button->setProperty(tabIndexProperty, QByteArray::number(index).constData());
    button->setCheckable(tab.checkable);
    button->setChecked(tab.checked);
    button->hide();
    button->setFlat(true);
    button->setProperty("module", "tabbutton");
    connect(button, &QPushButton::clicked, this, &NewToolBar::Inner_DoUpdateMainToolBarSlot);

    // The library has no use for it; it is there for hosts that look for a menu below the tab.
    auto *menu = new QMenu(button);
    menu->setProperty("intoolbar", "true");
    return button;
}

QWidget *NewToolBar::createTabPage(const Controller &tab)
{
    auto *page = new QWidget(nullptr, Qt::FramelessWindowHint);
    page->setObjectName(QStringLiteral("tabWidget")); // The stack is "tabwidget".
    // The stack and the area measure what they take in, and so they take it in while it is empty:
    // the measures would not last, as the skin's fonts and margins are still to come.
    m_toolRowStack->addWidget(page);
    if (tab.children.isEmpty())
        return page;

    auto *layout = new QHBoxLayout(page);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);

    MRMainToolBar *row = createToolRow(tab);
    auto *holder = new MRScrollWidget;
    holder->SetWidget(row, rowAlignment(m_alignment));
    layout->addWidget(holder);
    if (tab.checked)
        AddToolBarAction(tab.children, row, false, true);
    m_toolBars.insert(tab.name, row);

    if (tab.scalable) {
        QWidget *panel = CreateExtraGroup(tab.children);
        panel->setObjectName(tab.name);
        panel->setContentsMargins(0, 0, 22, 0);
        m_extraGroups.append(panel);
        layout->addWidget(panel, 0, Qt::AlignRight);
    }
    return page;
}

MRMainToolBar *NewToolBar::createToolRow(const Controller &tab)
{
    auto *row = new MRMainToolBar;
    row->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    row->setContextMenuPolicy(Qt::NoContextMenu);
    row->setObjectName(tab.name);
    row->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->setIconSize(scaledIconSize(24.0));
    row->setAcceptDrops(false);
    row->setProperty("module", "maintoolbar");
    row->setFilled(tab.checked);
    return row;
}

void NewToolBar::Inner_DoUpdateMainToolBarSlot()
{
    const auto *button = qobject_cast<QPushButton *>(sender());
    if (!button)
        return;

    const QString tabName = button->objectName();
    const int tab = button->property(tabIndexProperty).toInt();
    // A click on the tab on show while a tab is being opened returns to it.
    const bool folds = tab == m_toolRowStack->currentIndex() && !m_tabRequests->isPending();
    const int request = m_tabRequests->ask(tab);
    auto *row = qobject_cast<MRMainToolBar *>(m_toolBars.value(tabName));
    const bool isNew = row && !row->isFilled();
    if (isNew) {
        const QPointer<NewToolBar> self(this);
        fillToolRow(row, tabName);
        Q_EMIT DoRequestAuthority();
        // In its answer the host may have deleted this toolbar or let another tab be opened.
        if (!self || !m_tabRequests->isLast(request))
            return;
    }
    if (!folds || isNew) {
        openTab(tab);
        return;
    }
    m_tabRequests->settle(tab);
    setRowsFolded(m_toolRowStack->isVisible());
}

void NewToolBar::fillToolRow(MRMainToolBar *row, const QString &tabName)
{
    // Tabs of the same name share the row, and it gets the controls of all of them.
    const QList<Controller *> tabs = sectionRecords(Section::tabBar);
    for (const Controller *tab : tabs) {
        if (tab->name == tabName && !tab->children.isEmpty())
            AddToolBarAction(tab->children, row, false, true);
    }
    row->setFilled(true);
    focusByKeysOnly(row);
}

bool NewToolBar::InitMainToolBar(QString index)
{
    if (index.isEmpty() || !m_toolRowStack)
        return false;

    const int tab = index.toInt();
    if (tab == m_toolRowStack->currentIndex())
        setRowsFolded(m_toolRowStack->isVisible());
    else
        openTab(tab);
    return true;
}

void NewToolBar::openTab(int index)
{
    showTabPage(index);
    // Leaving a tab by name has hidden its row; opening the tab brings it back.
    if (m_currentScrollWidget && m_toolRowsShown)
        m_currentScrollWidget->show();
    SetExtraGroupVisible(currentTabName());
    if (!m_toolRowStack->isVisible())
        setRowsFolded(false);
    // Last, as the host may listen to the tabs.
    if (m_toolRowStack->currentIndex() >= 0)
        checkOnly(m_tabButtons.at(m_toolRowStack->currentIndex()));
}

void NewToolBar::showTabPage(int index)
{
    m_toolRowStack->setCurrentIndex(index);
    m_tabRequests->settle(m_toolRowStack->currentIndex());
    const QWidget *page = m_toolRowStack->currentWidget();
    m_currentScrollWidget = page ? page->findChild<MRScrollWidget *>() : nullptr;
}

QString NewToolBar::currentTabName() const
{
    const int index = m_toolRowStack ? m_toolRowStack->currentIndex() : -1;
    return index >= 0 ? m_tabButtons.at(index)->objectName() : QString();
}

bool NewToolBar::leaveTab(const QAbstractButton *button)
{
    // In its answer to the move the host may set the state of this tab once more.
    const int shown = m_toolRowStack->currentIndex();
    if (currentTabName() != button->objectName() || !m_tabRequests->beginLeaving(shown))
        return false;

    // Folded and moved on whatever the state that the host has set, deliberately.
    showFoldButtons(true);
    if (m_currentScrollWidget)
        m_currentScrollWidget->hide();
    const QPointer<NewToolBar> self(this);
    // A tab that is being opened is the next one already.
    if (m_tabRequests->tab() == shown) {
        const QList<QAbstractButton *> buttons = m_tabButtonGroup->buttons();
        const auto position = buttons.indexOf(const_cast<QAbstractButton *>(button));
        buttons.at((position + 1) % buttons.size())->click();
    }
    if (self)
        m_tabRequests->endLeaving(shown);
    return true;
}

void NewToolBar::SetExtraGroupVisible(QString tabName)
{
    for (QWidget *panel : std::as_const(m_extraGroups))
        panel->setVisible(panel->objectName() == tabName);
}

void NewToolBar::SetExtraGroupEnable(bool enable)
{
    for (QWidget *panel : std::as_const(m_extraGroups))
        panel->setEnabled(enable);
}
