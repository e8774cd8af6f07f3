// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Pointer.h"
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

/** The contents of the row: "|" for a separator, "()" for the panel of a group, else the name. */
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

/** The controls of a row: their kinds, widths and texts. */
class ActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepSeparatorsBackUntilAVisibleControl()
    {
        const QMap<QString, QString> placed{{"||x|c", "x | c"},     {"|a|", "| a"},
                                            {"a|(x)b", "a () | b"}, {"a|(xb)c", "a | () c"},
                                            {"a|?b", "a | b"},      {"a!|!b", "a | b"}};
        const QMap<QChar, QString> elements{{'|', "<sperator/>"},
                                            {'(', "<buttongroup name='group'>"},
                                            {')', "</buttongroup>"},
                                            {'?', "<slider name='s' text='s'/>"},
                                            {'!', "<buttongroup/><extra/><button/>"},
                                            {'x', "<button name='x' text='x' visible='false'/>"}};
        for (auto described = placed.begin(); described != placed.end(); ++described) {
            QString controls;
            for (const QChar kind : described.key())
                controls += elements.value(kind, QStringLiteral("<button name='%1'/>").arg(kind));
            TestHost host(row(controls));
            QCOMPARE(described.key() + ": " + contents(host),
                     described.key() + ": " + described.value());
        }
    }

    void shouldSizeButtonsByTheirTexts_data()
    {
        QTest::addColumn<QString>("control"); // Its object name is "c".
        QTest::addColumn<double>("width");    // In pixels at 96 dpi.
        const auto button = [](const char *text) {
            return QStringLiteral("<button name='c' text='%1'/>").arg(text);
        };
        QTest::newRow("1") << button("A") << 2.5 * 18.0;
        QTest::newRow("4") << button("ABCD") << 4 * 18.0;
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
        // The text of the entry that is not in the menu any more does not widen the button.
        QTest::newRow("own entry")
            << menu("text='A' index='2' withaction='true'", "abcd") << 2.5 * 22.0 + 12.0;
        QTest::newRow("beyond") << menu("text='ABC' index='7'", "a") << 3 * 22.0 + 12.0;
    }

    void shouldSizeButtonsByTheirTexts()
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

    void shouldMakeTheZoomBoxEditableOnAPercentage()
    {
        const QStringList percentages{"50%", "100%"};
        const QStringList mixed{"Fit", "100%"};
        const QList<std::tuple<QString, QStringList, bool>> boxes{
            {"name='v_zoom' editable='true'", percentages, true},
            {"name='v_zoom' editable='true' index='1'", mixed, false},
            {"name='V_ZOOM' index='2'", mixed, true},
            {"name='colours' editable='true' index='2'", mixed, false},
            {"name='zoom' editable='true'", {}, true}};
        for (const auto &[attributes, items, isEditable] : boxes) {
            QString children;
            for (const QString &item : items)
                children += choice("mode_" + item, item);
            TestHost host(row("<combobox text='c' " + attributes + ">" + children + "</combobox>"));
            const auto *box = rowOf(host)->findChild<QComboBox *>();
            QVERIFY2(box->isEditable() == isEditable, qPrintable(attributes));
            QCOMPARE(box->count(), items.size());
            QCOMPARE(box->itemData(1).toString(), items.isEmpty() ? "" : "mode_" + items.at(1));
            QCOMPARE(box->currentIndex() == 1, attributes.endsWith("index='2'"));
            QCOMPARE(box->parentWidget()->findChild<QLabel *>("prompt")->text(), QString("c"));
        }
    }

    void shouldReportPagesFromThePageFieldOnly()
    {
        TestHost host(row(field("d_GotoPage", "text='Page'") + field("number")));
        host.showEnabled();
        host.facade().DoSetPageInfoSlot(3, 99);
        QSignalSpy pages(&host.facade(), &MRToolBar::DoGotoPage);
        const QStringList typed{"007", "a1-b2 c", "00", ""};
        for (const char *name : {"d_GotoPage", "number"}) { // Any other field reports nothing.
            auto *field = host.find<QLineEdit>(name);
            for (const QString &text : typed) {
                field->clear();
                QTest::keyClicks(field, text);
                QTest::keyClick(field, Qt::Key_Return);
            }
        }
        QCOMPARE(TestHost::texts(pages), QStringList({"7", "12"}));
    }

    void shouldShowTheDescribedEntryOnADropButton_data()
    {
        QTest::addColumn<QStringList>("shown"); // Text, current entry, all entries.
        QTest::newRow("text='M'") << QStringList{"M  ", "", "one", "two"};
        QTest::newRow("text='M' switchable='true'") << QStringList{"M", "", "one", "two"};
        QTest::newRow("text='M' index='2'") << QStringList{"Two   ", "two", "one", "two"};
        QTest::newRow("text='M' index='3'") << QStringList{"M  ", "", "one", "two"};
        // With withaction the button also takes the tooltip of the entry.
        QTest::newRow("index='2' withaction='true'") << QStringList{"Two   ", "two", "one"};
        QTest::newRow("index='1' withaction='true' tooltip='Tip'")
            << QStringList{"One   ", "one", "two"};
    }

    void shouldShowTheDescribedEntryOnADropButton()
    {
        const QString attributes = QTest::currentDataTag();
        TestHost host(row("<menu name='m' checkable='true' " + attributes
                          + "><menuitem action='one' text='One'/>"
                            "<menuitem action='two' text='Two'/></menu>"));
        host.showEnabled();
        auto *button = host.find<MRDropButton>("m");
        const QAction *current = button->GetCurrentAction();
        QStringList shown{button->text(), current ? current->objectName() : QString("")};
        const QList<QAction *> entries = button->menu()->actions();
        for (const QAction *entry : entries)
            shown.append(entry->objectName());
        QTEST(shown, "shown");
        if (attributes.contains("withaction"))
            QVERIFY(button->toolTip().contains(attributes.contains("tooltip") ? "Tip" : "Two"));
        if (!current)
            return;
        QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
        QTest::mouseClick(button, Qt::LeftButton, {}, bodyOf(button));
        QCOMPARE(TestHost::texts(active), QStringList(current->objectName()));
    }
};

QTEST_MAIN(ActionsTest)
#include "tst_actions.moc"
