// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QWindow>

using namespace Describe;

namespace {

/** A facade without a toolbar. */
struct Bare
{
    QDomNode description;
    MRToolBar facade{nullptr, description, {}, ToolBarLeft};
};

/** Calls every slot and query of a facade whose toolbar does not exist or was deleted. */
void verifyIsNeutral(MRToolBar &facade)
{
    QString name = "a";
    QVERIFY(!facade.GetCompositeVisible(name) && !facade.GetCompositeEnable(name));
    QVERIFY(!facade.IsSupportByToolBar(name) && !facade.GetControlCheckedState(name));
    QCOMPARE(facade.GetQuickAccessButtonList() + facade.GetToolBarStyleSheet(), QString());
    QCOMPARE(facade.GetControlGeometry(name), QRect(QPoint(0, 0), QPoint(-1, -1)));
    facade.DoSetControlUsableStateSlot(name, true);
    facade.DoSetControlCheckedStateSlot(name, true);
    facade.DoSetControlVisibleStateSlot(name, true);
    facade.DoSetPageInfoSlot(1, 2);
    facade.DoSetSkinStyleSlot({{"[MainColor]", "red"}});
    facade.DoResetToolbarSlot();
}

/** Clicks with the right button, as the windowing system would report it. */
void rightClick(const QWidget *widget, const QPoint &place)
{
    const QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, widget->mapTo(window, place));
}

/** Closes the open menu and returns the texts of its entries. */
QStringList takePoppedTexts()
{
    QCoreApplication::processEvents();
    QWidget *popup = QApplication::activePopupWidget();
    if (!popup)
        return {};
    QStringList texts("a popup");
    const QList<QAction *> entries = popup->actions();
    for (const QAction *entry : entries) {
        if (entry->isVisible())
            texts.append(entry->text());
    }
    popup->close();
    return texts;
}

QToolBar *addHostBar(TestHost &host)
{
    auto *bar = host.window().addToolBar("Host's own");
    bar->setObjectName("host's own");
    bar->addAction("An action of the host");
    return bar;
}

} // namespace

