// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/fields/ZoomText.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QEventLoop>
#include <QLineEdit>
#include <QTimer>
#include <QToolTip>

#include <array>
#include <utility>

using namespace Describe;

namespace {

QString grouped(const QString &name, const QString &group)
{
    return button(name, QStringLiteral("group='%1' checkable='true'").arg(group));
}

/** A zoom box of two words and six percentages, and the buttons of the zoom modes. */
QString zoomControls(int index)
{
    QString items;
    const QList<QPair<QString, QString>> entries{{"fitpage", "Page"}, {"original", "Actual"},
                                                 {"10p", "10%"},      {"50p", "50%"},
                                                 {"100p", "100%"},    {"6400p", "6400%"}};
    for (const auto &[mode, text] : entries)
        items += choice("vzmode_" + mode, text);
    return grouped("vzmode_original", "zmode") + grouped("vzmode_fitpage", "zmode")
           + comboBox("v_zoom", items, QStringLiteral("index='%1' editable='true'").arg(index))
           + grouped("vzmode_custom", "zmode");
}

constexpr int predefined = 6;
constexpr int fiftyPercent = 4; // 1-based, as descriptions count.

/** A visible host window with a zoom box. */
class ZoomHost : public TestHost
{
public:
    explicit ZoomHost(int index = fiftyPercent)
        : TestHost(row(zoomControls(index)))
        , box(find<QComboBox>(QStringLiteral("v_zoom")))
        , modes(&facade(), &MRToolBar::DoSetZoomMode)
    {
        showEnabled();
    }

    /** Enters text of any script, as an input method does. */
    void type(const QString &text)
    {
        QVERIFY(box->isEditable());
        QTest::mouseClick(box->lineEdit(), Qt::LeftButton);
        QTRY_VERIFY(box->hasFocus());
        box->lineEdit()->selectAll();
        box->lineEdit()->insert(text);
    }

    void enter(const QString &text)
    {
        type(text);
        QTest::keyClick(box, Qt::Key_Return);
    }

    /** Chooses the entry of that mode from the list, by the keyboard. */
    void choose(const QString &mode)
    {
        box->showPopup();
        QAbstractItemView *list = box->view();
        list->setCurrentIndex(list->model()->index(box->findData(mode), 0));
        QTest::keyClick(list, Qt::Key_Return);
    }

    /** The modes that were reported since the last call. */
    QStringList takeModes()
    {
        const QStringList taken = texts(modes);
        modes.clear();
        return taken;
    }

    QString checkedModes() const
    {
        QString checked;
        for (const char *name : {"vzmode_original", "vzmode_fitpage", "vzmode_custom"})
            checked += QString(action(name)->isChecked() ? name : "");
        return checked;
    }

    QComboBox *box;
    QSignalSpy modes;
};

} // namespace

