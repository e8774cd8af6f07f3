// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/**
 * Holds other controls and has no ground of its own, also where the application's sheet gives one
 * to every widget: Qt draws that for a QWidget and not for another class. A rule in the skins'
 * sheets would do the same, but be looked up for every widget.
 */
class Panel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};
