// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/reader/DialogUser.h"
#include "tests/reader/ReaderHost.h"

#include <toolbar/NewToolBar.h>

#include <QAccessible>
#include <QClipboard>
#include <QFileInfo>
#include <QLineEdit>
#include <QScrollBar>
#include <QSet>
#include <QTemporaryDir>
#include <QToolBar>

namespace {

/** The reader with the sample, used by keys. */
struct Reader : ReaderHost
{
    explicit Reader(const QString &skin = "marodi")
        : ReaderHost("release", skin)
    {
        window.openSample();
        show();
    }

    /** Sends a key to the focus widget, as the window system does. */
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *receiver = QApplication::focusWidget();
        QVERIFY2(receiver, "The focus is lost");
        QTest::keyClick(receiver, key, modifiers);
    }
    /** Ctrl and the key lead into a field, and the end key from there to the pages. */
    void enter(Qt::Key key, const QString &text, Qt::Key end = Qt::Key_Return) const
    {
        press(key, Qt::ControlModifier);
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget())
                || QApplication::focusWidget()->findChild<QLineEdit *>());
        QTest::keyClicks(QApplication::focusWidget(), text);
        press(end);
        QTRY_VERIFY(view->hasFocus());
    }
    /** Whether the focus is in the toolbar. */
    bool isInToolBar() const
    {
        return window.findChild<QToolBar *>()->isAncestorOf(QApplication::focusWidget());
    }
};

} // namespace

/** The reader by the keyboard alone, and closing a document with unsaved changes. */
class ReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        keepUsersSettings();
    }

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
        // Whatever the pages fit into, a number can be typed.
        reader.enter(Qt::Key_M, "3100");
        QCOMPARE(qRound(reader.view->percent()), 3100);
        reader.enter(Qt::Key_M, "37");
        QCOMPARE(qRound(reader.view->percent()), 37);
        Reader::press(Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(reader.view->percent() > 38.0);
        Reader::press(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(qRound(reader.view->percent()), 100);
        reader.enter(Qt::Key_G, "3");
        QCOMPARE(reader.view->currentPage(), 2);
        const QList<QPair<Qt::Key, int>> ways{
            {Qt::Key_Left, 0}, {Qt::Key_Left, 0}, {Qt::Key_Right, 2}};
        for (const auto &[key, page] : ways) {
            Reader::press(key, Qt::AltModifier);
            QCOMPARE(reader.view->currentPage(), page);
        }
        reader.enter(Qt::Key_G, "7", Qt::Key_Escape);
        QCOMPARE(reader.view->currentPage(), 2);
        reader.enter(Qt::Key_F, "", Qt::Key_Escape);
        Reader::press(Qt::Key_A, Qt::ControlModifier);
        Reader::press(Qt::Key_C, Qt::ControlModifier);
        QTRY_VERIFY(QGuiApplication::clipboard()->text().size() > 100);
        Reader::press(Qt::Key_F11);
        Reader::press(Qt::Key_Escape);
        QVERIFY(!reader.window.isFullScreen() && !reader.view->selection().isEmpty());
        Reader::press(Qt::Key_Escape);
        QVERIFY(reader.view->selection().isEmpty());
        const QScrollBar *bar = reader.view->verticalScrollBar();
        Reader::press(Qt::Key_Home);
        QVERIFY(reader.view->currentPage() == 0 && bar->value() == 0 && bar->maximum() > 0);
        Reader::press(Qt::Key_End);
        QVERIFY(reader.view->currentPage() > 2 && bar->value() == bar->maximum());
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
        Reader::press(Qt::Key_F6);
        QVERIFY(reader.isInToolBar());
        QSet<QWidget *> stops;
        for (QWidget *now = QApplication::focusWidget(); !stops.contains(now);
             now = QApplication::focusWidget()) {
            stops.insert(now);
            const QAccessibleInterface *stop = QAccessible::queryAccessibleInterface(now);
            QVERIFY2(!reader.isInToolBar() || !stop->text(QAccessible::Name).isEmpty(),
                     qPrintable(now->objectName()));
            Reader::press(Qt::Key_Tab);
        }
        QVERIFY(stops.size() > 20 && stops.contains(reader.view));
    }

    void shouldFollowTheAnswerToTheQuestionForUnsavedMarks()
    {
        NewToolBar::uiStyle = 0;
        const QList<std::tuple<DialogUser::Answer, const char *, bool, bool>> rows{
            // The answer, the file, whether that is written, and whether the window is closed.
            {DialogUser::Enter, "marks.pdf", true, true},
            {DialogUser::Enter, "", false, false},
            {DialogUser::Enter, "none/marks.pdf", false, false},
            {DialogUser::Enter, "marks.txt", true, false},
            {DialogUser::Escape, "", false, false},
            {DialogUser::Discard, "", false, true}};
        for (const auto &[answer, file, isSaved, isClosed] : rows) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(file);
            Reader reader;
            choose(reader.window, "ti_stamp");
            QTRY_VERIFY(reader.window.isWindowModified());
            const DialogUser user(answer, *file ? path : QString());
            QCOMPARE(reader.window.close(), isClosed);
            QCOMPARE(user.questions.size(), 1);
            QCOMPARE(user.proposals.size(), answer == DialogUser::Enter ? 1 : 0);
            QCOMPARE(reader.window.isVisible(), !isClosed);
            QCOMPARE(QFileInfo(path).isFile() && QFileInfo(path).size() > 0, isSaved);
            QTRY_COMPARE(reader.window.isWindowModified(), !isSaved || !isClosed);
        }
    }
};

QTEST_MAIN(ReaderTest)
#include "tst_reader.moc"
