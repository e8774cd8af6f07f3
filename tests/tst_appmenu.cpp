// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QMenu>

using namespace Describe;

namespace {

const QString setWithMenu = menu("set_menu", item("s_one"));
const QString fileItems =
    item("f_save") + item("f_open") + "<sperator/>" + menu("menu_help", item("h_info"));

QString appSection(const QString &items, const QString &otherRecords = "")
{
    return section("appbutton", menu("menu_file", items) + otherRecords);
}

} // namespace

/** The application button, the set button and their menus. */
class AppMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLoadItsMenusOnceWhenFirstOpened()
    {
        TestHost host(appSection(fileItems, setWithMenu + menu("third", item("m3"))));
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
        QVERIFY2(!host.facade().IsSupportByToolBar("m3"), "Only the first two menus are used");
    }

    void shouldKeepNewEntriesDisabledUntilTheHostAnswers()
    {
        TestHost host(appSection(fileItems)
                      + row(button("f_open") + menu("tools", item("x_tool"))));
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
};

QTEST_MAIN(AppMenuTest)
#include "tst_appmenu.moc"
