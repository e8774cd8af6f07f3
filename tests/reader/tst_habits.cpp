// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageView.h"
#include "panels/NavigationPanel.h"
#include "shell/Description.h"
#include "shell/ReaderSettings.h"
#include "shell/ReaderWindow.h"
#include "shell/StartPage.h"
#include "shell/WindowList.h"
#include "tests/reader/DialogUser.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QScreen>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

namespace {

QList<ReaderWindow *> windows()
{
    QList<ReaderWindow *> windows;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *window = qobject_cast<ReaderWindow *>(widget))
            windows.append(window);
    }
    return windows;
}

/** Without a window manager the focus may still go to a window that was shown earlier. */
bool activate(ReaderWindow *window)
{
    for (int attempt = 0; attempt < 50; ++attempt) {
        window->activateWindow();
        if (QTest::qWaitForWindowActive(window, 100))
            return true;
    }
    return false;
}

/** A run of the program with its own description. */
struct Run
{
    Run()
        : list(Description::read("reader", "marodi", &error), options())
    {
    }
    ~Run() { qDeleteAll(windows()); }

    static Options options()
    {
        Options options;
        options.skin = "marodi";
        return options;
    }
    /** The only window, when it is active. */
    ReaderWindow *window() const
    {
        ReaderWindow *window = windows().value(0);
        return activate(window) ? window : nullptr;
    }
    ReaderWindow *open(const QStringList &files)
    {
        list.open(files);
        return window();
    }

    QString error;
    WindowList list;
};

QWidget *shownIn(const ReaderWindow *window)
{
    return qobject_cast<QStackedWidget *>(window->centralWidget())->currentWidget();
}

QString shownFile()
{
    const auto *window = qobject_cast<ReaderWindow *>(QApplication::activeWindow());
    return window ? QFileInfo(window->fileName()).canonicalFilePath() : QString();
}

