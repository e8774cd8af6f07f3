// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/build/TopLine.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionLog.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/ContextMenuStop.h"
#include "toolbar/widgets/ContextTab.h"
#include "toolbar/widgets/CustomMenuStyle.h"
#include "toolbar/widgets/FocusOrder.h"
#include "toolbar/widgets/FocusRing.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/MRMenuButton.h"
#include "toolbar/widgets/MRSearchBar.h"
#include "toolbar/widgets/TabStrip.h"
#include "toolbar/widgets/ToolTipCard.h"
#include "toolbar/widgets/TopLineLayout.h"

#include <QAction>
#include <QButtonGroup>
#include <QComboBox>
#include <QDomElement>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

int NewToolBar::uiStyle = 0;

namespace {

/** Keeps what Qt still uses after one of its entries made the host delete the toolbar. */
void releaseWidgetsInUse(const QWidget *toolBar)
{
    const QList<QMenu *> menus = toolBar->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        const bool wasOpened = menu->testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (wasOpened && !qobject_cast<QMenu *>(menu->parentWidget()))
            HostAnswer::deleteWhenOver(menu);
    }
    if (!HostAnswer::isPending())
        return;
    const QList<QComboBox *> boxes = toolBar->findChildren<QComboBox *>();
    for (QComboBox *box : boxes)
        HostAnswer::deleteWhenOver(box);
}

/**
 * Makes the menus the parents of their styles. A style must be deleted after the menus that use it,
 * and the last child of the outermost menu is. Resetting the style of every menu instead costs the
 * square of their depth.
 */
void giveStylesToMenus(const QList<CustomMenuStyle *> &styles, const NamedList<QWidget> &appButtons)
{
    for (int i = 0; i < styles.size(); ++i) {
        const auto *button = qobject_cast<MRMenuButton *>(appButtons.at(i));
        if (QMenu *menu = button ? button->GetMenu() : nullptr)
            styles.at(i)->setParent(menu);
        else
            delete styles.at(i);
    }
}

void giveWindowScope(const QList<Controller *> &records)
{
    for (Controller *record : records) {
        record->changedOptIn().shortcutscope = Word::windowScope;
        giveWindowScope(record->children);
    }
}

QWidget *makeTopLine()
{
    auto *line = new QWidget(nullptr, Qt::FramelessWindowHint);
    line->setObjectName(Part::topLine);
    return line;
}

void showTabs(const QList<QAbstractButton *> &tabs, const QList<bool> &visibleTabs)
{
    for (QAbstractButton *tab : tabs)
        tab->setVisible(visibleTabs.value(tab->property(Property::tabIndex).toInt()));
}

/** The tabs of contexts stand after the others, wherever they are described. */
QList<QAbstractButton *> inOrderOfSight(const QButtonGroup *group)
{
    QList<QAbstractButton *> tabs = group ? group->buttons() : QList<QAbstractButton *>();
    std::stable_partition(tabs.begin(), tabs.end(), [](const QAbstractButton *tab) {
        return !dynamic_cast<const ContextTab *>(tab);
    });
    return tabs;
}

template <typename Button>
QWidgetList buttonsOf(const QWidget *bar)
{
    QWidgetList buttons;
    const QList<Button *> found = bar ? bar->findChildren<Button *>() : QList<Button *>();
    for (Button *button : found)
        buttons.append(button);
    return buttons;
}

} // namespace

NewToolBar::NewToolBar(QMainWindow *mainWindow, QDomNode &description, QMap<QString, QString> skin,
                       ToolBarAlignment alignment)
    : QWidget(mainWindow)
    , m_mainWindow(mainWindow)
    , m_alignment(alignment)
    , m_appearance(new Appearance(this))
    , m_scaling(new Scale(this))
{
    Skin::followSelector(&uiStyle);
    connect(&m_delayTimer, &QTimer::timeout, this, &NewToolBar::Inner_DoDelayActionSlot);
    m_quickAccessButtons = skin.value(SkinKey::quickAccess);
    QMap<QString, QString> options = takeOptions(skin);
    const std::optional<KeptState> kept = takeState(options);
    chooseAppearance(options, skin);
    chooseScale(options);

    // A document that can't be used leaves an empty toolbar that works.
    Init(description);
    m_parts = std::make_unique<Parts>(*this);
    m_parts->presentation.chooseCardLines(options.value(SkinKey::toolTipWords));
    initWidgetsWith(kept);
    makeWindowShortcuts();
    chooseKeyTips(options.value(SkinKey::keyTips));
    new FocusRing(this);
    InitSkinStyle(skin);
    setLayout(m_mainLayout);

    QToolBar *strip =
        m_mainWindow ? m_mainWindow->addToolBar(QStringLiteral("mr_toolbar")) : nullptr;
    m_hostToolBar = strip;
    if (!strip)
        return;
    strip->setObjectName(Part::strip);
    strip->setProperty(Property::inToolBar, "true");
    strip->setContextMenuPolicy(Qt::NoContextMenu);
    strip->setMovable(false);
    // In the window's own context menu the user could only take the toolbar away for good.
    new ContextMenuStop(strip);
    strip->toggleViewAction()->setVisible(false);
    strip->addWidget(this);
    ResetSkinStyle();
    connect(m_appearance, &Appearance::changed, this, &NewToolBar::followAppearance);
    connect(m_scaling, &Scale::changed, this, &NewToolBar::followScale);
}

