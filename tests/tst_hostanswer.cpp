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
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace {

using namespace Describe;

const QString everyMenu =
    section("appbutton",
            menu("menu_file", item("f_open") + menu("menu_more", item("f_more"))
                                  + menu("f_openrecent", item("no_file") + item("f_clearhistory")))
                + menu("set", item("s_one")))
    + section("quickaccessbar", button("qbar_f_save") + button("qbar_f_print"))
    + row(
        menu("drop", item("d_one") + menu("d_more", item("d_two")), "checkable='true'")
        + group("two", menu("group", item("g_one"), "checkable='true' index='1' switchable='true'"))
        + comboBox("v_zoom", choice("vzmode_10p", "10%") + choice("vzmode_50p", "50%"),
                   "editable='true' index='1'"));

/** How the user chooses a command: the control that opens the menu, then the entries. */
struct MenuPath
{
    QString opener;
    QStringList entries;
};

const QMap<QString, MenuPath> menuPaths{
    {"row", {"drop", {"d_one"}}},
    {"sub-menu of a row", {"drop", {"d_more", "d_two"}}},
    {"group", {"group", {"g_one"}}},
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
        QTest::keyPress(menu,
                        Qt::Key_Return); // The menu may be deleted before the key is released.
        if (!subMenu)
            return;
        QTRY_VERIFY(subMenu->isVisible());
        menu = subMenu;
    }
}

void chooseZoom(const QComboBox *box, bool byKeys)
{
    QAbstractItemView *list = box->view();
    const QModelIndex entry = list->model()->index(1, 0);
    list->setCurrentIndex(entry);
    if (byKeys)
        QTest::keyPress(list, Qt::Key_Return);
    else
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
}

} // namespace

/** Deletion by the host in a slot that a choice has called, also in a nested event loop. */
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
        for (const QString &choice : menuPaths.keys() + QStringList{"zoom list", "typed zoom"}) {
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
        TestHost host(everyMenu);
        prepare(host);
        const QPointer<NewToolBar> toolBar = host.toolBar();
        const auto answer = [&] {
            ++m_answers;
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

        m_answers = 0;
        use(host, choice, byKeys);
        QTRY_COMPARE(m_answers, 1);
        runDeferredDeletes();
        QVERIFY(!toolBar);
        const QWidgetList widgets = QApplication::allWidgets();
        for (const QWidget *widget : widgets)
            QVERIFY2(!widget->property("intoolbar").isValid() && !widget->inherits("QMenu"),
                     qPrintable("left behind: " + widget->objectName()));
    }

private:
    /** Shows the host with all menus filled and all commands enabled. */
    static void prepare(TestHost &host)
    {
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        host.facade().DoUpdateRecentFileSlot({"/one.ofd"});
        host.showEnabled();
        host.enableEverything();
        auto *quickBar = host.find<QToolBar>("toolbar_quickaccessbar");
        quickBar->setMaximumWidth(quickBar->sizeHint().width() * 2 / 3);
        QTRY_VERIFY(quickBar->findChild<QToolButton *>("qt_toolbar_ext_button")->isVisible());
    }

    static void use(TestHost &host, const QString &choice, bool byKeys)
    {
        auto *box = host.find<QComboBox>("v_zoom");
        if (choice == "typed zoom") {
            box->setFocus();
            box->lineEdit()->setText("37");
            QTest::keyPress(box, byKeys ? Qt::Key_Return : Qt::Key_Enter);
        } else if (choice == "zoom list") {
            box->showPopup();
            QTRY_VERIFY(box->view()->isVisible());
            chooseZoom(box, byKeys);
        } else {
            const MenuPath path = menuPaths.value(choice);
            whenMenuPops([path, byKeys](QMenu *menu) {
                byKeys ? pressEntries(menu, path.entries) : clickEntries(menu, path.entries);
            });
            // The click may delete the button, so the test does not call click() itself.
            auto *opener = openerOf(host, path.opener);
            const bool isSplit = qobject_cast<QToolButton *>(opener);
            QMetaObject::invokeMethod(opener, isSplit ? "showMenu" : "click", Qt::QueuedConnection);
        }
    }

    static QAbstractButton *openerOf(const TestHost &host, const QString &name)
    {
        const QString bar = "toolbar_quickaccessbar";
        return name.startsWith("qt_toolbar")
                   ? host.find<QToolBar>(bar)->findChild<QToolButton *>(name)
                   : host.find<QAbstractButton>(name);
    }

    static void deleteBy(const QString &way, TestHost &host)
    {
        QMainWindow &window = host.window();
        if (way == "delete window and facade")
            host.deleteFacade();
        if (way == "delete window later") {
            host.releaseWindow()->deleteLater();
        } else if (way == "close window") {
            host.releaseWindow()->setAttribute(Qt::WA_DeleteOnClose);
            window.close();
        } else if (way == "delete toolbar") {
            delete host.toolBar();
        } else if (way == "delete strip") {
            delete host.find<QToolBar>("mrtoolbar");
        } else {
            host.deleteWindow();
        }
    }

    int m_answers = 0;
};

QTEST_MAIN(HostAnswerTest)
#include "tst_hostanswer.moc"
