// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/NavigationPanel.h"
#include "shell/ReaderSettings.h"
#include "shell/StartPage.h"
#include "shell/WindowList.h"
#include "tests/ofd/PackageMaker.h"
#include "tests/reader/DialogUser.h"
#include "tests/reader/ReaderHost.h"

#include <QDir>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTemporaryDir>

#include <algorithm>
#include <array>

using PackageMaker::bytesOf;

namespace {

/** A run of the program with its own description. */
struct Run
{
    Run()
        : list(Description::read("reader", "marodi", &error), options())
    {
    }
    ~Run() { qDeleteAll(ReaderWindow::all()); }

    static Options options()
    {
        Options options;
        options.skin = "marodi";
        return options;
    }
    /** The only window, when it is active. */
    ReaderWindow *open(const QStringList &files = {})
    {
        list.open(files);
        ReaderWindow *window = ReaderWindow::all().value(0);
        return activate(*window) ? window : nullptr;
    }

    QString error;
    WindowList list;
};

QString shownFile()
{
    const auto *window = qobject_cast<ReaderWindow *>(QApplication::activeWindow());
    return window ? QFileInfo(window->fileName()).canonicalFilePath() : QString();
}

} // namespace

/** What a user relies on from one day to the next: files, windows, and what comes back. */
class HabitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setQuitOnLastWindowClosed(false);
        qputenv("XDG_CONFIG_HOME", m_config.path().toLocal8Bit());
    }

    void init()
    {
        QFile::remove(m_config.filePath("mrtoolbar/reader.ini"));
        m_files = std::make_unique<QTemporaryDir>();
        for (const char *name : {"text.ofd", "image.ofd", "paths.ofd", "broken-truncated.ofd"})
            QVERIFY(QFile::copy(QDir(OFD_SAMPLES).filePath(name), file(name)));
    }

    void shouldBeginAndEndWithTheRecentFiles()
    {
        for (const char *name : {"text.ofd", "image.ofd", "paths.ofd"})
            ReaderSettings::shared()->addRecentFile(file(name));
        Run run;
        const ReaderWindow *window = run.open();
        QListWidget *list = recentFiles(*window);
        QTRY_COMPARE(QApplication::focusWidget(), list);
        QCOMPARE(list->count(), 3);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(ReaderSettings::shared()->recentFiles(),
                 QStringList({file("paths.ofd"), file("text.ofd")}));
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_COMPARE(window->fileName(), file("text.ofd"));
        auto *view = window->findChild<PageView *>();
        QVERIFY(view->isVisible());
        QCOMPARE(QApplication::focusWidget(), view);

        QTest::keyClick(view, Qt::Key_W, Qt::ControlModifier);
        QTRY_VERIFY(list->isVisible());
        QVERIFY(!view->isVisible() && !window->hasDocument());
        QCOMPARE(list->item(0)->text(), QString("text.ofd"));
    }

    void shouldSayWhichRecentFileIsGone()
    {
        ReaderSettings::shared()->addRecentFile(file("gone.ofd"));
        Run run;
        const QListWidget *list = recentFiles(*run.open());
        const DialogUser user(DialogUser::Enter);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(0)).center());
        QTRY_COMPARE(user.questions.size(), 1);
        QVERIFY2(user.questions.first().contains(file("gone.ofd")),
                 qPrintable(user.questions.first()));
        QCOMPARE(ReaderSettings::shared()->recentFiles(), QStringList());
    }

    void shouldHaveOneWindowForEachFile()
    {
        Run run;
        run.open();
        QDir().mkdir(file("sub"));
        QVERIFY(QFile::link(file("text.ofd"), file("sub/link.ofd")));
        const QList<QPair<QString, int>> rows{{"text.ofd", 1},        {"image.ofd", 2},
                                              {"sub/../text.ofd", 2}, {"sub/link.ofd", 2},
                                              {"paths.ofd", 3},       {"image.ofd", 3}};
        for (const auto &[name, count] : rows) {
            run.list.open({file(name)}, ReaderWindow::all().value(0));
            QTRY_COMPARE(ReaderWindow::all().size(), count);
            const QString path = QFileInfo(file(name)).canonicalFilePath();
            QTRY_COMPARE(shownFile(), path);
        }
        const QList<ReaderWindow *> all = ReaderWindow::all();
        for (ReaderWindow *window : all) {
            QVERIFY(activate(*window) && (window == all[2] || window->pos() != all[2]->pos()));
            QTest::keyClick(window->findChild<PageView *>(), Qt::Key_W, Qt::ControlModifier);
            QTRY_COMPARE(ReaderWindow::all().contains(window), window == all[2]);
        }
        QVERIFY(!all[2]->hasDocument());
    }

    void shouldOpenAllFilesThatAreDropped()
    {
        Run run;
        ReaderWindow *window = run.open();
        const DialogUser user(DialogUser::Enter);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file("text.ofd")), QUrl("http://example.invalid/x.ofd"),
                      QUrl::fromLocalFile(file("image.ofd"))});
        QDragEnterEvent entering(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window, &entering);
        QVERIFY(entering.isAccepted());
        QDropEvent dropping(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window, &dropping);
        QTRY_COMPARE(ReaderWindow::all().size(), 2);
        QCOMPARE(window->fileName(), file("text.ofd"));
    }

    void shouldNotLeaveAnEmptyWindowForAFileThatCannotBeOpened()
    {
        Run run;
        run.open({file("text.ofd")});
        const DialogUser user(DialogUser::Enter);
        run.list.open({file("broken-truncated.ofd")});
        QTRY_COMPARE(user.questions.size(), 1);
        QVERIFY(user.questions.first().contains("broken-truncated.ofd"));
        QTRY_COMPARE(ReaderWindow::all().size(), 1);
        QCOMPARE(ReaderWindow::all().first()->fileName(), file("text.ofd"));
        QCOMPARE(ReaderSettings::shared()->recentFiles(), QStringList(file("text.ofd")));
    }

    void shouldAskInEachWindowWhenItQuits()
    {
        const QList<std::tuple<DialogUser::Answer, int, int>> rows{
            // The answer, how often it is asked for, and how many windows are left.
            {DialogUser::Escape, 1, 3},
            {DialogUser::Discard, 2, 0}};
        for (const auto &[answer, questions, left] : rows) {
            Run run;
            run.list.open({file("text.ofd"), file("image.ofd"), file("paths.ofd")});
            const QList<ReaderWindow *> all = ReaderWindow::all();
            QCOMPARE(all.size(), 3);
            choose(*all.at(0), "ti_stamp");
            choose(*all.at(2), "ti_stamp");
            QTRY_VERIFY(all.at(0)->isWindowModified() && all.at(2)->isWindowModified());
            QVERIFY(activate(*all.at(1)));
            const DialogUser user(answer);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q, Qt::ControlModifier);
            QCOMPARE(user.questions.size(), questions);
            const auto isOpen = [](const ReaderWindow *window) { return window->isVisible(); };
            QCOMPARE(int(std::count_if(all.begin(), all.end(), isOpen)), left);
        }
    }

    void shouldComeBackAsItWasLeft()
    {
        const QRect place(120, 90, 900, 640);
        int top = 0;
        {
            Run run;
            ReaderWindow *window = run.open({file("text.ofd")});
            window->setGeometry(place);
            auto *view = window->findChild<PageView *>();
            view->setZoomMode(ZoomMode(137));
            view->setLayoutMode(LayoutMode::SingleFlow);
            view->setCurrentPage(1);
            window->findChild<NavigationPanel *>()->toggle("vn_thumbnail");
            QTRY_COMPARE(window->geometry(), place);
            top = view->verticalScrollBar()->value();
            QVERIFY(window->close());
        }
        // By another way to the same file.
        QVERIFY(QFile::link(file("text.ofd"), file("link.ofd")));
        Run run;
        ReaderWindow *window = run.open({file("link.ofd")});
        const auto *view = window->findChild<PageView *>();
        QTRY_COMPARE(window->geometry(), place);
        QVERIFY(view->currentPage() == 1 && view->layoutMode() == LayoutMode::SingleFlow);
        QVERIFY(qRound(view->percent()) == 137 && view->verticalScrollBar()->value() == top);
        QCOMPARE(window->findChild<NavigationPanel *>()->shownPanel(), QString("vn_thumbnail"));
        window->open(file("image.ofd"));
        QCOMPARE(view->currentPage(), 0);
    }

    void shouldKeepThePlacesOfTheLastFilesOnly()
    {
        const auto settings = ReaderSettings::shared();
        const QString path = file("with two  spaces.ofd");
        for (int i = 0; i < 130; ++i) {
            const QString name = i == 60 ? path : file(QString("%1.ofd").arg(i));
            QVERIFY(QFile(name).open(QIODevice::WriteOnly));
            settings->setPlace(name, {i, "vzmode_fitpage"});
        }
        QCOMPARE(settings->place(path).page, 60);
        QCOMPARE(settings->place(file("129.ofd")).page, 129);
        QCOMPARE(settings->place(file("29.ofd")).zoom, QString());
        QCOMPARE(settings->place(file("none.ofd")).zoom, QString());
    }

    void shouldNotComeBackOutsideOfTheScreen()
    {
        QWidget outside; // As on a second screen that is gone.
        outside.setGeometry(5000, 4000, 900, 640);
        ReaderSettings::shared()->setGeometry(outside.saveGeometry());
        Run run;
        const ReaderWindow *window = run.open();
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QTRY_VERIFY(screen.contains(window->geometry()));
        ReaderSettings::shared()->setGeometry("nonsense");
        run.list.create()->show();
    }

    void shouldKeepTheSchemeForAllWindowsAndTheNextStart()
    {
        const QPalette before = QApplication::palette();
        {
            Run run;
            run.list.open({file("text.ofd"), file("image.ofd")});
            const QList<ReaderWindow *> all = ReaderWindow::all();
            QCOMPARE(all.size(), 2);
            choose(*all.first(), "r_scheme_dark");
            QTRY_VERIFY(QApplication::palette().window().color().lightness() < 80);
            for (const ReaderWindow *window : all) {
                auto *bar = window->findChild<QWidget *>("mrtoolbar");
                QTRY_VERIFY(bar->grab().toImage().pixelColor(4, 60).lightness() < 80);
            }
        }
        {
            const Run run;
            QCOMPARE(ReaderSettings::shared()->scheme(), QString("dark"));
        }
        ReaderSettings::shared()->setScheme("light");
        Run().list.create();
        QCOMPARE(QApplication::palette(), before);
    }

    void shouldSayThatThereIsNoSuchPage()
    {
        Run run;
        const ReaderWindow *window = run.open({file("text.ofd")});
        auto *view = window->findChild<PageView *>();
        const QList<std::tuple<const char *, int, bool, bool>> rows{
            // What is typed, the page then, whether Return ends it, and whether a sentence is said.
            {"2", 1, true, false},  {"3", 1, true, true},    {"99999999999", 1, true, true},
            {"0", 1, true, true},   {"abc", 1, true, false}, {"1x", 0, true, false},
            {"77", 0, false, false}};
        for (const auto &[typed, page, returns, says] : rows) {
            window->statusBar()->clearMessage();
            QTest::keyClick(view, Qt::Key_G, Qt::ControlModifier);
            auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
            QVERIFY(field);
            QTest::keyClicks(field, typed);
            QVERIFY(!field->text().contains(QRegularExpression("[a-z]")));
            if (returns)
                QTest::keyClick(field, Qt::Key_Return);
            QCOMPARE(view->currentPage(), page);
            QCOMPARE(window->statusBar()->currentMessage().contains("共 2 页"), says);
            view->setFocus();
            QTRY_COMPARE(field->text(), QString::number(page + 1));
        }
    }

    void shouldSaveBesideTheDocumentAsTheSuffixSays()
    {
        const QList<std::array<const char *, 3>> rows{
            // What is typed, the file that is written, and how that begins.
            {"", "", ""},
            {"a.txt", "a.txt", ""},
            {"a.pdf", "a.pdf", "%PDF"},
            {"a", "a.ofd", "PK"},
            {"version 1.2", "version 1.2.ofd", "PK"}};
        for (const auto &[typed, written, begin] : rows) {
            Run run;
            const ReaderWindow *window = run.open({file("text.ofd")});
            choose(*window, "ti_stamp");
            QTRY_VERIFY(window->isWindowModified());
            const DialogUser user(DialogUser::Enter, typed);
            QTest::keyClick(window->findChild<PageView *>(), Qt::Key_S,
                            Qt::ControlModifier | Qt::ShiftModifier);
            QTRY_COMPARE(user.proposals.size(), 1);
            QCOMPARE(QFileInfo(user.proposals.first()).path(), m_files->path());
            QTRY_VERIFY(!*written || !bytesOf(file(written)).isEmpty());
            QVERIFY(bytesOf(file(written)).startsWith(begin));
            // Only an OFD file has the mark.
            QTRY_COMPARE(window->isWindowModified(), !QString(written).endsWith(".ofd"));
        }
    }

private:
    QString file(const QString &name) const { return m_files->filePath(name); }
    static QListWidget *recentFiles(const ReaderWindow &window)
    {
        return window.findChild<StartPage *>()->findChild<QListWidget *>();
    }

    const QTemporaryDir m_config;
    std::unique_ptr<QTemporaryDir> m_files;
};

QTEST_MAIN(HabitsTest)
#include "tst_habits.moc"
