#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/QuickAccessSetting.h"

#include <QMenu>
#include <QToolBar>

namespace {

const QString settingKey = "quickaccessbarbuttons";

const QString section = "<toolbar_quickaccessbar>"
                        "<button action='qbar_f_open' text='Open' checkable='true'/>"
                        "<button action='qt_set' tooltip='Customise'/>"
                        "<button action='qbar_e_undo' text='Undo' checkable='true'/>"
                        "<button action='own' text='Own' checkable='true' visible='false'/>"
                        "<button action='x_qbar_y' text='Y' checkable='true' visible='false'/>"
                        "</toolbar_quickaccessbar>";

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

/** Opens the customise menu by its button and clicks an entry. */
void customise(TestHost &host, const QString &name)
{
    whenMenuPops([&name](QMenu *menu) { clickEntry(menu, entryOf(menu, name)); });
    host.click("qt_set");
}

} // namespace

/** The quick access bar and the menu that customises it. */
class QuickAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDecideByTheSetting_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("described");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<QString>("listed");
        const QString open = "qbar_f_open";
        const QString undo = "qbar_e_undo";
        const QList<std::tuple<const char *, QString, QString, bool, bool, QString>> rows{
            {"no setting, visible", "", open, true, true, "open;"},
            {"no setting, hidden", "", undo, false, false, "undo;"},
            {"listed", "save;undo;", undo, false, true, "undo;"},
            {"not listed", "save;undo;", open, true, false, "open;"},
            {"listed last", "a;open", open, false, true, "open;"},
            {"case matters", "Open;", open, true, false, "open;"},
            {"whole names only", "openall;", open, true, false, "open;"},
            {"shortest prefix", "zoom;", "qbar_zoom", false, true, "zoom;"},
            {"every occurrence goes", "ab;", "qbar_f_aqbar_f_b", false, true, "ab;"},
            {"of one prefix", "qbar_x;", "qbar_e_qbar_x", false, true, "qbar_x;"},
            {"no prefix, visible", "save;", "own", true, true, ""},
            {"no prefix, hidden", "own;", "own", false, false, ""},
            {"prefix further on", "y;", "x_qbar_y", false, false, ""}};
        for (const auto &[row, setting, name, described, shown, listed] : rows)
            QTest::newRow(row) << setting << name << described << shown << listed;
    }

    void shouldDecideByTheSetting()
    {
        QFETCH(QString, setting);
        QFETCH(QString, name);
        QFETCH(bool, described);
        QFETCH(bool, shown);
        QFETCH(QString, listed);
        QCOMPARE(QuickAccessSetting(setting).isShown(name, described), shown);
        QCOMPARE(QuickAccessSetting::join({name}), listed);
    }

    void shouldShowAndTickTheSameButtons_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("list");
        const QList<std::pair<QString, QString>> rows{{"", "open;save;print;"},
                                                      {"undo;", "undo;"},
                                                      {"redo;nothing;open", "open;redo;"},
                                                      {";", ""}};
        for (const auto &[setting, list] : rows)
            QTest::newRow(qPrintable('"' + setting + '"')) << setting << list;
    }

    void shouldShowAndTickTheSameButtons()
    {
        QFETCH(QString, setting);
        QFETCH(QString, list);
        // The second time around, with the list that the host has stored.
        for (const QString &stored : {setting, list.isEmpty() ? setting : list}) {
            const auto host =
                TestHost::withShipped("marodi/mr_toolbar.release.xml", {{settingKey, stored}});
            QCOMPARE(host->facade().GetQuickAccessButtonList(), list);
            QCOMPARE(namesOf(host->find<QMenu>("qt_set")->actions(), &QAction::isChecked),
                     namesOf(barOf(*host)->actions(), &QAction::isVisible));
        }
    }

    void shouldShowAndHideButtonsByTheCustomiseMenu()
    {
        TestHost host(section, {{settingKey, "open;"}});
        host.show();
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        const QList<QAction *> entries = host.find<QMenu>("qt_set")->actions();
        QCOMPARE(entries.size(), qsizetype(5));
        QCOMPARE(entries.first()->text(), QString("Customise"));
        QVERIFY2(!entries.first()->isEnabled(), "The title is no entry");

        const QList<std::pair<QString, QString>> steps{{"qbar_e_undo", "open;undo;"},
                                                       {"qbar_f_open", "undo;"},
                                                       {"qbar_e_undo", ""},
                                                       {"qbar_f_open", "open;"}};
        for (const auto &[clicked, list] : steps) {
            customise(host, clicked);
            QCOMPARE(host.facade().GetQuickAccessButtonList(), list);
            QVERIFY2(barOf(host)->isVisible() != list.isEmpty(), "An empty bar is not to be seen");
        }
        QCOMPARE(active.count(), 0);
    }

    void shouldReportTheCommandOfAButton()
    {
        const QList<std::pair<QString, QString>> commands{
            {"qbar_f_open", "f_open"}, {"own", "own"}, {"x_qbar_y", "y"}};
        for (const auto &[button, reported] : commands) {
            TestHost host(section);
            host.setVisible("toolbar_quickaccessbar/" + button, true);
            host.show();
            const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            const auto *bar = barOf(host);
            QWidget *widget = bar->widgetForAction(bar->findChild<QAction *>(button));
            QTest::mouseClick(widget, Qt::LeftButton);
            QVERIFY2(active.isEmpty(), "The host has not enabled the button yet");
            host.setUsable(button, true);
            QTest::mouseClick(widget, Qt::LeftButton);
            QCOMPARE(TestHost::texts(active), QStringList(reported));
        }
    }
};

QTEST_MAIN(QuickAccessTest)
#include "tst_quickaccess.moc"
