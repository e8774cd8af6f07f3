// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "tests/support/WarningTrap.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/widgets/CCR_ToolTipWidget.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRScrollWidget.h"

#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QToolBar>
#include <QToolTip>

#include <functional>
#include <limits>

/** The host's answer to a command. */
using Answer = std::function<void(TestHost &)>;
Q_DECLARE_METATYPE(Answer)

using namespace Describe;

namespace {

const QString plainRow = row(button("plain"));

/** A row of these controls with a plain button at the end. */
QString rowWithLast(const QString &controls)
{
    return row(controls + button("last"));
}

/** A description whose only application menu has menus nested to that depth. */
QDomDocument nestedMenus(int depth)
{
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("uiconfig"));
    parent.setAttribute(QStringLiteral("prefix"), QString());
    document.appendChild(parent);
    parent =
        parent.appendChild(document.createElement(QStringLiteral("toolbar_appbutton"))).toElement();
    for (int i = 0; i < depth; ++i) {
        QDomElement menu = document.createElement(QStringLiteral("menu"));
        menu.setAttribute(QStringLiteral("name"), QStringLiteral("m%1").arg(i));
        parent = parent.appendChild(menu).toElement();
    }
    return document;
}

void verifyReports(TestHost &host, const QString &command)
{
    const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
    host.action(command)->trigger();
    QCOMPARE(TestHost::texts(active), QStringList(command));
}

} // namespace

