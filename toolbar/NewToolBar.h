#pragma once

#include "toolbar/MRToolBarExport.h"
#include "toolbar/NamedList.h"
#include "toolbar/ToolBarTypes.h"

#include <QPointer>
#include <QRect>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <memory>

class ClickClock;
class CustomMenuStyle;
class DropMenuIndex;
class MRDropButton;
class MRDropButtonAction;
class MRGroupButton;
class MRMainToolBar;
class MRMenuButton;
class MRScrollWidget;
class MRSearchBar;
class RecentFiles;
class ShownShortcuts;
class ControlVisitor;
class TabRequests;
enum class ControlReport;
class QAbstractButton;
class QAction;
class QActionGroup;
class QButtonGroup;
class QComboBox;
class QDomNode;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QMainWindow;
class QMenu;
class QProxyStyle;
class QPushButton;
class QStackedWidget;
class QToolBar;
class QToolButton;
class QVBoxLayout;
struct Controller;

/**
 * The toolbar widget. MRToolBar makes it and speaks for it; of this class a host uses uiStyle only.
 *
 * It reads the description once, builds the top line and the row of the checked tab, and leaves
 * everything else until it is opened. Each such step ends with DoRequestAuthority().
 */
class MRTOOLBAR_EXPORT NewToolBar : public QWidget
{
    Q_OBJECT

public:
    /**
     * The skin of every toolbar of the process: 1 for "lum", anything else for "marodi". The host
     * sets it before it constructs the first toolbar and leaves it alone from then on.
     */
    static int uiStyle;

    /** Builds the toolbar and docks it; MRToolBar's constructor tells what the arguments are. */
    NewToolBar(QMainWindow *mainWindow, QDomNode &description, QMap<QString, QString> skin,
               ToolBarAlignment alignment);
    ~NewToolBar() override;

    /**
     * Gives a widget or an action its tooltip: plain text, or a card with a bold title above short
     * lines when @p tip has the form "title;description". An empty tip changes nothing.
     */
    static void SetWidgetToolTip(QObject *target, const QString &tip);

    /** The sheet with every length in pixels multiplied by @p factor and rounded. */
    static QString ScaleSheet(QString const &sheet, float factor);

    /** @name What the facade asks
     *  @{ */
    /** Answers MRToolBar's query of the same meaning, which is documented there. */
    bool GetCompositeVisible(QString name);
    bool GetCompositeEnable(QString name);
    bool GetControlCheckState(QString name);
    bool IsSupportByToolBar(QString name);
    QRect GetControlGeometry(QString name);
    QString GetQuickAccessButtonList();
    QString GetToolBarStyleSheet();
    void ResetToolbarState();
    /** @} */

    /** The skin's directory of resources, with its trailing slash. */
    QString GetResourceDir();
    /** The resource path of an icon of a description, or nothing if the skin has no such file. */
    QString GetIconPath(QString name);
    /** The first action of exactly that name, or null. */
    QAction *GetActionInTotal(QString name);
    /** The exclusive group of exactly that name, or null. */
    QActionGroup *GetActionGroup(QString name);
    /** Shows the row of a tab, by its position; folds or unfolds the rows if it is on show. */
    bool InitMainToolBar(QString index);

