#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QValidator>

using namespace Describe;

namespace {

/** A host on the screen with a page field. */
class PageHost : public TestHost
{
public:
    PageHost()
        : TestHost(row("<lineedit name='d_gotopage' text='all pages'/>"))
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

    /** A page that there is not, in a document of so many pages. */
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

/** What may be entered into the page field, and what becomes of it. */
class PageFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pagesAreRefusedOutsideTheDocument_data()
    {
        QTest::addColumn<int>("page"); // 0 when refused. What is typed names the case.
        QTest::addColumn<QString>("shown");
        QTest::newRow("1") << 1 << "1";
        QTest::newRow("25") << 25 << "25";
        QTest::newRow("7/25") << 7 << "7/25";
        QTest::newRow("7/") << 7 << "7/";
        QTest::newRow("-7x/2/5 ") << 7 << "7/25"; // The keys that belong to no page do nothing.
        for (const char *outside : {"26", "99999999999999", "26/99"})
            QTest::newRow(outside) << 0 << "3/25";
        for (const char *noPage : {"0", "00", "/7", "0/25"}) // Return does nothing.
            QTest::newRow(noPage) << 0 << noPage;
        for (const char *nothing : {"x", "-", " ", "\u0663", "\uff17"})
            QTest::newRow(nothing) << 0 << "";
    }

    void pagesAreRefusedOutsideTheDocument()
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
        host.enter("99"); // The page entered stands as the current one without an answer.
        QCOMPARE(host.field->text(), QStringLiteral("%1/25").arg(page ? page : 3));
    }

    void aRefusedPageCanBeCorrected()
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

    void whatTheFieldShowsOpensItToNoOtherText_data()
    {
        QTest::addColumn<bool>("isRefusal"); // The text comes after a page that there is not.
        QTest::newRow("3/12") << true;
        QTest::newRow("-3/12") << true;
        QTest::newRow("3/-12") << true;
        for (const char *reported : {"5", "-5", "abc", "3/12/4", " 5", "a/b", "\u4e03"})
            QTest::newRow(reported) << false;
    }

    void whatTheFieldShowsOpensItToNoOtherText()
    {
        QFETCH(bool, isRefusal);
        const QString shown = QString::fromUtf8(QTest::currentDataTag());
        PageHost host;
        if (isRefusal)
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
        const QString broughtBack = host.field->text();
        host.verifyNothingElseIsTaken(broughtBack);
        host.facade().DoSetPageInfoSlot(3, 12);
        host.enter("7/12");
        QCOMPARE(host.takePages(), QStringLiteral("7"));
    }

    void aPageIsAcceptableWithOrWithoutATotal()
    {
        PageHost host;
        const QValidator *validator = host.field->validator();
        const auto state = [validator](QString text) {
            int position = 0;
            return validator->validate(text, position);
        };
        for (const char *page : {"1", "10", "010", "7/12", "7/"})
            QVERIFY2(state(page) == QValidator::Acceptable, page);
        for (const char *begun : {"", "0", "00", "/", "/12", "0/12"})
            QVERIFY2(state(begun) == QValidator::Intermediate, begun);
        for (const char *wrong : {"x", "-1", "1.5", "1/x", "1/2/3", "1 ", "1/ 2"})
            QVERIFY2(state(wrong) == QValidator::Invalid, wrong);
    }
};

QTEST_MAIN(PageFieldTest)
#include "tst_pagefield.moc"
