#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QStackedWidget>
#include <QToolBar>

namespace {

const QString everything =
    "<toolbar_appbutton>"
    "<menu name='menu_file' text='File'><menuitem action='f_open' text='Open'/>"
    "<menu name='menu_help' text='Help'><menuitem action='h_info' text='Info'/></menu></menu>"
    "<menu name='set' text='Set'><menuitem action='s_one' text='One'/></menu></toolbar_appbutton>"
    "<toolbar_quickaccessbar><button action='qbar_f_open' text='Open' checkable='true'/>"
    "<button action='qt_set' tooltip='Customise'/></toolbar_quickaccessbar>"
    "<toolbar_tabbar><tabbutton name='t_one' text='One' checkable='true' checked='true'>"
    "<button action='plain' text='Plain'/><button action='slow' text='Slow' doubleclick='true'/>"
    "<menu name='drop' text='Drop' checkable='true'><menuitem action='d_one' text='One'/>"
    "<menu name='d_more' text='More'><menuitem action='d_two' text='Two'/></menu></menu>"
    "<menu name='again' text='Again' checkable='true' index='1'><menuitem action='a_one' "
    "text='One'/></menu>"
    "<lineedit name='d_gotopage' text='/'/></tabbutton>"
    "<tabbutton name='t_two' text='Two' checkable='true'><button action='other' text='Other'/>"
    "</tabbutton></toolbar_tabbar>"
    "<toolbar_searchbar><lineedit action='st_input' tooltip='Find'/><button action='st_prev'/>"
    "<button action='st_next'/><button action='st_set' tooltip='Options'>"
    "<menuitem action='st_nocase' text='Case'/></button></toolbar_searchbar>"
    "<toolbar_addtional><button action='e_preference'/><button action='t_fold' tooltip='Fold'/>"
    "</toolbar_addtional>";

void end(const QString &who, TestHost &host)
{
    if (who == "window")
        host.deleteWindow();
    else if (who == "facade")
        host.deleteFacade();
    else if (who == "toolbar")
        delete host.toolBar();
    else
        delete host.find<QToolBar>("mrtoolbar");
}

} // namespace

/** Who dies first, and what goes on at that moment. */
class LifetimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSurviveEveryOrderOfDeletion_data()
    {
        QTest::addColumn<QString>("who");
        // Without one, there is only the wait for a second click.
        QTest::addColumn<QString>("openMenuOf");
        for (const char *who : {"window", "facade", "toolbar", "host tool bar"}) {
            for (const char *button : {"", "menu_file", "ab_set", "qt_set", "drop", "st_set"})
                QTest::addRow("%s, menu of '%s'", who, button) << who << button;
        }
    }

    void shouldSurviveEveryOrderOfDeletion()
    {
        QFETCH(QString, who);
        QFETCH(QString, openMenuOf);
        TestHost host(everything);
        host.showEnabled();
        const QSignalSpy active(host.toolBar(), &NewToolBar::DoActive);
        QStringList heard;
        connect(&host.facade(), &MRToolBar::DoActive, this,
                [&heard](const QString &name) { heard.append(name); });

        host.action("slow")->trigger();
        bool isDead = openMenuOf.isEmpty();
        if (isDead) {
            end(who, host);
        } else {
            whenMenuPops([&](QMenu *) {
                isDead = true;
                end(who, host);
            });
            // The button may die in its own click, so none of the test's own code waits in it.
            QMetaObject::invokeMethod(host.find<QAbstractButton>(openMenuOf), "click",
                                      Qt::QueuedConnection);
            QTRY_VERIFY(isDead);
        }
        runDeferredDeletes();
        QTest::qWait(300);
        QVERIFY2(heard.isEmpty(), "The host has heard from the dead");
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(active.count(), who == "facade" ? 1 : 0);
        if (who.endsWith("bar"))
            QVERIFY2(host.window().findChildren<QToolBar *>().isEmpty(), "An empty strip stays");
        if (who != "facade")
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
        const auto end = [toolBar] { delete toolBar; };
        connect(&host.facade(), &MRToolBar::DoActive, this, end);
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, this, end);
        connect(&host.facade(), &MRToolBar::DoSearchContent, this, end);
        connect(&host.facade(), &MRToolBar::DoGotoPage, this, end);

        if (auto *button = host.find<QAbstractButton>(control)) {
            button->click();
        } else if (auto *field = host.find<QLineEdit>(control)) {
            field->setText("2");
            QTest::keyClick(field, Qt::Key_Return);
        } else {
            auto *action = host.find<QAction>(control);
            action->setEnabled(true); // Menus and quick buttons wait for the host's answer.
            action->trigger();
        }
        QVERIFY2(!toolBar, "The handler was not called");
        runDeferredDeletes();
        QVERIFY(!host.find<QToolBar>("mrtoolbar"));
    }

    void shouldWorkWithoutAUsableDescription_data()
    {
        QTest::addColumn<QByteArray>("xml");
        const QByteArray section = "<toolbar_tabbar><tabbutton name='t'/></toolbar_tabbar>";
        QTest::newRow("another root") << "<config prefix=''>" + section + "</config>";
        QTest::newRow("no prefix") << "<uiconfig>" + section + "</uiconfig>";
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
