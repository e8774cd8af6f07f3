#include "toolbar/NewToolBar.h"

#include "toolbar/TabRequests.h"
#include "toolbar/ShownShortcuts.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/ContextMenuStop.h"
#include "toolbar/widgets/CustomMenuStyle.h"
#include "toolbar/widgets/DropMenuIndex.h"
#include "toolbar/widgets/FocusRing.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/MRSearchBar.h"
#include "toolbar/widgets/ScreenDensity.h"
#include "toolbar/widgets/TabStrip.h"
#include "toolbar/widgets/ToolTipCard.h"
#include "toolbar/widgets/TopLineLayout.h"

#include <QAction>
#include <QButtonGroup>
#include <QComboBox>
#include <QDomElement>
#include <QFrame>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

int NewToolBar::uiStyle = 0;

namespace {

/** Room between two groups of the top line. */
void addSpacer(QHBoxLayout *layout, int width)
{
    constexpr int height = 20;
    layout->addItem(new QSpacerItem(width, height, QSizePolicy::Minimum, QSizePolicy::Minimum));
}

QFrame *createSeparatorLine()
{
    auto *line = new QFrame;
    line->setObjectName(QStringLiteral("vseparator"));
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Plain);
    return line;
}

} // namespace

NewToolBar::NewToolBar(QMainWindow *mainWindow, QDomNode &description, QMap<QString, QString> skin,
                       ToolBarAlignment alignment)
    : QWidget(mainWindow)
    , m_mainWindow(mainWindow)
    , m_alignment(alignment)
    , m_tabRequests(std::make_unique<TabRequests>())
{
    m_scale = static_cast<float>(ScreenDensity::dpiX(this)) / 96.0F;
    m_dropMenus = new DropMenuIndex(this);
    m_shortcuts = new ShownShortcuts(this);
    connect(&m_delayTimer, &QTimer::timeout, this, &NewToolBar::Inner_DoDelayActionSlot);
    m_quickAccessButtons = skin.value(QStringLiteral("quickaccessbarbuttons"));

    // A document that can't be used leaves an empty toolbar that works.
    Init(description);
    InitWidget();
    new FocusRing(this);
    InitSkinStyle(skin);
    setLayout(m_mainLayout);
    dockIntoMainWindow();
}

NewToolBar::~NewToolBar()
{
    m_delayTimer.stop();
    DeleteUnitControl(&m_controllers);
    m_controllers.clear();

    releaseWidgetsInUse();
    giveStylesToMenus();

    // Alone, this widget takes its strip along. A strip that is dying itself, with its window or
    // without, is no tool bar any more by the time it deletes its children.
    if (auto *strip = qobject_cast<QToolBar *>(parentWidget()))
        strip->deleteLater();
}

void NewToolBar::releaseWidgetsInUse()
{
    // Qt still uses a menu or a combo box after one of its entries made the host delete the
    // toolbar.
    const QList<QMenu *> menus = findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        const bool wasOpened = menu->testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (wasOpened && !qobject_cast<QMenu *>(menu->parentWidget()))
            HostAnswer::deleteWhenOver(menu);
    }
    if (!HostAnswer::isPending())
        return;
    const QList<QComboBox *> boxes = findChildren<QComboBox *>();
    for (QComboBox *box : boxes)
        HostAnswer::deleteWhenOver(box);
}

void NewToolBar::giveStylesToMenus()
{
    // A style must not go before the menus that wear it, and as the last child of the outermost it
    // goes after them. To take it off them instead costs the square of their depth.
    for (int i = 0; i < m_menuStyles.size(); ++i) {
        const MRMenuButton *button = appButtonAt(i);
        if (QMenu *menu = button ? button->GetMenu() : nullptr)
            m_menuStyles.at(i)->setParent(menu);
        else
            delete m_menuStyles.at(i);
    }
    m_menuStyles.clear();
}

