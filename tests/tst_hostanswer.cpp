// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace {

using namespace Describe;

/** How the user chooses a command: the control that opens the menu, then the entries. */
struct MenuPath
{
    QString opener;
    QStringList entries;
};

const QMap<QString, MenuPath> menuPaths{
    {"row", {"d_drop", {"d_b"}}},
    {"sub-menu of a row", {"d_drop", {"d_more", "d_two"}}},
    {"group", {"g_menu", {"g_a"}}},
    {"application", {"menu_file", {"f_open"}}},
    {"sub-menu of the application", {"menu_file", {"menu_more", "f_more"}}},
    {"recent file", {"menu_file", {"f_openrecent", "f_openrecentfile"}}},
    {"cleared history", {"menu_file", {"f_openrecent", "f_clearhistory"}}},
    {"set button", {"ab_set", {"s_one"}}},
    {"overflow of the quick access bar", {"qt_toolbar_ext_button", {"qbar_f_print"}}},
};

void pressEntries(QMenu *menu, const QStringList &names)
{
    for (const QString &name : names) {
        QAction *entry = entryOf(menu, name);
        QVERIFY2(entry, qPrintable(name));
        menu->setActiveAction(entry);
        const QPointer<QMenu> subMenu = entry->menu();
        // The menu may be deleted before the key is released.
        QTest::keyPress(menu, Qt::Key_Return);
        if (!subMenu)
            return;
        QTRY_VERIFY(subMenu->isVisible());
        menu = subMenu;
    }
}

void chooseZoom(QComboBox *box, bool byKeys)
{
    QAbstractItemView *list = box->view();
    box->showPopup();
    QTRY_VERIFY(list->isVisible());
    const QModelIndex entry = list->model()->index(1, 0);
    list->setCurrentIndex(entry);
    if (byKeys)
        QTest::keyPress(list, Qt::Key_Return);
    else
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
}

void openMenuLater(const TestHost &host, const QString &name)
{
    const bool isOverflow = name.startsWith("qt_toolbar");
    auto *opener =
        isOverflow
            ? host.find<QToolBar>("toolbar_quickaccessbar")->findChild<QAbstractButton *>(name)
            : host.find<QAbstractButton>(name);
    const bool isSplit = qobject_cast<QToolButton *>(opener);
    // The click may delete the button, so the test does not call click() itself.
    QMetaObject::invokeMethod(opener, isSplit ? "showMenu" : "click", Qt::QueuedConnection);
}

void use(TestHost &host, const QString &choice, bool byKeys)
{
    if (menuPaths.contains(choice)) {
        const MenuPath path = menuPaths.value(choice);
        whenMenuPops([path, byKeys](QMenu *menu) {
            byKeys ? pressEntries(menu, path.entries) : clickEntries(menu, path.entries);
        });
        openMenuLater(host, path.opener);
    } else if (choice == "zoom list") {
        chooseZoom(host.find<QComboBox>("v_zoom"), byKeys);
    } else if (auto *box = host.find<QComboBox>(choice)) {
        box->setFocus();
        box->lineEdit()->setText("37");
        QTest::keyPress(box, byKeys ? Qt::Key_Return : Qt::Key_Enter);
    } else if (auto *field = host.find<QLineEdit>(choice)) {
        field->setText("2");
        QTest::keyPress(field, byKeys ? Qt::Key_Return : Qt::Key_Enter);
    } else if (auto *button = host.find<QAbstractButton>(choice)) {
        button->click();
    } else {
        host.find<QAction>(choice)->trigger();
    }
}

void deleteBy(const QString &way, TestHost &host)
{
    QMainWindow &window = host.window();
    if (way == "delete window and facade")
        host.deleteFacade();
    if (way == "delete window later") {
        host.releaseWindow()->deleteLater();
    } else if (way == "close window") {
        host.releaseWindow()->setAttribute(Qt::WA_DeleteOnClose);
        window.close();
    } else if (way == "delete facade") {
        host.deleteFacade();
    } else if (way == "delete toolbar") {
        delete host.toolBar();
    } else if (way == "delete strip") {
        delete host.find<QToolBar>("mrtoolbar");
    } else {
        host.deleteWindow();
    }
}

} // namespace