NewToolBar::~NewToolBar()
{
    m_delayTimer.stop();
    // They give the focus back, which the host may hear.
    m_parts->keyTips.reset();
    DeleteUnitControl(&m_controllers);
    m_controllers.clear();
    releaseWidgetsInUse(this);
    giveStylesToMenus(m_menuStyles, m_appButtonWidgets);

    // Without this widget its strip would be empty, also if the host has moved it into a tool bar
    // of its own. A strip that is being deleted itself is no QToolBar any more while it deletes its
    // children.
    if (auto *strip = qobject_cast<QToolBar *>(m_hostToolBar.data()))
        strip->deleteLater();
}

bool NewToolBar::Init(QDomNode &description)
{
    m_resourceDir = GetResourceDir();

    const QDomElement root = description.toElement();
    if (root.tagName() != Tag::root || !root.hasAttribute(RootAttribute::prefix)) {
        qCWarning(
            descriptionLog,
            "the toolbar is empty: its description is \"%ls\", not \"uiconfig\" with a prefix",
            qUtf16Printable(root.tagName()));
        return false;
    }

    // An empty prefix stays empty, deliberately; the fallback is never reached.
    m_iconPrefix = root.attribute(RootAttribute::prefix,
                                  QStringLiteral(":/mr_toolbar/Resources/res/icons/actions/"));
    for (QDomElement section = root.firstChildElement(); !section.isNull();
         section = section.nextSiblingElement())
        ParseXMLElement(&section, &m_controllers);
    if (root.attribute(RootAttribute::shortcutScope) == Word::windowScope)
        giveWindowScope(m_controllers);
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

    m_topWidget = makeTopLine();
    m_mainLayout->addWidget(m_topWidget);

    bool customiseVisible = false;
    QList<bool> visibleTabs;
    CreateAppButton();
    m_quickAccessBar = CreateQuickAccessBar();
    QPushButton *customise = CreateQuickAccessSet(customiseVisible);
    m_tabButtonGroup = CreateTabBar(visibleTabs);
    m_searchBar = CreateSearchBar();
    m_searchSetButton = CreateSearchSetButton();
    const QList<QWidget *> additional = CreateAddtionalControl();
    for (QWidget *control : additional)
        m_additionalWidgets.append(control);

    const QList<QAbstractButton *> tabs = inOrderOfSight(m_tabButtonGroup);
    auto *outer = new TopLineLayout(
        TopLine::makeCommands(m_appButtonWidgets.objects(), m_quickAccessBar, customise),
        new TabStrip(TopLine::makeTabs(tabs)),
        TopLine::makeSearch(m_searchBar, m_searchSetButton, additional));
    outer->setSearchField(m_searchBar);
    m_topWidget->setLayout(outer);

    showTabs(tabs, visibleTabs);
    if (customise)
        customise->setVisible(customiseVisible);
    FocusOrder::takeByKeysOnly(this);
    // The Tab key goes along the top line, then down to the row.
    QWidgetList line = m_appButtonWidgets.objects() + buttonsOf<QToolButton>(m_quickAccessBar);
    line.append(customise);
    line += QWidgetList(tabs.begin(), tabs.end());
    line.append(m_searchBar);
    line += buttonsOf<QPushButton>(m_searchBar);
    line.append(m_searchSetButton);
    FocusOrder::chain(line + additional);
    return true;
}

void NewToolBar::SetWidgetToolTip(QObject *target, const QString &tip)
{
    setToolTipCard(target, tip);
}

void NewToolBar::FlushExtendMenu()
{
    resize(width() - 1, height());
    resize(width() + 1, height());
}
