// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageView.h"
#include "shell/Description.h"
#include "shell/ReaderWindow.h"

#include <toolbar/NewToolBar.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDomDocument>
#include <QLineEdit>
#include <QSet>
#include <QTest>
#include <QToolBar>

namespace {

/** The reader with a shipped description, on the screen and in front. */
struct Reader
{
    explicit Reader(const QString &skin)
        : window(Description::read("release", skin, &error), QString())
    {
        window.openSample();
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_VERIFY(view->hasFocus());
    }

    /** To whatever has the focus, as the window system does. */
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *receiver = QApplication::focusWidget();
        QVERIFY2(receiver, "The focus is lost");
        QTest::keyClick(receiver, key, modifiers);
    }
    static void type(const QString &text)
    {
        QTest::keyClicks(QApplication::focusWidget(), text);
        press(Qt::Key_Return);
    }
    /** What the focus is in, or on. */
    bool isInToolBar() const
    {
        return window.findChild<QToolBar *>()->isAncestorOf(QApplication::focusWidget());
    }

    QString error;
    ReaderWindow window;
    PageView *view = window.findChild<PageView *>();
};

} // namespace

/** What a reader without a mouse relies on. */
class TestKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPlaceIsReachedAndLeft_data()
    {
        QTest::addColumn<int>("style");
        QTest::newRow("marodi") << 0;
        QTest::newRow("lum") << 1;
    }

    void everyPlaceIsReachedAndLeft()
    {
        QFETCH(int, style);
        NewToolBar::uiStyle = style;
        Reader reader(QTest::currentDataTag());

        // A box that shows no percentage takes no text, and opens its list.
        Reader::press(Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_End);
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Return);
        QTRY_VERIFY(reader.view->hasFocus());
        QVERIFY(reader.view->percent() > 3000.0);
        Reader::press(Qt::Key_M, Qt::ControlModifier);
        Reader::type("37");
        QTRY_VERIFY(reader.view->hasFocus());
        QCOMPARE(qRound(reader.view->percent()), 37);
        Reader::press(Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(reader.view->percent() > 38.0);
        Reader::press(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(qRound(reader.view->percent()), 100);

        Reader::press(Qt::Key_G, Qt::ControlModifier);
        Reader::type("3");
        QTRY_VERIFY(reader.view->hasFocus());
        QCOMPARE(reader.view->currentPage(), 2);
        Reader::press(Qt::Key_G, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), "7");
        Reader::press(Qt::Key_Escape);
        QTRY_VERIFY(reader.view->hasFocus());
        QCOMPARE(reader.view->currentPage(), 2);

        Reader::press(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        Reader::press(Qt::Key_Escape);
        QTRY_VERIFY(reader.view->hasFocus());

        Reader::press(Qt::Key_A, Qt::ControlModifier);
        Reader::press(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QGuiApplication::clipboard()->text().size() > 100);
    }

    void theTabKeyStopsOnlyAtWhatIsSeen_data() { everyPlaceIsReachedAndLeft_data(); }

    void theTabKeyStopsOnlyAtWhatIsSeen()
    {
        QFETCH(int, style);
        NewToolBar::uiStyle = style;
        Reader reader(QTest::currentDataTag());
        Reader::press(Qt::Key_F10);
        QVERIFY(reader.isInToolBar());

        QSet<QWidget *> stops;
        for (QWidget *now = QApplication::focusWidget(); !stops.contains(now);
             now = QApplication::focusWidget()) {
            stops.insert(now);
            const QAccessibleInterface *stop = QAccessible::queryAccessibleInterface(now);
            QVERIFY2(!reader.isInToolBar() || !stop->text(QAccessible::Name).isEmpty(),
                     now->metaObject()->className());
            Reader::press(Qt::Key_Tab);
        }
        QVERIFY(stops.size() > 20);
        QVERIFY(stops.contains(reader.view));
    }
};

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
