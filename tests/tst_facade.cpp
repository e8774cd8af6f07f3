// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"

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

} // namespace

/** The class MRToolBar: its signals, slots and queries. */
class FacadeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAnswerNeutrallyWithoutAToolBar()
    {
        TestHost host(
            row("<button text='nameless'/>" + button("a", "checkable='true' checked='true'")));
        QVERIFY(host.facade().IsSupportByToolBar("a"));
        QVERIFY(host.toolBar()->IsSupportByToolBar(""));
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
            "DoSetScaleSlot(double)";
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
};

QTEST_MAIN(FacadeTest)
#include "tst_facade.moc"