/** The zoom box and the buttons of the zoom modes. */
class ZoomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindInvalidZoomTexts()
    {
        for (const char *text : {"a", "12x", "5=", "+5", "5_", "\u4e2d", "5 \u9fa5"})
            QVERIFY2(ZoomText::isInvalid(text), text);
        for (const char *text : {"", "5", "5.5%", "5 x", "-5", "\u3042"})
            QVERIFY2(!ZoomText::isInvalid(text), text);
    }

    void shouldReportATypedZoom_data()
    {
        QTest::addColumn<QString>("mode"); // Empty for none. The typed text is the tag of the row.
        QTest::addColumn<QString>("shown");
        for (const char *kept : {"37", "12.50", "050", "64"}) // The list has 6400, too.
            QTest::newRow(kept) << QString("vzmode_%1p").arg(kept) << QString(kept) + '%';
        for (const char *followed : {"37.5xyz", "37.5%", "37.5 %", "37.5.1"})
            QTest::newRow(followed) << QString("vzmode_37.5p") << "37.5%";
        const QString none;
        QTest::newRow("100") << none << "100%";
        for (const char *small : {"5", "0", "9.99", "9.9999999", "1.2.3"})
            QTest::newRow(small) << none << "10%";
        for (const QString &large : {QString("9000"), QString("6400.0002"), QString(400, '9')})
            QTest::newRow(qPrintable(large)) << none << "6400%";
        for (const char *unchanged : {"50", "abc", ".5", "5.", "-5", " 5", "%", "\u0663\u0667"})
            QTest::newRow(unchanged) << none << "50%";
        QTest::newRow("\b") << none << "50%"; // Backspace, which empties the field.
    }

    void shouldReportATypedZoom()
    {
        QFETCH(QString, mode);
        ZoomHost host;
        host.enter(QTest::currentDataTag());
        QCOMPARE(host.takeModes().join(' '), mode);
        QTEST(host.box->currentText(), "shown");
        QCOMPARE(host.box->count(), predefined + (mode.isEmpty() ? 0 : 1));
        QVERIFY(!host.box->hasFocus());
    }

    void shouldKeepItsFieldWhileTheHostAnswersWhatWasEntered()
    {
        ZoomHost host;
        const QPointer<QLineEdit> field(host.box->lineEdit());
        bool isKept = false;
        connect(&host.facade(), &MRToolBar::DoSetZoomMode, &host.facade(), [&] {
            // A mode that cannot be typed takes the field away.
            host.facade().DoSetZoomModeSlot(QStringLiteral("vzmode_fitpage"));
            QEventLoop loop;
            QTimer::singleShot(0, &loop, &QEventLoop::quit);
            loop.exec();
            isKept = isKept || field;
        });
        host.enter(QStringLiteral("37"));
        QVERIFY(!host.box->isEditable());
        QVERIFY2(isKept, "Qt still executes the field's event handler");
        QTRY_VERIFY(!field);
    }

    void shouldListOneCustomZoomAtATime()
    {
        ZoomHost host;
        for (const char *number : {"37", "41", "41"}) {
            host.enter(number);
            const QString text = QString(number) + '%';
            QCOMPARE(host.box->count(), predefined + 1);
            QCOMPARE(host.box->itemText(predefined), text);
            QCOMPARE(host.box->currentIndex(), predefined);
            QCOMPARE(host.box->currentText(), text);
            QCOMPARE(host.takeModes(), QStringList(QStringLiteral("vzmode_%1p").arg(number)));
            host.enter("\b");
            QCOMPARE(host.box->currentText(), text);
        }
        QTest::mouseClick(host.box->lineEdit(), Qt::LeftButton);
        QTest::keyClick(host.box, Qt::Key_Up); // The arrow keys also move in the list.
        QCOMPARE(host.takeModes(), QStringList("vzmode_6400p"));
    }

    void shouldReportAZoomChosenFromTheList()
    {
        ZoomHost host(1);
        QVERIFY(!host.box->isEditable());
        host.box->setFocus();
        QTest::keyClick(host.box, Qt::Key_End);
        QCOMPARE(host.takeModes(), QStringList("vzmode_6400p"));
        QVERIFY(host.box->isEditable());
        host.enter("12");
        QCOMPARE(host.takeModes(), QStringList("vzmode_12p"));
        host.box->setCurrentIndex(0);
        QCOMPARE(host.takeModes(), QStringList("vzmode_fitpage"));
        QVERIFY(!host.box->isEditable());
    }

    void shouldShowAZoomThatTheHostReports()
    {
        const QList<std::array<QString, 3>> rows{{"vzmode_100p", "100%", "vzmode_original"},
                                                 {"vzmode_10p", "10%", "vzmode_custom"},
                                                 {"vzmode_50p", "50%", "vzmode_custom"},
                                                 {"vzmode_37.5P", "37.5%", "vzmode_custom"},
                                                 {"vzmode_clip", "cli%", ""}, // No percentage.
                                                 {"vzmode_fitpage", "Page", ""}};
        for (const auto &[mode, shown, checked] : rows) {
            ZoomHost host;
            QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            int answers = 0;
            // A host that confirms every report must not cause an endless loop.
            connect(&host.facade(), &MRToolBar::DoSetZoomMode, &host.facade(), [&](QString heard) {
                QVERIFY(++answers < 5);
                host.facade().DoSetZoomModeSlot(heard);
            });
            host.facade().DoSetZoomModeSlot(mode);
            QVERIFY(answers <= 1 && active.isEmpty());
            QCOMPARE(host.box->currentText() + host.checkedModes(), shown + checked);
            QCOMPARE(host.box->isEditable(), shown.endsWith('%'));
            QCOMPARE(host.box->count(), predefined);
        }
    }

    void shouldShowTheLastZoomInTheBoxAndOnTheButtons()
    {
        const QList<std::array<QString, 4>> rows{
            {"vzmode_100p", "vzmode_87p", "87%", "vzmode_custom"},
            {"vzmode_100p", "vzmode_10p", "10%", "vzmode_custom"},
            {"vzmode_10p", "vzmode_100p", "100%", "vzmode_original"},
            {"vzmode_original", "vzmode_87p", "87%", "vzmode_custom"},
            {"vzmode_fitpage", "vzmode_100p", "100%", "vzmode_original"}};
        for (const auto &[first, answer, shown, checked] : rows) {
            for (const bool isUser : {false, true}) {
                ZoomHost host;
                bool isAnswered = false;
                connect(&host.facade(), &MRToolBar::DoSetZoomMode, &host.facade(),
                        [&, chosen = first, next = answer](const QString &mode) {
                            if (mode == chosen && !std::exchange(isAnswered, true))
                                host.facade().DoSetZoomModeSlot(next);
                        });
                isUser ? host.choose(first) : host.facade().DoSetZoomModeSlot(first);
                QVERIFY(isAnswered);
                QCOMPARE(host.box->currentText() + host.checkedModes(), shown + checked);
            }
        }
    }

    void shouldOfferEveryEntryAfterACustomZoom()
    {
        ZoomHost host;
        host.facade().DoSetZoomModeSlot("vzmode_37p");
        QVERIFY(host.takeModes().isEmpty());
        host.enter("letters");
        QCOMPARE(host.box->currentText(), QStringLiteral("37%"));
        host.box->setCurrentIndex(fiftyPercent - 1); // Already shown before the report.
        QCOMPARE(host.takeModes(), QStringList("vzmode_50p"));
        host.enter("38");
        host.facade().DoSetZoomModeSlot("vzmode_38p"); // The host confirms.
        QCOMPARE(host.takeModes(), QStringList("vzmode_38p"));
        QCOMPARE(host.box->currentIndex(), predefined);
        host.facade().DoSetZoomModeSlot("vzmode_fitpage");
        QCOMPARE(host.box->currentText(), QStringLiteral("Page"));
    }

    void shouldShowAHintForAnInvalidZoomText()
    {
        ZoomHost host;
        host.type("12");
        QVERIFY(!QToolTip::isVisible());
        QTest::keyClicks(host.box, "x");
        QTRY_VERIFY(QToolTip::isVisible());
        for (const char *line : {"Invalid Char", "Please Input a Number or Point"})
            QVERIFY2(QToolTip::text().contains(line), qPrintable(QToolTip::text()));
        QTest::keyClick(host.box, Qt::Key_Backspace);
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(host.box->currentText(), QStringLiteral("12"));
    }
};

QTEST_MAIN(ZoomTest)
#include "tst_zoom.moc"
