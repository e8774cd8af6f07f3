// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/FieldHost.h"
#include "tests/support/Menus.h"
#include "tests/support/Rows.h"
#include "toolbar/assist/KeyTipLayer.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/KeyTipLetters.h"
#include "toolbar/widgets/MRMainToolBar.h"

#include <QMenu>
#include <QMenuBar>
#include <QProxyStyle>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

using namespace Describe;

namespace {

/** A host whose toolbar is used by letters. */
class TipHost : public FieldHost
{
public:
    using FieldHost::FieldHost;

    /** Shows the key tips. */
    void open() { press(Qt::Key_Alt, Qt::NoModifier); }
    void type(const QString &letters)
    {
        for (const QChar letter : letters)
            QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
    }
    /** What shows the key tips; null while there are none. */
    KeyTipLayer *layer() const
    {
        const auto layers = toolBar()->window()->findChildren<KeyTipLayer *>();
        for (KeyTipLayer *layer : layers) {
            if (!layer->isHidden())
                return layer;
        }
        return nullptr;
    }
};

struct BarStyle : QProxyStyle
{
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *more) const override
    {
        return hint == SH_MenuBar_AltKeyNavigation
                   ? isOpenedByAlt
                   : QProxyStyle::styleHint(hint, option, widget, more);
    }
    bool isOpenedByAlt = true;
};

const TestHost::SkinMap tipsOn{{"keytips", "true"}};

/** Controls of every kind, with the letters that they are to have. */
QString withTips()
{
    return fileMenu(item("x"))
           + section("quickaccessbar", button("qbar_a") + button("qt_set", "keytip='C'"))
           + tabs(button("x") + menu("m", item("y")),
                  button("gone", "keytip='D'") + field("d_gotopage", "keytip='P'"));
}

/** Text, name and key tip of controls, each as "text|name|keytip". */
QStringList lettersOf(const QStringList &controls)
{
    std::vector<Controller> described;
    for (const QString &control : controls) {
        Controller record;
        record.text = control.section('|', 0, 0);
        record.name = control.section('|', 1, 1);
        record.changedOptIn().keytip = control.section('|', 2, 2);
        described.push_back(record);
    }
    QList<const Controller *> records;
    for (const Controller &record : described)
        records.append(&record);
    return KeyTipLetters::assigned(records);
}

const struct
{
    const char *name;
    QStringList controls;
    QStringList letters;
} assignments[] = {
    {"described, also more than one", {"a|x|f", "b|y|Zq"}, {"F", "ZQ"}},
    {"the first of two equal ones, then its own", {"Save||S", "Send||s"}, {"S", "E"}},
    {"not the beginning of another", {"Save||SA", "Sun||"}, {"SA", "U"}},
    {"of the mnemonic, of the words, of the name",
     {"打开(&O)|f_x|", "Fit Width|f_fit|", "宽|v_fitwidth|"},
     {"O", "F", "I"}},
    {"no Latin letter at all", {"宽|1|"}, {"A"}},
};

} // namespace

