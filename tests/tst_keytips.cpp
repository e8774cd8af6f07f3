// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/FieldHost.h"
#include "tests/support/Menus.h"
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

struct Described
{
    QString text;
    QString name;
    QString keytip;
};

QList<Controller> described(const std::vector<Described> &controls)
{
    QList<Controller> records;
    for (const Described &control : controls) {
        Controller record;
        record.text = control.text;
        record.name = control.name;
        record.keytip = control.keytip;
        records.append(record);
    }
    return records;
}

} // namespace

Q_DECLARE_METATYPE(Controller)

/** Key tips: their letters, the use of controls by them, and what ends them. */
class KeyTipsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveLettersThatAreTheirOwnAndDoNotDependOnWhatIsShown_data()
    {
        QTest::addColumn<QList<Controller>>("controls");
        QTest::addColumn<QStringList>("letters");
        QTest::newRow("described, also more than one")
            << described({{"a", "x", "f"}, {"b", "y", "Zq"}}) << QStringList{"F", "ZQ"};
        QTest::newRow("the first of two equal ones, then its own")
            << described({{"Save", "", "S"}, {"Send", "", "s"}}) << QStringList{"S", "E"};
        QTest::newRow("not the beginning of another")
            << described({{"Save", "", "SA"}, {"Sun", "", ""}}) << QStringList{"SA", "U"};
        QTest::newRow("of the mnemonic, of the words, of the name")
            << described({{QString::fromUtf8("打开(&O)"), "f_x", ""},
                          {"Fit Width", "f_fit", ""},
                          {QString::fromUtf8("宽"), "v_fitwidth", ""}})
            << QStringList{"O", "F", "I"};
        QTest::newRow("no Latin letter at all")
            << described({{QString::fromUtf8("宽"), "1", ""}}) << QStringList{"A"};
    }

    void shouldGiveLettersThatAreTheirOwnAndDoNotDependOnWhatIsShown()
    {
        QFETCH(QList<Controller>, controls);
        QFETCH(QStringList, letters);
        QList<const Controller *> records;
        for (const Controller &control : controls)
            records.append(&control);
        QCOMPARE(KeyTipLetters::assigned(records), letters);
    }

    void shouldGiveTwoLettersWhereThereAreMoreControlsThanLetters()
    {
        const QList<Controller> controls =
            described(std::vector<Described>(60, {"Page", "v_page", ""}));
        QList<const Controller *> records;
        for (const Controller &control : controls)
            records.append(&control);
        const QStringList letters = KeyTipLetters::assigned(records);
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

        // The tab on show stays unfolded.
        host.open();
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
        TipHost host(withTips(), tipsOn);
        host.enableEverything();
        const std::vector<std::function<void()>> others{
            [&host] { host.press(Qt::Key_Alt, Qt::NoModifier); },
            [&host] { host.press(Qt::Key_Left, Qt::NoModifier); },
            [&host] { host.type("9"); },
            [&host] { host.press(Qt::Key_Escape, Qt::NoModifier); },
            [&host] { QTest::mouseClick(host.field, Qt::LeftButton); },
            [&host] { host.find<QPushButton>("row")->setFocus(); },
            [&host] { host.window().resize(host.window().size() * 1.1); },
            [&host] {
                host.facade().DoSetSkinStyleSlot({{"keytips", "false"}});
            },
        };
        host.type("ro");
        QCOMPARE(host.field->text(), QStringLiteral("ro"));
        for (std::size_t i = 0; i < others.size(); ++i) {
            host.field->setFocus();
            host.open();
            QVERIFY2(host.layer(), qPrintable(QString::number(i)));
            others[i]();
            QVERIFY2(!host.layer(), qPrintable(QString::number(i)));
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

    void shouldReachWhatANarrowRowHasMoved()
    {
        QString controls;
        for (int i = 0; i < 12; ++i)
            controls += button("command" + QString::number(i), "shrink='1'");
        TipHost host(tabs(controls, button("x")), tipsOn);
        host.window().resize(host.scaled(320), host.scaled(300));
        const auto *more = host.find<QToolButton>("row_more");
        QTRY_VERIFY(more->isVisible());
        host.open();
        host.type("r");
        QVERIFY(host.layer()->accessibleName().contains(more->accessibleName()));
    }

    void shouldGoBackAStepByEscape()
    {
        TipHost host(withTips(), tipsOn);
        host.enableEverything();
        host.open();
        host.type("r");
        QVERIFY(!host.layer()->accessibleName().contains("O other"));
        host.press(Qt::Key_Escape, Qt::NoModifier);
        QVERIFY(host.layer()->accessibleName().contains("O other"));
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

    void shouldHaveNoTipsWithoutTheKey()
    {
        TipHost host(withTips());
        host.open();
        host.press(Qt::Key_F10, Qt::NoModifier);
        QVERIFY(!host.layer());
    }

    void shouldShowEveryTipInsideTheWindowAtItsControl_data()
    {
        QTest::addColumn<QString>("scale");
        QTest::addColumn<bool>("isRightToLeft");
        for (const char *scale : {"1", "1.5", "2"}) {
            QTest::addRow("%s", scale) << QString(scale) << false;
            QTest::addRow("%s from right to left", scale) << QString(scale) << true;
        }
    }

    void shouldShowEveryTipInsideTheWindowAtItsControl()
    {
        QFETCH(QString, scale);
        QFETCH(bool, isRightToLeft);
        const auto host =
            TestHost::withFile(SHOWCASE, {{"keytips", "true"}, {"scalefactor", scale}});
        host->window().setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        host->showEnabled();
        host->enableEverything();
        QTest::keyClick(host->window().windowHandle(), Qt::Key_Alt);
        const auto *layer = host->window().findChild<KeyTipLayer *>();
        QVERIFY(layer);
        int tabs = 0;
        for (QPushButton *tab : host->shownTabs()) {
            const QRect badge = layer->badge({"M", tab, tab});
            QVERIFY(layer->rect().contains(badge));
            const QRect place(tab->mapTo(&host->window(), QPoint()), tab->size());
            QVERIFY(badge.intersects(place) && badge.center().y() > place.center().y());
            QVERIFY(std::abs(badge.center().x() - place.center().x()) <= 1);
            ++tabs;
        }
        QVERIFY(tabs > 3);
        const QPixmap shown = host->window().grab();
        QVERIFY(shown.rect().contains(layer->geometry()));
    }
};

QTEST_MAIN(KeyTipsTest)
#include "tst_keytips.moc"
