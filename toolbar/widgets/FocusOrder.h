// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidgetList>

class QWidget;

/** How the keyboard focus goes through the toolbar. */
namespace FocusOrder {

/** Lets the buttons of an area take the focus by keys only: a click leaves it in the document. */
void takeByKeysOnly(const QWidget *area);

/** Has the Tab key go through the controls in this order; null ones are left out. */
void chain(QWidgetList controls);

} // namespace FocusOrder