/** Key tips: their letters, the use of controls by them, and what ends them. */
class KeyTipsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveLettersThatAreTheirOwnAndDoNotDependOnWhatIsShown_data()
    {
        addRows(assignments);
    }
    void shouldGiveLettersThatAreTheirOwnAndDoNotDependOnWhatIsShown()
    {
        QCOMPARE(lettersOf(rowOf(assignments).controls), rowOf(assignments).letters);
    }

    void shouldGiveTwoLettersWhereThereAreMoreControlsThanLetters()
    {
        QStringList controls;
        for (int i = 0; i < 60; ++i)
            controls.append("Page|v_page|");
        const QStringList letters = lettersOf(controls);
        for (int i = 0; i < letters.size(); ++i) {
            QVERIFY(!letters.at(i).isEmpty() && letters.at(i).size() <= 2);
            for (int j = 0; j < i; ++j)
                QVERIFY(!KeyTipLetters::collide(letters.at(i), letters.at(j)));
        }
    }

    void shouldUseTheToolBarByLetters_data() { addSkins(); }

    void shouldUseTheToolBarByLetters()
    {
        const SkinChoice choice;
        TipHost host(withTips(), tipsOn);
        host.enableEverything();
        host.press(Qt::Key_Alt, Qt::NoModifier);
        QVERIFY(host.layer());
        QVERIFY(host.layer()->accessibleName().contains("O other"));
        host.type("o");
        QVERIFY(host.find<MRMainToolBar>("other")->isVisible());
        QVERIFY(host.layer()->accessibleName().contains("D gone"));
        host.enableEverything();
        host.type("d"); // Of a button that is disabled next.
        QTRY_COMPARE(host.commands(), QStringList("gone"));
        QVERIFY(!host.layer());
        QCOMPARE(QApplication::focusWidget(), host.field);

        host.setUsable("gone", false);
        host.open();
        host.type("od");
        QVERIFY(host.layer());
        host.type("p");
        QVERIFY(!host.layer());
        QCOMPARE(QApplication::focusWidget(), host.find<QLineEdit>("d_gotopage"));
        QCOMPARE(host.commands(), QStringList("gone"));

        // Escape goes back a step, and the tab on show stays unfolded.
        host.open();
        host.type("o");
        QVERIFY(!host.layer()->accessibleName().contains("O other"));
        host.press(Qt::Key_Escape, Qt::NoModifier);
        QVERIFY(host.layer()->accessibleName().contains("O other"));
        host.type("oo");
        QVERIFY(host.find<MRMainToolBar>("other")->isVisible());
        QVERIFY(!host.layer());
    }

    void shouldOpenMenusByLetters()
    {
        for (const char *letters : {"m", "c", "rm"}) {
            TipHost host(withTips(), tipsOn);
            host.enableEverything();
            QString opened;
            whenMenuPops([&opened](QMenu *menu) { opened = menu->objectName(); });
            host.open();
            host.type(letters);
            QTRY_VERIFY2(!opened.isEmpty(), letters);
        }
    }

    void shouldEndByWhateverElseIsDone()
    {
        TipHost host(withTips());
        host.enableEverything();
        host.open();
        host.press(Qt::Key_F10, Qt::NoModifier);
        QVERIFY(!host.layer());
        host.setSkin(tipsOn);
        const std::function<void()> others[]{
            [&host] { host.open(); },
            [&host] { host.press(Qt::Key_Left, Qt::NoModifier); },
            [&host] { host.type("9"); },
            [&host] { host.press(Qt::Key_Escape, Qt::NoModifier); },
            [&host] { QTest::mouseClick(host.field, Qt::LeftButton); },
            [&host] { host.find<QPushButton>("row")->setFocus(); },
            [&host] { host.window().resize(host.window().size() * 1.1); },
            [&host] {
                host.setSkin({{"keytips", "false"}});
            },
        };
        host.type("ro");
        QCOMPARE(host.field->text(), QStringLiteral("ro"));
        for (const auto &other : others) {
            host.field->setFocus();
            host.open();
            QVERIFY2(host.layer(), qPrintable(QString::number(&other - others)));
            other();
            QVERIFY2(!host.layer(), qPrintable(QString::number(&other - others)));
        }
        QCOMPARE(host.field->text(), QStringLiteral("ro"));
        host.open();
        QVERIFY(!host.layer());
    }

    void shouldSurviveAHostThatDeletesItWhenATabIsOpened()
    {
        TipHost host(withTips(), tipsOn);
        connect(&host.facade(), &MRToolBar::DoRequestAuthority, this,
                [&host] { delete host.find<QToolBar>("mrtoolbar"); });
        host.open();
        host.type("o");
        runDeferredDeletes();
        QCOMPARE(host.asked.count(), 1);
        QVERIFY(host.window().findChildren<KeyTipLayer *>().isEmpty());
        QCOMPARE(QApplication::focusWidget(), host.field);
    }

    void shouldLeaveAltToOthers()
    {
        TipHost host(withTips(), tipsOn);
        const auto pressAltAnd = [&host](Qt::Key key) {
            QTest::keyPress(host.field, Qt::Key_Alt);
            QTest::keyClick(host.field, key, Qt::AltModifier);
            QTest::keyRelease(host.field, Qt::Key_Alt);
        };
        pressAltAnd(Qt::Key_Shift);
        QVERIFY(!host.layer());
        QInputMethodEvent composing("ni", {});
        QApplication::sendEvent(host.field, &composing);
        host.open();
        QVERIFY(!host.layer());
        // What has been composed there is over when the focus goes elsewhere.
        host.find<QPushButton>("row")->setFocus();
        host.field->setFocus();
        host.open();
        QVERIFY(host.layer());
        host.press(Qt::Key_Escape, Qt::NoModifier);

        BarStyle style;
        host.window().menuBar()->setStyle(&style);
        host.window().menuBar()->addMenu("File");
        QTRY_VERIFY(host.window().menuBar()->isVisible());
        host.open();
        QVERIFY(!host.layer());
        host.field->setFocus();
        host.press(Qt::Key_F10, Qt::NoModifier);
        QVERIFY(host.layer());
        host.press(Qt::Key_Escape, Qt::NoModifier);
        style.isOpenedByAlt = false;
        host.open();
        QVERIFY(host.layer());
    }

    void shouldShowEveryTipInsideTheWindowAtItsControl()
    {
        const QList<QPair<QString, Qt::LayoutDirection>> looks{{"1", Qt::LeftToRight},
                                                               {"1.5", Qt::RightToLeft},
                                                               {"2", Qt::LeftToRight},
                                                               {"2", Qt::RightToLeft}};
        for (const auto &[scale, direction] : looks) {
            const auto host =
                TestHost::withFile(SHOWCASE, {{"keytips", "true"}, {"scalefactor", scale}});
            host->window().setLayoutDirection(direction);
            host->showEnabled();
            host->enableEverything();
            QTest::keyClick(host->window().windowHandle(), Qt::Key_Alt);
            const auto *layer = host->window().findChild<KeyTipLayer *>();
            QVERIFY(layer);
            const QList<QPushButton *> tabs = host->shownTabs();
            QVERIFY(tabs.size() > 3);
            for (QPushButton *tab : tabs) {
                const QRect badge = layer->badge({"M", tab, tab});
                QVERIFY(layer->rect().contains(badge));
                const QRect place(tab->mapTo(&host->window(), QPoint()), tab->size());
                QVERIFY(badge.intersects(place) && badge.center().y() > place.center().y());
                QVERIFY(std::abs(badge.center().x() - place.center().x()) <= 1);
            }
            QVERIFY(host->window().rect().contains(layer->geometry()));
        }
    }
};

QTEST_MAIN(KeyTipsTest)
#include "tst_keytips.moc"
