// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QStackedWidget>
#include <QToolBar>

using namespace Describe;

namespace {

const QString everything =
    section("appbutton", menu("menu_file", item("f_open") + menu("menu_help", item("h_info")))
                             + menu("set", item("s_one")))
    + section("quickaccessbar", button("qbar_f_open", "checkable='true'") + button("qt_set"))
    + row(button("plain") + button("slow", "doubleclick='true'")
              + menu("drop", item("d_one") + menu("d_more", item("d_two")), "checkable='true'")
              + menu("again", item("a_one"), "checkable='true' index='1'")
              + field("d_gotopage", "text='/'"),
          tab("t_two", button("other")))
    + section("searchbar", field("st_input") + button("st_prev") + button("st_next")
                               + optionsButton("st_set", item("st_nocase")))
    + section("addtional", button("e_preference") + button("t_fold"));

void deletePart(const QString &part, TestHost &host)
{
    if (part == "window")
        host.deleteWindow();
    else if (part == "facade")
        host.deleteFacade();
    else if (part == "toolbar")
        delete host.toolBar();
    else
        delete host.find<QToolBar>("mrtoolbar");
}

} // namespace

/** The orders in which a host may delete window, facade and toolbar, also with a menu open. */
class LifetimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAllowEveryOrderOfDeletion_data()
    {
        QTest::addColumn<QString>("part");
        // Empty: only the timer of the double click is running.
        QTest::addColumn<QString>("openMenuOf");
        for (const char *part : {"window", "facade", "toolbar", "host bar"}) {
            for (const char *button : {"", "menu_file", "ab_set", "qt_set", "drop", "st_set"})
                QTest::addRow("%s, menu of '%s'", part, button) << part << button;
        }
    }

    void shouldAllowEveryOrderOfDeletion()
    {
        QFETCH(QString, part);
        QFETCH(QString, openMenuOf);
        TestHost host(everything);
        host.showEnabled();
        const QSignalSpy active(host.toolBar(), &NewToolBar::DoActive);
        QStringList heard;
        connect(&host.facade(), &MRToolBar::DoActive, this,
                [&heard](const QString &name) { heard.append(name); });

        host.action("slow")->trigger();
        bool isDeleted = openMenuOf.isEmpty();
        if (isDeleted) {
            deletePart(part, host);
        } else {
            whenMenuPops([&](QMenu *) {
                isDeleted = true;
                deletePart(part, host);
            });
            // The click may delete the button, so the test does not call click() itself.
            QMetaObject::invokeMethod(host.find<QAbstractButton>(openMenuOf), "click",
                                      Qt::QueuedConnection);
            QTRY_VERIFY(isDeleted);
        }
        runDeferredDeletes();
        QTest::qWait(300);
        QVERIFY2(heard.isEmpty(), "A deleted toolbar has reported a command");
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(active.count(), part == "facade" ? 1 : 0);
        if (part.endsWith("bar"))
            QVERIFY2(host.window().findChildren<QToolBar *>().isEmpty(), "An empty strip remains");
        if (part != "facade")
            QVERIFY(!host.facade().IsSupportByToolBar("plain"));
    }

    void shouldLetTheHostDeleteItInAHandler_data()
    {
        QTest::addColumn<QString>("control");
        for (const char *control :
             {"t_two", "menu_file", "ab_set", "plain", "again", "f_open", "qbar_f_open", "st_next",
              "st_input", "e_preference", "d_gotopage"})
            QTest::newRow(control) << control;
    }

    void shouldLetTheHostDeleteItInAHandler()
    {
        QFETCH(QString, control);
        TestHost host(everything);
        host.showEnabled();
        const QPointer<NewToolBar> toolBar = host.toolBar();
        if (control == "f_open")
            toolBar->Inner_DoDelayLoadMenuSlot();
        host.find<QLineEdit>("st_input")->setText("text");
        host.facade().DoSetPageInfoSlot(1, 9);
        const auto deleteIt = [toolBar] { delete toolBar; };
        connect(&host.facade(), &MRToolBar::DoActive, this, deleteIt);
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, this, deleteIt);
        connect(&host.facade(), &MRToolBar::DoSearchContent, this, deleteIt);
        connect(&host.facade(), &MRToolBar::DoGotoPage, this, deleteIt);

        if (auto *button = host.find<QAbstractButton>(control)) {
            button->click();
        } else if (auto *field = host.find<QLineEdit>(control)) {
            field->setText("2");
            QTest::keyClick(field, Qt::Key_Return);
        } else {
            auto *action = host.find<QAction>(control);
            action->setEnabled(true); // Entries and quick access buttons are disabled at first.
            action->trigger();
        }
        QVERIFY2(!toolBar, "The handler was not called");
        runDeferredDeletes();
        QVERIFY(!host.find<QToolBar>("mrtoolbar"));
    }

    void shouldWorkWithoutAUsableDescription_data()
    {
        QTest::addColumn<QByteArray>("xml");
        const QByteArray tabs = section("tabbar", tab("t", {})).toUtf8();
        QTest::newRow("another root") << "<config prefix=''>" + tabs + "</config>";
        QTest::newRow("no prefix") << "<uiconfig>" + tabs + "</uiconfig>";
        QTest::newRow("no document") << QByteArray();
    }

    void shouldWorkWithoutAUsableDescription()
    {
        QFETCH(QByteArray, xml);
        QDomDocument document;
        document.setContent(xml);
        QDomElement root = document.documentElement();
        QMainWindow window;
        MRToolBar facade(&window, root, {}, ToolBarLeft);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        auto *toolBar = window.findChild<NewToolBar *>();
        QVERIFY(toolBar && toolBar->isVisible());
        QCOMPARE(window.findChild<QStackedWidget *>("tabwidget")->count(), 0);
        QVERIFY(!window.findChild<QAbstractButton *>("t"));
        QVERIFY(!toolBar->InitMainToolBar("") && toolBar->InitMainToolBar("0"));
        toolBar->Inner_DoDelayLoadMenuSlot();
        for (QString name : {"toolbar_whole", "toolbar_maintoolbar", "toolbar_tabbar", "any"}) {
            facade.DoSetControlVisibleStateSlot(name, false);
            facade.DoSetControlUsableStateSlot(name, false);
            QVERIFY(!facade.GetCompositeEnable(name) && !facade.GetCompositeVisible(name));
        }
    }
};

QTEST_MAIN(LifetimeTest)
#include "tst_lifetime.moc"
