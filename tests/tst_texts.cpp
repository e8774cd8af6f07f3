// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>

using namespace Describe;

namespace {

const QString why = "tooltip='Tip' disabletip='Why;abc'";
const QString everything =
    section("appbutton",
            menu("menu_file", item("a") + item("menu_a") + menu("sub", item("b", why))))
    + section("quickaccessbar", button("qbar_a", why) + button("qt_set"))
    + section("searchbar", field("st_input") + button("st_next"))
    + section("addtional", "<button name='t_fold' tooltip='Fold;Unfold'/>" + button("extra", why))
    + row(button("a", why) + button("plain") + label("label", "Label")
              + comboBox("list", choice("one", "1%") + choice("two", "2%"), "editable='true'")
              + menu("drop", item("line") + item("oval"), "index='1' checkable='true' " + why)
              + group("g", button("in", why)) + label("d_totalpagelabel", "of "),
          tab("later", button("d")));

/** A host with all kinds of controls, which gives them other texts, tooltips and icons. */
class Host : public TestHost
{
public:
    Host()
        : TestHost(everything, {{"scheme", "dark"}})
    {
    }

    void setText(QString name, const QString &text) { facade().DoSetControlTextSlot(name, text); }
    void setTip(QString name, const QString &tip) { facade().DoSetControlToolTipSlot(name, tip); }
    void setIcon(QString name, const QColor &colour)
    {
        QPixmap pixmap(16, 16);
        pixmap.fill(colour);
        facade().DoSetControlIconSlot(name, colour.isValid() ? QIcon(pixmap) : QIcon());
    }

    void openMenu()
    {
        whenMenuPops([](QMenu *) {});
        click("menu_file");
    }

    /** What a control of that name shows: its text and its tooltip. */
    QString shown(const QString &name) const
    {
        if (const auto *label = find<QLabel>(name))
            return label->text();
        if (const auto *button = find<QPushButton>(name))
            return button->text() + '|' + button->toolTip();
        return action(name)->text() + '|' + action(name)->toolTip();
    }

    QAction *quickAction() const { return find<QToolBar>("toolbar_quickaccessbar")->actions()[0]; }
};

QColor colourOf(const QIcon &icon, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(16, mode).toImage().pixelColor(8, 8);
}

/** The tooltip that comes up over the middle of a widget. */
QString tipOver(QWidget *widget)
{
    const QPoint middle = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &event);
    return QToolTip::text();
}

} // namespace

