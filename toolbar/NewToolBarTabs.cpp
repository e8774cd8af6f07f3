#include "toolbar/NewToolBar.h"

#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
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

    int checkedTab = 0;
    const QList<Controller *> tabs = sectionRecords(Section::tabBar);
    for (int index = 0; index < tabs.size(); ++index) {
        const Controller &tab = *tabs.at(index);
        QPushButton *button = createTabButton(tab, index);
        group->addButton(button);
        m_tabButtons.append(button);
        createTabPage(tab);
        visibleTabs.append(tab.visible);
        if (tab.checked)
            checkedTab = index;
    }
    showTabPage(checkedTab);
    // A stack shows one page; that of a hidden tab is hidden with it.
    if (!tabs.isEmpty())
        m_toolRowStack->currentWidget()->setVisible(tabs.at(checkedTab)->visible);
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
    const QString index = button->property(tabIndexProperty).toString();
    const QPointer<NewToolBar> self(this);
    if (auto *row = qobject_cast<MRMainToolBar *>(m_toolBars.value(tabName));
        row && !row->isFilled()) {
        fillToolRow(row, tabName);
        Q_EMIT DoRequestAuthority();
    }
    // The host may have deleted this toolbar in its answer.
    if (self)
        InitMainToolBar(index);
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

    const int page = index.toInt();
    if (page == m_toolRowStack->currentIndex()) {
        setRowsFolded(m_toolRowStack->isVisible());
        return true;
    }
    showTabPage(page);
    // Leaving a tab by name has hidden its row; opening the tab brings it back.
    if (m_currentScrollWidget && m_toolRowsShown)
        m_currentScrollWidget->show();
    SetExtraGroupVisible(currentTabName());
    if (!m_toolRowStack->isVisible())
        setRowsFolded(false);
    return true;
}

void NewToolBar::showTabPage(int index)
{
    m_toolRowStack->setCurrentIndex(index);
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
    if (m_isLeavingTab || currentTabName() != button->objectName())
        return false;

    // Folded and moved on whatever the state that the host has set, deliberately.
    showFoldButtons(true);
    if (m_currentScrollWidget)
        m_currentScrollWidget->hide();
    const QList<QAbstractButton *> buttons = m_tabButtonGroup->buttons();
    const auto position = buttons.indexOf(const_cast<QAbstractButton *>(button));
    const QPointer<NewToolBar> self(this);
    m_isLeavingTab = true;
    buttons.at((position + 1) % buttons.size())->click();
    if (self)
        m_isLeavingTab = false;
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
