#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QElapsedTimer>

#include <array>

using namespace Describe;

namespace {

void trigger(const TestHost &host, const QString &name)
{
    host.action(name)->trigger();
}

} // namespace

/** What the host hears when a command is triggered. */
class DispatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReportACommand_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reported"); // After two triggers: commands and backgrounds.
        const QList<std::pair<const char *, const char *>> rows{
            {"f_print", "f_print f_print"},  {"menu_f_open", "f_open f_open"},
            {"menu_none", "none none"},      {"menuf_open", "menuf_open menuf_open"},
            {"menu_x_tool", "x_tool"}, // Unavailable, so that the first trigger is swallowed.
            {"background_default", "0 0"},   {"background_daytime", "1 1"},
            {"background_nighttime", "2 2"}, {"background_eyeguard", "3 3"},
            {"background_parchment", "4 4"}, {"menu_background_daytime", "0 0"}};
        for (const auto &[name, reported] : rows)
            QTest::newRow(name) << name << reported;
    }

    void shouldReportACommand()
    {
        QFETCH(QString, name);
        QFETCH(QString, reported);
        // No background waits for a second click, whatever its description says.
        const bool isBackground = name.contains("background");
        TestHost host(row(button("f_open") + button("x_tool", "available='false'")
                          + button(name, isBackground ? "doubleclick='true'" : "")));
        QStringList heard;
        connect(&host.facade(), &MRToolBar::DoActive, this,
                [&heard](const QString &objName) { heard.append(objName); });
        connect(&host.facade(), &MRToolBar::DoSetBackground, this,
                [&heard](BackgroundStyle style) { heard.append(QString::number(style)); });
        trigger(host, name);
        trigger(host, name);
        QCOMPARE(heard.join(' '), reported);
    }

    void shouldEndTheFlowModeWithAPageLayout()
    {
        for (const QString name :
             {"vpmode_singlepage", "menu_vpmode_doublepage", "vpmode_singleflow"}) {
            TestHost host(
                row(button("vmode_flow", "checkable='true' checked='true'") + button(name)));
            trigger(host, name);
            QCOMPARE(host.facade().GetControlCheckedState("vmode_flow"), !name.endsWith("page"));
        }
    }

    void shouldTellSingleFromDoubleClicks_data()
    {
        QTest::addColumn<QString>("clicks");
        QTest::addColumn<QString>("single");
        QTest::addColumn<QString>("twice");
        const QList<std::array<const char *, 3>> rows{{"a", "a", ""},    {"aa", "", "a"},
                                                      {"aaa", "a", "a"}, {"ab", "b", ""},
                                                      {"abb", "", "b"},  {"aba", "a", ""}};
        for (const auto &[clicks, single, twice] : rows)
            QTest::newRow(clicks) << clicks << single << twice;
    }

    void shouldTellSingleFromDoubleClicks()
    {
        QFETCH(QString, clicks);
        QFETCH(QString, single);
        QFETCH(QString, twice);
        TestHost host(row(button("a", "doubleclick='true'") + button("b", "doubleclick='true'")));
        const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        const QSignalSpy doubleActive(&host.facade(), &MRToolBar::DoDoubleActive);
        QElapsedTimer clock;
        clock.start();
        for (const QChar name : clicks)
            trigger(host, name);
        QCOMPARE(TestHost::texts(doubleActive).join(""), twice);
        QCOMPARE(active.count(), 0);
        if (!single.isEmpty()) {
            QTRY_COMPARE_WITH_TIMEOUT(active.count(), 1, 2000);
            QVERIFY2(clock.elapsed() >= 230, "The wait for a second click was too short");
        }
        QTest::qWait(300);
        QCOMPARE(TestHost::texts(active).join(""), single);
        QCOMPARE(doubleActive.count(), twice.isEmpty() ? 0 : 1);
    }

    void shouldReleaseTheOtherDropButtonsForAnAnnotationTool()
    {
        const QString menu =
            "<menu name='%1' text='M' checkable='true' switchable='true'>"
            "<menuitem action='%1_tool' text='T' group='%2' checkable='true'/></menu>";
        TestHost host(row(menu.arg("lines", "annotgroup") + menu.arg("shapes", "annotgroup")
                          + menu.arg("others", "otherGroup")
                          + button("pen", "group='annotgroup' checkable='true'")));
        const QList<std::pair<QString, QString>> steps{{"lines_tool", "lines"},
                                                       {"others_tool", "lines others"},
                                                       {"shapes_tool", "shapes"},
                                                       {"pen", ""}};
        for (const auto &[tool, held] : steps) {
            trigger(host, tool);
            QStringList checked;
            for (const QString name : {"lines", "shapes", "others"}) {
                if (host.find<MRDropButton>(name)->isChecked())
                    checked.append(name);
            }
            QCOMPARE(checked.join(' '), held);
        }
    }
};

QTEST_MAIN(DispatchTest)
#include "tst_dispatch.moc"
