#include "tests/support/Icons.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/HoverSheets.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/ObjectTree.h"

#include <QMenu>

class TestGroupButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { movePointerAway(); }

    void theOwnIconStandsInForActionsWithoutOne()
    {
        QAction bare(QStringLiteral("Bare"));
        bare.setCheckable(true);
        QAction drawn(colouredIcon(Qt::red), QStringLiteral("Drawn"));
        MRGroupButton button(nullptr);
        button.SetIcon(colouredIcon(Qt::green));

        button.SetDefaultAction(&bare);
        QCOMPARE(button.text(), QStringLiteral("Bare"));
        QCOMPARE(shownColour(button), QColor(Qt::green));
        bare.toggle();
        QVERIFY(button.isChecked());
        QCOMPARE(shownColour(button), QColor(Qt::green));
        bare.setEnabled(false);
        QVERIFY(!button.isEnabled());
        QCOMPARE(shownColour(button), QColor(Qt::green));

        button.SetDefaultAction(&drawn);
        QCOMPARE(shownColour(button), QColor(Qt::red));
        bare.toggle(); // What the button showed before has no say any more.
        button.SetDefaultAction(nullptr);
        QCOMPARE(button.defaultAction(), &drawn);
        QCOMPARE(shownColour(button), QColor(Qt::red));
    }

    void hoveringTellsTheArrowFromTheBody_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<bool>("hasMenu");
        QTest::newRow("marodi") << marodi << true;
        QTest::newRow("lum") << lum << true;
        QTest::newRow("no menu, no arrow") << marodi << false;
    }

    void hoveringTellsTheArrowFromTheBody()
    {
        QFETCH(int, skin);
        QFETCH(bool, hasMenu);
        const SkinChoice choice(skin);
        QMenu menu;
        menu.addAction(QStringLiteral("Entry"));
        QWidget window;
        window.resize(300, 200);
        MRGroupButton button(&window);
        button.setGeometry(60, 60, 100, 40);
        button.setPopupMode(QToolButton::MenuButtonPopup);
        button.setMenu(hasMenu ? &menu : nullptr);
        const QString initial = button.styleSheet();
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        // Nothing moves until there is a state to show.
        QTest::mouseMove(&button, {10, 20});
        QTest::qWait(50);
        QCOMPARE(button.styleSheet(), initial);

        button.setCheckable(true);
        QTest::mouseMove(&button, {12, 20});
        QTRY_COMPARE(button.styleSheet(), HoverSheets::groupButton(false, skin == lum));
        button.setStyleSheet(QString());
        QTest::mouseMove(&button, {button.width() - 4, 20});
        QTRY_COMPARE(button.styleSheet(), HoverSheets::groupButton(hasMenu, skin == lum));

        movePointerAway();
        QTRY_COMPARE(button.styleSheet(),
                     initial + QStringLiteral(" QToolButton:checked{background:#D3D3D3;}"));
    }

    void isChildrenFindsDescendantsAndNothingElse()
    {
        QObject root;
        auto *first = new QObject(&root);
        auto *last = new QObject(&root);
        auto *grandchild = new QObject(last);
        QVERIFY(isChildren(&root, first));
        QVERIFY(isChildren(&root, last));
        QVERIFY(isChildren(&root, grandchild));
        QVERIFY(!isChildren(first, grandchild));
        QVERIFY(!isChildren(&root, &root));
        QVERIFY(!isChildren(last, &root));
        QVERIFY(!isChildren(&root, nullptr));
        QVERIFY(!isChildren(nullptr, &root));
    }
};

QTEST_MAIN(TestGroupButton)
#include "tst_groupbutton.moc"
