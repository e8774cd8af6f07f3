// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Menus.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>

#include <utility>

namespace {

/** A host that uses a shipped toolbar by mouse and keys and logs the signals. */
class Session
{
public:
    Session()
        : m_host(TestHost::withShipped("marodi/mr_toolbar.debug.xml"))
    {
        MRToolBar *facade = &m_host->facade();
        note("DoActive", &MRToolBar::DoActive);
        note("DoSetZoomMode", &MRToolBar::DoSetZoomMode);
        note("DoGotoPage", &MRToolBar::DoGotoPage);
        QObject::connect(facade, &MRToolBar::DoSetBackground, facade,
                         [this](BackgroundStyle style) {
                             m_log.append(QStringLiteral("DoSetBackground %1").arg(style));
                         });
        QObject::connect(facade, &MRToolBar::DoSearchContent, facade, [this](SearchOption option) {
            const QString direction = option.direction == 1 ? "forwards" : "backwards";
            const QString cases = option.noCase ? "in any case" : "in this case";
            m_log.append("DoSearchContent " + option.content + ' ' + direction + ' ' + cases);
        });
        QObject::connect(facade, &MRToolBar::DoRequestAuthority, facade, [this] {
            m_log.append(QStringLiteral("DoRequestAuthority"));
            reportStates();
        });
        reportStates();
        m_host->show();
    }

    TestHost &host() { return *m_host; }

    void click(const QString &button) { m_host->click(button); }

    /** Clicks the command on a visible row or quick access bar. */
    void clickOnRow(const QString &command)
    {
        const QList<QToolBar *> rows = m_host->window().findChildren<QToolBar *>();
        for (const QToolBar *row : rows) {
            const QList<QAction *> actions = row->actions();
            for (QAction *action : actions) {
                QWidget *widget = row->widgetForAction(action);
                if (action->objectName() == command && widget->isVisible()) {
                    QTest::mouseClick(widget, Qt::LeftButton, {}, bodyOf(widget));
                    return;
                }
            }
        }
        QFAIL(qPrintable(command + " is on no row"));
    }

    void clickMenu(const QString &button, const QStringList &entries)
    {
        choose([&] { click(button); }, entries);
    }

    void clickDrop(const QString &command, const QString &entry)
    {
        choose([&] { clickOnRow(command); }, {entry});
    }

    void enter(QLineEdit *field, const QString &text)
    {
        QTest::mouseClick(field, Qt::LeftButton);
        field->selectAll();
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }

    /** What the host has heard since the last call. */
    QStringList takeLog() { return std::exchange(m_log, {}); }

private:
    /** Opens a menu and clicks through these entries. */
    void choose(const std::function<void()> &open, const QStringList &entries)
    {
        whenMenuPops([entries](QMenu *menu) { clickEntries(menu, entries); });
        open();
        QTRY_VERIFY(!QApplication::activePopupWidget());
    }

    template <typename Signal>
    void note(const char *name, Signal signal)
    {
        QObject::connect(&m_host->facade(), signal, &m_host->facade(), [this, name](auto value) {
            m_log.append(QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(value));
        });
    }

    void reportStates()
    {
        m_host->enableEverything();
        for (const char *name : {"f_save", "qbar_f_save"})
            m_host->setUsable(name, false);
    }

    QStringList m_log;
    std::unique_ptr<TestHost> m_host;
};

void chooseFromMenusAndTheFirstRow(Session &session)
{
    session.clickMenu("menu_file", {"f_open"});
    session.clickMenu("menu_file", {"menu_help", "h_productinfo"});
    session.clickMenu("menu_file", {"f_save"}); // Disabled.
    session.clickOnRow("qbar_f_print");
    session.clickOnRow("qbar_f_save"); // Disabled.
    session.clickOnRow("t_handtool");
    session.clickMenu("ab_set", {"menu_view", "menu_view_pagelayout", "vpmode_doublepage"});
}

void enterPagesAndZooms(Session &session)
{
    TestHost &host = session.host();
    auto *page = host.find<QLineEdit>("d_gotopageinput");
    session.enter(page, "7");
    session.enter(page, "99");
    QCOMPARE(page->text(), QStringLiteral("7/25"));
    auto *zoom = host.find<QComboBox>("v_zoomlist");
    zoom->setFocus();
    QTest::keyClick(zoom, Qt::Key_End);
    session.enter(zoom->lineEdit(), "37");
    session.enter(zoom->lineEdit(), "100"); // An entry of the list, so the box moves there.
    session.clickOnRow("vzmode_fitwidth");
    host.facade().DoSetZoomModeSlot("vzmode_fitwidth");
}

void chooseOnOtherTabs(Session &session)
{
    session.click("tb_annot");
    session.clickOnRow("tt_highlight");
    session.clickDrop("tp_shape", "tp_arrow");
    session.clickOnRow("tp_shape"); // Repeats the entry.
    session.host().setChecked("t_handtool", true);
    session.click("tb_security");
    session.clickOnRow("t_sealsign");
    session.click("tb_annot"); // Its row exists already.
}

void searchAndFold(Session &session)
{
    session.enter(session.host().find<QLineEdit>("st_input"), "OFD");
    session.click("st_prev");
    session.clickMenu("st_set", {"st_option_nocase"});
    session.click("st_next");
    for (const char *button : {"e_preference", "t_fold", "t_extend"})
        session.click(button);
}

} // namespace

/** A long use of a shipped toolbar by mouse and keys, and the signals that the host gets. */
class SessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReportEveryStepOfASession()
    {
        Session session;
        MRToolBar &facade = session.host().facade();
        facade.DoSetPageInfoSlot(1, 25);
        chooseFromMenusAndTheFirstRow(session);
        QCOMPARE(
            session.takeLog(),
            QStringList({"DoRequestAuthority", "DoActive f_open", "DoActive h_productinfo",
                         "DoActive f_print", "DoActive t_handtool", "DoActive vpmode_doublepage"}));

        enterPagesAndZooms(session);
        QCOMPARE(
            session.takeLog(),
            QStringList({"DoGotoPage 7", "DoSetZoomMode vzmode_6400p", "DoSetZoomMode vzmode_37p",
                         "DoActive vzmode_fitwidth", "DoSetZoomMode vzmode_fitwidth"}));

        session.clickDrop("v_foreground", "background_nighttime");
        facade.DoSetBackgroundSlot(Background_Eyeguard);
        QCOMPARE(session.takeLog(), QStringList("DoSetBackground 2"));

        chooseOnOtherTabs(session);
        QCOMPARE(session.takeLog(),
                 QStringList({"DoRequestAuthority", "DoActive tt_highlight", "DoActive tp_arrow",
                              "DoActive tp_arrow", "DoRequestAuthority", "DoActive t_sealsign"}));

        searchAndFold(session);
        facade.DoResetToolbarSlot();
        QCOMPARE(session.takeLog(),
                 QStringList({"DoSearchContent OFD forwards in this case",
                              "DoSearchContent OFD backwards in this case",
                              "DoSearchContent OFD forwards in any case", "DoActive e_preference",
                              "DoSetZoomMode vzmode_original"}));
    }
};

QTEST_MAIN(SessionTest)
#include "tst_session.moc"
