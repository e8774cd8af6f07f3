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
    section("appbutton", menu("file", item("a") + item("menu_a") + menu("sub", item("b", why))))
    + section("quickaccessbar", button("qbar_a", why)) + section("searchbar", button("st_next"))
    + section("addtional", "<button name='t_fold' tooltip='Fold;Unfold'/>" + button("extra", why))
    + row(button("a", why) + button("plain") + label("d_totalpagelabel", "of ")
              + comboBox("list", choice("one", "1%") + choice("two", "2%"), "editable='true'")
              + menu("drop", item("line") + item("oval"), "index='1' checkable='true' " + why)
              + group("g", button("in", why)),
          tab("later", button("d")));

/** A host with all kinds of controls, which gives them other texts, tooltips and icons. */
struct Host : TestHost
{
    Host()
        : TestHost(everything, {{"scheme", "dark"}})
    {
        showEnabled();
        quick = find<QToolBar>("toolbar_quickaccessbar")->actions().first();
    }

    void setText(QString name, const QString &text) { facade().DoSetControlTextSlot(name, text); }
    void setTip(QString name, const QString &tip) { facade().DoSetControlToolTipSlot(name, tip); }
    void setIcon(QString name, const QIcon &icon) { facade().DoSetControlIconSlot(name, icon); }
    void openMenu()
    {
        whenMenuPops([](QMenu *) {});
        click("file");
    }

    QWidget *buttonOn(const QString &bar, QAction *action) const
    {
        return find<QToolBar>(bar)->widgetForAction(action);
    }

    /** What a control of that name shows: its text and its tooltip. */
    QString shown(const QString &name) const
    {
        const QObject *control = find<QPushButton>(name);
        if (!control)
            control = name == "qbar_a" ? quick : action(name);
        return control->property("text").toString() + '|' + control->property("toolTip").toString();
    }

    QAction *quick;
};

QIcon filled(Qt::GlobalColor colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return pixmap;
}

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
        for (const char *row : {"plain New|New", "later New|", "file New|New", "st_next New|New",
                                "extra New|Tip", "t_fold New|Fold"}) {
            const QString name = QString(row).section(' ', 0, 0);
            const QString described = host.shown(name);
            host.setText(name, "New");
            QCOMPARE(name + ' ' + host.shown(name), QString(row));
            host.setTip(name, "One;Two");
            QVERIFY2(host.shown(name).startsWith(name == "t_fold" ? "New|One" : "New|<htm"), row);
            host.setTip(name, {});
            host.setText(name, {});
            QCOMPARE(host.shown(name), described);
        }
    }

    void shouldReachWhatIsMadeLaterButLeaveSomeTheirTexts()
    {
        Host host;
        for (const char *name : {"nobody", "d", "b", "sub", "a"})
            host.setText(name, "New");
        host.setTip("a", "New tip");
        host.setIcon("a", filled(Qt::red));
        host.click("later");
        QWidget *button = host.buttonOn("later", host.action("d"));
        QCOMPARE(button->accessibleName() + tipOver(button), QString("NewNew"));
        host.openMenu();
        QCOMPARE(host.action("b")->text() + host.find<QMenu>("sub")->title(), QString("NewNew"));
        QAction *entry = host.action("menu_a");
        QCOMPARE(entry->text() + '|' + entry->statusTip(), QString("menu_a|New tip"));
        host.setUsable("qbar_a", true);
        QCOMPARE(host.shown("qbar_a"), QString("qbar_a|New tip"));
        host.setIcon("menu_a", filled(Qt::blue));
        QCOMPARE(colourOf(host.quick->icon()), QColor(Qt::red));
        QCOMPARE(colourOf(entry->icon()), QColor(Qt::blue));
        QVERIFY2(qAbs(colourOf(entry->icon(), QIcon::Disabled).alpha() - 140) < 10, "not dimmed");
        host.setIcon("a", {});
        QVERIFY(host.action("a")->icon().isNull() && host.quick->icon().isNull());
    }

    void shouldShowEntriesOnDropButtonsAndTheirCopies()
    {
        Host host;
        QMenu overflow;
        overflow.addAction(host.action("drop"));
        const auto *copy = overflow.findChild<MRDropButton *>();
        const auto *button = host.find<MRDropButton>("drop");
        const int describedWidth = button->width();
        host.setText("line", "A line");
        host.setIcon("line", filled(Qt::red));
        QCOMPARE(button->text() + '|' + copy->text(), QString("A line   |    A line"));
        QVERIFY(colourOf(button->icon()) == Qt::red && colourOf(copy->icon()) == Qt::red);
        for (const QString &text : {QString("n"), QString()}) {
            for (const char *name : {"drop", "line", "oval"})
                host.setText(name, text);
            QCOMPARE(button->width() < describedWidth, !text.isEmpty());
        }
        QCOMPARE(button->text() + '|' + copy->text(), QString("line   |    line"));
    }

    void shouldKeepWhatTheUserAndTheHostHaveEntered()
    {
        Host host;
        auto *box = host.find<QComboBox>("list");
        host.setText("one", "100%");
        QCOMPARE(box->currentText(), QString("100%"));
        box->lineEdit()->setText("37");
        box->lineEdit()->setCursorPosition(1);
        host.setText("one", "1000%");
        QCOMPARE(box->itemText(0) + '|' + box->currentText(), QString("1000%|37"));
        QVERIFY(box->lineEdit()->cursorPosition() == 1 && box->isEditable());

        const auto *label = host.find<QLabel>("d_totalpagelabel");
        host.facade().DoSetPageInfoSlot(3, 12);
        host.setText("d_totalpagelabel", "pages: ");
        QCOMPARE(label->text(), QString("pages:12"));
        host.setText("d_totalpagelabel", {});
        host.facade().DoSetPageInfoSlot(3, 14);
        QCOMPARE(label->text(), QString("of14"));
    }

    void shouldTellWhyAControlIsDisabled()
    {
        Host host;
        const QMap<QString, QWidget *> widgets{
            {"a", host.buttonOn("row", host.action("a"))},
            {"drop", host.find<QToolButton>("drop")},
            {"in", host.find<QWidget>("in")},
            {"extra", host.find<QWidget>("extra")},
            {"qbar_a", host.buttonOn("toolbar_quickaccessbar", host.quick)}};
        for (const QString &name : widgets.keys()) {
            for (const bool isUsable : {false, true, false}) {
                host.setUsable(name, isUsable);
                const QString tip = tipOver(widgets.value(name));
                QVERIFY2(isUsable ? tip == "Tip" : tip.contains(">Why<"), qPrintable(name));
            }
        }
        host.setTip("a", "New");
        host.action("a")->setCheckable(true); // The button takes over everything of its action.
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
        const QSignalSpy zoomed(host.find<QComboBox>("list"), SIGNAL(currentIndexChanged(int)));
        qsizetype objects = 0;
        for (int i = 0; i < 500; ++i) {
            for (const char *name : {"a", "line", "one", "t_fold"}) {
                host.setText(name, i % 2 ? QString() : QString::number(i));
                host.setTip(name, i % 3 ? QString() : QString::number(i));
                host.setIcon(name, i % 2 ? QIcon() : filled(Qt::red));
            }
            const qsizetype now = host.window().findChildren<QObject *>().size();
            QVERIFY(i < 6 || now == objects);
            objects = now;
        }
        QVERIFY(activated.isEmpty() && zoomed.isEmpty());
    }
};

QTEST_MAIN(TextsTest)
#include "tst_texts.moc"
