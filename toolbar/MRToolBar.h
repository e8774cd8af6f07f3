// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/MRToolBarExport.h"
#include "toolbar/ToolBarTypes.h"

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QStringList>

class NewToolBar;
class QDomNode;
class QMainWindow;

/**
 * The whole command surface of a reader, as one object that the host talks to.
 *
 * The host owns the window, the document and the effect of every command. It constructs one
 * MRToolBar, listens to the signals below and reports states through the slots. Controls are
 * addressed by their object names, the `name` or `action` of their element in the description.
 * A name that no control bears is ignored; a query about it answers false, an empty string or a
 * null rectangle.
 *
 * All calls belong to the GUI thread. Set NewToolBar::uiStyle before constructing the first one. In
 * the answer to a signal the host may run an event loop of its own, such as QDialog::exec(), and
 * delete the window, the toolbar or this object in whatever way it likes.
 */
class MRTOOLBAR_EXPORT MRToolBar : public QObject
{
    Q_OBJECT

public:
    /**
     * Builds the toolbar and docks it at the top of @p mainWindow. No signal is emitted before the
     * constructor returns.
     *
     * @param mainWindow  becomes the owner of the toolbar widget, which lives as long as the
     *                    window. With a null window no toolbar is made and every call is ignored.
     * @param description the root element `uiconfig` of a description. With anything else the
     *                    toolbar is empty but works.
     * @param skin        colours by placeholder; what is missing gets the skin's default. The key
     *                    "externalqss" leaves it to the host to apply GetToolBarStyleSheet(); the
     *                    key "quickaccessbarbuttons" brings back GetQuickAccessButtonList(), and
     *                    "scheme" says how light the toolbar is; see ToolBarSkinStyle.
     * @param alignment   where the controls of a tool row stand.
     */
    MRToolBar(QMainWindow *mainWindow, QDomNode &description, QMap<QString, QString> skin,
              ToolBarAlignment alignment);

    /** Ends the relay of signals. The toolbar widget stays with its window. */
    ~MRToolBar() override;

    /** Constructs a toolbar as the constructor does; the caller owns the result. */
    static MRToolBar *InitToolBar(QMainWindow *mainWindow, QDomNode &description,
                                  QMap<QString, QString> skin, ToolBarAlignment alignment);

    /**
     * Whether the control, or the area of that reserved name, is visible. The buttons of quick
     * access, of button groups and of the additional controls are not asked: false.
     */
    bool GetCompositeVisible(QString objName);

    /** Whether an action of exactly that name has been built; rows and menus are built lazily. */
    bool IsSupportByToolBar(QString objName);

    /** Whether the first checkable control of that name is checked. */
    bool GetControlCheckedState(QString objName);

    /**
     * The described quick access buttons shown, as short names each followed by ";", for the host
     * to store and to hand back under the skin key "quickaccessbarbuttons".
     */
    QString GetQuickAccessButtonList();

    /**
     * Where the control stands, in global coordinates and device-independent pixels; a null
     * rectangle for a control that no tool row shows. What a narrow row has moved is where the
     * button `row_more` is.
     */
    QRect GetControlGeometry(QString objName);

    /** The sheet for the host to apply; empty unless the skin held the key "externalqss". */
    QString GetToolBarStyleSheet();

    /**
     * Whether the control, or the area of that reserved name, is enabled. The same buttons are not
     * asked as by GetCompositeVisible().
     */
    bool GetCompositeEnable(QString objName);

    /**
     * What the user has made of the toolbar, for the host to store and to hand back under the skin
     * key "toolbarstate"; see ToolBarSkinStyle. It is a text of one line without a meaning for
     * others: the open tab, whether the rows are folded, the buttons of quick access, the commands
     * that were found last, the entries that drop buttons show; and the scale and the scheme that
     * the host has set since the construction. Empty without a toolbar. DoStateChanged() tells when
     * there is another one.
     */
    QString GetToolBarState() const;

protected:
    /** @name The way to the toolbar
     *  @{ */
    /** Passes a call of the slot of the same meaning on to the toolbar; of no use to a host. */
    Q_SIGNAL void Inner_DoSetControlUsableState(QString &objName, bool usable);
    Q_SIGNAL void Inner_DoSetControlCheckedState(QString &objName, bool checked);
    Q_SIGNAL void Inner_DoSetControlVisibleState(QString &objName, bool visible);
    Q_SIGNAL void Inner_DoSetTotalPage(QString totalPage);
    Q_SIGNAL void Inner_DoSetPageNum(QString pageNum);
    Q_SIGNAL void Inner_DoSetZoomMode(QString zmode);
    Q_SIGNAL void Inner_DoUpdateRecentFile(QStringList list);
    Q_SIGNAL void Inner_DoSetBackgound(BackgroundStyle style); // Spelled so for existing callers.
    Q_SIGNAL void Inner_DoSetSkinStyle(ToolBarSkinStyle style);
    /** @} */

Q_SIGNALS:
    /** The user asks for a page; @p pageNum is 1-based and not above the reported total. */
    void DoGotoPage(int pageNum);
    /** The user triggered the control of that name. */
    void DoActive(QString objName);
    /** The user double-clicked a control described with `doubleclick`. */
    void DoDoubleActive(QString objName);
    /** The user chose a recent file; @p fileName is an absolute path. */
    void DoOpenFile(QString fileName);
    /** The user chose a zoom mode: "vzmode_fitpage" or "vzmode_125p" (10 to 6400 percent). */
    void DoSetZoomMode(QString zmode);
    /** The user searches. */
    void DoSearchContent(SearchOption opt);
    /** The user chose a page background. */
    void DoSetBackground(BackgroundStyle style);
    /** Controls were just made: the host reports the states of its controls again. */
    void DoRequestAuthority();
    /**
     * Another tab is on show now, whoever has opened it: the user, the host by DoShowTabSlot(), or
     * the toolbar itself when a tab is left by name or with its context. Not for the first one.
     */
    void DoTabShown(QString objName);
    /**
     * GetToolBarState() has changed, once for each change that it holds; not while the toolbar is
     * made, nor while a state is restored.
     */
    void DoStateChanged();

public Q_SLOTS:
    /** @name Spare entry points
     *  @{ */
    /** Emits the signal of the same meaning, as if the user had done it; the relay needs none. */
    void Inner_DoGotoPageSlot(int pageNum);
    void Inner_DoActiveSlot(QString objName);
    void Inner_DoDoubleActionSlot(QString objName);
    void Inner_DoOpenFileSlot(QString fileName);
    void Inner_DoSetZoomModeSlot(QString zmode);
    void Inner_DoSearchContentSlot(SearchOption opt);
    void Inner_DoSetBackgroundSlot(BackgroundStyle style);
    /** @} */