/** Huge, malformed and inconsistent descriptions, skins and screens, and calls at unusual times. */
class HostileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHoldFiftyThousandControls()
    {
        constexpr int tabs = 50;
        constexpr int controlsOfATab = 1000;
        QString sections;
        for (int number = 0; number < tabs; ++number) {
            QString controls;
            for (int i = 0; i < controlsOfATab; ++i)
                controls += button(QStringLiteral("b%1_%2").arg(number).arg(i));
            sections += tab(QStringLiteral("t%1").arg(number), controls);
        }
        TestHost host(section("tabbar", sections));
        for (int number = 0; number < tabs; ++number)
            host.find<QAbstractButton>(QStringLiteral("t%1").arg(number))->click();
        QString last = QStringLiteral("b%1_%2").arg(tabs - 1).arg(controlsOfATab - 1);
        QVERIFY(host.facade().IsSupportByToolBar(last));
        host.setUsable(last, false);
        QVERIFY(!host.facade().GetCompositeEnable(last));
        QCOMPARE(host.toolBar()->findChildren<QAction *>(QRegularExpression("^b")).size(),
                 tabs * controlsOfATab);
    }

    void shouldHoldThousandsOfNestedMenus_data()
    {
        QTest::addColumn<int>("depth");
        QTest::addColumn<TestHost::SkinMap>("skin");
        // With a style sheet Qt visits all ancestors of every menu to find its rules.
        QTest::newRow("with its sheet") << 1000 << TestHost::SkinMap();
        QTest::newRow("without") << 10000 << TestHost::SkinMap{{"externalqss", ""}};
    }

    void shouldHoldThousandsOfNestedMenus()
    {
        QFETCH(int, depth);
        QFETCH(TestHost::SkinMap, skin);
        const QDomDocument document = nestedMenus(depth);
        QDomElement root = document.documentElement();
        auto window = std::make_unique<QMainWindow>();
        MRToolBar facade(window.get(), root, skin, ToolBarLeft);
        window->findChild<NewToolBar *>()->Inner_DoDelayLoadMenuSlot();
        // The innermost menu has no children, so it becomes an entry.
        QVERIFY(facade.IsSupportByToolBar(QStringLiteral("m%1").arg(depth - 1)));
        window.reset();
        runDeferredDeletes();
        QVERIFY(!facade.IsSupportByToolBar(QStringLiteral("m%1").arg(depth - 1)));
    }

    void shouldTakeTextsOfAMegabyte_data()
    {
        QTest::addColumn<QString>("attribute");
        for (const char *attribute :
             {"text", "tooltip", "tooltip card", "icon", "shortcut", "group"})
            QTest::newRow(attribute) << QString(attribute).section(' ', 0, 0);
    }

    void shouldTakeTextsOfAMegabyte()
    {
        QFETCH(QString, attribute);
        const bool isCard = QString(QTest::currentDataTag()).endsWith("card");
        const QString value = (isCard ? "title;" : "") + QString(1 << 20, QLatin1Char('w'));
        const QString huge = QStringLiteral("<%1 name='big' %2='%3'/>");
        QString controls;
        for (const char *type : {"button", "label", "menu"})
            controls += huge.arg(type, attribute, value);
        TestHost host(rowWithLast(controls));
        host.show();
        host.setUsable("last", true);
        QCOMPARE(host.window().width(), 1300);
        verifyReports(host, "last");
    }

    void shouldKeepNamesOutOfStyleSheets_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("quotes") << "a\"b'c";
        QTest::newRow("end of a rule") << "a;}QWidget{background:red;min-height:400px}";
        QTest::newRow("slashes") << "../a\\b//c/";
        QTest::newRow("selector") << "#a[b=\"c\"]::d,*";
        QTest::newRow("placeholders") << "%1%2%L3 [MainColor]";
        QTest::newRow("markup") << "<b>a</b>&lt;";
        QTest::newRow("control characters") << QString("a\nb\tc\rd");
        QTest::newRow("ampersands") << "&a&&b";
    }

    void shouldKeepNamesOutOfStyleSheets()
    {
        QFETCH(QString, name);
        const QString pattern =
            "<toolbar_quickaccessbar><button action='%1' text='q'/></toolbar_quickaccessbar>"
            "<toolbar_tabbar><tabbutton name='%1' text='T' checkable='true' checked='true'>"
            "<menu name='%1' text='M' tooltip='%1' checkable='true' switchable='true'>"
            "<menuitem action='%1' text='e'/></menu>"
            "<buttongroup name='%1'><menu name='%1' text='g' checkable='true'>"
            "<menuitem action='i' text='i'/></menu></buttongroup>"
            "<button action='plain' text='Plain' tooltip='Plain'/></tabbutton></toolbar_tabbar>";
        const WarningTrap trap;
        TestHost harmless(pattern.arg(QStringLiteral("harmless")));
        TestHost host(pattern.arg(name.toHtmlEscaped()
                                      .replace('\'', "&#39;")
                                      .replace('\n', "&#10;")
                                      .replace('\t', "&#9;")
                                      .replace('\r', "&#13;")));
        harmless.show();
        host.show();

        QVERIFY(host.facade().IsSupportByToolBar(name));
        auto *drop = host.toolBar()->findChild<MRDropButton *>();
        if (!name.contains(QLatin1Char(';')))
            QCOMPARE(drop->toolTip(), name);
        const QList<QWidget *> widgets = host.window().findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            QTest::mouseMove(widget, widget->rect().center());
            QVERIFY2(!widget->styleSheet().contains(name), qPrintable(widget->styleSheet()));
        }
        QCOMPARE(host.find<QToolBar>("mrtoolbar")->styleSheet(),
                 harmless.find<QToolBar>("mrtoolbar")->styleSheet());
        QCOMPARE(host.toolBar()->size(), harmless.toolBar()->size());
        QCOMPARE(WarningTrap::warnings(), QStringList());
    }

    void shouldLoadIconsFromItsOwnResourcesOnly()
    {
        for (const char *name :
             {"../../../../../../../../etc/passwd", "/etc/passwd", "file:///etc/passwd",
              ":/mr_toolbar/Resources/lum/qssfile.qss", "../../..", "icon16"}) {
            TestHost host(rowWithLast(button("odd", QStringLiteral("icon='%1'").arg(name))));
            host.show();
            QVERIFY2(host.action("odd")->icon().isNull(), name);
        }
    }

    void shouldTakeAnySkin_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("megabyte") << "[MainColor]" << QString(1 << 20, QLatin1Char('f'));
        QTest::newRow("letter") << "e" << QString("xyz");
        QTest::newRow("brace") << "{" << QString("}");
        QTest::newRow("whole rule") << "[MainColor]" << QString("red;} QWidget{background:blue");
    }

    void shouldTakeAnySkin()
    {
        QFETCH(QString, key);
        QFETCH(QString, value);
        const WarningTrap trap; // Qt may warn of the sheet.
        TestHost host(plainRow, {{key, value}});
        host.show();
        host.facade().DoSetSkinStyleSlot({{key, value}});
        host.setUsable("plain", true);
        verifyReports(host, "plain");

        // A valid skin undoes it.
        TestHost untouched(plainRow);
        host.facade().DoSetSkinStyleSlot({{"[MainColor]", "#008AD9"}});
        QCOMPARE(host.find<QToolBar>("mrtoolbar")->styleSheet(),
                 untouched.find<QToolBar>("mrtoolbar")->styleSheet());
    }

    void shouldIgnoreAnImpossibleScreenDensity()
    {
        const int none = std::numeric_limits<int>::min(); // Qt's result for a screen without size.
        for (const int told : {none, -1, 0, 5, 25, 31, 100000})
            QCOMPARE(ScreenDensity::credible(told), 96);
        for (const int told : {32, 96, 192, 600})
            QCOMPARE(ScreenDensity::credible(told), told);
    }

    void shouldIgnoreAChangeOfTheScreenDensity()
    {
        TestHost host(rowWithLast(button("plain")));
        host.showEnabled();
        QTest::qWait(10);
        const QSize size = host.toolBar()->size();
        QScreen *screen = QGuiApplication::primaryScreen();
        for (const qreal dpi : {192.0, 1.0, 0.0, 96.0}) {
            Q_EMIT screen->physicalDotsPerInchChanged(dpi);
            Q_EMIT screen->logicalDotsPerInchChanged(dpi);
            QTest::qWait(10);
            verifyReports(host, "plain");
        }
        QVERIFY2(host.toolBar()->size() == size,
                 "It keeps the density of the screen that it was made on");
    }

    void shouldAllowDeletionWithABubbleOpen()
    {
        TestHost host(plainRow);
        host.show();
        const QPointer<CCR_ToolTipWidget> bubble = new CCR_ToolTipWidget(&host.window());
        bubble->resize(200, 60);
        bubble->setLabelText(QStringLiteral("text"));
        bubble->show();
        QToolTip::showText(QCursor::pos(), QStringLiteral("tip"), host.toolBar());
        host.deleteWindow();
        QVERIFY(!bubble);
        QTest::qWait(50);
        QToolTip::hideText();
    }

    void shouldAllowDeletionWhileARowScrolls()
    {
        QString controls;
        for (int i = 0; i < 60; ++i)
            controls += button(QStringLiteral("b%1").arg(i));
        TestHost host(rowWithLast(controls));
        host.window().resize(400, 300);
        host.show();
        auto *area = host.toolBar()->findChild<MRScrollArea *>();
        area->DoScrollAction();
        QTRY_VERIFY(area->horizontalScrollBar()->value() > 0);
        host.deleteWindow();
        QTest::qWait(350);
        QVERIFY(!host.facade().IsSupportByToolBar("last"));
    }

    void shouldAllowAnyCallFromTheHandlerOfACommand_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<Answer>("answer");
        const QList<std::pair<const char *, Answer>> answers{
            {"reset", [](TestHost &host) { host.facade().DoResetToolbarSlot(); }},
            {"skin",
             [](TestHost &host) {
                 host.facade().DoSetSkinStyleSlot({{"[MainColor]", "#123456"}});
             }},
            {"hide", [](TestHost &host) { host.setVisible("toolbar_whole", false); }},
            {"leave the tab", [](TestHost &host) { host.setVisible("row", false); }},
            {"disable", [](TestHost &host) { host.setUsable("toolbar_maintoolbar", false); }},
            {"check", [](TestHost &host) { host.setChecked("entry", true); }},
            {"delete", [](TestHost &host) { host.toolBar()->deleteLater(); }},
        };
        for (const auto &[what, answer] : answers) {
            for (const char *control : {"plain", "entry", "other", "add"})
                QTest::addRow("%s from %s", what, control) << control << answer;
        }
    }

    void shouldAllowAnyCallFromTheHandlerOfACommand()
    {
        QFETCH(QString, control);
        QFETCH(Answer, answer);
        TestHost host(row(button("plain", "checkable='true' group='g'")
                              + menu("drop", item("entry", "checkable='true' group='g'"),
                                     "checkable='true' switchable='true'")
                              + group("two", button("other")),
                          tab("u", {}))
                      + section("addtional", button("add")));
        host.showEnabled();
        const QPointer<NewToolBar> toolBar = host.toolBar();
        int heard = 0;
        connect(&host.facade(), &MRToolBar::DoActive, this, [&] {
            if (++heard == 1)
                answer(host);
        });
        if (auto *button = host.find<QPushButton>(control))
            button->click();
        else
            host.action(control)->trigger();
        runDeferredDeletes();
        QCOMPARE(heard, 1);
        QCOMPARE(host.facade().IsSupportByToolBar("plain"), !toolBar.isNull());
    }
};

QTEST_MAIN(HostileTest)
#include "tst_hostile.moc"