bool NewToolBar::Init(QDomNode &description)
{
    m_resourceDir = GetResourceDir();

    const QDomElement root = description.toElement();
    if (root.tagName() != QLatin1String("uiconfig") || !root.hasAttribute(QStringLiteral("prefix")))
        return false;

    // An empty prefix stays empty, deliberately; the fallback is never reached.
    m_iconPrefix = root.attribute(QStringLiteral("prefix"),
                                  QStringLiteral(":/mr_toolbar/Resources/res/icons/actions/"));
    for (QDomElement section = root.firstChildElement(); !section.isNull();
         section = section.nextSiblingElement())
        ParseXMLElement(&section, &m_controllers);
    return true;
}

bool NewToolBar::InitLayout()
{
    m_mainLayout = new QVBoxLayout;
    m_mainLayout->setSpacing(0);
    m_mainLayout->setContentsMargins(0, 0, 0, 0);
    setLayout(m_mainLayout);
    return true;
}

bool NewToolBar::InitWidget()
{
    if (!InitLayout())
        return false;

    m_topWidget = new QWidget(nullptr, Qt::FramelessWindowHint);
    m_mainLayout->addWidget(m_topWidget);
    m_topWidget->setObjectName(QStringLiteral("top_widget"));

    bool customiseVisible = false;
    QList<bool> visibleTabs;
    QHBoxLayout *left = createLeftLayout(customiseVisible);
    auto *tabs = new TabStrip(createMiddleLayout(visibleTabs));
    auto *outer = new TopLineLayout(left, tabs, createRightLayout());
    outer->setSearchField(m_searchBar);
    m_topWidget->setLayout(outer);

    showTabButtons(visibleTabs);
    if (m_quickAccessSetButton)
        m_quickAccessSetButton->setVisible(customiseVisible);
    focusByKeysOnly(this);
    orderFocus();
    return true;
}

QHBoxLayout *NewToolBar::createLeftLayout(bool &customiseVisible)
{
    const bool isCompact = Skin::isLum();
    auto *left = new QHBoxLayout;
    left->setContentsMargins(isCompact ? 7 : 0, 0, 0, 0);
    if (!isCompact)
        left->setSpacing(4);

    if (CreateAppButton()) {
        for (QWidget *button : std::as_const(m_appButtonWidgets))
            left->addWidget(button, 0, Qt::AlignLeft);
    }
    if (isCompact) {
        left->setSpacing(0);
        addSpacer(left, 6);
        left->addWidget(createSeparatorLine());
        addSpacer(left, 6);
    } else {
        addSpacer(left, 8);
    }

    m_quickAccessBar = CreateQuickAccessBar();
    if (m_quickAccessBar)
        left->addWidget(m_quickAccessBar, 0, Qt::AlignHCenter);
    if (isCompact)
        addSpacer(left, 2);
    if (QPushButton *customise = CreateQuickAccessSet(customiseVisible))
        left->addWidget(customise, 0, Qt::AlignLeft);

    if (isCompact)
        addSpacer(left, 16);
    else
        left->addStretch();
    return left;
}

QHBoxLayout *NewToolBar::createMiddleLayout(QList<bool> &visibleTabs)
{
    auto *middle = new QHBoxLayout;
    middle->setContentsMargins(0, 0, 0, 0);
    m_tabButtonGroup = CreateTabBar(visibleTabs);
    if (!m_tabButtonGroup)
        return middle;

    middle->setSpacing(Skin::isLum() ? 4 : 0);
    const QList<QAbstractButton *> buttons = m_tabButtonGroup->buttons();
    for (QAbstractButton *button : buttons)
        middle->addWidget(button, 0, Qt::AlignCenter);
    return middle;
}

QHBoxLayout *NewToolBar::createRightLayout()
{
    auto *right = new QHBoxLayout;
    right->setContentsMargins(0, 0, 0, 0);
    right->setSpacing(3);
    right->addStretch();

    m_searchBar = CreateSearchBar();
    if (m_searchBar)
        right->addWidget(m_searchBar, 0, Qt::AlignHCenter);
    m_searchSetButton = CreateSearchSetButton();
    if (m_searchSetButton)
        right->addWidget(m_searchSetButton, 0, Qt::AlignRight);
    const QList<QWidget *> controls = CreateAddtionalControl();
    for (QWidget *control : controls) {
        right->addWidget(control, 0, Qt::AlignRight);
        m_additionalWidgets.append(control);
    }
    addSpacer(right, 5);
    return right;
}

