#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>

using namespace Describe;

namespace {

MRMainToolBar *rowOf(const TestHost &host)
{
    return host.find<MRMainToolBar>(QStringLiteral("row"));
}

/** What stands on the row: "|" for a separator, else the name, "()" for a group's panel. */
QString contents(const TestHost &host)
{
    QStringList names;
    const QList<QAction *> actions = rowOf(host)->actions();
    for (const QAction *action : actions) {
        const QString name = action->objectName().isEmpty() ? "()" : action->objectName();
        names.append(action->isSeparator() ? QStringLiteral("|") : name);
    }
    return names.join(QLatin1Char(' '));
}

} // namespace

class TestActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void separatorsWaitForAVisibleControl_data()
    {
        QTest::addColumn<QString>("placed"); // The described row is the name of the case.
        QTest::newRow("a|b") << "a | b";
        QTest::newRow("||x|c") << "x | c";
        QTest::newRow("|a|") << "| a";
        QTest::newRow("a|l") << "a | l";
        QTest::newRow("a|(x)b") << "a () | b";
        QTest::newRow("a|(xb)c") << "a | () c";
        QTest::newRow("a|?b") << "a | b";
        QTest::newRow("a!|!b") << "a | b";
    }

    void separatorsWaitForAVisibleControl()
    {
        const QMap<QChar, QString> elements{{'|', "<sperator/>"},
                                            {'(', "<buttongroup name='group'>"},
                                            {')', "</buttongroup>"},
                                            {'?', "<slider name='s' text='s'/>"},
                                            {'!', "<buttongroup/><extra/><button/>"},
                                            {'x', "<button name='x' text='x' visible='false'/>"},
                                            {'l', "<label name='l' text='l'/>"}};
        QString controls;
        for (const QChar kind : QString(QTest::currentDataTag()))
            controls += elements.value(kind, QStringLiteral("<button name='%1'/>").arg(kind));
        TestHost host(row(controls));
        QTEST(contents(host), "placed");
    }

    void widthsFollowTheTexts_data()
    {
        QTest::addColumn<QString>("control"); // Its name is "c".
        QTest::addColumn<double>("width");    // In pixels at 96 dpi.
        const auto button = [](const char *text) {
            return QStringLiteral("<button name='c' text='%1'/>").arg(text);
        };
        QTest::newRow("1") << button("A") << 2.5 * 18.0;
        QTest::newRow("4") << button("ABCD") << 4 * 18.0;
        QTest::newRow("5") << button("ABCDE") << 4 * 18.0;
        QTest::newRow("6") << button("ABCDEF") << 5 * 18.0;
        const auto menu = [](const char *attributes, const char *entry) {
            return QStringLiteral("<menu name='c' %1><menuitem action='e0' text='x'/>"
                                  "<menuitem action='e1' text='%2'/></menu>")
                .arg(attributes, entry);
        };
        QTest::newRow("menu, no entries") << "<menu name='c' text='ABCDEF'/>" << 6 * 22.0 + 12.0;
        QTest::newRow("menu, long") << menu("text='ABCDEF'", "e") << 4 * 18.0 + 12.0;
        QTest::newRow("entry shown") << menu("text='A' index='1'", "abc") << 3 * 22.0 + 12.0;
        QTest::newRow("entry, long") << menu("text='A' index='1'", "abcdef") << 4 * 22.0 + 12.0;
        // The entry that the button takes out of its menu does not count.
        QTest::newRow("own entry")
            << menu("text='A' index='2' withaction='true'", "abcd") << 2.5 * 22.0 + 12.0;
        QTest::newRow("beyond") << menu("text='ABC' index='7'", "a") << 3 * 22.0 + 12.0;
    }

    void widthsFollowTheTexts()
    {
        QFETCH(QString, control);
        QFETCH(double, width);
        TestHost host(row(control));
        host.show();
        QCOMPARE(rowOf(host)->widgetForAction(host.action("c"))->width(), host.scaled(width));

        const SkinChoice compact(lum);
        TestHost compactHost(row(control));
        const QWidget *widget = rowOf(compactHost)->widgetForAction(compactHost.action("c"));
        QCOMPARE(widget->minimumWidth() == widget->maximumWidth(), control.startsWith("<menu"));
    }

    void aCommandOfSeveralPlacesIsOneActionAndReportsOnce()
    {
        const QString print = "<button name='print' text='Print' group='g' checkable='true'/>";
        TestHost host(row("<sperator/>" + print,
                          tab("other", "<buttongroup name='group'>" + print + "</buttongroup>"
                                           + "<menu name='m' text='m'><menuitem action='print' "
                                             "text='Print'/></menu>")));
        host.showEnabled();
        host.click("other");
        QCOMPARE(host.window().findChildren<QAction *>("print").size(), 1);
        QVERIFY(host.find<QMenu>("m")->actions().contains(host.action("print")));
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        host.click("print"); // The button of the group.
        QCOMPARE(TestHost::texts(active), QStringList("print"));
        host.click("row");
        QTest::mouseClick(rowOf(host)->widgetForAction(host.action("print")), Qt::LeftButton);
        QCOMPARE(TestHost::texts(active), QStringList({"print", "print"}));
    }

    void zoomBoxCanBeTypedIntoWherePercentagesAre_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<bool>("isEditable");
        const QStringList percentages{"50%", "100%"};
        const QStringList mixed{"Fit", "100%"};
        QTest::newRow("name='v_zoom' editable='true'") << percentages << true;
        QTest::newRow("name='v_zoom' editable='true' index='1'") << mixed << false;
        QTest::newRow("name='V_ZOOM' index='2'") << mixed << true;
        QTest::newRow("name='colours'") << percentages << false;
        QTest::newRow("name='colours' editable='true' index='2'") << mixed << false;
        QTest::newRow("name='zoom' editable='true'") << QStringList() << true;
    }

    void zoomBoxCanBeTypedIntoWherePercentagesAre()
    {
        QFETCH(QStringList, items);
        QString children;
        for (const QString &item : std::as_const(items))
            children += QStringLiteral("<item action='mode_%1' text='%1'/>").arg(item);
        const QString attributes = QTest::currentDataTag();
        TestHost host(row("<combobox " + attributes + " text='c'>" + children + "</combobox>"));
        const auto *box = rowOf(host)->findChild<QComboBox *>();
        QTEST(box->isEditable(), "isEditable");
        QCOMPARE(box->count(), items.size());
        if (!items.isEmpty()) {
            QCOMPARE(box->itemData(1).toString(), "mode_" + items.at(1));
            QCOMPARE(box->currentIndex(), attributes.endsWith("index='2'") ? 1 : 0);
        }
        QCOMPARE(box->parentWidget()->findChild<QLabel *>("prompt")->text(), QStringLiteral("c"));
    }

    void pageFieldTakesPagesOnly_data()
    {
        QTest::addColumn<QString>("page"); // Empty for none. What is typed names the case.
        QTest::newRow("10") << "10";
        QTest::newRow("007") << "7";
        QTest::newRow("a1-b2 c") << "12";
        QTest::newRow("0") << "";
        QTest::newRow("00") << "";
        QTest::newRow("") << "";
    }

    void pageFieldTakesPagesOnly()
    {
        QFETCH(QString, page);
        TestHost host(row("<lineedit name='d_GotoPage' text='Page'/><lineedit name='number'/>"));
        host.showEnabled();
        host.facade().DoSetPageInfoSlot(3, 99);
        QSignalSpy pages(&host.facade(), &MRToolBar::DoGotoPage);
        for (const char *name : {"d_GotoPage", "number"}) { // Any other field tells nobody.
            auto *field = host.find<QLineEdit>(name);
            field->clear();
            QTest::keyClicks(field, QTest::currentDataTag());
            QTest::keyClick(field, Qt::Key_Return);
            QCOMPARE(TestHost::texts(pages), page.isEmpty() ? QStringList() : QStringList(page));
        }
    }

    void dropButtonsShowTheirDescribedEntry_data()
    {
        QTest::addColumn<QStringList>("face"); // Text, current entry, all entries.
        QTest::newRow("text='M'") << QStringList{"M  ", "", "one", "two"};
        QTest::newRow("text='M' switchable='true'") << QStringList{"M", "", "one", "two"};
        QTest::newRow("text='M' index='2'") << QStringList{"Two   ", "two", "one", "two"};
        QTest::newRow("text='M' index='3'") << QStringList{"M  ", "", "one", "two"};
        // One that the button has for its own also lends it its tooltip.
        QTest::newRow("index='2' withaction='true'") << QStringList{"Two   ", "two", "one"};
        QTest::newRow("index='1' withaction='true' tooltip='Tip'")
            << QStringList{"One   ", "one", "two"};
    }

    void dropButtonsShowTheirDescribedEntry()
    {
        const QString attributes = QTest::currentDataTag();
        TestHost host(row("<menu name='m' checkable='true' " + attributes
                          + "><menuitem action='one' text='One'/>"
                            "<menuitem action='two' text='Two'/></menu>"));
        host.showEnabled();
        auto *button = host.find<MRDropButton>("m");
        const QAction *current = button->GetCurrentAction();
        QStringList face{button->text(), current ? current->objectName() : QString("")};
        const QList<QAction *> entries = button->menu()->actions();
        for (const QAction *entry : entries)
            face.append(entry->objectName());
        QTEST(face, "face");
        if (attributes.contains("withaction"))
            QVERIFY(button->toolTip().contains(attributes.contains("tooltip") ? "Tip" : "Two"));
        if (!current)
            return;
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(5, button->height() / 2));
        QCOMPARE(TestHost::texts(active), QStringList(current->objectName()));
    }
};

QTEST_MAIN(TestActions)
#include "tst_actions.moc"