    /** Watches the zoom box. */
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** @name Signals without an emitter
     *  @{ */
    /** Never emitted; kept for hosts that connect to it. */
    void Inner_DoSetPageNum(QString pageNum);
    void Inner_DoSetTotalPage(QString totalPage);
    void Inner_DoSetZoomMode(int index);
    void Inner_DoSetZoomInput(QString text);
    void Inner_DoFoldToolbar(bool folded);
    /** @} */

    /** @name What the facade relays
     *  @{ */
    /** Comes out of MRToolBar as the signal of the same name, which is documented there. */
    void DoGotoPage(int pageNum);
    void DoActive(QString objName);
    void DoDoubleActive(QString objName);
    void DoOpenFile(QString fileName);
    void DoSetZoomMode(QString zmode);
    void DoSearchContent(SearchOption opt);
    void DoSetBackground(BackgroundStyle style);
    void DoRequestAuthority();
    /** @} */

public Q_SLOTS:
    /** @name What the library's own controls are connected to
     *  @{ */
    /** Reacts to one kind of control, most often the sender of the signal; not to be called. */
    void Inner_DoQuickAccessBarActionSlot();
    void Inner_DoAddtionalControlActionSlot();
    void Inner_DoSearchBarActionSlot();
    void Inner_DoUpdateSearchContentSlot(QString content);
    void Inner_DoUpdateQuickAccessBarSlot();
    void Inner_DoUpdateMainToolBarSlot();
    void Inner_DoGotoPageSlot();
    void Inner_DoSetZoomModeSlot(QString text);
    void Inner_DoBarActionSlot();
    void Inner_DoOpenRecentFileSlot(QAction *action);
    void Inner_DoActiveSetButtonSlot(bool active);
    void Inner_SetCheckedAppButtonSlot();
    void Inner_SetUncheckedAppSetButtonSlot();
    void Inner_DoDelayActionSlot();
    void Inner_DoDelayLoadMenuSlot();
    /** @} */

    /** @name What the facade is connected to
     *  @{ */
    /** Does what MRToolBar's slot of the same meaning says, which is documented there. */
    void DoSetControlUsableStateSlot(QString &objName, bool usable);
    void DoSetControlCheckedStateSlot(QString &objName, bool checked);
    void DoSetTotalPageSlot(QString totalPage);
    void DoSetZoomModeSlot(QString mode);
    void DoSetPageNumSlot(QString pageNum);
    void DoUpdateRecentFileSlot(QStringList paths);
    void DoSetControlVisibleStateSlot(QString &objName, bool visible);
    void DoSetBackgoundSlot(BackgroundStyle style); // Spelled so for existing callers.
    void DoSetSkinStyleSlot(ToolBarSkinStyle skin);
    /** @} */

public:
    /** Makes this widget lay out its items again: it ends at the size that it has. */
    void FlushExtendMenu();

private:
    // Construction and layout.
    bool Init(QDomNode &description);
    bool InitLayout();
    bool InitWidget();
    QHBoxLayout *createLeftLayout(bool &customiseVisible);
    QHBoxLayout *createMiddleLayout(QList<bool> &visibleTabs);
    QHBoxLayout *createRightLayout();
    void showTabButtons(const QList<bool> &visibleTabs);
    /** A click on a command leaves the focus in the document. */
    static void focusByKeysOnly(const QWidget *area);
    /** The Tab key goes along the top line, then down to the row. */
    void orderFocus();
    void dockIntoMainWindow();
    void releaseWidgetsInUse();
    void giveStylesToMenus();
    QList<Controller *> sectionRecords(const char *section) const;
    QSize scaledIconSize(double side) const;
    QIcon icon(const QString &name);
    QPushButton *createTopLineButton(const Controller &record, QWidget *parent);

    // Application button and menus.
    bool CreateAppButton();
    void setUpAppButton(MRMenuButton *button, const Controller &record);
    void setUpSetButton(MRMenuButton *button, MRMenuButton *appButton, const Controller &record);
    void createAppMenu(MRMenuButton *button, const Controller &record, CustomMenuStyle *style);
    MRMenuButton *appButtonAt(int position) const;
    bool AppendSubMenu(QMenu *menu, const QList<Controller *> &items, QProxyStyle *style);
    void appendMenu(QMenu *menu, const Controller &record, QProxyStyle *style);
    QMenu *createSubMenu(QMenu *menu, const Controller &record, QProxyStyle *style);
    void appendMenuItem(QMenu *menu, const Controller &record);
    QAction *createMenuAction(QMenu *menu, const Controller &record);
    void connectMenuAction(QAction *action, const Controller &record, bool isNew);

    // Quick access bar.
    QToolBar *CreateQuickAccessBar();
    QPushButton *CreateQuickAccessSet(bool &visible);
    static void markExtensionMenu(const QObject *extension);
    QAction *createQuickAction(QToolBar *bar, const Controller &record);
    void appendCustomiseEntry(QMenu *menu, const Controller &record);
    QPushButton *createCustomiseButton(QMenu *menu, const Controller &record);

    // Tabs and tool rows.
    QButtonGroup *CreateTabBar(QList<bool> &visibleTabs);
    QPushButton *createTabButton(const Controller &tab, int index);
    QWidget *createTabPage(const Controller &tab);
    MRMainToolBar *createToolRow(const Controller &tab);
    void fillToolRow(MRMainToolBar *row, const QString &tabName);
    void openTab(int index);
    void showTabPage(int index);
    QString currentTabName() const;
    void SetExtraGroupVisible(QString tabName);
    void SetExtraGroupEnable(bool enable);

    // Extra groups and button groups.
    QWidget *CreateExtraGroup(const QList<Controller *> &children);
    QWidget *createExtraControl(QWidget *panel, const Controller &record);
    MRSearchBar *createExtraSearchField(QWidget *panel, const Controller &record);
    QPushButton *createExtraButton(QWidget *panel, const Controller &record);
    QWidget *CreateButtonGroupWidget(const QList<Controller *> &children, QToolBar *row);
    QToolButton *createGroupButton(const Controller &record);
    MRGroupButton *createGroupMenuButton(const Controller &record);
    QToolButton *createGroupPlainButton(const Controller &record);
    void CreateActionGroup(const QString &name, QObject *parent);

    // The controls of a tool row, one function per kind.
    bool AddToolBarAction(const QList<Controller *> &records, QToolBar *row, bool ignored,
                          bool addToRow);
    void addToolBarControl(const Controller &record, QToolBar *row, bool addToRow);
    void addButton(const Controller &record, QToolBar *row, bool addToRow);
    QAction *createButtonAction(const Controller &record);
    void addMenu(const Controller &record, QToolBar *row, bool addToRow);
    QMenu *createDropMenu(const Controller &record);
    void addButtonGroup(const Controller &record, QToolBar *row);
    void addComboBox(const Controller &record, QToolBar *row);
    void makeZoomBox(QComboBox *box, const Controller &record);
    void addLabel(const Controller &record, QToolBar *row);
    void addLineEdit(const Controller &record, QToolBar *row);
    void addRowWidget(QWidget *widget, const Controller &record, QToolBar *row);

    // Search bar and additional controls.
    MRSearchBar *CreateSearchBar();
    QPushButton *CreateSearchSetButton();
    QList<QWidget *> CreateAddtionalControl();
    QLabel *createSearchLabel(const Controller &record);
    QPushButton *createDirectionButton(const Controller &record);
    QPushButton *createAdditionalButton(const Controller &record);
    QPushButton *createUnfoldButton(QPushButton *foldButton, const Controller &record);
    void searchFrom(const QLineEdit *field, const QObject *from, bool isNew);
    void emitSearch(const QString &text, int direction, bool isNew);
    void setRowsFolded(bool folded);
    void showFoldButtons(bool folded);

    // Dispatch.
    void connectCommand(QAction *action);
    void dispatchAction(QAction *action);
    void releaseOtherDropButtons(QAction *action);
    void dispatchPlainAction(QString name);
    void watchClicks();
    void dispatchDoubleClickAction(const QString &name);

    // Pages and zoom.
    static void setTypable(QComboBox *box, bool isTypable);
    void showZoomEntry(int index);
    void showCustomZoom(const QString &text);
    void checkZoomButton(const QString &mode);
    void chooseZoomEntry(int index, const QString &text);
    void applyTypedZoom(const QString &text);
    void keepCustomZoom(const QString &entry);
    void dropTypedZoom();
    void showLastZoom();
    void showZoomHint();

    // State by name. The order in which a name is looked up stands in visitControls() alone.
    void visitControls(const QString &name, ControlVisitor &visitor);
    QList<QObject *> fieldContainers(const QString &name) const;
    QList<QObject *> namedActions(const QString &name) const;
    QList<QObject *> matchingActions(const QString &name) const;
    QList<QObject *> matchingAdditionalControls(const QString &name) const;
    QList<QObject *> matchingGroupButtons(const QString &name) const;
    QList<QObject *> matchingQuickEntries(const QString &name) const;
    QList<QObject *> matchingQuickSetButton(const QString &name) const;
    QList<QObject *> matchingDropButtons(const QString &name) const;
    QList<QObject *> matchingTabs(const QString &name) const;
    QList<QObject *> matchingAppButtons(const QString &name) const;
    QList<QObject *> matchingAppMenus(const QString &name) const;
    QList<QWidget *> areaWidgets(const QString &name) const;
    QList<QWidget *> askedAreaWidgets(const QString &name) const;
    bool reportState(const QString &name, ControlReport report);
    bool leaveTab(const QAbstractButton *button);
    void enableArea(const QString &name, bool usable);
    void showArea(const QString &name, bool visible);
    void showToolRows(bool visible);
    void showAdditionalControls(bool visible);
    void showQuickAccess(const QString &name, bool visible);
    void showAction(QAction *action, bool visible);
    void replaceCurrentEntry(const QAction *hidden);
    void matchDropButtonsToMenus();

    // Skin.
    void InitSkinStyle(QMap<QString, QString> skin);
    void SwitchSkinStyle(QMap<QString, QString> skin);
    bool ResetSkinStyle();

    QLineEdit *m_pageNumberEdit = nullptr;
    NamedList<MRDropButton> m_dropButtons;
    DropMenuIndex *m_dropMenus = nullptr; ///< Of the drop buttons' menus.
    ShownShortcuts *m_shortcuts = nullptr;
    QMainWindow *m_mainWindow = nullptr;
    ToolBarAlignment m_alignment = ToolBarCenter;
    QWidget *m_foldButton = nullptr;   ///< Folds; on show while the rows are.
    QWidget *m_unfoldButton = nullptr; ///< Unfolds; on show while the rows are not.
    QString m_quickAccessButtons;
    QList<Controller *> m_controllers; ///< Owned, with all below them.
    NamedList<QWidget> m_additionalWidgets;
    QMap<QString, QToolBar *> m_toolBars;
    MRScrollWidget *m_currentScrollWidget = nullptr;
    NamedList<QActionGroup> m_actionGroups;
    NamedList<QAction> m_actions;
    QList<QWidget *> m_appButtonWidgets; ///< The application button, then the set button.
    QToolBar *m_quickAccessBar = nullptr;
    MRSearchBar *m_searchBar = nullptr;
    QLineEdit *m_extraSearchEdit = nullptr;
    QPushButton *m_searchSetButton = nullptr;
    QVBoxLayout *m_mainLayout = nullptr;
    QString m_searchText;
    int m_searchDirection = 1;
    bool m_searchWholeWord = false;
    bool m_searchNoCase = false;
    bool m_searchNew = false;
    QString m_iconPrefix;
    int m_totalPages = 0;
    int m_currentPage = 0;
    QMap<QString, QString> m_skinMap;
    QList<CustomMenuStyle *> m_menuStyles; ///< Owned, by application button.
    QString m_resourceDir;
    QWidget *m_topWidget = nullptr;
    QButtonGroup *m_tabButtonGroup = nullptr;
    QStackedWidget *m_toolRowStack = nullptr;
    NamedList<QPushButton> m_tabButtons; ///< The buttons of the group, by name.
    QPointer<QToolBar> m_hostToolBar;    ///< Owned by the main window; holds this widget.
    QList<QWidget *> m_extraGroups;
    NamedList<QToolButton> m_groupButtons;
    float m_scale = 1.0F; ///< Physical dpi of this widget's screen by 96.
    QString m_delayedActionName;
    ClickClock *m_clickClock = nullptr; ///< From the first control on that reacts to double clicks.
    bool m_menusLoaded = false;

    QComboBox *m_zoomBox = nullptr;
    QStringList m_zoomModes; ///< Names of the predefined entries, in the order of the box.
    int m_defaultZoomIndex = 0;
    int m_zoomIndex = 0;
    QString m_customZoomText;
    QLabel *m_totalPageLabel = nullptr;
    QLabel *m_pagePromptLabel = nullptr;
    RecentFiles *m_recentFiles = nullptr;
    QPushButton *m_quickAccessSetButton = nullptr;
    QStringList m_quickAccessNames;
    QString m_toolBarStyleSheet;
    bool m_externalQss = false;
    bool m_toolRowsShown = true;
    bool m_isFirstUsableCall = true;
    const std::unique_ptr<TabRequests> m_tabRequests;

    // Last, so that it is the first to go.
    QTimer m_delayTimer;
};