/** The class MRToolBar, and the strip: the QToolBar "mrtoolbar" that contains the toolbar. */
class FacadeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAnswerNeutrallyWithoutAToolBar()
    {
        TestHost host(
            row("<button text='nameless'/>" + button("a", "checkable='true' checked='true'")));
        QVERIFY(host.facade().IsSupportByToolBar("a") && host.toolBar()->IsSupportByToolBar(""));
        QVERIFY2(!host.facade().IsSupportByToolBar(""), "No control has an empty name");
        host.deleteWindow();
        verifyIsNeutral(host.facade());
        Bare thereNeverWasAWindow;
        verifyIsNeutral(thereNeverWasAWindow.facade);
    }

    void shouldSendTheTotalBeforeThePage()
    {
        Bare from;
        // Two spies would not show the order, so a second facade receives both signals.
        Bare recorder;
        for (const char *signal :
             {SIGNAL(Inner_DoSetTotalPage(QString)), SIGNAL(Inner_DoSetPageNum(QString))})
            connect(&from.facade, signal, &recorder.facade, SLOT(Inner_DoActiveSlot(QString)));
        const QList<std::tuple<int, int, QStringList>> calls{{3, 12, {"/ 12", "3"}},
                                                             {3, 0, {" ", " "}},
                                                             {0, 7, {" ", " "}},
                                                             {-1, -2, {"/ -2", "-1"}}};
        for (const auto &[page, total, sent] : calls) {
            const QSignalSpy heard(&recorder.facade, &MRToolBar::DoActive);
            from.facade.DoSetPageInfoSlot(page, total);
            QCOMPARE(TestHost::texts(heard), sent);
        }
    }

    void shouldDeclareTheSignaturesForStringConnections()
    {
        const QString expected =
            "Inner_DoSetControlUsableState(QString&,bool) "
            "Inner_DoSetControlCheckedState(QString&,bool) "
            "Inner_DoSetControlVisibleState(QString&,bool) Inner_DoSetTotalPage(QString) "
            "Inner_DoSetPageNum(QString) Inner_DoSetZoomMode(QString) "
            "Inner_DoUpdateRecentFile(QStringList) Inner_DoSetBackgound(BackgroundStyle) "
            "Inner_DoSetSkinStyle(ToolBarSkinStyle) DoGotoPage(int) DoActive(QString) "
            "DoDoubleActive(QString) DoOpenFile(QString) DoSetZoomMode(QString) "
            "DoSearchContent(SearchOption) DoSetBackground(BackgroundStyle) DoRequestAuthority() "
            "DoTabShown(QString) DoStateChanged() "
            "Inner_DoGotoPageSlot(int) Inner_DoActiveSlot(QString) "
            "Inner_DoDoubleActionSlot(QString) "
            "Inner_DoOpenFileSlot(QString) Inner_DoSetZoomModeSlot(QString) "
            "Inner_DoSearchContentSlot(SearchOption) Inner_DoSetBackgroundSlot(BackgroundStyle) "
            "DoSetControlUsableStateSlot(QString&,bool) "
            "DoSetControlCheckedStateSlot(QString&,bool) "
            "DoSetZoomModeSlot(QString) DoSetPageInfoSlot(int,int) "
            "DoUpdateRecentFileSlot(QStringList) "
            "DoSetControlVisibleStateSlot(QString&,bool) DoSetBackgroundSlot(BackgroundStyle) "
            "DoSetSkinStyleSlot(ToolBarSkinStyle) DoResetToolbarSlot() DoSetFocusSlot(QString) "
            "DoSetScaleSlot(double) DoSetControlTextSlot(QString&,QString) "
            "DoSetControlToolTipSlot(QString&,QString) DoSetControlIconSlot(QString&,QIcon) "
            "DoShowContextSlot(QString,bool) DoShowTabSlot(QString&) DoFindCommandSlot()";
        const QMetaObject &metaObject = MRToolBar::staticMetaObject;
        QStringList declared;
        for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i)
            declared.append(metaObject.method(i).methodSignature());
        QCOMPARE(declared, expected.split(' '));
    }

    void shouldCarryItsTypesThroughQueuedConnections()
    {
        Bare from;
        Bare to;
        const char *const pairs[][2]{
            {SIGNAL(DoSearchContent(SearchOption)), SLOT(Inner_DoSearchContentSlot(SearchOption))},
            {SIGNAL(DoSetBackground(BackgroundStyle)),
             SLOT(Inner_DoSetBackgroundSlot(BackgroundStyle))},
            {SIGNAL(Inner_DoSetSkinStyle(ToolBarSkinStyle)),
             SLOT(DoSetSkinStyleSlot(ToolBarSkinStyle))}};
        for (const auto &[signal, slot] : pairs)
            QVERIFY(connect(&from.facade, signal, &to.facade, slot, Qt::QueuedConnection));
        QSignalSpy searches(&to.facade, SIGNAL(DoSearchContent(SearchOption)));
        QSignalSpy backgrounds(&to.facade, SIGNAL(DoSetBackground(BackgroundStyle)));
        QSignalSpy skins(&to.facade, SIGNAL(Inner_DoSetSkinStyle(ToolBarSkinStyle)));

        const ToolBarSkinStyle skin{{"[MainColor]", "#123456"}};
        from.facade.Inner_DoSearchContentSlot({"ofd", 0, true, false, true});
        from.facade.Inner_DoSetBackgroundSlot(Background_Eyeguard);
        from.facade.DoSetSkinStyleSlot(skin);
        QVERIFY(searches.isEmpty());

        QTRY_COMPARE(skins.count(), 1);
        QCOMPARE(skins.first().first().value<ToolBarSkinStyle>(), skin);
        QCOMPARE(searches.count(), 1);
        const auto search = searches.first().first().value<SearchOption>();
        QCOMPARE(search.content, QString("ofd"));
        QVERIFY(search.direction == 0 && search.wholeWord && !search.noCase && search.newSearch);
        QCOMPARE(backgrounds.count(), 1);
        QCOMPARE(backgrounds.first().first().value<BackgroundStyle>(), Background_Eyeguard);
    }

    void shouldNotOpenTheMenuOfTheWindowOnAnyPart()
    {
        TestHost host(everything());
        addHostBar(host);
        host.find<QComboBox>("v_zoom")->setEditable(false);
        host.show();
        const QWidgetList parts = host.find<QToolBar>("mrtoolbar")->findChildren<QWidget *>();
        QVERIFY(parts.size() > 20);
        for (int state = 0; state < 2; ++state) { // With disabled rows and with enabled ones.
            for (QWidget *part : parts) {
                const bool hasOwnMenu =
                    part->inherits("QLineEdit") || part->parentWidget()->inherits("QLineEdit");
                if (!part->isVisible() || part->window() != &host.window() || hasOwnMenu)
                    continue;
                const QPoint centre = part->rect().center();
                for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
                    QContextMenuEvent event(reason, centre, part->mapToGlobal(centre));
                    QApplication::sendEvent(part, &event);
                    QVERIFY2(takePoppedTexts().isEmpty(), part->metaObject()->className());
                }
            }
            host.enableRows();
        }
        for (const char *name : {"mrtoolbar", "first"})
            QCOMPARE(host.find<QToolBar>(name)->contextMenuPolicy(), Qt::NoContextMenu);
    }

    void shouldBeListedInTheMenuOfTheWindowForAHostThatWantsItOnly()
    {
        TestHost host(everything());
        auto *menuBar = host.window().menuBar();
        menuBar->addMenu("Host's own");
        host.show();
        rightClick(menuBar, QPoint(600, 4)); // A menu without entries is not opened.
        QCOMPARE(takePoppedTexts(), QStringList());
        auto *hostBar = addHostBar(host);
        QTRY_VERIFY(hostBar->isVisible());
        rightClick(menuBar, QPoint(600, 4));
        QCOMPARE(takePoppedTexts(), (QStringList{"a popup", "Host's own"}));
        auto *toggle = host.find<QToolBar>("mrtoolbar")->toggleViewAction();
        toggle->setVisible(true);
        rightClick(menuBar, QPoint(600, 4));
        QCOMPARE(takePoppedTexts(), (QStringList{"a popup", "mr_toolbar", "Host's own"}));
        host.setVisible("toolbar_whole", false);
        host.setVisible("toolbar_whole", true);
        QVERIFY(toggle->isVisible());
    }

    void shouldBeDeletedWithItsBarOrItsWindow_data()
    {
        QTest::addColumn<bool>("isMoved");
        QTest::addColumn<QString>("deleted");
        for (const char *deleted : {"toolbar", "mrtoolbar", "host's own", "window"}) {
            QTest::addRow("%s, in its strip", deleted) << false << deleted;
            QTest::addRow("%s, moved", deleted) << true << deleted;
        }
    }

    void shouldBeDeletedWithItsBarOrItsWindow()
    {
        QFETCH(bool, isMoved);
        QFETCH(QString, deleted);
        TestHost host(everything());
        const QPointer<NewToolBar> toolBar(host.toolBar());
        const QPointer<QToolBar> strip(host.find<QToolBar>("mrtoolbar"));
        const QPointer<QToolBar> hostBar(addHostBar(host));
        if (isMoved)
            hostBar->addWidget(toolBar);
        host.show();
        if (deleted == "window")
            host.deleteWindow();
        else
            delete (deleted == "toolbar" ? toolBar : host.find<QWidget>(deleted));
        runDeferredDeletes();
        const bool staysInStrip = !isMoved && deleted == "host's own";
        QCOMPARE(!toolBar.isNull(), staysInStrip);
        QCOMPARE(!strip.isNull(), staysInStrip);
        const bool keepsHostBar = deleted == "toolbar" || deleted == "mrtoolbar";
        QCOMPARE(hostBar && hostBar->isVisible(), keepsHostBar);
    }
};

QTEST_MAIN(FacadeTest)
#include "tst_facade.moc"