/** Deletion by the host: in any order, with a menu open, and in a slot that a choice has called. */
class HostAnswerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setQuitOnLastWindowClosed(false); }

    void shouldLetTheHostDeleteItInItsAnswer_data()
    {
        QTest::addColumn<QString>("choice");
        QTest::addColumn<bool>("byKeys");
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("isAsked");
        const QStringList controls{"v_zoom", "zoom list", "second",   "g_one",      "two",
                                   "h_help", "st_next",   "st_input", "d_gotopage", "qbar_f_open"};
        for (const QString &choice : menuPaths.keys() + controls) {
            for (const bool byKeys : {false, true}) {
                for (const char *way :
                     {"delete window", "delete window later", "close window", "delete toolbar",
                      "delete strip", "delete window and facade"}) {
                    for (const bool isAsked : {false, true})
                        QTest::addRow("%s by %s, %s%s", qPrintable(choice),
                                      byKeys ? "keys" : "mouse", way, isAsked ? " when asked" : "")
                            << choice << byKeys << way << isAsked;
                }
            }
        }
    }

    void shouldLetTheHostDeleteItInItsAnswer()
    {
        QFETCH(QString, choice);
        QFETCH(bool, byKeys);
        QFETCH(QString, way);
        QFETCH(bool, isAsked);
        TestHost host(everything());
        prepare(host);
        const QPointer<NewToolBar> toolBar = host.toolBar();
        int answers = 0;
        const auto answer = [&] {
            ++answers;
            if (!isAsked) {
                deleteBy(way, host);
                return;
            }
            QMessageBox question(QMessageBox::Question, "Host", "Save changes?");
            QTimer::singleShot(0, &question, [&] {
                deleteBy(way, host);
                // Deferred deletions are run by the event loop of the message box.
                QTimer::singleShot(20, &question, &QDialog::reject);
            });
            question.exec();
            QVERIFY2(!toolBar, "The toolbar still exists after the message box");
        };
        connect(&host.facade(), &MRToolBar::DoActive, this, answer);
        connect(&host.facade(), &MRToolBar::DoOpenFile, this, answer);
        connect(&host.facade(), &MRToolBar::DoSetZoomMode, this, answer);
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, this, answer);
        connect(&host.facade(), &MRToolBar::DoSearchContent, this, answer);
        connect(&host.facade(), &MRToolBar::DoGotoPage, this, answer);
        use(host, choice, byKeys);
        QTRY_COMPARE(answers, 1);
        runDeferredDeletes();
        QVERIFY(!toolBar);
        const QWidgetList widgets = QApplication::allWidgets();
        for (const QWidget *widget : widgets)
            QVERIFY2(!widget->property("intoolbar").isValid() && !widget->inherits("QMenu"),
                     qPrintable("left behind: " + widget->objectName()));
    }

    void shouldAllowEveryOrderOfDeletion_data()
    {
        QTest::addColumn<QString>("way");
        // Empty: only the timer of the double click is running.
        QTest::addColumn<QString>("openMenuOf");
        for (const char *way :
             {"delete window", "delete facade", "delete toolbar", "delete strip"}) {
            for (const char *button : {"", "menu_file", "ab_set", "qt_set", "d_plain", "st_set"})
                QTest::addRow("%s, menu of '%s'", way, button) << way << button;
        }
    }

    void shouldAllowEveryOrderOfDeletion()
    {
        QFETCH(QString, way);
        QFETCH(QString, openMenuOf);
        TestHost host = TestHost::enabled(everything());
        const QSignalSpy active(host.toolBar(), &NewToolBar::DoActive);
        QStringList heard;
        connect(&host.facade(), &MRToolBar::DoActive, this,
                [&heard](const QString &name) { heard.append(name); });

        bool isDeleted = false;
        const auto deleteWhileACommandWaits = [&] {
            isDeleted = true;
            host.action("slow")->trigger();
            deleteBy(way, host);
        };
        if (openMenuOf.isEmpty()) {
            deleteWhileACommandWaits();
        } else {
            whenMenuPops([&](QMenu *) { deleteWhileACommandWaits(); });
            openMenuLater(host, openMenuOf);
            QTRY_VERIFY(isDeleted);
        }
        runDeferredDeletes();
        QTest::qWait(300);
        QVERIFY2(heard.isEmpty(), "A deleted toolbar has reported a command");
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(active.count(), way == "delete facade" ? 1 : 0);
        if (way == "delete toolbar" || way == "delete strip")
            QVERIFY2(host.window().findChildren<QToolBar *>().isEmpty(), "An empty strip remains");
        if (way != "delete facade")
            QVERIFY(!host.facade().IsSupportByToolBar("two"));
    }

    void shouldWorkWithoutAUsableDescription()
    {
        const QByteArray tabs = section("tabbar", tab("t", {})).toUtf8();
        for (const QByteArray &xml : {"<config prefix=''>" + tabs + "</config>",
                                      "<uiconfig>" + tabs + "</uiconfig>", QByteArray()}) {
            QDomDocument document;
            document.setContent(xml);
            QDomElement root = document.documentElement();
            QMainWindow window;
            MRToolBar facade(&window, root, {}, ToolBarLeft);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            auto *toolBar = window.findChild<NewToolBar *>();
            QVERIFY(toolBar && toolBar->isVisible() && !window.findChild<QAbstractButton *>("t"));
            QCOMPARE(window.findChild<QStackedWidget *>("tabwidget")->count(), 0);
            QVERIFY(!toolBar->InitMainToolBar("") && toolBar->InitMainToolBar("0"));
            toolBar->Inner_DoDelayLoadMenuSlot();
            for (QString name : {"toolbar_whole", "toolbar_maintoolbar", "toolbar_tabbar", "any"}) {
                facade.DoSetControlVisibleStateSlot(name, false);
                facade.DoSetControlUsableStateSlot(name, false);
                QVERIFY(!facade.GetCompositeEnable(name) && !facade.GetCompositeVisible(name));
            }
        }
    }

private:
    /** Shows the host with all menus filled, all commands enabled and something to search for. */
    static void prepare(TestHost &host)
    {
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        host.facade().DoUpdateRecentFileSlot({"/one.ofd"});
        host.facade().DoSetPageInfoSlot(1, 9);
        host.find<QLineEdit>("st_input")->setText("text");
        host.showEnabled();
        host.enableEverything();
        auto *quickBar = host.find<QToolBar>("toolbar_quickaccessbar");
        quickBar->setMaximumWidth(quickBar->sizeHint().width() * 2 / 3);
        QTRY_VERIFY(quickBar->findChild<QToolButton *>("qt_toolbar_ext_button")->isVisible());
    }
};

QTEST_MAIN(HostAnswerTest)
#include "tst_hostanswer.moc"
