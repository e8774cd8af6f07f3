// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>

using namespace Describe;

namespace {

/** A visible host window with a page field. */
class PageHost : public TestHost
{
public:
    PageHost()
        : TestHost(row(Describe::field("d_gotopage", "text='all pages'")))
        , field(find<QLineEdit>(QStringLiteral("d_gotopage")))
        , pages(&facade(), &MRToolBar::DoGotoPage)
    {
        showEnabled();
    }

    void enter(const QString &text)
    {
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(character), {});
        QTest::keyClick(field, Qt::Key_Return);
    }

    /** Enters a page number outside of a document with that many pages. */
    void refuse(int currentPage, int total)
    {
        facade().DoSetPageInfoSlot(currentPage, total);
        enter("99");
    }

    void verifyNothingElseIsTaken(const QString &shown)
    {
        QTest::keyClicks(field, "abx- ");
        QCOMPARE(field->text(), shown);
        QGuiApplication::clipboard()->setText(QStringLiteral("abc"));
        field->paste();
        QCOMPARE(field->text(), shown);
    }

    QString takePages()
    {
        const QStringList taken = texts(pages);
        pages.clear();
        return taken.join(' ');
    }

    QLineEdit *field;
    QSignalSpy pages;
};

} // namespace

/** The input and the reports of the page field, and the total of pages beside it. */
class PageFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldRefusePagesOutsideTheDocument_data()
    {
        QTest::addColumn<int>("page"); // 0 when refused. The typed text is the tag of the row.
        QTest::addColumn<QString>("shown");
        QTest::newRow("1") << 1 << "1";
        QTest::newRow("25") << 25 << "25";
        QTest::newRow("7/25") << 7 << "7/25";
        QTest::newRow("7/") << 7 << "7/";
        QTest::newRow("-7x/2/5 ") << 7 << "7/25"; // Invalid characters are not accepted.
        for (const char *outside : {"26", "99999999999999", "26/99"})
            QTest::newRow(outside) << 0 << "3/25";
        for (const char *noPage : {"0", "00", "/7", "0/25"}) // Return has no effect.
            QTest::newRow(noPage) << 0 << noPage;
        for (const char *nothing : {"x", "-", " ", "\u0663", "\uff17"})
            QTest::newRow(nothing) << 0 << "";
    }

    void shouldRefusePagesOutsideTheDocument()
    {
        QFETCH(int, page);
        PageHost host;
        host.enter("1");
        QVERIFY(host.pages.isEmpty()); // No document is open.
        QCOMPARE(host.field->text(), QStringLiteral("0/0"));
        host.facade().DoSetPageInfoSlot(3, 25);
        host.enter(QString::fromUtf8(QTest::currentDataTag()));
        QCOMPARE(host.takePages(), page ? QString::number(page) : QString());
        QTEST(host.field->text(), "shown");
        host.enter("99"); // The entered page is the current one, also if the host does not answer.
        QCOMPARE(host.field->text(), QStringLiteral("%1/25").arg(page ? page : 3));
    }

    void shouldAllowARefusedPageToBeCorrected()
    {
        PageHost host;
        host.facade().DoSetPageInfoSlot(3, 12);
        host.enter("99");
        QCOMPARE(host.field->text(), QStringLiteral("3/12"));
        QTest::keyClick(host.field, Qt::Key_Home);
        QTest::keyClick(host.field, Qt::Key_Delete);
        QTest::keyClick(host.field, Qt::Key_Return);
        QCOMPARE(host.takePages(), QString());
        QTest::keyClicks(host.field, "x7");
        QCOMPARE(host.field->text(), QStringLiteral("7/12"));
        QTest::keyClick(host.field, Qt::Key_Return);
        QCOMPARE(host.takePages(), QStringLiteral("7"));
    }

    void shouldTakePagesOnlyWhateverItShows()
    {
        for (const QString shown :
             {"3/12", "-3/12", "3/-12", "5", "-5", "abc", "3/12/4", " 5", "a/b", "\u4e03"}) {
            PageHost host;
            if (shown.endsWith("12")) // After a refused page.
                host.refuse(shown.section('/', 0, 0).toInt(), shown.section('/', 1).toInt());
            else
                host.toolBar()->DoSetPageNumSlot(shown);
            QCOMPARE(host.field->text(), shown);
            for (QString left = shown; !left.isEmpty(); left.chop(1)) {
                host.verifyNothingElseIsTaken(left);
                QTest::keyClick(host.field, Qt::Key_Backspace);
            }
            host.verifyNothingElseIsTaken({});
            host.field->undo();
            host.verifyNothingElseIsTaken(host.field->text());
            host.facade().DoSetPageInfoSlot(3, 12);
            host.enter("7/12");
            QCOMPARE(host.takePages(), QStringLiteral("7"));
        }
    }

    void shouldShowTheTotalInsideItsLabel()
    {
        using Steps = QList<std::pair<int, QString>>; // 0 clears.
        const QList<std::pair<QString, Steps>> labels{
            {"/",
             {{0, "/"}, {9, "/9"}, {120, "/120"}, {7, "/7"}, {0, "/ "}, {0, "/ "}, {25, "/25"}}},
            {"of pages", {{12, "of12pages"}, {3, "of3pages"}}}};
        // Without a label for it, the caption of the field shows the total.
        for (const QString &described :
             {field("d_gotopage", "text='x'") + label("d_totalpagelabel", "%1"),
              field("d_gotopage", "text='%1'")}) {
            for (const auto &[text, steps] : labels) {
                TestHost host(row(described.arg(text)));
                const auto *own = host.find<QLabel>("d_totalpagelabel");
                for (const auto &[total, shown] : steps) {
                    host.facade().DoSetPageInfoSlot(total == 0 ? 0 : 1, total);
                    QCOMPARE((own ? own : host.find<QLabel>("prompt"))->text(), shown);
                    QCOMPARE(host.find<QLineEdit>("d_gotopage")->text(),
                             QString(total == 0 ? "" : "1"));
                }
            }
        }
    }

    void shouldKeepEveryControlOnTheRowWhenTheTotalGrows()
    {
        TestHost host(
            row(comboBox("v_zoom", choice("vzmode_100p", "100%"), "text='Zoom' editable='true'")
                + "<sperator/>" + field("d_gotopage", "text='Page'")
                + label("d_totalpagelabel", "/") + label("d_pagelabel", "pages")));
        host.facade().DoSetPageInfoSlot(3, 12);
        host.window().resize(640, 100);
        host.showEnabled();
        QTRY_VERIFY2(host.find<QLabel>("d_pagelabel")->isVisible(), "There is room for it");
    }
};

QTEST_MAIN(PageFieldTest)
#include "tst_pagefield.moc"