void addMark(ReaderWindow *window)
{
    const QWidgetList widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->inherits("NewToolBar"))
            QMetaObject::invokeMethod(widget, "DoActive", Q_ARG(QString, "ti_stamp"));
    }
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
        ReaderWindow *window = run.open({});
        auto *list = window->findChild<StartPage *>()->findChild<QListWidget *>();
        QTRY_COMPARE(QApplication::focusWidget(), list);
        QCOMPARE(list->count(), 3);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(ReaderSettings::shared()->recentFiles(),
                 QStringList({file("paths.ofd"), file("text.ofd")}));
        QTest::keyClick(list, Qt::Key_Return);
        QTRY_COMPARE(window->fileName(), file("text.ofd"));
        auto *view = window->findChild<PageView *>();
        QCOMPARE(shownIn(window), view);
        QCOMPARE(QApplication::focusWidget(), view);

        QTest::keyClick(view, Qt::Key_W, Qt::ControlModifier);
        QTRY_COMPARE(shownIn(window), window->findChild<StartPage *>());
        QVERIFY(!window->hasDocument());
        QCOMPARE(list->item(0)->text(), QString("text.ofd"));
    }

    void shouldSayWhichRecentFileIsGone()
    {
        ReaderSettings::shared()->addRecentFile(file("gone.ofd"));
        Run run;
        ReaderWindow *window = run.open({});
        auto *list = window->findChild<StartPage *>()->findChild<QListWidget *>();
        DialogUser user(DialogUser::Enter);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(0)).center());
        QTRY_COMPARE(user.questions, 1);
        QVERIFY2(user.lastText.contains(file("gone.ofd")), qPrintable(user.lastText));
        QCOMPARE(ReaderSettings::shared()->recentFiles(), QStringList());
    }

    void shouldHaveOneWindowForEachFile()
    {
        Run run;
        run.open({});
        QDir().mkdir(file("sub"));
        QVERIFY(QFile::link(file("text.ofd"), file("sub/link.ofd")));
        const QList<QPair<QString, int>> rows{{"text.ofd", 1},        {"image.ofd", 2},
                                              {"sub/../text.ofd", 2}, {"sub/link.ofd", 2},
                                              {"paths.ofd", 3},       {"image.ofd", 3}};
        for (const auto &[name, count] : rows) {
            run.list.open({file(name)}, windows().value(0));
            QTRY_COMPARE(windows().size(), count);
            const QString path = QFileInfo(file(name)).canonicalFilePath();
            QTRY_COMPARE(shownFile(), path);
        }
        const QList<ReaderWindow *> all = windows();
        for (ReaderWindow *window : all) {
            QVERIFY(activate(window) && (window == all[2] || window->pos() != all[2]->pos()));
            QTest::keyClick(window->findChild<PageView *>(), Qt::Key_W, Qt::ControlModifier);
            QTRY_COMPARE(windows().contains(window), window == all[2]);
        }
        QVERIFY(!all[2]->hasDocument());
    }

    void shouldOpenAllFilesThatAreDropped()
    {
        Run run;
        ReaderWindow *window = run.open({});
        const DialogUser user(DialogUser::Enter);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file("text.ofd")), QUrl("http://example.invalid/x.ofd"),
                      QUrl::fromLocalFile(file("image.ofd"))});
        QDragEnterEvent entering(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window, &entering);
        QVERIFY(entering.isAccepted());
        QDropEvent dropping(QPoint(300, 300), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window, &dropping);
        QTRY_COMPARE(windows().size(), 2);
        QCOMPARE(window->fileName(), file("text.ofd"));
    }

    void shouldNotLeaveAnEmptyWindowForAFileThatCannotBeOpened()
    {
        Run run;
        run.open({file("text.ofd")});
        DialogUser user(DialogUser::Enter);
        run.list.open({file("broken-truncated.ofd")});
        QTRY_COMPARE(user.questions, 1);
        QVERIFY(user.lastText.contains("broken-truncated.ofd"));
        QTRY_COMPARE(windows().size(), 1);
        QCOMPARE(windows().first()->fileName(), file("text.ofd"));
        QCOMPARE(ReaderSettings::shared()->recentFiles(), QStringList(file("text.ofd")));
    }

    void shouldAskInEachWindowWhenItQuits_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("questions");
        QTest::addColumn<int>("left");
        QTest::newRow("cancelled") << int(DialogUser::Escape) << 1 << 3;
        QTest::newRow("discarded") << int(DialogUser::Discard) << 2 << 0;
    }

    void shouldAskInEachWindowWhenItQuits()
    {
        QFETCH(const int, answer);
        Run run;
        run.list.open({file("text.ofd"), file("image.ofd"), file("paths.ofd")});
        const QList<ReaderWindow *> all = windows();
        QCOMPARE(all.size(), 3);
        addMark(all.at(0));
        addMark(all.at(2));
        QTRY_VERIFY(all.at(0)->isWindowModified() && all.at(2)->isWindowModified());
        QVERIFY(activate(all.at(1)));
        DialogUser user(DialogUser::Answer(answer), {});
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Q, Qt::ControlModifier);
        QTEST(user.questions, "questions");
        QTest::qWait(50);
        QTEST(int(windows().size()), "left");
    }

    void shouldComeBackAsItWasLeft()
    {
        QRect place;
        int top = 0;
        {
            Run run;
            ReaderWindow *window = run.open({file("text.ofd")});
            window->setGeometry(120, 90, 900, 640);
            auto *view = window->findChild<PageView *>();
            view->setZoomMode(ZoomMode(137));
            view->setLayoutMode(LayoutMode::SingleFlow);
            view->setCurrentPage(1);
            window->findChild<NavigationPanel *>()->toggle("vn_thumbnail");
            QTest::qWait(50);
            place = window->geometry();
            top = view->verticalScrollBar()->value();
            QVERIFY(window->close());
        }
        // By another way to the same file.
        QVERIFY(QFile::link(file("text.ofd"), file("link.ofd")));
        Run run;
        ReaderWindow *window = run.open({file("link.ofd")});
        auto *view = window->findChild<PageView *>();
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
        const ReaderWindow *window = run.open({});
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
            QCOMPARE(windows().size(), 2);
            QWidget *bar = nullptr;
            const auto widgets = windows().first()->findChildren<QWidget *>();
            for (QWidget *widget : widgets)
                bar = widget->inherits("NewToolBar") ? widget : bar;
            QMetaObject::invokeMethod(bar, "DoActive", Q_ARG(QString, "r_scheme_dark"));
            QTRY_VERIFY(QApplication::palette().window().color().lightness() < 80);
            for (const ReaderWindow *window : windows()) {
                auto *row = window->findChild<QWidget *>("mrtoolbar");
                QTRY_VERIFY(row->grab().toImage().pixelColor(4, 60).lightness() < 80);
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
        ReaderWindow *window = run.open({file("text.ofd")});
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

    void shouldSaveBesideTheDocumentAsTheSuffixSays_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QByteArray>("begin");
        QTest::newRow("kept") << QString() << QString() << QByteArray();
        QTest::newRow("text") << "a.txt"
                              << "a.txt" << QByteArray("");
        QTest::newRow("PDF") << "a.pdf"
                             << "a.pdf" << QByteArray("%PDF");
        QTest::newRow("no suffix") << "a"
                                   << "a.ofd" << QByteArray("PK");
        QTest::newRow("part of the name") << "version 1.2"
                                          << "version 1.2.ofd" << QByteArray("PK");
    }

    void shouldSaveBesideTheDocumentAsTheSuffixSays()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, written);
        QFETCH(const QByteArray, begin);
        Run run;
        ReaderWindow *window = run.open({file("text.ofd")});
        addMark(window);
        QTRY_VERIFY(window->isWindowModified());
        DialogUser user(DialogUser::Enter, typed);
        QTest::keyClick(window->findChild<PageView *>(), Qt::Key_S,
                        Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(user.choosers, 1);
        QCOMPARE(user.folder, m_files->path());
        if (written.isEmpty())
            return;
        QTRY_VERIFY(QFileInfo(file(written)).size() > 0);
        QFile saved(file(written));
        QVERIFY(saved.open(QIODevice::ReadOnly) && saved.readAll().startsWith(begin));
        QTest::qWait(50);
        QCOMPARE(window->isWindowModified(), !written.endsWith(".ofd"));
    }

private:
    QString file(const QString &name) const { return m_files->filePath(name); }

    const QTemporaryDir m_config;
    std::unique_ptr<QTemporaryDir> m_files;
};

QTEST_MAIN(HabitsTest)
#include "tst_habits.moc"
