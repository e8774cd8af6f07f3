// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/state/QuickAccessSetting.h"

#include <QMenu>
#include <QToolBar>

using namespace Describe;

namespace {

const QString settingKey = "quickaccessbarbuttons";

const QString hidden = "checkable='true' visible='false'";
const QString quickAccess =
    section("quickaccessbar", button("qbar_f_open", "checkable='true'")
                                  + "<button action='qt_set' tooltip='Customise'/>"
                                  + button("qbar_e_undo", "checkable='true'")
                                  + button("own", hidden) + button("x_qbar_y", hidden));

QToolBar *barOf(const TestHost &host)
{
    return host.find<QToolBar>("toolbar_quickaccessbar");
}

template <typename Predicate>
QStringList namesOf(const QList<QAction *> &actions, Predicate isIncluded)
{
    QStringList names;
    for (const QAction *action : actions) {
        if ((action->*isIncluded)())
            names.append(action->objectName());
    }
    return names;
}

} // namespace

/** The quick access bar and the menu that customises it. */
class QuickAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAButtonByTheSetting_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<bool>("described");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<QString>("listed"); // The button's name is the tag of the row.
        QTest::newRow("qbar_e_undo") << "save;undo;" << false << true << "undo;";
        QTest::newRow("qbar_f_open") << "a;open" << false << true << "open;";
        QTest::newRow("qbar_f_open") << "Open;openall;" << true << false << "open;";
        // The prefix "qbar_", a prefix that occurs twice, and a prefix before another one.
        QTest::newRow("qbar_zoom") << "zoom;" << false << true << "zoom;";
        QTest::newRow("qbar_f_aqbar_f_b") << "ab;" << false << true << "ab;";
        QTest::newRow("qbar_e_qbar_x") << "qbar_x;" << false << true << "qbar_x;";
        // Without a prefix at the start of the name, the description decides.
        QTest::newRow("own") << "save;" << true << true << "";
        QTest::newRow("own") << "own;" << false << false << "";
        QTest::newRow("x_qbar_y") << "y;" << false << false << "";
    }

    void shouldShowAButtonByTheSetting()
    {
        QFETCH(QString, setting);
        QFETCH(bool, described);
        const QString name = QTest::currentDataTag();
        QTEST(QuickAccessSetting(setting).isShown(name, described), "shown");
        QTEST(QuickAccessSetting::join({name}), "listed");
    }

    void shouldShowAndTickTheSameButtons()
    {
        const QList<std::pair<QString, QString>> lists{{"", "open;save;print;"},
                                                       {"undo;", "undo;"},
                                                       {"redo;nothing;open", "open;redo;"},
                                                       {";", ""}};
        for (const auto &[setting, list] : lists) {
            // The second time with the list that the first toolbar has returned.
            for (const QString &stored : {setting, list.isEmpty() ? setting : list}) {
                const auto host =
                    TestHost::withShipped("marodi/mr_toolbar.release.xml", {{settingKey, stored}});
                QCOMPARE(host->facade().GetQuickAccessButtonList(), list);
                QCOMPARE(namesOf(host->find<QMenu>("qt_set")->actions(), &QAction::isChecked),
                         namesOf(barOf(*host)->actions(), &QAction::isVisible));
            }
        }
    }

    void shouldShowAndHideButtonsByTheCustomiseMenu()
    {
        TestHost host(quickAccess, {{settingKey, "open;"}});
        host.show();
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        const QList<QAction *> entries = host.find<QMenu>("qt_set")->actions();
        QCOMPARE(entries.size(), qsizetype(5));
        QCOMPARE(entries.first()->text(), QString("Customise"));
        QVERIFY2(!entries.first()->isEnabled(), "The title is not disabled");

        const QList<std::pair<QString, QString>> steps{{"qbar_e_undo", "open;undo;"},
                                                       {"qbar_f_open", "undo;"},
                                                       {"qbar_e_undo", ""},
                                                       {"qbar_f_open", "open;"}};
        for (const auto &[clicked, list] : steps) {
            whenMenuPops([name = clicked](QMenu *menu) { clickEntry(menu, entryOf(menu, name)); });
            host.click("qt_set");
            QCOMPARE(host.facade().GetQuickAccessButtonList(), list);
            QVERIFY2(barOf(host)->isVisible() != list.isEmpty(),
                     "The bar is visible without buttons, or hidden with some");
        }
        QCOMPARE(active.count(), 0);
    }

    void shouldReportTheCommandOfAButton()
    {
        const QList<std::pair<QString, QString>> commands{
            {"qbar_f_open", "f_open"}, {"own", "own"}, {"x_qbar_y", "y"}};
        for (const auto &[name, reported] : commands) {
            TestHost host(quickAccess);
            host.setVisible("toolbar_quickaccessbar/" + name, true);
            host.show();
            const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            const auto *bar = barOf(host);
            QWidget *widget = bar->widgetForAction(bar->findChild<QAction *>(name));
            QTest::mouseClick(widget, Qt::LeftButton);
            QVERIFY2(active.isEmpty(), "The host has not enabled the button yet");
            host.setUsable(name, true);
            QTest::mouseClick(widget, Qt::LeftButton);
            QCOMPARE(TestHost::texts(active), QStringList(reported));
        }
    }
};

QTEST_MAIN(QuickAccessTest)
#include "tst_quickaccess.moc"
