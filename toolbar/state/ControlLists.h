#pragma once

#include "toolbar/NamedList.h"

#include <QList>
#include <QMap>
#include <QPointer>

#include <functional>

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
    /** A pointer of the toolbar's, null as long as it has no such widget; never a temporary. */
    template <typename Widget>
    using Pointer = std::reference_wrapper<Widget *const>;

    const QPointer<QToolBar> &wholeToolBar;
    Pointer<QWidget> topLine;
    const QList<QWidget *> &appButtons; ///< The application button, then the set button.
    Pointer<QToolBar> quickAccessBar;
    Pointer<QPushButton> quickAccessSetButton;
    const NamedList<QPushButton> &tabButtons;
    Pointer<MRSearchBar> searchBar;
    Pointer<QPushButton> searchSetButton;
    const NamedList<QWidget> &additionalWidgets;

    const QMap<QString, QToolBar *> &rows;
    Pointer<MRScrollWidget> currentRowArea;
    const NamedList<QAction> &actions;
    const NamedList<MRDropButton> &dropButtons;
    const NamedList<QToolButton> &groupButtons;
    Pointer<QLineEdit> pageField;
    std::function<const QComboBox *()> zoomBox; ///< Asked at every look-up.
};
