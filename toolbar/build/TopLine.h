// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

class QAbstractButton;
class QHBoxLayout;
class QToolBar;
class QWidget;

/** Lays out the three parts of the top line. A null widget is left out. */
namespace TopLine {

/** The application buttons, the quick access bar and the button that customises it. */
QHBoxLayout *makeCommands(const QList<QWidget *> &appButtons, QToolBar *quickAccessBar,
                          QWidget *customiseButton);

QHBoxLayout *makeTabs(const QList<QAbstractButton *> &tabs);

QHBoxLayout *makeSearch(QWidget *searchField, QWidget *setButton,
                        const QList<QWidget *> &additionalControls);

} // namespace TopLine
