// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/MRToolBarExport.h"
#include "toolbar/NamedList.h"
#include "toolbar/ToolBarTypes.h"
#include "toolbar/widgets/ExtendMenuOwner.h"

#include <QPointer>
#include <QRect>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

class Appearance;
class CommandAccess;
class CommandFinder;
class CustomMenuStyle;
class DescribedNames;
class MRDropButton;
class MRScrollWidget;
class MRSearchBar;
class QAction;
class QActionGroup;
class QButtonGroup;
class QDomNode;
class QKeySequence;
class QLineEdit;
class QMainWindow;
class QMenu;
class QProxyStyle;
class QPushButton;
class QStackedWidget;
class QToolBar;
class QToolButton;
class QVBoxLayout;
class Scale;
struct CommandPlace;
struct Controller;
struct KeptState;

/**
 * The toolbar widget. MRToolBar makes it and speaks for it; of this class a host uses uiStyle only.
 *
 * It reads the description once, builds the top line and the row of the checked tab, and leaves
 * everything else until it is opened. Each such step ends with DoRequestAuthority().
 */
class NewToolBar : public QWidget, public ExtendMenuOwner
{
    Q_OBJECT

public:
    /**
     * The skin of every toolbar of the process: 1 for "lum", anything else for "marodi". The host
     * sets it before it constructs the first toolbar and leaves it alone from then on.
     */
    static MRTOOLBAR_EXPORT int uiStyle;

    /** Builds the toolbar and docks it; MRToolBar's constructor tells what the arguments are. */
    NewToolBar(QMainWindow *mainWindow, QDomNode &description, QMap<QString, QString> skin,
               ToolBarAlignment alignment);
    ~NewToolBar() override;

    /**
     * Gives a widget or an action its tooltip: plain text, or a card with a bold title above short
     * lines when @p tip has the form "title;description". An empty tip changes nothing.
     */
    static MRTOOLBAR_EXPORT void SetWidgetToolTip(QObject *target, const QString &tip);

    /** The sheet with every length in pixels multiplied by @p factor and rounded. */
    static MRTOOLBAR_EXPORT QString ScaleSheet(QString const &sheet, float factor);

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
    bool SetControlFocus(const QString &name);
    void FindCommand();
    void SetScale(double factor);
    void SetControlText(const QString &name, const QString &text);
    void SetControlToolTip(const QString &name, const QString &tip);
    void SetControlIcon(const QString &name, const QIcon &icon);
    void ShowContext(const QString &name, bool shown);
    void ShowTab(const QString &name);
    QString GetToolBarState() const;
    /** @} */

    /** @name What the commands of a host ask
     *  @{ */
    /** The names of the description as signals report them, of controls not made yet, too. */
    QStringList CommandNames() const;
    /** Whether a call by that name means something of the description, or a part of the toolbar. */
    bool IsDescribed(const QString &name) const;
    QKeySequence DescribedShortcut(const QString &name) const;
    /** Shows another sequence beside a command, which does not act here. */
    void ShowShortcut(const QString &name, const QKeySequence &sequence);
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

    /** Lays out the menu of what a row has no room for again: this widget ends at its own size. */
    void FlushExtendMenu() override;

    /** Watches the zoom box and the button for what the quick access bar has no room for. */
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /** Shows the texts anew when the language changes. */
    void changeEvent(QEvent *event) override;

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
    void DoTabShown(QString objName);
    void DoStateChanged();
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

private:
    class Commands;
    class Receiver;
    struct Parts;
    struct StyleChanges;

    // Construction and layout.
    bool Init(QDomNode &description);
    bool InitLayout();
    bool InitWidget();

    // The controls, by section and by row.
    bool CreateAppButton();
    QToolBar *CreateQuickAccessBar();
    QPushButton *CreateQuickAccessSet(bool &visible);
    QButtonGroup *CreateTabBar(QList<bool> &visibleTabs);
    MRSearchBar *CreateSearchBar();
    QPushButton *CreateSearchSetButton();
    QList<QWidget *> CreateAddtionalControl();
    bool AppendSubMenu(QMenu *menu, const QList<Controller *> &items, QProxyStyle *style);
    bool AddToolBarAction(const QList<Controller *> &records, QToolBar *row, bool ignored,
                          bool addToRow);
    QWidget *CreateExtraGroup(const QList<Controller *> &children);
    QWidget *CreateButtonGroupWidget(const QList<Controller *> &children, QToolBar *row);
    void CreateActionGroup(const QString &name, QObject *row);
    void SetExtraGroupVisible(QString tabName);
    void SetExtraGroupEnable(bool enable);
    void addPeek();

