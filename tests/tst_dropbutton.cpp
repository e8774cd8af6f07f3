// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Icons.h"
#include "tests/support/Menus.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/HoverSheets.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QMenu>
#include <QToolBar>

#include <memory>

namespace {

/** A row outside a main window, with a drop button that has three shapes in its menu. */
class Row
{
public:
    Row()
        : menu(&window)
        , row(new QToolBar(&window))
        , action(new MRDropButtonAction(row, &window))
    {
        window.resize(400, 200);
        row->resize(400, 60);
        line = menu.addAction(colouredIcon(Qt::red), QStringLiteral("Line"));
        oval = menu.addAction(colouredIcon(Qt::blue), QStringLiteral("Oval"));
        plain = menu.addAction(QStringLiteral("Plain"));
        action->SetText(QStringLiteral("Shapes"));
        action->SetIcon(colouredIcon(Qt::green));
        action->SetMenu(&menu);
        action->SetCheckable(true);
        action->SetSwichable(true);
    }

    /** Puts the button on the row and a copy into a menu, as the row does if it is too narrow. */
    void addWithCopy()
    {
        row->addAction(action);
        extendMenu = std::make_unique<QMenu>(&window);
        extendMenu->addAction(action);
        copy = extendMenu->findChild<MRDropButton *>();
        QVERIFY(button() && copy);
    }

    void showWithButton()
    {
        row->addAction(action);
        show();
    }
    void show()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    MRDropButton *button() const { return action->GetWidget(); }

    QWidget window;
    QMenu menu;
    QToolBar *row;
    MRDropButtonAction *action;
    QAction *line = nullptr;
    QAction *oval = nullptr;
    QAction *plain = nullptr;
    std::unique_ptr<QMenu> extendMenu;
    QPointer<MRDropButton> copy;
};

} // namespace