    /** Enables or disables the control, or the area of that reserved name. */
    void DoSetControlUsableStateSlot(QString &objName, bool usable);
    /**
     * Checks or unchecks the control, without a signal to the host. A name with ":" is cut there,
     * in the caller's string too.
     */
    void DoSetControlCheckedStateSlot(QString &objName, bool checked);
    /** Shows the zoom mode in the zoom box, for instance "vzmode_fitpage" or "vzmode_37p". */
    void DoSetZoomModeSlot(QString zmode);
    /** Shows the page and the number of pages, both counted from 1; a 0 clears both displays. */
    void DoSetPageInfoSlot(int pageNum, int totalPage);
    /**
     * Fills the menu of recent files with these paths, in this order; an empty list clears it.
     * Before the application menus are made there is nothing to fill: call it in the answer to
     * DoRequestAuthority(), too.
     */
    void DoUpdateRecentFileSlot(QStringList list);
    /** Shows or hides the control, or the area of that reserved name. */
    void DoSetControlVisibleStateSlot(QString &objName, bool visible);
    /** Checks the menu entry of the page background. */
    void DoSetBackgroundSlot(BackgroundStyle style);
    /**
     * Replaces the skin's colours; an empty map changes nothing. The key "scheme" makes the toolbar
     * lighter or darker; a map that holds nothing else keeps the colours. See ToolBarSkinStyle.
     */
    void DoSetSkinStyleSlot(ToolBarSkinStyle style);
    /** Back to actual size, no page and nothing checked; nothing is enabled or shown by it. */
    void DoResetToolbarSlot();
    /**
     * Gives the keyboard focus to the control of that name, for a key of the host's such as Ctrl+F.
     * Its row scrolls to it; the text of a field is selected, and a box that takes no text opens
     * its list. With an empty name the focus goes to the first control that the Tab key stops at.
     *
     * @return false, with nothing changed, for a control that is not on show, disabled, or never
     *         takes the focus. No tab is opened for it.
     */
    bool DoSetFocusSlot(const QString &objName);
    /**
     * Lays the toolbar out for lengths of @p factor times those at 96 dpi, in place of the density
     * of its screen; a factor from 0.5 to 4, any other is ignored. The skin key "scalefactor" does
     * the same at construction; see ToolBarSkinStyle. A host that applies the sheet itself scales
     * and applies it again.
     */
    void DoSetScaleSlot(double factor);
    /**
     * Gives the command another text than its description does, such as "Undo typing" or "Pause":
     * wherever it stands, also on rows and in menus that are made later. An empty text gives the
     * described one back. The widths of buttons follow; a tooltip that is described as the text
     * does, too. A text set by name is shown as it is in every language.
     *
     * A menu's entry "menu_NAME" and the quick access button "qbar_NAME" have texts of their own.
     */
    void DoSetControlTextSlot(QString &objName, QString text);
    /**
     * The same for the tooltip; "title;description" becomes a card. An empty one gives the
     * described tooltip back. "menu_NAME" and "qbar_NAME" have it, too, unless they have another
     * one by their own names.
     */
    void DoSetControlToolTipSlot(QString &objName, QString tip);
    /**
     * The same for the icon, which is drawn as it is in every scheme, and dimmed while the command
     * is disabled. A null icon gives the described one back.
     */
    void DoSetControlIconSlot(QString &objName, QIcon icon);
    /**
     * Shows or hides the tabs that are described with `context` as @p name, as something of that
     * kind is selected or not. They are hidden at first, and a tab that is hidden by its own name
     * stays hidden. None is opened by this; if one that is hidden was open, the tab before it is
     * opened again, or else the nearest one. Folded rows stay folded.
     */
    void DoShowContextSlot(QString name, bool shown);
    /**
     * Opens the tab of that name as a click would, and never folds it. A name that no visible and
     * enabled tab has is ignored.
     */
    void DoShowTabSlot(QString &objName);
    /**
     * Opens a field below the top line that finds every command of the description, of rows and
     * menus that were never opened too, by its text, tooltip, name and `keywords`. Return triggers
     * the command, Ctrl+Return shows where it is. An additional button `t_findcommand` does the
     * same. Called again, the field is ready to be typed into anew.
     */
    void DoFindCommandSlot();

private:
    friend class MRToolBarCommands;

    void connectToolBar();

    QPointer<NewToolBar> m_toolBar; ///< Owned by its window.
};
