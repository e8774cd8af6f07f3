// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "tests/support/WarningTrap.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRScrollWidget.h"

#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>

#include <limits>

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

    void shouldHoldThousandsOfNestedMenus()
    {
        // With a style sheet Qt visits all ancestors of every menu to find its rules.
        const QList<std::pair<int, TestHost::SkinMap>> rows{{1000, {}},
                                                            {10000, {{"externalqss", ""}}}};
        for (const auto &[depth, skin] : rows) {
            const QDomDocument document = nestedMenus(depth);
            QDomElement root = document.documentElement();
            auto window = std::make_unique<QMainWindow>();
            MRToolBar facade(window.get(), root, skin, ToolBarLeft);
            window->findChild<NewToolBar *>()->Inner_DoDelayLoadMenuSlot();
            // The innermost menu has no children, so it becomes an entry.
            const QString innermost = QStringLiteral("m%1").arg(depth - 1);
            QVERIFY(facade.IsSupportByToolBar(innermost));
            window.reset();
            runDeferredDeletes();
            QVERIFY(!facade.IsSupportByToolBar(innermost));
        }
    }

    void shouldTakeTextsOfAMegabyte()
    {
        const QString huge(1 << 20, QLatin1Char('w'));
        const QString card = "title;" + huge;
        for (const auto &[attribute, value] : {std::pair{"text", huge},
                                               {"tooltip", huge},
                                               {"tooltip", card},
                                               {"icon", huge},
                                               {"shortcut", huge},
                                               {"group", huge}}) {
            QString controls;
            for (const char *type : {"button", "label", "menu"})
                controls += QStringLiteral("<%1 name='big' %2='%3'/>").arg(type, attribute, value);
            TestHost host = TestHost::shown(rowWithLast(controls));
            host.setUsable("last", true);
            QCOMPARE(host.window().width(), 1300);
            verifyReports(host, "last");
        }
    }

    void shouldKeepNamesOutOfStyleSheets_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString name :
             {"a\"b'c", "a;}QWidget{background:red;min-height:400px}", "../a\\b//c/",
              "#a[b=\"c\"]::d,*", "%1%2%L3 [MainColor]", "<b>a</b>&lt;", "a\nb\tc\rd", "&a&&b"})
            QTest::newRow(qPrintable(name.simplified())) << name;
    }

    void shouldKeepNamesOutOfStyleSheets()
    {
        QFETCH(QString, name);
        const QString pattern =
            section("quickaccessbar", button("%1"))
            + row("<menu name='%1' text='M' tooltip='%1' checkable='true' switchable='true'>"
                  "<menuitem action='%1' text='e'/></menu>"
                  + group("%1", menu("%1", item("i"), "checkable='true'")) + button("plain"));
        const WarningTrap trap;
        TestHost harmless = TestHost::shown(pattern.arg("harmless"));
        QString escaped = name.toHtmlEscaped().replace('\'', "&#39;");
        for (const char blank : {'\n', '\t', '\r'})
            escaped.replace(blank, QStringLiteral("&#%1;").arg(int(blank)));
        TestHost host = TestHost::shown(QString(pattern).replace("%1", escaped));
        QVERIFY(host.facade().IsSupportByToolBar(name));
        auto *drop = host.toolBar()->findChild<MRDropButton *>();
        if (!name.contains(QLatin1Char(';')))
            QCOMPARE(drop->toolTip(), name);
        const QList<QWidget *> widgets = host.window().findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            QTest::mouseMove(widget, widget->rect().center());
            QVERIFY2(!widget->styleSheet().contains(name), qPrintable(widget->styleSheet()));
        }
        QCOMPARE(host.sheet(), harmless.sheet());
        QCOMPARE(WarningTrap::warnings(), QStringList());
    }

    void shouldLoadIconsFromItsOwnResourcesOnly()
    {
        for (const char *name :
             {"../../../../../../../../etc/passwd", "/etc/passwd", "file:///etc/passwd",
              ":/mr_toolbar/Resources/lum/qssfile.qss", "../../..", "icon16"}) {
            TestHost host =
                TestHost::shown(rowWithLast(button("odd", QStringLiteral("icon='%1'").arg(name))));
            QVERIFY2(host.action("odd")->icon().isNull(), name);
        }
    }

    void shouldTakeAnySkin()
    {
        const QList<std::pair<QString, QString>> entries{
            {"[MainColor]", QString(1 << 20, QLatin1Char('f'))},
            {"e", "xyz"},
            {"{", "}"},
            {"[MainColor]", "red;} QWidget{background:blue"}};
        TestHost untouched(plainRow);
        for (const auto &[key, value] : entries) {
            const WarningTrap trap; // Qt may warn of the sheet.
            TestHost host = TestHost::shown(plainRow, {{key, value}});
            host.facade().DoSetSkinStyleSlot({{key, value}});
            host.setUsable("plain", true);
            verifyReports(host, "plain");
            // A valid skin undoes it.
            host.facade().DoSetSkinStyleSlot({{"[MainColor]", "#008AD9"}});
            QCOMPARE(host.sheet(), untouched.sheet());
        }
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
        TestHost host = TestHost::enabled(rowWithLast(button("plain")));
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
};

QTEST_MAIN(HostileTest)
#include "tst_hostile.moc"
