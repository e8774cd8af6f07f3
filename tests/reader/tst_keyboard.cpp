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

/** The reader with a shipped description, in the active window. */
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

    /** Sends a key to the focus widget, as the window system does. */
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
    /** Whether the focus is in the toolbar. */
    bool isInToolBar() const
    {
        return window.findChild<QToolBar *>()->isAncestorOf(QApplication::focusWidget());
    }

    QString error;
    ReaderWindow window;
    PageView *view = window.findChild<PageView *>();
};

} // namespace

/** The use of the reader by the keyboard alone. */
class KeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReachAndLeaveEveryFieldByKeys_data()
    {
        QTest::addColumn<int>("style");
        QTest::newRow("marodi") << 0;
        QTest::newRow("lum") << 1;
    }

    void shouldReachAndLeaveEveryFieldByKeys()
    {
        QFETCH(int, style);
        NewToolBar::uiStyle = style;
        Reader reader(QTest::currentDataTag());

        // A zoom box that shows no percentage is not editable and opens its list.
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

    void shouldReachNamedControlsAndThePagesByTheTabKey_data()
    {
        shouldReachAndLeaveEveryFieldByKeys_data();
    }

    void shouldReachNamedControlsAndThePagesByTheTabKey()
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

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
