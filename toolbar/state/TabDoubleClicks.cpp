// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/state/TabDoubleClicks.h"

#include "toolbar/state/ToolRows.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

TabDoubleClicks::TabDoubleClicks(ToolRows &rows, const QList<QAbstractButton *> &tabs,
                                 QObject *parent)
    : QObject(parent)
    , m_rows(rows)
{
    for (QAbstractButton *tab : tabs)
        tab->installEventFilter(this);
}

bool TabDoubleClicks::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    if (!isPress && event->type() != QEvent::MouseButtonDblClick)
        return false;
    auto *tab = qobject_cast<QAbstractButton *>(watched);
    const auto &mouse = *static_cast<QMouseEvent *>(event);
    if (!tab || mouse.button() != Qt::LeftButton)
        return false;

    // The second press of a double click comes as a press, too, before it is called one.
    const auto interval =
        static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const bool isSecond = m_tab == tab && mouse.timestamp() - m_time < interval;
    if (isPress) {
        if (!isSecond) {
            m_tab = tab;
            m_time = mouse.timestamp();
            m_wasFolded = m_rows.isFolded();
        }
        return false;
    }
    if (m_tab != tab)
        return false;
    m_tab.clear();
    // Otherwise its release would be a second click.
    tab->setDown(false);
    m_rows.setFolded(!m_wasFolded);
    return true;
}