void NewToolBar::showTabButtons(const QList<bool> &visibleTabs)
{
    if (!m_tabButtonGroup)
        return;

    const QList<QAbstractButton *> buttons = m_tabButtonGroup->buttons();
    for (int i = 0; i < buttons.size(); ++i) {
        if (auto *button = qobject_cast<QPushButton *>(buttons.at(i)))
            button->setVisible(visibleTabs.value(i));
    }
}

void NewToolBar::focusByKeysOnly(const QWidget *area)
{
    const QList<QAbstractButton *> buttons = area->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        // A row leaves its tool buttons without any focus; the arrows are for the pointer alone.
        if (button->focusPolicy() != Qt::NoFocus || qobject_cast<QToolButton *>(button))
            button->setFocusPolicy(Qt::TabFocus);
    }
}

void NewToolBar::orderFocus()
{
    QWidgetList controls = m_appButtonWidgets;
    if (m_quickAccessBar) {
        for (auto *button : m_quickAccessBar->findChildren<QToolButton *>())
            controls.append(button);
    }
    controls.append(m_quickAccessSetButton);
    for (QPushButton *tab : m_tabButtons)
        controls.append(tab);
    controls.append(m_searchBar);
    if (m_searchBar) {
        for (auto *button : m_searchBar->findChildren<QPushButton *>())
            controls.append(button);
    }
    controls.append(m_searchSetButton);
    controls += m_additionalWidgets.objects();
    controls.removeAll(nullptr);
    for (qsizetype i = 1; i < controls.size(); ++i)
        setTabOrder(controls.at(i - 1), controls.at(i));
}

void NewToolBar::dockIntoMainWindow()
{
    m_hostToolBar = m_mainWindow ? m_mainWindow->addToolBar(QStringLiteral("mr_toolbar")) : nullptr;
    if (!m_hostToolBar)
        return;

    m_hostToolBar->setObjectName(QStringLiteral("mrtoolbar"));
    m_hostToolBar->setProperty("intoolbar", "true");
    m_hostToolBar->setContextMenuPolicy(Qt::NoContextMenu);
    // In the window's own context menu the user could only take the toolbar away for good.
    new ContextMenuStop(m_hostToolBar);
    m_hostToolBar->toggleViewAction()->setVisible(false);
    m_hostToolBar->setMovable(false);
    m_hostToolBar->addWidget(this);
    ResetSkinStyle();
}

void NewToolBar::showFoldButtons(bool folded)
{
    if (m_unfoldButton)
        m_unfoldButton->setVisible(folded);
    if (m_foldButton)
        m_foldButton->setVisible(!folded);
}

void NewToolBar::setRowsFolded(bool folded)
{
    showFoldButtons(folded);
    if (m_toolRowStack)
        m_toolRowStack->setVisible(!folded);
}

QList<Controller *> NewToolBar::sectionRecords(const char *section) const
{
    QList<Controller *> records;
    for (Controller *record : m_controllers) {
        if (record && record->section == QLatin1String(section))
            records.append(record);
    }
    return records;
}

QSize NewToolBar::scaledIconSize(double side) const
{
    const int scaled = static_cast<int>(side * static_cast<double>(m_scale));
    return {scaled, scaled};
}

QPushButton *NewToolBar::createTopLineButton(const Controller &record, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setProperty("intoolbar", "true");
    button->setFlat(true);
    button->setObjectName(record.name);
    button->setText(record.text);
    button->setIcon(icon(record.icon));
    button->setIconSize(scaledIconSize(16.0));
    SetWidgetToolTip(button, record.tooltip);
    if (record.text.isEmpty())
        button->setAccessibleName(toolTipTitle(record.tooltip));
    return button;
}

void NewToolBar::SetWidgetToolTip(QObject *target, const QString &tip)
{
    if (tip.isEmpty())
        return;

    const QString text = toolTipCard(tip);
    if (auto *widget = qobject_cast<QWidget *>(target))
        widget->setToolTip(text);
    else if (auto *action = qobject_cast<QAction *>(target))
        action->setToolTip(text);
}

void NewToolBar::FlushExtendMenu()
{
    resize(width() - 1, height());
    resize(width() + 1, height());
}
