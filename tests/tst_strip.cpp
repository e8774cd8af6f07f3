// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QWindow>

using namespace Describe;

namespace {

const QString controls = button("one") + label("text", "Text") + comboBox("list", choice("a", "A"));

/** The sections of a toolbar with a control in each area. */
QString sections()
{
    return section("appbutton", menu("menu_file", item("f_open")))
           + section("searchbar", button("s_next") + field("s_input"))
           + row(controls, tab("other", button("two")));
}

/** Clicks with the right button, as the windowing system would report it. */
void rightClick(const QWidget *widget, const QPoint &place)
{
    const QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, widget->mapTo(window, place));
}

QStringList textsOf(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
    for (const QAction *entry : entries) {
        if (entry->isVisible())
            texts.append(entry->text());
    }
    return texts;
}

/** Closes the open menu and returns the texts of its entries. */
QStringList takePoppedTexts()
{
    QCoreApplication::processEvents();
    QStringList texts;
    if (QWidget *popup = QApplication::activePopupWidget()) {
        texts = QStringList("a popup") + textsOf(qobject_cast<QMenu *>(popup));
        popup->close();
    }
    return texts;
}

} // namespace

/** The strip: the QToolBar "mrtoolbar" of the main window, which contains the toolbar. */
class StripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNotOpenTheMenuOfTheWindow_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QPoint>("place");
        const QPoint inside(3, 3);
        QTest::newRow("strip") << "mrtoolbar" << QPoint(1, 1);
        QTest::newRow("blank part of the top line") << "top_widget" << QPoint(700, 6);
        QTest::newRow("application button") << "menu_file" << inside;
        QTest::newRow("tab on show") << "row" << inside;
        QTest::newRow("other tab") << "other" << inside;
        QTest::newRow("row of the tab") << "tabwidget" << QPoint(900, 20);
        QTest::newRow("label") << "text" << inside;
        QTest::newRow("list") << "list" << inside;
    }

    void shouldNotOpenTheMenuOfTheWindow()
    {
        QFETCH(QString, name);
        QFETCH(QPoint, place);
        TestHost host(sections());
        host.window().addToolBarBreak();
        host.window().addToolBar("Host's own")->addAction("An action of the host");
        host.show();
        const auto *widget = host.find<QWidget>(name);
        QVERIFY(widget->rect().contains(place));
        // With disabled rows and with enabled ones.
        for (int state = 0; state < 2; ++state) {
            rightClick(widget, place);
            QCOMPARE(takePoppedTexts(), QStringList());
            host.enableRows();
        }
    }

    void shouldNotOpenTheMenuOfTheWindowOnItsButtonsAndRows()
    {
        TestHost host(sections());
        host.showEnabled();
        const auto *bar = host.find<QToolBar>("mrtoolbar");
        const QList<QWidget *> parts = bar->findChildren<QWidget *>();
        QVERIFY(parts.size() > 20);
        for (QWidget *part : parts) {
            const bool hasOwnMenu = part->inherits("QLineEdit");
            if (!part->isVisible() || part->window() != &host.window() || hasOwnMenu)
                continue;
            const QPoint centre = part->rect().center();
            QContextMenuEvent event(QContextMenuEvent::Mouse, centre, part->mapToGlobal(centre));
            QApplication::sendEvent(part, &event);
            QVERIFY2(takePoppedTexts().isEmpty(), part->metaObject()->className());
        }
    }

    void shouldNotOpenTheMenuOfTheWindowByItsKey()
    {
        TestHost host(sections());
        host.window().addToolBar("Host's own");
        host.show();
        auto *tab = host.find<QPushButton>("row");
        tab->setFocus(Qt::TabFocusReason);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, tab->rect().center(),
                                tab->mapToGlobal(tab->rect().center()));
        QApplication::sendEvent(tab, &event);
        QCOMPARE(takePoppedTexts(), QStringList());
    }

    void shouldNotBeInTheMenuOfTheWindow()
    {
        TestHost host(sections());
        auto *hostBar = host.window().addToolBar("Host's own");
        hostBar->addAction("An action of the host");
        host.show();
        rightClick(hostBar, QPoint(2, 2));
        QCOMPARE(takePoppedTexts(), (QStringList{"a popup", "Host's own"}));

        const std::unique_ptr<QMenu> menu(host.window().createPopupMenu());
        QCOMPARE(textsOf(menu.get()), QStringList("Host's own"));
    }

    void shouldNotOpenAMenuWithoutEntries()
    {
        TestHost host(sections());
        host.window().menuBar()->addMenu("Host's own");
        host.show();
        rightClick(host.window().menuBar(), QPoint(600, 4));
        QCOMPARE(takePoppedTexts(), QStringList());
    }

    void shouldBeListedForAHostThatWantsIt()
    {
        TestHost host(sections());
        const auto *bar = host.find<QToolBar>("mrtoolbar");
        bar->toggleViewAction()->setVisible(true);
        host.window().menuBar()->addMenu("Host's own");
        host.show();
        rightClick(host.window().menuBar(), QPoint(600, 4));
        QCOMPARE(takePoppedTexts(), (QStringList{"a popup", "mr_toolbar"}));
        host.setVisible("toolbar_whole", false);
        host.setVisible("toolbar_whole", true);
        QVERIFY(bar->toggleViewAction()->isVisible());
    }

    void shouldDeleteItsStripAndNoBarOfTheHost()
    {
        TestHost host(sections());
        const QPointer<QToolBar> strip(host.find<QToolBar>("mrtoolbar"));
        const QPointer<QToolBar> hostBar(host.window().addToolBar("Host's own"));
        hostBar->addWidget(host.toolBar());
        host.show();
        QCOMPARE(host.toolBar()->parentWidget(), hostBar.data());

        delete host.toolBar();
        runDeferredDeletes();
        QVERIFY2(hostBar && hostBar->isVisible(),
                 "The host's QToolBar was deleted with the toolbar");
        QVERIFY2(!strip, "An empty strip stays in the window");
    }

    void shouldBeDeletedWithItsBarOrItsWindow_data()
    {
        QTest::addColumn<bool>("isMoved");
        QTest::addColumn<QString>("deleted");
        for (const char *deleted : {"mrtoolbar", "host's own", "the window"}) {
            QTest::addRow("%s, in its strip", deleted) << false << deleted;
            QTest::addRow("%s, moved", deleted) << true << deleted;
        }
    }

    void shouldBeDeletedWithItsBarOrItsWindow()
    {
        QFETCH(bool, isMoved);
        QFETCH(QString, deleted);
        TestHost host(sections());
        const QPointer<NewToolBar> toolBar(host.toolBar());
        const QPointer<QToolBar> strip(host.find<QToolBar>("mrtoolbar"));
        QToolBar *hostBar = host.window().addToolBar("Host's own");
        hostBar->setObjectName("host's own");
        if (isMoved)
            hostBar->addWidget(toolBar);
        host.show();
        if (deleted == "the window")
            host.deleteWindow();
        else
            delete host.find<QToolBar>(deleted);
        runDeferredDeletes();
        const bool staysInStrip = !isMoved && deleted == "host's own";
        QCOMPARE(!toolBar.isNull(), staysInStrip);
        QCOMPARE(!strip.isNull(), staysInStrip);
    }

    void shouldKeepThePoliciesOfItsParts()
    {
        TestHost host(sections());
        for (const char *name : {"mrtoolbar", "row"})
            QCOMPARE(host.find<QToolBar>(name)->contextMenuPolicy(), Qt::NoContextMenu);
    }
};

QTEST_MAIN(StripTest)
#include "tst_strip.moc"
