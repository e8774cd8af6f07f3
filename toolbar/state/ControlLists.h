// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/NamedList.h"

#include <QList>
#include <QMap>
#include <QPointer>

class MRDropButton;
class MRScrollWidget;
class MRSearchBar;
class QAction;
class QComboBox;
class QLineEdit;
class QPushButton;
class QToolBar;
class QToolButton;
class QWidget;

/** Where the controls that a name may address are kept. Most of them are made later than this. */
struct ControlLists
{
    /** A member of the toolbar, null while it has no such widget. */
    template <typename Widget>
    using Pointer = const QPointer<Widget> &;

    Pointer<QWidget> wholeToolBar;
    Pointer<QWidget> topLine;
    const NamedList<QWidget> &appButtons; ///< The application button, then the set button.
    Pointer<QToolBar> quickAccessBar;
    Pointer<QPushButton> quickAccessSetButton;
    const NamedList<QPushButton> &tabButtons;
    Pointer<MRSearchBar> searchBar;
    Pointer<QPushButton> searchSetButton;
    const NamedList<QWidget> &additionalWidgets;

    const QMap<QString, QPointer<QToolBar>> &rows;
    Pointer<MRScrollWidget> currentRowArea;
    const NamedList<QAction> &actions;
    const NamedList<MRDropButton> &dropButtons;
    const NamedList<QToolButton> &groupButtons;
    Pointer<QLineEdit> pageField;
    Pointer<QComboBox> zoomBox;
};