    // The commands, wherever they stand, for the finder and for keys.
    bool makeCommand(const CommandPlace &place);
    bool isUsable(const CommandPlace &place);
    CommandAccess &commandAccess();
    CommandFinder *commandFinder();
    void toggleFinder(QWidget *opener);
    void makeWindowShortcuts();
    void useByKeys(const CommandPlace &place);
    void chooseKeyTips(const QString &choice);

    // The names of the description, for the log.
    const DescribedNames &describedNames() const;
    void reportUnknown(const QString &name) const;

    // What is kept between two runs.
    static std::optional<KeptState> takeState(QMap<QString, QString> &options);
    void initWidgetsWith(const std::optional<KeptState> &kept);
    void expectState(const std::optional<KeptState> &kept);
    void keepLooks(const QMap<QString, QString> &options);
    void createAddedCommands();
    int keptTab(const QList<Controller *> &tabs) const;

    // Skin.
    static QMap<QString, QString> takeOptions(QMap<QString, QString> &skin);
    void chooseAppearance(const QMap<QString, QString> &options,
                          const QMap<QString, QString> &colours);
    void chooseScale(const QMap<QString, QString> &options);
    void InitSkinStyle(QMap<QString, QString> skin);
    void SwitchSkinStyle(QMap<QString, QString> skin);
    bool ResetSkinStyle();
    void followAppearance();
    void followScale();
    void followLanguage();
    void showTextsAgain();

    QPointer<QLineEdit> m_pageNumberEdit;
    NamedList<MRDropButton> m_dropButtons;
    QMainWindow *m_mainWindow = nullptr;
    ToolBarAlignment m_alignment = ToolBarCenter;
    QPointer<QWidget> m_foldButton;   ///< Folds; on show while the rows are.
    QPointer<QWidget> m_unfoldButton; ///< Unfolds; on show while the rows are not.
    QString m_quickAccessButtons;
    QList<Controller *> m_controllers; ///< Owned, with all below them.
    NamedList<QWidget> m_additionalWidgets;
    QMap<QString, QPointer<QToolBar>> m_toolBars;
    QPointer<MRScrollWidget> m_currentScrollWidget;
    NamedList<QActionGroup> m_actionGroups;
    NamedList<QAction> m_actions;
    NamedList<QWidget> m_appButtonWidgets; ///< The application button, then the set button.
    QPointer<QToolBar> m_quickAccessBar;
    QPointer<MRSearchBar> m_searchBar;
    QPointer<QLineEdit> m_extraSearchEdit;
    QPointer<QPushButton> m_searchSetButton;
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
    Appearance *m_appearance;
    QList<CustomMenuStyle *> m_menuStyles; ///< Owned, by application button.
    QString m_resourceDir;
    QPointer<QWidget> m_topWidget;
    QPointer<QButtonGroup> m_tabButtonGroup;
    QPointer<QStackedWidget> m_toolRowStack;
    NamedList<QPushButton> m_tabButtons; ///< The buttons of the group, by name.
    /** The tool bar of the main window that holds this widget; no QToolBar while it is deleted. */
    QPointer<QWidget> m_hostToolBar;
    NamedList<QWidget> m_extraGroups;
    NamedList<QToolButton> m_groupButtons;
    float m_scale = 1.0F; ///< Physical dpi of this widget's screen by 96, or what the host says.
    Scale *m_scaling;
    StyleChanges *m_styleChanges = nullptr; ///< While several are collected.
    QString m_delayedActionName;
    bool m_menusLoaded = false;

    QPointer<QPushButton> m_quickAccessSetButton;
    QString m_toolBarStyleSheet;
    bool m_externalQss = false;
    bool m_isFirstUsableCall = true;

    std::unique_ptr<Parts> m_parts;

    // Last, so that it is the first to go.
    QTimer m_delayTimer;
};
