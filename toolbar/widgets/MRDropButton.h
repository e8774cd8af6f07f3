// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/QtCompat.h"
#include "toolbar/widgets/SplitButton.h"

#include <QIcon>
#include <QPointer>
#include <QWidgetAction>

class QMenu;

/**
 * A tool button with a menu, whose face can take over the entry that was last chosen from it. A
 * click then repeats that entry; until there is one, it opens the menu.
 */
class MRDropButton : public SplitButton
{
    Q_OBJECT

public:
    /**
     * @param parent the parent; if it is an ExtendMenuOwner, that is the one to be refreshed (see
     *               SetUpdateToolbar())
     * @param iconPath path of the icon's file or resource
     *
     * The first argument and the last two are not used.
     */
    MRDropButton(QWidget *unused, QWidget *parent, QString text, QString iconPath, QString,
                 QString);

    /**
     * Gives the button the face of @p action and has a click repeat it from now on. The button
     * becomes checkable but is not checked, and the toolbar is not refreshed. Null is ignored.
     */
    void SetAction(QAction *action);

    /** Goes back to the face before the last switch, and forgets the current action. */
    void Reset();

    /** The menu entry that a click repeats; null if there is none or it has been deleted. */
    QAction *GetCurrentAction() const;

    /**
     * How a switch writes the entry's text: followed by three blanks (true, as at first), or after
     * four. The widget's mouse tracking takes the same value.
     */
    void SetTextSwitchable(bool switchable);

    /** Whether a switch or a click has the owning toolbar lay itself out again. */
    void SetUpdateToolbar(bool update);

    /** Has the button shown only while @p place is visible, which stands for it on a row. */
    void setPlace(const QAction *place);
    void setVisible(bool visible) override;

    /** Marks the button as the copy that lives in the menu of what a tool row has no room for. */
    void SetInHideFlag(bool inHide);

    /** Sets the name by which the button is found; it becomes the object name. */
    void SetName(QString name);
    QString GetName() const;

    /**
     * Takes over the current action and the checked state of @p other, so that two buttons made
     * for one control stay alike.
     */
    void followFace(const MRDropButton &other);

    /**
     * Shows what it shows now again, because the texts mean something else: an entry's text where
     * it shows an entry, these otherwise.
     */
    void showFaceAgain(const QString &ownText, const QIcon &ownIcon);

public Q_SLOTS:
    /** Gives the button the face of @p action, checks it and refreshes the toolbar. */
    void DoSwitchSlot(QAction *action);

    /**
     * Repeats the current action and sets that checked; opens the menu if there is none or it is
     * disabled. The button may be gone on return.
     */
    void DoCurrentActionSlot();

Q_SIGNALS:
    /** There is another current action, or none any more. */
    void currentActionChanged();
    /** The button itself has been enabled or disabled, whatever its parents are. */
    void enabledChanged(bool enabled);

protected:
    void changeEvent(QEvent *event) override;
    void enterEvent(QtCompat::EnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    QString hoverSheet(bool isOverArrow, const SchemeColours *colours) const override;
    void followScheme() override;

private:
    friend class MRDropButtonAction;

    /** Whose text and icon a face are: an entry's, or the button's own. */
    struct Face
    {
        QPointer<QAction> entry;
        bool isOwn = true;
    };

    QString faceText(const QAction *entry) const;
    void takeFace(QAction *action);
    void refreshToolBar();

    QPointer<QAction> m_currentAction;
    Face m_face;
    Face m_previousFace;
    QIcon m_previousIcon;
    QString m_previousText;
    QString m_name;
    bool m_textSwitchable = true;
    bool m_updateToolBar = false;
    QPointer<QWidget> m_owner; ///< The parent at construction.
    QPointer<const QAction> m_place;
    QString m_savedStyleSheet;
    bool m_inHide = false;
};

/**
 * The action behind the drop buttons of one control: the one on the tool row and, when the row is
 * too narrow, its copy in the menu behind the row's extension button. It keeps the settings from
 * which it makes them and sees that they stay alike. Settings that are not said to reach existing
 * buttons are to be made before the action is added to a row.
 */
class MRDropButtonAction : public QWidgetAction
{
    Q_OBJECT

public:
    /**
     * @param parentWidget the tool row, which owns the action
     * @param toolbarWidget the toolbar that the buttons are made for
     */
    MRDropButtonAction(QWidget *parentWidget, QWidget *toolbarWidget);

    /** The button on the tool row; null before there is one and after it has gone. */
    MRDropButton *GetWidget() const;
    /** The menu that holds the copy; null while there is none. */
    QMenu *GetExtendMenu() const;

    void SetIcon(QIcon icon);
    void SetText(QString text);
    /** Sets the buttons' menu, which stays its owner's. */
    void SetMenu(QMenu *menu);
    QMenu *GetMenu() const;
    /** Whether the buttons are split into a part that repeats and an arrow that opens the menu. */
    void SetCheckable(bool checkable);
    /** Whether the buttons' faces follow the choice from the menu. */
    void SetSwichable(bool switchable); // Spelled so for existing callers.
    /** Whether this action stands for a command of its own, checkable as SetCheckable() says. */
    void SetWithAction(bool withAction);
    /** Sets the entry that the button of the tool row shows at first. */
    void SetAction(QAction *action);
    QAction *GetAction() const;
    /** Gives its buttons another text and icon, made ones too; those that show an entry keep it. */
    void showFace(const QString &text, const QIcon &icon);
    /** Gives the menu of what the row has no room for, and the copy there, the lengths for the
     * scale and the text of now. */
    void fitMenuCopies();

    /** Shows or hides every button of the action. */
    void setVisible(bool visible);
    /** Enables or disables every button of the action. */
    void setEnabled(bool enabled);

    /** Makes a button for a tool row or, the second time, for a menu. Qt calls it. */
    QWidget *createWidget(QWidget *parent) override;

public Q_SLOTS:
    /** Closes the menu that holds the copy. */
    void DoDelayCloseMenuSlot();

Q_SIGNALS:
    void DoSetWidgetVisible(bool visible); // Never emitted; kept for hosts that connect to it.

private:
    void adoptExtendMenu(QWidget *parent);
    void fitExtendMenu(const MRDropButton *button);
    void setUpRowButton(MRDropButton *button);
    void setUpMenuCopy(MRDropButton *copy);
    void setUpMenu(MRDropButton *button);
    void linkCopy(MRDropButton *copy);
    QString menuCopyText() const;

    QPointer<MRDropButton> m_firstWidget;
    QIcon m_icon;
    QString m_text;
    QPointer<QMenu> m_menu;
    bool m_checkable = false;
    bool m_switchable = false;
    bool m_withAction = false;
    QPointer<QAction> m_defaultAction;
    bool m_visible = true;
    bool m_enabled = true;
    QPointer<QMenu> m_extendMenu;
    QPointer<QWidget> m_toolBarWidget;
};

/** The command of a row's or a panel's button: what a drop button shows, or the button's own. */
QAction *shownCommand(const QToolButton *button);
