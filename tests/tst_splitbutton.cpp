// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/EventCounter.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QMenu>

/** What drop buttons and group buttons have in common. */
class SplitButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStyleItselfOnlyWhenItLooksDifferent()
    {
        const auto host = TestHost::withFile(SHOWCASE);
        host->showEnabled();
        MRDropButton *button = nullptr;
        const QList<MRDropButton *> buttons = host->toolBar()->findChildren<MRDropButton *>();
        for (MRDropButton *candidate : buttons) {
            if (candidate->isVisible() && candidate->popupMode() == QToolButton::MenuButtonPopup)
                button = candidate;
        }
        QVERIFY(button);
        movePointerAway();
        EventCounter styles(button, {QEvent::StyleChange});
        const auto wander = [button, &styles](const QPoint &place) {
            for (const int step : {0, 1, 2}) {
                QTest::mouseMove(button, place + QPoint(0, step));
                QTest::qWait(20);
            }
            return styles.sinceLastAsked();
        };
        wander(bodyOf(button));
        QTRY_VERIFY(!button->styleSheet().isEmpty());
        QCOMPARE(wander(bodyOf(button)), 0);
        QCOMPARE(wander(arrowOf(button)), 1);
        QCOMPARE(wander(arrowOf(button)), 0);

        const QString lightSheet = button->styleSheet();
        host->facade().DoSetSkinStyleSlot({{"scheme", "dark"}});
        styles.sinceLastAsked();
        QCOMPARE(wander(arrowOf(button)), 1);
        QVERIFY(button->styleSheet() != lightSheet);
        movePointerAway();
        QTRY_VERIFY(button->styleSheet().isEmpty());
        wander(arrowOf(button));
        QTRY_VERIFY2(!button->styleSheet().isEmpty(),
                     "It looks the same after the pointer's return");
    }
};

QTEST_MAIN(SplitButtonTest)
#include "tst_splitbutton.moc"
