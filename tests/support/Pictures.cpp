// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Pictures.h"

#include "tests/support/TestHost.h"
#include "toolbar/skin/Contrast.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QMenu>

#include <algorithm>

void useForAWhile(TestHost &host)
{
    host.showEnabled();
    host.window().resize(1500, 700);
    host.toolBar()->Inner_DoDelayLoadMenuSlot();
    host.openEachTab([](const QString &) {});
    host.enableEverything();
    host.facade().DoSetPageInfoSlot(3, 12);
    host.facade().DoSetZoomModeSlot("vzmode_37p");
    host.facade().DoUpdateRecentFileSlot({"/tmp/one.ofd", "/tmp/two.ofd"});
    const QList<MRDropButton *> buttons = host.toolBar()->findChildren<MRDropButton *>();
    for (MRDropButton *button : buttons) {
        if (button->menu() && button->menu()->actions().size() > 1)
            button->DoSwitchSlot(button->menu()->actions().at(1));
    }
    QTest::mouseMove(&host.window(), host.window().rect().center());
    QTest::qWait(1);
}

QList<QImage> picturesOf(TestHost &host)
{
    QList<QImage> taken;
    host.openEachTab([&taken, &host](const QString &) {
        QTest::qWait(1);
        taken.append(host.toolBar()->grab().toImage());
    });
    const QList<QMenu *> menus = host.toolBar()->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (!menu->isEmpty() && !menu->objectName().isEmpty()) {
            menu->resize(menu->sizeHint());
            taken.append(menu->grab().toImage());
        }
    }
    return taken;
}

double bestContrast(const QImage &picture, const QColor &ground)
{
    double best = 1.0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            best = std::max(best, Contrast::ratio(picture.pixelColor(x, y), ground));
    }
    return best;
}
