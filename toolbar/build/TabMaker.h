// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/ToolBarTypes.h"
#include "toolbar/widgets/TabButton.h"

class ControlFactory;
class MRMainToolBar;
class QPushButton;
class QStackedWidget;
class QWidget;
struct Controller;

/** Makes the button of a tab and the page that holds its row. */
class TabMaker
{
public:
    TabMaker(const ControlFactory &factory, ToolBarAlignment alignment);

    /** Whether the toolbar begins with this tab; the tab of a context is hidden at first. */
    static bool isOpenAtFirst(const Controller &tab);

    /** A hidden button. @param isOpen whether the tab is on show at first */
    QPushButton *makeButton(const Controller &tab, const TabButton::Page &page, bool isOpen) const;
    /** The stack of the pages, disabled until the host has reported a usable state. */
    static QStackedWidget *makeStack(QWidget *parent);
    /**
     * Adds a page to the stack. The stack and the area of a row measure what they take in, and so
     * they take it in while it is empty: the measures would not last, as the skin's fonts and
     * margins are still to come.
     */
    static QWidget *addPage(QStackedWidget *stack);
    /** Adds the row of a tab, without controls, between arrows to scroll it. */
    MRMainToolBar *addRow(QWidget *page, const Controller &tab, bool isOpen) const;
    /** Puts the extra group of the tab at the end of the page; returns the group. */
    static QWidget *addExtraGroup(QWidget *page, QWidget *group, const Controller &tab);

private:
    MRMainToolBar *makeRow(const Controller &tab, bool isOpen) const;

    const ControlFactory &m_factory;
    ToolBarAlignment m_alignment;
};
