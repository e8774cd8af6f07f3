// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "Screen.h"

#include <QCursor>
#include <QMainWindow>
#include <QScreen>
#include <QTest>

void Screen::restPointer(QMainWindow &window)
{
    const QPoint place(window.width() / 2, window.height() - 20);
    QCursor::setPos(window.mapToGlobal(place));
    QTest::mouseMove(&window, place);
}

QPixmap Screen::picture(const QMainWindow &window, const QRect &area)
{
    constexpr int settleTime = 90;
    QTest::qWait(settleTime);
    // The screen, not the window: menus are windows of their own.
    return window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
}