/** Texts, tooltips and icons that the host sets by name, and tooltips of disabled controls. */
class TextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTextsByNameUntilTheyAreTakenBack()
    {
        Host host;
        const QMap<QString, QString> expected{{"plain", "New|New"},   {"label", "New"},
                                              {"later", "New|"},      {"menu_file", "New|New"},
                                              {"st_next", "New|New"}, {"extra", "New|Tip"},
                                              {"t_fold", "New|Fold"}};
        for (auto row = expected.begin(); row != expected.end(); ++row) {
            const QString described = host.shown(row.key());
            host.setText(row.key(), "New");
            QCOMPARE(host.shown(row.key()), row.value());
            host.setTip(row.key(), "One;Two");
            const QString tip = row.key() == "t_fold" ? "New|One" : "New|<html>";
            QVERIFY2(host.find<QLabel>(row.key()) || host.shown(row.key()).startsWith(tip),
                     qPrintable(row.key()));
            host.setTip(row.key(), {});
            host.setText(row.key(), {});
            QCOMPARE(host.shown(row.key()), described);
        }
        host.setText("t_fold", "New");
        QCOMPARE(host.find<QPushButton>("t_fold")->accessibleName(), QString("New"));
    }

    void shouldGiveThemToWhatIsMadeLater()
    {
        Host host;
        for (const char *name : {"nobody", "d", "b", "sub"})
            host.setText(name, "New");
        host.showEnabled();
        host.click("later");
        const auto *row = host.find<QToolBar>("later");
        QCOMPARE(row->widgetForAction(host.action("d"))->accessibleName(), QString("New"));
        QCOMPARE(host.shown("d"), QString("New|New"));
        host.openMenu();
        QCOMPARE(host.action("b")->text() + host.find<QMenu>("sub")->title(), QString("NewNew"));
    }

    void shouldLeaveEntriesAndQuickAccessTheirTexts()
    {
        Host host;
        host.setIcon("a", Qt::red);
        host.setText("a", "New");
        host.setTip("a", "New tip");
        host.showEnabled();
        host.openMenu();
        host.quickAction()->setEnabled(true);
        QAction *entry = host.action("menu_a");
        QCOMPARE(entry->text() + '|' + entry->statusTip(), QString("menu_a|New tip"));
        QCOMPARE(host.quickAction()->text() + '|' + host.quickAction()->toolTip(),
                 QString("qbar_a|New tip"));
        for (const QAction *action : {host.action("a"), entry, host.quickAction()})
            QCOMPARE(colourOf(action->icon()), QColor(Qt::red));
        host.setTip("qbar_a", "Own");
        host.setIcon("menu_a", Qt::blue);
        QCOMPARE(host.quickAction()->toolTip(), QString("Own"));
        QCOMPARE(colourOf(entry->icon()), QColor(Qt::blue));
        QVERIFY2(qAbs(colourOf(entry->icon(), QIcon::Disabled).alpha() - 140) < 10, "not dimmed");
        host.setIcon("a", {});
        QVERIFY(host.action("a")->icon().isNull() && host.quickAction()->icon().isNull());
    }

    void shouldShowThemOnDropButtonsAndTheirCopies()
    {
        Host host;
        QMenu overflow;
        overflow.addAction(host.action("drop"));
        const auto *copy = overflow.findChild<MRDropButton *>();
        const auto *button = host.find<MRDropButton>("drop");
        const int describedWidth = button->width();
        host.setText("line", "A line");
        host.setIcon("line", Qt::red);
        QCOMPARE(button->text() + '|' + copy->text(), QString("A line   |    A line"));
        QCOMPARE(colourOf(button->icon()), QColor(Qt::red));
        QCOMPARE(colourOf(copy->icon()), QColor(Qt::red));
        for (const char *name : {"line", "oval", "drop"})
            host.setText(name, "n");
        QVERIFY(button->width() < describedWidth);
        for (const char *name : {"line", "oval", "drop"})
            host.setText(name, {});
        QCOMPARE(button->width(), describedWidth);
        QCOMPARE(button->text() + '|' + copy->text(), QString("line   |    line"));
    }

    void shouldKeepWhatTheUserAndTheHostHaveEntered()
    {
        Host host;
        auto *box = host.find<QComboBox>("list");
        const QSignalSpy chosen(box, SIGNAL(currentIndexChanged(int)));
        host.setText("one", "100%");
        QCOMPARE(box->currentText(), QString("100%"));
        box->lineEdit()->setText("37");
        box->lineEdit()->setCursorPosition(1);
        host.setText("one", "1000%");
        QCOMPARE(box->itemText(0) + '|' + box->currentText(), QString("1000%|37"));
        QVERIFY(box->lineEdit()->cursorPosition() == 1 && box->isEditable() && chosen.isEmpty());

        host.facade().DoSetPageInfoSlot(3, 12);
        host.setText("d_totalpagelabel", "pages: ");
        QCOMPARE(host.shown("d_totalpagelabel"), QString("pages:12"));
        host.setText("d_totalpagelabel", {});
        host.facade().DoSetPageInfoSlot(3, 14);
        QCOMPARE(host.shown("d_totalpagelabel"), QString("of14"));
    }

    void shouldTellWhyAControlIsDisabled()
    {
        Host host;
        host.showEnabled();
        const auto *row = host.find<QToolBar>("row");
        const auto *quickBar = host.find<QToolBar>("toolbar_quickaccessbar");
        const QMap<QString, QWidget *> widgets{
            {"a", row->widgetForAction(host.action("a"))},
            {"drop", host.find<MRDropButton>("drop")},
            {"in", host.find<QToolButton>("in")},
            {"extra", host.find<QPushButton>("extra")},
            {"qbar_a", quickBar->widgetForAction(host.quickAction())}};
        for (auto widget = widgets.begin(); widget != widgets.end(); ++widget) {
            for (const bool isUsable : {false, true, false}) {
                host.setUsable(widget.key(), isUsable);
                const QString tip = tipOver(widget.value());
                QVERIFY2(isUsable ? tip == "Tip" : tip.contains(">Why<"), qPrintable(widget.key()));
            }
        }
        host.setTip("a", "New");
        QVERIFY(tipOver(widgets.value("a")).contains(">Why<"));
        host.setUsable("a", true);
        QCOMPARE(tipOver(widgets.value("a")), QString("New"));

        host.openMenu();
        QCOMPARE(host.action("b")->statusTip(), QString("Why;abc"));
        host.setText("b", "New");
        host.setUsable("b", true);
        QCOMPARE(host.action("b")->statusTip() + '|' + host.shown("b"), QString("Tip|New|New"));
    }

    void shouldNeitherGrowNorTellTheHost()
    {
        Host host;
        const QSignalSpy activated(&host.facade(), &MRToolBar::DoActive);
        const QSignalSpy asked(&host.facade(), &MRToolBar::DoRequestAuthority);
        const auto change = [&host](int times) {
            for (int i = 0; i < times; ++i) {
                for (const char *name : {"a", "line", "one", "t_fold"}) {
                    host.setText(name, i % 2 ? QString() : QString::number(i));
                    host.setTip(name, i % 3 ? QString() : QString::number(i));
                    host.setIcon(name, i % 2 ? QColor() : QColor(Qt::red));
                }
            }
        };
        change(6);
        const auto before = host.window().findChildren<QObject *>().size();
        change(500);
        QCOMPARE(host.window().findChildren<QObject *>().size(), before);
        QVERIFY(activated.isEmpty() && asked.isEmpty());
    }
};

QTEST_MAIN(TextsTest)
#include "tst_texts.moc"
