// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/widgets/RowPlan.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QRect>

#include <vector>

class MoreButton;
class QAction;
class QMenu;
class QToolBar;
class QToolButton;
class QWidgetAction;

/**
 * Makes a row fit its area: controls lose their texts and move to the menu of a button at the end
 * of the row. What is shown follows from the width of the area; no layout is tried for that.
 */
class RowFit : public QObject
{
    Q_OBJECT

public:
    /** A control that gives way. */
    struct Seat
    {
        /** Stands for the control on the row: the command is on other rows, too, and whether that
         *  is visible is the host's to say. */
        QWidgetAction *place;
        QAction *command; ///< Null for a panel.
        QList<QToolButton *> buttons;
        int order;
    };

    /** That of the row; null if all its controls stay. */
    static RowFit *of(const QToolBar *row);

    /** @param row  in its area; owns the object
     *  @param menu for what moves; stays its owner's */
    RowFit(QToolBar *row, QMenu *menu);

    void add(const Seat &seat);
    /** Puts the button that opens the menu behind all that the row has now. */
    void close();
    MoreButton *moreButton() const { return m_more; }

    /** Where the user finds a command, in the row's coordinates; invalid if it is not on the row.
     */
    QRect geometry(const QAction *command) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /** A seat, whose objects may be gone, with the form that it has. */
    struct Held
    {
        QPointer<QWidgetAction> place;
        QPointer<QAction> command;
        QList<QPointer<QToolButton>> buttons;
        int order;
        RowPlan::Form form = RowPlan::Form::Full;

        QList<QToolButton *> givenButtons() const;
        bool holdsFocus() const;
    };

    void arrange();
    void layOut();
    RowPlan plan();
    RowPlan::Item itemOf(QAction *action);
    int widthOfWidget(QAction *action) const;
    Held *seatOf(const QAction *place);
    void apply(const RowPlan &plan);
    QWidget *newFocus(const RowPlan &plan);
    void passFocus(QWidget *focus);
    void applyTo(Held &seat, RowPlan::Form form);
    void fillMenu();
    QAction *menuSeparator(qsizetype position);

    QToolBar *m_row;
    QWidget *m_area;
    QPointer<QMenu> m_menu;
    MoreButton *m_more;
    QWidgetAction *m_morePlace;
    std::vector<Held> m_seats;
    QList<QAction *> m_menuSeparators;
    bool m_isArranging = false;
};
