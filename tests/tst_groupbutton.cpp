#include "tests/support/Icons.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/HoverSheets.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/ObjectTree.h"

#include <QCryptographicHash>
#include <QMenu>

/** The buttons of a group, and what any button wears while the pointer is over it. */
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
        QCOMPARE(shownColour(button), QColor(Qt::green));

        button.SetDefaultAction(&drawn);
        QCOMPARE(shownColour(button), QColor(Qt::red));
        bare.toggle(); // What the button showed before has no say any more.
        button.SetDefaultAction(nullptr);
        QCOMPARE(button.defaultAction(), &drawn);
        QCOMPARE(shownColour(button), QColor(Qt::red));
    }

    void hoveringTellsTheArrowFromTheBody()
    {
        QMenu menu;
        menu.addAction(QStringLiteral("Entry"));
        using Kind = std::pair<int, bool>;
        for (const auto &[skin, hasMenu] : {Kind{marodi, true}, {lum, true}, {marodi, false}}) {
            const SkinChoice choice(skin);
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
            QTest::mouseMove(&button, bodyOf(&button));
            QTest::qWait(50);
            QCOMPARE(button.styleSheet(), initial);

            button.setCheckable(true);
            QTest::mouseMove(&button, bodyOf(&button) + QPoint(1, 0));
            QTRY_COMPARE(button.styleSheet(), HoverSheets::groupButton(false, skin == lum));
            button.setStyleSheet(QString());
            QTest::mouseMove(&button, arrowOf(&button)); // Where there is no menu, there is none.
            QTRY_COMPARE(button.styleSheet(), HoverSheets::groupButton(hasMenu, skin == lum));

            movePointerAway();
            QTRY_COMPARE(button.styleSheet(),
                         initial + QStringLiteral(" QToolButton:checked{background:#D3D3D3;}"));
        }
    }

    void everyHoverSheetIsKeptToTheLetter()
    {
        using HoverSheets::dropButton;
        using HoverSheets::groupButton;
        const QMap<QString, QByteArray> digests{
            {dropButton(false, true, false, 1.0), "d6a8cc4d4b46"},  // On a row, over the arrow,
            {dropButton(false, false, false, 1.0), "5ae8e9b6b970"}, // and over the body.
            {dropButton(false, true, true, 1.0), "ea4bf116cc77"},   // The same in lum.
            {dropButton(false, false, true, 1.0), "1388230be9bc"},
            {dropButton(true, true, false, 1.0), "391456b314d3"}, // In a menu.
            {dropButton(true, false, false, 1.0), "7673a34ed06d"},
            {dropButton(true, true, true, 1.0), "8778541cfa0d"},
            {dropButton(true, false, true, 1.0), "7cb3227d6306"},
            {groupButton(true, false), "c8fa270d698c"},
            {groupButton(false, false), "0cd944d5c3b4"}};
        for (auto sheet = digests.begin(); sheet != digests.end(); ++sheet) {
            const QByteArray digest =
                QCryptographicHash::hash(sheet.key().toUtf8(), QCryptographicHash::Sha1).toHex();
            QVERIFY2(digest.startsWith(sheet.value()), qPrintable(sheet.key()));
        }
        QCOMPARE(digests.size(), 10);
        // In lum the two kinds of buttons wear the same.
        for (const bool isOverArrow : {true, false})
            QCOMPARE(groupButton(isOverArrow, true), dropButton(false, isOverArrow, true, 1.0));
    }

    void isChildrenFindsDescendantsAndNothingElse()
    {
        QObject root;
        auto *first = new QObject(&root);
        auto *last = new QObject(&root);
        auto *grandchild = new QObject(last);
        QVERIFY(isChildren(&root, last));
        QVERIFY(isChildren(&root, grandchild));
        QVERIFY(!isChildren(first, grandchild));
        QVERIFY(!isChildren(&root, &root));
        QVERIFY(!isChildren(&root, nullptr));
        QVERIFY(!isChildren(nullptr, &root));
    }
};

QTEST_MAIN(TestGroupButton)
#include "tst_groupbutton.moc"
