// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/NewToolBar.h"
#include "toolbar/description/CommandPlaces.h"
#include "toolbar/find/CommandAccess.h"

#include <QCoreApplication>
#include <QHash>

class QAction;

/** The commands of a toolbar as its finder sees them, whether they have been made or not. */
class NewToolBar::Commands : public CommandAccess
{
    Q_DECLARE_TR_FUNCTIONS(CommandFinder)

public:
    explicit Commands(NewToolBar &toolBar);

    const CommandPlaces &places() const override { return m_places; }
    State state(const CommandPlace &place) const override;

    QString text(const CommandPlace &place) const override;
    QString toolTip(const CommandPlace &place) const override;
    QString reason(const CommandPlace &place) const override;
    QIcon icon(const CommandPlace &place) const override;
    bool isIconForTopLine(const CommandPlace &place) const override;
    QString where(const CommandPlace &place) const override;

    bool make(const CommandPlace &place) override;
    void trigger(const CommandPlace &place) override;
    void reveal(const CommandPlace &place) override;

    QWidget *topLine() const override;
    FindLook look() const override;

private:
    QString textOf(const Controller &record) const;
    QAction *action(const CommandPlace &place) const;
    QPushButton *additionalButton(const CommandPlace &place) const;
    /** What the place is on: its tab, its application button, or the quick access bar. */
    QWidget *opener(const CommandPlace &place) const;
    State stateOfMenus(const CommandPlace &place) const;

    void openTab(const CommandPlace &place);
    QWidget *shownControl(const CommandPlace &place) const;
    QWidget *rowControl(const CommandPlace &place) const;

    NewToolBar &m_toolBar;
    const CommandPlaces m_places;
    QHash<const Controller *, int> m_positions; ///< Of the tabs and the application buttons.
};
