// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/SplitButton.h"

#include <QIcon>
#include <QWidgetAction>

/**
 * A small tool button of a button group. It shows its default action, but keeps an icon of its own
 * for actions that have none.
 */
class MRGroupButton : public SplitButton
{
    Q_OBJECT

public:
    explicit MRGroupButton(QWidget *parent);

    /** Sets the button's own icon and shows it. */
    void SetIcon(QIcon icon);

public Q_SLOTS:
    /** Makes @p action the one that the button shows and triggers. Null is ignored. */
    void SetDefaultAction(QAction *action);

    /** Shows the button's own icon, if it has one. The argument is not used. */
    void ChangeIcon(bool);

protected:
    void actionEvent(QActionEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    QString hoverSheet(bool isOverArrow, const SchemeColours *colours) const override;
    void followScheme() override;

private:
    QIcon m_icon;
    bool m_wasLeft = false; ///< By the pointer, once at least: the sheet of that stays.
};

/** The action by which a panel of group buttons stands on a tool row. */
class MRButtonGroup : public QWidgetAction
{
    Q_OBJECT

public:
    /** @param parent the toolbar, which owns the action */
    explicit MRButtonGroup(QObject *parent);
};
