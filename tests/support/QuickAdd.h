// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

/** A host whose quick access bar takes commands of rows, and its user. */
namespace QuickAdd {

inline const QString addText = QStringLiteral("添加到快速访问工具栏");
inline const QString removeText = QStringLiteral("从快速访问工具栏移除");

/** Two rows of every kind of control, and quick access to which commands can be added. */
inline QString described(const QString &quickAdd = "quickadd='true'")
{
    using namespace Describe;
    const QString icon = "icon='icon24/HandTool.svg' ";
    const QString controls =
        button("plain", icon) + button("check", icon + "checkable='true'") + button("f_open", icon)
        + button("part", "tooltip='Part;of a name'") + group("g", button("grouped", icon))
        + menu("split", item("s_a") + item("s_b"), "checkable='true' switchable='true' index='2'")
        + menu("drop", item("d_a")) + label("label", "Label") + field("field");
    return section("quickaccessbar", button("qbar_f_open", "checkable='true'")
                                         + button("qbar_f_part_of", "checkable='true'")
                                         + button("qt_set", quickAdd))
           + section("tabbar", tab("first", controls, "checked='true'")
                                   + tab("second", button("later", "checkable='true'")));
}

inline QToolBar *bar(const TestHost &host)
{
    return host.find<QToolBar>("toolbar_quickaccessbar");
}

inline QMenu *customiseMenu(const TestHost &host)
{
    return host.find<QPushButton>("qt_set")->menu();
}

/** The action of the button on the bar; null if there is none. */
inline QAction *onBar(const TestHost &host, const QString &name)
{
    const QList<QAction *> buttons = bar(host)->actions();
    for (QAction *action : buttons) {
        if (action->objectName() == name)
            return action;
    }
    return nullptr;
}

inline QToolButton *buttonOf(const TestHost &host, const QString &name)
{
    return qobject_cast<QToolButton *>(bar(host)->widgetForAction(onBar(host, name)));
}

inline QWidget *control(const TestHost &host, const QString &name)
{
    QAction *action = host.action(name);
    const QList<MRMainToolBar *> rows = host.toolBar()->findChildren<MRMainToolBar *>();
    for (const MRMainToolBar *row : rows) {
        if (QWidget *button = action ? row->widgetForAction(action) : nullptr)
            return button;
    }
    return host.find<QWidget>(name);
}

/** The text of what the context menu of the widget offers, which is done; empty without a menu. */
inline QString takeOffer(QWidget *widget, const QPoint &place)
{
    const QWidget *before = QApplication::activePopupWidget();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &event);
    if (QApplication::activePopupWidget() == before)
        return QString();
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    if (!menu || menu->actions().size() != 1)
        return QString();
    const QString text = menu->actions().constFirst()->text();
    clickEntry(menu, menu->actions().constFirst());
    return text;
}

inline QString takeOffer(const TestHost &host, const QString &name)
{
    QWidget *widget = control(host, name);
    return takeOffer(widget, widget->rect().center());
}

/** The button on its ground, without the pointer. */
inline QImage pictureOf(TestHost &host, const QString &name)
{
    QTest::mouseMove(&host.window(), QPoint(600, 500));
    QCoreApplication::processEvents();
    const QToolButton *button = buttonOf(host, name);
    const QPoint place = button->mapTo(&host.window(), QPoint());
    return host.window().grab(QRect(place, button->size())).toImage();
}

} // namespace QuickAdd