/** The drop button on a row, and its copy in the overflow menu of the row. */
class DropButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { movePointerAway(); }

    void shouldShowTheChosenEntryAndRepeatItOnAClick()
    {
        Row fixture;
        fixture.showWithButton();
        MRDropButton *button = fixture.button();
        const QSignalSpy repeated(fixture.line, &QAction::triggered);
        fixture.line->setCheckable(true);
        fixture.line->trigger();
        QCOMPARE(button->text(), QStringLiteral("Line   "));
        QCOMPARE(shownColour(*button), QColor(Qt::red));
        QVERIFY(button->isChecked());
        QCOMPARE(button->GetCurrentAction(), fixture.line);
        QTest::mouseClick(button, Qt::LeftButton, {}, bodyOf(button));
        QCOMPARE(repeated.count(), 2);
        QVERIFY(button->isChecked() && fixture.line->isChecked());
        // An entry without an icon does not change the icon of the button.
        fixture.plain->trigger();
        QCOMPARE(button->text(), QStringLiteral("Plain   "));
        QCOMPARE(shownColour(*button), QColor(Qt::red));
    }

    void shouldOpenTheMenuByKeyAndWithNothingToRepeat()
    {
        for (const QString entry : {"none", "disabled", "deleted", "usable"}) {
            Row fixture;
            fixture.showWithButton();
            MRDropButton *button = fixture.button();
            const QSignalSpy triggered(&fixture.menu, &QMenu::triggered);
            if (entry != "none")
                button->SetAction(fixture.line);
            fixture.line->setEnabled(entry != "disabled");
            if (entry == "deleted")
                delete fixture.line;
            QMenu *popped = nullptr;
            whenMenuPops([&popped](QMenu *menu) { popped = menu; });
            if (entry == "usable")
                QTest::keyClick(button, Qt::Key_Down, Qt::AltModifier);
            else
                QTest::mouseClick(button, Qt::LeftButton, {}, bodyOf(button));
            QTRY_COMPARE(popped, &fixture.menu);
            QCOMPARE(triggered.count(), 0);
        }
    }

    void shouldGoBackOneSwitchOnReset()
    {
        Row fixture;
        fixture.addWithCopy();
        fixture.line->trigger();
        fixture.oval->trigger();
        QCoreApplication::processEvents();
        fixture.button()->Reset();
        QCOMPARE(fixture.button()->text(), QStringLiteral("Line   "));
        QCOMPARE(fixture.copy->text(), QStringLiteral("    Line"));
        QCOMPARE(shownColour(*fixture.button()), QColor(Qt::red));
        QCOMPARE(shownColour(*fixture.copy), QColor(Qt::red));
        QVERIFY(!fixture.button()->GetCurrentAction() && !fixture.copy->GetCurrentAction());
    }

    void shouldKeepTheCopyInStepWithTheRow()
    {
        Row fixture;
        fixture.action->SetAction(fixture.line); // Does not check the entry.
        fixture.addWithCopy();
        MRDropButton *button = fixture.button();
        QCOMPARE(button->text(), QStringLiteral("Line   "));
        QCOMPARE(fixture.copy->text(), QStringLiteral("    Line"));
        QCOMPARE(fixture.copy->popupMode(), QToolButton::MenuButtonPopup);
        QVERIFY(!button->isChecked() && !fixture.copy->isChecked());
        QCOMPARE(button->property("position").toString(), QStringLiteral("toolbar"));
        QCOMPARE(fixture.copy->property("position").toString(), QStringLiteral("toolbarextend"));
        fixture.oval->trigger();
        QCOMPARE(fixture.copy->text(), QStringLiteral("    Oval"));
        QVERIFY(button->isChecked() && fixture.copy->isChecked());
        button->setChecked(false);
        QVERIFY(!fixture.copy->isChecked());
        fixture.copy->setChecked(true);
        QVERIFY(button->isChecked());
        button->DoSwitchSlot(fixture.plain);
        QTRY_COMPARE(fixture.copy->GetCurrentAction(), fixture.plain);
        button->setEnabled(false);
        QVERIFY(!fixture.copy->isEnabled());
    }

    void shouldEnableAndShowEveryButtonOfTheAction()
    {
        Row fixture;
        fixture.addWithCopy();
        fixture.show();
        // Also on a disabled row.
        fixture.row->setEnabled(false);
        fixture.action->setEnabled(false);
        fixture.row->setEnabled(true);
        QVERIFY(!fixture.button()->isEnabled() && !fixture.copy->isEnabled());
        fixture.action->setEnabled(true);
        fixture.button()->setEnabled(false); // The state of the action overrides this.
        fixture.action->setEnabled(true);
        QVERIFY(fixture.button()->isEnabled() && fixture.copy->isEnabled());
        fixture.action->setVisible(false);
        QVERIFY(fixture.button()->isHidden() && fixture.copy->isHidden());
        fixture.action->setVisible(true);
        QTRY_VERIFY(!fixture.button()->isHidden() && !fixture.copy->isHidden());
    }

    void shouldAllowTheExtendMenuToBeDeletedAndMadeAgain()
    {
        Row fixture;
        fixture.addWithCopy();
        fixture.extendMenu.reset();
        QVERIFY(!fixture.copy && !fixture.action->GetExtendMenu());
        fixture.line->trigger();
        fixture.action->DoDelayCloseMenuSlot();
        fixture.action->setEnabled(false);
        fixture.addWithCopy();
        QCOMPARE(fixture.action->GetExtendMenu(), fixture.extendMenu.get());
        QCOMPARE(fixture.copy->GetCurrentAction(), fixture.line);
        QVERIFY(fixture.copy->isChecked() && !fixture.copy->isEnabled());
        delete fixture.button();
        QVERIFY(!fixture.action->GetWidget());
        fixture.oval->trigger();
        QCOMPARE(fixture.copy->GetCurrentAction(), fixture.oval);
    }

    void shouldOfferAWorkingCopyOnANarrowRow()
    {
        Row fixture;
        for (int i = 0; i < 4; ++i)
            fixture.row->addAction(QStringLiteral("A rather long command"));
        fixture.row->addAction(fixture.action);
        fixture.row->addAction(QStringLiteral("Last"));
        fixture.row->resize(200, 60);
        fixture.show();
        auto *extension =
            fixture.row->findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"));
        QTRY_VERIFY(extension->isVisible());
        QTRY_VERIFY(fixture.button()->isHidden());
        QVERIFY(extension->menu());

        // Showing the action does not move the button from the overflow menu to the row.
        fixture.action->setVisible(true);
        QTRY_VERIFY(fixture.button()->isHidden());

        whenMenuPops([&fixture](QMenu *menu) {
            fixture.copy = menu->findChild<MRDropButton *>();
            QVERIFY(fixture.copy && fixture.copy->isVisible());
            fixture.oval->trigger();
            QVERIFY(!menu->isVisible());
        });
        extension->showMenu();
        QTRY_COMPARE(fixture.button()->text(), QStringLiteral("Oval   "));
        QVERIFY(!fixture.copy || fixture.copy->isChecked());
    }

    void shouldStyleTheCopyAndItsMenuByTheSkin()
    {
        QStringList sheets;
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            Row fixture;
            fixture.addWithCopy();
            sheets.append(fixture.copy->styleSheet() + fixture.extendMenu->styleSheet());
            QVERIFY2(!sheets.last().contains(QLatin1Char('%')), "A length has not been filled in");
            QVERIFY(fixture.extendMenu->minimumWidth() > 80);
        }
        QVERIFY(sheets.first().contains("marodi") && sheets.last().contains("lum"));
    }

    void shouldHighlightTheArrowOrTheBodyUnderThePointer()
    {
        using Kind = std::pair<int, bool>;
        for (const auto &[skin, isSplit] : {Kind{marodi, true}, {lum, true}, {lum, false}}) {
            const SkinChoice choice(skin);
            Row fixture;
            fixture.action->SetCheckable(isSplit);
            fixture.showWithButton();
            MRDropButton *button = fixture.button();
            // The size on a row, because the style sheets alone would move the arrow.
            button->setFixedSize(90, 50);
            const QString body = HoverSheets::dropButton(false, false, skin == lum, 1.0);
            const QString arrow = HoverSheets::dropButton(false, isSplit, skin == lum, 1.0);
            QTest::mouseMove(button, bodyOf(button));
            QTRY_COMPARE(button->styleSheet(), body);
            QTest::mouseMove(button, arrowOf(button));
            QTRY_COMPARE(button->styleSheet(), arrow);
            // A move of the pointer sets the style sheet again.
            button->setStyleSheet(QString());
            QTest::mouseMove(button, arrowOf(button) + QPoint(0, 1));
            QTRY_COMPARE(button->styleSheet(), arrow);
            movePointerAway();
            QTRY_VERIFY(button->styleSheet().isEmpty());
        }
    }

    void shouldRestoreTheSheetOfTheCopyWhenThePointerLeaves()
    {
        Row fixture;
        MRDropButton button(nullptr, &fixture.window, QStringLiteral("Copy"), {}, {}, {});
        button.SetInHideFlag(true);
        button.setMouseTracking(true);
        button.setGeometry(50, 80, 120, 40);
        button.setStyleSheet(QStringLiteral("QToolButton{height:2em;}"));
        fixture.show();
        QTest::mouseMove(&button, bodyOf(&button));
        QTRY_COMPARE(button.styleSheet(),
                     HoverSheets::dropButton(true, false, false, button.physicalDpiX() / 96.0));
        movePointerAway();
        QTRY_COMPARE(button.styleSheet(), QStringLiteral("QToolButton{height:2em;}"));
    }
};

QTEST_MAIN(DropButtonTest)
#include "tst_dropbutton.moc"
