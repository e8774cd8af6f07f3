// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Menus.h"

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QTimer>

void whenMenuPops(const std::function<void(QMenu *)> &action)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        timer->stop();
        timer->deleteLater();
        const QPointer<QMenu> guarded(menu);
        action(menu);
        if (guarded)
            guarded->close();
    });
    timer->start(20);
}

QAction *entryOf(const QMenu *menu, const QString &name)
{
    const QList<QAction *> entries = menu->actions();
    for (QAction *entry : entries) {
        if ((entry->menu() ? entry->menu()->objectName() : entry->objectName()) == name)
            return entry;
    }
    return nullptr;
}

void clickEntry(QMenu *menu, QAction *entry)
{
    const QPoint place = menu->actionGeometry(entry).center();
    QTest::mouseMove(menu, place);
    QTest::mouseClick(menu, Qt::LeftButton, {}, place);
}

void clickEntries(QMenu *menu, const QStringList &names)
{
    for (const QString &name : names) {
        QAction *entry = entryOf(menu, name);
        QVERIFY2(entry, qPrintable(name));
        const QPointer<QMenu> subMenu = entry->menu();
        clickEntry(menu, entry); // A command may delete the menu and the entry.
        if (name == names.last())
            return;
        QTRY_VERIFY(subMenu->isVisible());
        menu = subMenu;
    }
}
