// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/SafeFile.h"
#include "panels/NavigationPanel.h"
#include "tests/ofd/OfdFiles.h"
#include "tests/ofd/PackageMaker.h"
#include "tests/reader/DialogUser.h"
#include "tests/reader/ReaderHost.h"

#include <QAction>
#include <QDesktopServices>
#include <QListWidget>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryDir>

using PackageMaker::bytesOf;

namespace {

const QString actsFile = OfdFiles::path("acts");
constexpr qreal unit = 96 / 25.4;

/** The reader with one file, and what it hands to the desktop. */
class Acts : public QObject, public ReaderHost
{
    Q_OBJECT

public:
    explicit Acts(const QString &fileName = actsFile)
    {
        for (const char *scheme : {"https", "http", "file", "mailto"})
            QDesktopServices::setUrlHandler(scheme, this, "take");
        window.open(fileName);
        show();
    }
    ~Acts() override
    {
        for (const char *scheme : {"https", "http", "file", "mailto"})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    /** A point of the current page on the view, for pages that are shown as a whole. */
    QPoint at(qreal x, qreal y, QSizeF size = QSizeF(60, 40)) const
    {
        const qreal scale = unit * view->percent() / 100;
        const QPointF centre = sheet()->rect().center();
        return (centre + (QPointF(x, y) - QPointF(size.width(), size.height()) / 2) * scale)
            .toPoint();
    }
    void click(QPoint position) const
    {
        QTest::mouseMove(sheet(), position);
        QTest::mouseClick(sheet(), Qt::LeftButton, Qt::NoModifier, position);
    }
    QListWidget *list(const QString &panel)
    {
        auto *navigation = window.findChild<NavigationPanel *>();
        if (navigation->shownPanel() != panel)
            navigation->toggle(panel);
        return qobject_cast<QListWidget *>(
            navigation->findChild<QStackedWidget *>()->currentWidget());
    }
    QString said() const { return window.statusBar()->currentMessage(); }

    Q_SLOT void take(const QUrl &url) { opened.append(url); }

    QList<QUrl> opened;
};

/** Writes the file with another text in one of its entries. */
bool rewrite(const QString &fileName, const QString &entry, const QByteArray &from,
             const QByteArray &to)
{
    const QByteArray archive = OfdFiles::replaced(*OfdFiles::opened("acts"), entry, from, to);
    return !archive.isEmpty() && PackageMaker::write(fileName, archive);
}

} // namespace

/** Links, attached files, annotations and permissions of a document, with real events. */
class ReaderActsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        keepUsersSettings();
    }

    void shouldFollowLinksOfPages()
    {
        Acts acts;
        QTest::mouseMove(acts.sheet(), acts.at(45, 10));
        QTRY_COMPARE(acts.sheet()->cursor().shape(), Qt::PointingHandCursor);
        QTest::mouseMove(acts.sheet(), acts.at(57, 35));
        QTRY_COMPARE(acts.sheet()->cursor().shape(), Qt::OpenHandCursor);
        acts.click(acts.at(45, 10));
        QCOMPARE(acts.view->currentPage(), 1);
        QCOMPARE(qRound(acts.view->percent()), 200);
        acts.view->setZoomMode(ZoomMode::fromName("vzmode_fitpage"));
        {
            const DialogUser user(DialogUser::Enter);
            acts.click(acts.at(45, 10));
            QVERIFY(user.questions.value(0).contains("数据 表.txt")); // The attached file.
        }
        acts.click(acts.at(10, 10));
        QCOMPARE(acts.view->currentPage(), 0);
        acts.view->setTool(PageTool::of("tp_rectangle"));
        acts.click(acts.at(45, 10));
        QCOMPARE(acts.view->currentPage(), 0);
    }

    void shouldLeadFromOutlineAndBookmarksToTheirPlaces()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath("places.ofd");
        const QByteArray place = "<ofd:Dest Type=\"XYZ\" PageID=\"2\" Top=\"10\" Zoom=\"8\"/>";
        QVERIFY(rewrite(name, "Doc_0/Document.xml",
                        "<ofd:Dest Type=\"Fit\" PageID=\"1\"/></ofd:Bookmark></ofd:Bookmarks>",
                        place
                            + "</ofd:Bookmark></ofd:Bookmarks><ofd:Outlines><ofd:OutlineElem "
                              "Title=\"A\"><ofd:Actions><ofd:Action><ofd:Goto>"
                            + place
                            + "</ofd:Goto></ofd:Action></ofd:Actions></ofd:OutlineElem>"
                              "</ofd:Outlines>"));
        for (const char *panel : {"vn_bookmark", "vn_outline"}) {
            Acts acts(name);
            const QListWidget *list = acts.list(panel);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(0)).center());
            QCOMPARE(acts.view->currentPage(), 1);
            QCOMPARE(qRound(acts.view->percent()), 800);
            const int top = acts.view->verticalScrollBar()->value();
            acts.view->setCurrentPage(1);
            QVERIFY2(top - acts.view->verticalScrollBar()->value() > 8 * unit * 8, panel);
        }
    }

    void shouldAskBeforeItOpensAnAddress()
    {
        const QByteArray usual = "https://example.org/a?b=c&amp;d";
        const QList<std::pair<QByteArray, QString>> rows{
            // What stands in the file, and what is opened.
            {usual, "https://example.org/a?b=c&d"},
            {"www.example.org", "http://www.example.org"},
            {"mailto:a@example.org", "mailto:a@example.org"},
            {"file:///etc/passwd", ""},
            {"javascript:alert(1)", ""},
            {"/bin/sh", ""},
            {"https://example.org/" + QByteArray(5000, 'a'), ""}};
        for (const auto &[address, opened] : rows) {
            const QTemporaryDir folder;
            const QString name = folder.filePath("links.ofd");
            QVERIFY(rewrite(name, "Doc_0/Annots/Page_0.xml", usual, address));
            Acts acts(name);
            // The key cancels, for that is the button which has the focus.
            for (const auto answer : {DialogUser::Enter, DialogUser::Accept}) {
                const DialogUser user(answer);
                acts.click(acts.at(15, 10));
                QCOMPARE(user.questions.size(), opened.isEmpty() ? 0 : 1);
                QVERIFY(user.questions.value(0).contains(opened));
            }
            QCOMPARE(acts.opened, opened.isEmpty() ? QList<QUrl>() : QList<QUrl>{QUrl(opened)});
        }
    }

    void shouldOpenAndSaveAttachments()
    {
        const QTemporaryDir folder;
        Acts acts;
        QListWidget *list = acts.list("vn_attachment");
        QCOMPARE(list->count(), 3);
        const auto open = [list](int row, DialogUser::Answer answer) {
            const DialogUser user(answer);
            list->setCurrentRow(row);
            list->actions().at(0)->trigger();
            return user.questions.size();
        };
        QCOMPARE(open(0, DialogUser::Enter), 1);
        QCOMPARE(acts.opened.size(), 0);
        QCOMPARE(open(0, DialogUser::Accept), 1);
        QCOMPARE(acts.opened.size(), 1);
        QCOMPARE(acts.opened.first().fileName(), QStringLiteral("数据 表.txt"));
        QCOMPARE(bytesOf(acts.opened.first().toLocalFile()), QByteArray("一,二,三\n"));
        QCOMPARE(open(1, DialogUser::Accept), 0);
        QVERIFY(acts.said().contains("run.sh"));
        QCOMPARE(open(2, DialogUser::Accept), 0);
        QCOMPARE(acts.opened.size(), 1);

        const QString saved = folder.filePath("saved.sh");
        const DialogUser user(DialogUser::Enter, saved);
        list->setCurrentRow(1);
        list->actions().at(1)->trigger();
        QVERIFY(user.proposals.value(0).endsWith("/run.sh"));
        QCOMPARE(bytesOf(saved), QByteArray("#!/bin/sh\n"));
        QVERIFY(!QFileInfo(saved).isExecutable());
    }

    void shouldListEditAndDeleteAnnotationsOfTheFile()
    {
        Acts acts;
        QListWidget *list = acts.list("vn_annotation");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(1)->text(), QStringLiteral("第 1 页　图形\n乙　2024-05-07\n旧的备注"));
        acts.view->setCurrentPage(1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(1)).center());
        QCOMPARE(acts.view->currentPage(), 0);
        {
            const DialogUser user(DialogUser::Enter, "新的\n备注");
            QTest::keyClick(list, Qt::Key_F2);
        }
        QVERIFY(list->item(1)->text().endsWith("\n新的 备注"));
        QVERIFY(activate(acts.window));
        QTRY_VERIFY(list->hasFocus());
        QVERIFY(acts.window.isWindowModified());
        const QImage before = acts.sheet()->grab().toImage();
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(list->count(), 1);
        const QPoint red = acts.at(10, 25) * before.devicePixelRatio();
        QVERIFY(before.pixelColor(red) == QColor(200, 40, 40));
        QTRY_VERIFY(acts.sheet()->grab().toImage().pixelColor(red) == QColor(Qt::white));
        QTest::keyClick(&acts.window, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&acts.window, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(list->count(), 2);
        QVERIFY(list->item(1)->text().endsWith("旧的备注") && !acts.window.isWindowModified());
        // The first one is a link, which is deleted with it.
        list->setCurrentRow(0);
        list->actions().at(1)->trigger();
        const DialogUser user(DialogUser::Enter);
        acts.click(acts.at(15, 10));
        QCOMPARE(user.questions, QStringList());
    }

    void shouldNotDeleteReadOnlyAnnotations()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath("fixed.ofd");
        QVERIFY(
            rewrite(name, "Doc_0/Annots/Page_0.xml", "ID=\"922\"", "ID=\"922\" ReadOnly=\"1\""));
        Acts acts(name);
        QListWidget *list = acts.list("vn_annotation");
        for (const int row : {1, 0}) {
            list->setCurrentRow(row);
            QCOMPARE(list->actions().at(1)->isEnabled(), row == 0);
            QCOMPARE(list->item(row)->toolTip().contains("只读"), row == 1);
            list->actions().at(1)->trigger();
            QCOMPARE(list->count(), row + 1);
        }
    }

    void shouldObeyPermissions_data()
    {
        QTest::addColumn<QByteArray>("permissions");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("annotating") << QByteArray("<ofd:Annot>false</ofd:Annot>") << "不允许批注";
        QTest::newRow("over") << QByteArray("<ofd:ValidPeriod EndDate=\"2020-02-03\"/>")
                              << "有效期到 2020-02-03 23:59 为止";
        QTest::newRow("allowed") << QByteArray() << QString();
    }

    void shouldObeyPermissions()
    {
        QFETCH(QByteArray, permissions);
        QFETCH(QString, sentence);
        const QTemporaryDir folder;
        const QString name = folder.filePath("forbidding.ofd");
        QVERIFY(rewrite(name, "Doc_0/Document.xml", "<ofd:Edit>false</ofd:Edit>", permissions));
        Acts acts(name);
        QVERIFY(acts.said().contains(sentence));
        QListWidget *list = acts.list("vn_annotation");
        acts.view->setTool(PageTool::of("tp_rectangle"));
        QTest::mousePress(acts.sheet(), Qt::LeftButton, {}, acts.at(5, 30));
        // The window system tells of a movement too late.
        QMouseEvent movement(QEvent::MouseMove, acts.at(25, 38), acts.at(25, 38), Qt::NoButton,
                             Qt::LeftButton, {});
        QApplication::sendEvent(acts.sheet(), &movement);
        QTest::mouseRelease(acts.sheet(), Qt::LeftButton, {}, acts.at(25, 38));
        QCOMPARE(list->count(), sentence.isEmpty() ? 3 : 2);
        QVERIFY(acts.said().contains(sentence));
        QCOMPARE(acts.window.isWindowModified(), sentence.isEmpty());

        const bool mayEdit = !sentence.contains("有效期");
        list = acts.list("vn_bookmark");
        const auto buttons =
            acts.window.findChild<NavigationPanel *>()->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text() == QStringLiteral("为当前页添加书签"))
                button->click();
        }
        QCOMPARE(list->count(), mayEdit ? 2 : 1);
        list->setCurrentRow(0);
        list->actions().first()->trigger();
        QCOMPARE(list->item(0)->text(), QString(mayEdit ? "第 1 页" : "首页"));
    }

    void shouldSaveIntoTheOpenedFileUntilItIsChangedElsewhere()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath("opened.ofd");
        QVERIFY(QFile::copy(actsFile, name));
        QVERIFY(QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner));
        for (const char *const state : {"", "changed", "read-only"}) {
            Acts acts(name);
            const bool mustAsk = *state != 0;
            QListWidget *list = acts.list("vn_annotation");
            list->setCurrentRow(0);
            list->actions().at(1)->trigger();
            QVERIFY(acts.window.isWindowModified());
            QFile file(name);
            if (qstrcmp(state, "changed") == 0)
                QVERIFY(file.open(QIODevice::Append) && file.write("x") == 1);
            file.close();
            if (qstrcmp(state, "read-only") == 0)
                QVERIFY(file.setPermissions(QFile::ReadOwner));
            const QByteArray before = bytesOf(name);
            const DialogUser user(DialogUser::Enter, folder.filePath("other.ofd"));
            acts.view->setFocus();
            QTest::keyClick(&acts.window, Qt::Key_S, Qt::ControlModifier);
            QTRY_VERIFY(!acts.window.isWindowModified());
            QCOMPARE(user.proposals.size(), mustAsk ? 1 : 0);
            QCOMPARE(bytesOf(name) == before, mustAsk);
            QCOMPARE(QFile::remove(folder.filePath("other.ofd")), mustAsk);
        }
    }

    void shouldMakeNamesOfAttachmentsSafe()
    {
        const QList<std::tuple<QString, QString, bool>> rows{
            // The name in the document, the one of the file, and whether that is opened at once.
            {"a.txt", "a.txt", true},
            {"../../etc/a.txt", "a.txt", true},
            {"C:\\x\\a.pdf", "a.pdf", true},
            {"..bashrc", "bashrc", false},
            {"/", "附件", false},
            {"a\u202Etxt.exe", "a_txt.exe", false},
            {"a.txt.desktop", "a.txt.desktop", false},
            {"a.html", "a.html", false},
            {"a\nb.png", "a_b.png", true},
            {QString(500, 'a') + ".txt", QString(60, 'a') + ".txt", true}};
        const QByteArray program("\177ELF\2\1\1\0\0\0\0\0\0\0\0\0\2\0>\0", 20);
        for (const auto &[name, safe, isHarmless] : rows) {
            QCOMPARE(SafeFile::nameFor(name), safe);
            QVERIFY2(SafeFile::isHarmless(safe, "text") == isHarmless, qPrintable(safe));
            QVERIFY2(!SafeFile::isHarmless(safe, "#!/bin/sh\nrm x\n"), qPrintable(safe));
            QVERIFY2(!SafeFile::isHarmless(safe, program), qPrintable(safe));
        }
    }
};

QTEST_MAIN(ReaderActsTest)
#include "tst_readeracts.moc"
