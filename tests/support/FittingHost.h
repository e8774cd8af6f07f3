// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QLayout>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

inline QString shrink(int order)
{
    return QStringLiteral("icon='icon24/HandTool.svg' shrink='%1' ").arg(order);
}

inline constexpr int everythingMoves = 120;
inline constexpr int everythingFits = 2000;

inline QString shrinkingGroup()
{
    return QStringLiteral("<buttongroup name='gr' shrink='2'>%1</buttongroup>")
        .arg(Describe::button("group_one", "icon='icon24/HandTool.svg'")
             + Describe::button("group_two", "icon='icon24/HandTool.svg'")
             + Describe::menu("group_menu", Describe::item("group_entry"),
                              "icon='icon24/HandTool.svg'"));
}

inline QString shrinkingRow()
{
    const QString entries =
        Describe::item("choice_one", "checkable='true'") + Describe::item("choice_two");
    return Describe::button("stays") + "<sperator/>"
           + Describe::button("first", shrink(1) + "checkable='true'")
           + Describe::button("other", shrink(1) + "disabletip='not now'") + "<sperator/>"
           + Describe::menu("drop", entries,
                            shrink(3) + "checkable='true' switchable='true' index='2'")
           + Describe::menu("own", Describe::item("own_command") + Describe::item("own_other"),
                            shrink(3) + "checkable='true' withaction='true' index='1'")
           + shrinkingGroup() + "<sperator/>" + Describe::button("late", shrink(9))
           + Describe::field("number");
}

/** A host whose row may have any width, as its window is part of another one. */
class FittingHost : public TestHost
{
public:
    explicit FittingHost(const QString &controls = shrinkingRow(), const SkinMap &skin = {})
        : TestHost(Describe::row(controls), skin)
    {
        window().layout()->setSizeConstraint(QLayout::SetNoConstraint);
        window().setParent(&m_holder);
        m_holder.resize(2100, 200);
        enableRows();
        m_holder.show();
        window().show();
        m_holder.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_holder))
            qFatal("no window");
    }
    ~FittingHost() { window().setParent(nullptr); }

    void setWidth(int width)
    {
        window().resize(width, 150);
        QCoreApplication::sendPostedEvents();
    }

    MRMainToolBar *bar() const { return find<MRMainToolBar>("row"); }
    QToolButton *more() const { return find<QToolButton>("row_more"); }
    QMenu *menuOfMoved() const { return more()->menu(); }
    QRect screenRect(const QWidget *widget) const
    {
        return {widget->mapToGlobal(QPoint()), widget->size()};
    }
    bool isTooWide() const { return bar()->width() > bar()->parentWidget()->width(); }

    /** What stands on the row: the widths of its controls, in order. */
    QList<int> shownWidths() const
    {
        QList<int> widths;
        const QList<QAction *> places = bar()->actions();
        for (QAction *place : places) {
            const QWidget *widget = bar()->widgetForAction(place);
            widths.append(widget->isVisible() ? widget->width() : 0);
        }
        return widths;
    }

    /** The names of the entries; of those that open a menu, the text. */
    QStringList moved() const
    {
        QStringList names;
        const QList<QAction *> entries = menuOfMoved()->actions();
        for (const QAction *entry : entries) {
            if (entry->isSeparator())
                names.append("|");
            else
                names.append(entry->menu() ? entry->text() + " >" : entry->objectName());
        }
        return names;
    }

    qsizetype shownSeparators() const
    {
        const QList<QAction *> places = bar()->actions();
        return std::count_if(places.begin(), places.end(), [](const QAction *place) {
            return place->isSeparator() && place->isVisible();
        });
    }

    QToolButton *buttonOf(const QString &name) const
    {
        return qobject_cast<QToolButton *>(buttonOn(bar(), name));
    }

private:
    QWidget m_holder;
};
