#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QFileInfo>
#include <QMenu>

namespace {

const QString row = "<toolbar_tabbar><tabbutton name='t' checked='true'>"
                    "<button action='f_open' text='Open'/>"
                    "<button action='f_clearhistory' text='Clear'/><menu name='tools' text='Tools'>"
                    "<menuitem action='x_tool' text='Tool'/></menu></tabbutton></toolbar_tabbar>";
const QString recentItems = "<menuitem action='no_file' text='None'/>"
                            "<menuitem action='f_clearhistory' text='Clear'/>";
const QString setWithMenu =
    "<menu name='set_menu' text='Set'><menuitem action='s_one' text='One'/></menu>";
const QString fileItems =
    "<menuitem action='f_save' text='Save'/><menuitem action='f_open' text='Open'/><sperator/>"
    "<menu name='menu_help' text='Help'><menuitem action='h_info' text='Info'/></menu>";

QString appSection(const QString &items, const QString &otherRecords = "")
{
    return QString("<toolbar_appbutton><menu name='menu_file' text='File'>%1</menu>%2"
                   "</toolbar_appbutton>")
        .arg(items, otherRecords);
}

QString recentSection(const QString &items)
{
    return appSection("<menu name='menu_f_openrecent' text='Recent'>" + items + "</menu>");
}

QStringList shownTexts(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> entries = menu->actions();
    for (const QAction *entry : entries) {
        if (entry->isVisible())
            texts.append(entry->text());
    }
    return texts;
}

} // namespace

/** The application button, the set button and their menus. */
class AppMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLoadItsMenusOnceWhenFirstOpened()
    {
        TestHost host(appSection(
            fileItems, setWithMenu + "<menu name='third'><menuitem action='m3'/></menu>"));
        host.show();
        const QSignalSpy requests(&host.facade(), &MRToolBar::DoRequestAuthority);
        QVERIFY(!host.facade().IsSupportByToolBar("h_info"));
        for (int opening = 1; opening <= 2; ++opening) {
            qsizetype entries = 0;
            whenMenuPops([&entries](QMenu *menu) { entries = menu->actions().size(); });
            host.click("menu_file");
            QCOMPARE(entries, qsizetype(4));
            QCOMPARE(requests.count(), 1);
        }
        QVERIFY(host.facade().IsSupportByToolBar("h_info"));
        QVERIFY(host.facade().IsSupportByToolBar("s_one"));
        QVERIFY2(!host.facade().IsSupportByToolBar("m3"), "There is room for two menus only");
    }

    void shouldKeepNewEntriesDisabledUntilTheHostAnswers()
    {
        TestHost host(appSection(fileItems) + row);
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        QVERIFY(!host.facade().GetCompositeEnable("f_save"));
        QVERIFY2(host.facade().GetCompositeEnable("f_open"), "A shared command lost its state");
        QVERIFY2(host.facade().GetCompositeEnable("x_tool"),
                 "A row's menu follows its description");
        host.setUsable("h_info", true);
        QVERIFY(host.facade().GetCompositeEnable("h_info"));
    }

    void shouldOpenTheRightMenuFromTheSetButton()
    {
        const QList<std::pair<QString, QString>> menusOfRecords{
            {"<button name='set' tooltip='Set'/>", "menu_file"}, {setWithMenu, "set_menu"}};
        for (const auto &[record, name] : menusOfRecords) {
            TestHost host(appSection(fileItems, record));
            host.show();
            const QSignalSpy requests(&host.facade(), &MRToolBar::DoRequestAuthority);
            QString popped;
            whenMenuPops(
                [&popped](QMenu *menu) { popped = menu->isEmpty() ? "" : menu->objectName(); });
            host.click("ab_set");
            QCOMPARE(popped, name);
            QCOMPARE(requests.count(), 1);
            QVERIFY2(!host.find<QPushButton>("ab_set")->isChecked(),
                     "The button stays pressed after its menu has closed");
        }
    }

    void shouldDoNothingByASetButtonWithoutARecord()
    {
        TestHost host(appSection(fileItems));
        host.show();
        const QSignalSpy requests(&host.facade(), &MRToolBar::DoRequestAuthority);
        host.click("ab_set");
        QVERIFY(requests.isEmpty() && !QApplication::activePopupWidget());
    }

    void shouldListRecentFiles()
    {
        TestHost host(recentSection(recentItems));
        const QSignalSpy files(&host.facade(), &MRToolBar::DoOpenFile);
        const QStringList paths{"/docs/a.ofd", "/docs/b;c.ofd", "relative/d.ofd"};
        host.facade().DoUpdateRecentFileSlot(paths); // Too early, and without a consequence.
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        const auto *menu = host.find<QMenu>("menu_f_openrecent");

        host.facade().DoUpdateRecentFileSlot({"/docs/old.ofd"});
        host.facade().DoUpdateRecentFileSlot(paths);
        QCOMPARE(shownTexts(menu), (QStringList{"&1 a.ofd", "&2 b;c.ofd", "&3 d.ofd", "Clear"}));
        QVERIFY(menu->actions().last()->isEnabled());
        for (int i = 1; i <= paths.size(); ++i)
            menu->actions().at(i)->trigger();
        QCOMPARE(TestHost::texts(files), (QStringList{paths.at(0), paths.at(1),
                                                      QFileInfo(paths.at(2)).absoluteFilePath()}));

        host.facade().DoUpdateRecentFileSlot({});
        QCOMPARE(shownTexts(menu), QStringList{"None"});
        QVERIFY(!menu->actions().last()->isEnabled());
    }

    void shouldNotListRecentFilesInAMenuWithoutBothEnds()
    {
        const QString another = "<menuitem action='x' text='X'/>";
        const QString placeholder = "<menuitem action='no_file' text='None'/>";
        for (const QString &items : {placeholder, another + recentItems, recentItems + another}) {
            TestHost host(recentSection(items));
            host.toolBar()->Inner_DoDelayLoadMenuSlot();
            const auto *menu = host.find<QMenu>("menu_f_openrecent");
            const QStringList before = shownTexts(menu);
            host.facade().DoUpdateRecentFileSlot({"/docs/a.ofd"});
            QCOMPARE(shownTexts(menu), before);
        }
    }

    void shouldReportAClearedHistoryOnce()
    {
        // In the menu alone, and shared with a tool row.
        for (const QString &otherPlace : {QString(), row}) {
            TestHost host(recentSection(recentItems) + otherPlace);
            host.toolBar()->Inner_DoDelayLoadMenuSlot();
            host.facade().DoUpdateRecentFileSlot({"/a.ofd", "/b.ofd"});
            const auto *menu = host.find<QMenu>("menu_f_openrecent");
            const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            menu->actions().last()->trigger();
            QCOMPARE(TestHost::texts(active), QStringList{"f_clearhistory"});
            QCOMPARE(shownTexts(menu), QStringList{"None"});
            QVERIFY(!menu->actions().last()->isEnabled());
        }
    }
};

QTEST_MAIN(AppMenuTest)
#include "tst_appmenu.moc"
