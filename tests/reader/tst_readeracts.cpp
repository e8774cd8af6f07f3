// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/SafeFile.h"
#include "ofd/Archive.h"
#include "ofd/Document.h"
#include "pages/PageView.h"
#include "panels/NavigationPanel.h"
#include "shell/Description.h"
#include "shell/ReaderWindow.h"

#include <toolbar/NewToolBar.h>

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

const QString actsFile = QStringLiteral(OFD_MADE "/acts.ofd");
constexpr qreal unit = 96 / 25.4;

/** The reader with one file, and what it hands to the desktop. */
class Acts : public QObject
{
    Q_OBJECT

public:
    explicit Acts(const QString &fileName)
        : window(Description::read("release", "marodi", &error), QString())
    {
        for (const char *scheme : {"https", "http", "file", "mailto"})
            QDesktopServices::setUrlHandler(scheme, this, "take");
        window.open(fileName);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_VERIFY(view->hasFocus());
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
        const QPointF centre = view->viewport()->rect().center();
        return (centre + (QPointF(x, y) - QPointF(size.width(), size.height()) / 2) * scale)
            .toPoint();
    }
    void click(QPoint position) const
    {
        QTest::mouseMove(view->viewport(), position);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    }
    QListWidget *list(const QString &panel)
    {
        auto *navigation = window.findChild<NavigationPanel *>();
        if (navigation->shownPanel() != panel)
            navigation->toggle(panel);
        return qobject_cast<QListWidget *>(
            navigation->findChild<QStackedWidget *>()->currentWidget());
    }
    QString said() { return window.statusBar()->currentMessage(); }

    Q_SLOT void take(const QUrl &url) { opened.append(url); }

    QString error;
    ReaderWindow window;
    PageView *view = window.findChild<PageView *>();
    QList<QUrl> opened;
};

/** Answers the next dialogs, whose event loops block the test. */
class Answer
{
public:
    explicit Answer(const QString &text)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, text] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (auto *question = qobject_cast<QMessageBox *>(dialog)) {
                questions.append(question->text());
                for (QAbstractButton *button : question->buttons()) {
                    if (button->text() == text)
                        return button->click();
                }
                question->reject();
            } else if (auto *input = qobject_cast<QInputDialog *>(dialog)) {
                input->findChild<QPlainTextEdit *>()->setPlainText(text);
                input->accept();
            } else if (auto *chooser = qobject_cast<QFileDialog *>(dialog)) {
                questions.append(chooser->selectedFiles().value(0));
                chooser->findChild<QLineEdit *>()->setText(text);
                QTest::keyClick(chooser->findChild<QLineEdit *>(), Qt::Key_Return);
            }
        });
        m_timer.start(50);
    }

    QStringList questions;

private:
    QTimer m_timer;
};

QByteArray bytesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Writes the file with another text in one of its entries. */
bool rewrite(const QString &fileName, const QString &entry, const QByteArray &from,
             const QByteArray &to)
{
    QString error;
    const auto document = Ofd::read(actsFile, &error);
    QByteArray bytes = document->package->read(entry);
    const bool isThere = bytes.contains(from);
    bytes.replace(from, to);
    QFile file(fileName);
    return isThere && file.open(QIODevice::WriteOnly)
           && file.write(Ofd::Archive::withEntries(*document->package, {{entry, bytes}})) > 0;
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
        qputenv("XDG_CONFIG_HOME", "/nowhere"); // Not the user's own settings.
        NewToolBar::uiStyle = 0;
    }

    void shouldFollowLinksOfPages()
    {
        Acts acts(actsFile);
        QTest::mouseMove(acts.view->viewport(), acts.at(45, 10));
        QTRY_COMPARE(acts.view->viewport()->cursor().shape(), Qt::PointingHandCursor);
        QTest::mouseMove(acts.view->viewport(), acts.at(57, 35));
        QTRY_COMPARE(acts.view->viewport()->cursor().shape(), Qt::OpenHandCursor);
        acts.click(acts.at(45, 10));
        QCOMPARE(acts.view->currentPage(), 1);
        QCOMPARE(qRound(acts.view->percent()), 200);
        acts.view->setZoomMode(ZoomMode::fromName("vzmode_fitpage"));
        acts.click(acts.at(10, 10));
        QCOMPARE(acts.view->currentPage(), 0);
        acts.view->setTool(PageTool::of("tp_rectangle"));
        acts.click(acts.at(45, 10));
        QCOMPARE(acts.view->currentPage(), 0);
    }

    void shouldAskBeforeItOpensAnAddress_data()
    {
        QTest::addColumn<QByteArray>("address");
        QTest::addColumn<QString>("opened");
        QTest::newRow("page") << QByteArray("https://example.org/a?b=c&amp;d")
                              << "https://example.org/a?b=c&d";
        QTest::newRow("no scheme") << QByteArray("www.example.org") << "http://www.example.org";
        QTest::newRow("mail") << QByteArray("mailto:a@example.org") << "mailto:a@example.org";
        QTest::newRow("file") << QByteArray("file:///etc/passwd") << QString();
        QTest::newRow("script") << QByteArray("javascript:alert(1)") << QString();
        QTest::newRow("command") << QByteArray("/bin/sh") << QString();
        QTest::newRow("long") << "https://example.org/" + QByteArray(5000, 'a') << QString();
    }

    void shouldAskBeforeItOpensAnAddress()
    {
        QFETCH(QByteArray, address);
        QFETCH(QString, opened);
        const QTemporaryDir folder;
        const QString name = folder.filePath("links.ofd");
        QVERIFY(
            rewrite(name, "Doc_0/Annots/Page_0.xml", "https://example.org/a?b=c&amp;d", address));
        Acts acts(name);
        for (const char *text : {"取消", "打开"}) {
            const Answer answer(QString::fromUtf8(text));
            acts.click(acts.at(15, 10));
            QCOMPARE(answer.questions.size(), opened.isEmpty() ? 0 : 1);
            QVERIFY(opened.isEmpty() || answer.questions.first().contains(opened));
        }
        QCOMPARE(acts.opened, opened.isEmpty() ? QList<QUrl>() : QList<QUrl>{QUrl(opened)});
    }

    void shouldOpenAndSaveAttachments()
    {
        const QTemporaryDir folder;
        Acts acts(actsFile);
        QListWidget *list = acts.list("vn_attachment");
        QCOMPARE(list->count(), 3);
        const auto choose = [&](int row, int action, const QString &text) {
            const Answer answer(text);
            list->setCurrentRow(row);
            list->actions().at(action)->trigger();
            return answer.questions;
        };
        QCOMPARE(choose(0, 0, "取消").size(), 1);
        QCOMPARE(acts.opened.size(), 0);
        QCOMPARE(choose(0, 0, "打开").size(), 1);
        QCOMPARE(acts.opened.size(), 1);
        QCOMPARE(acts.opened.first().fileName(), QStringLiteral("数据 表.txt"));
        QCOMPARE(bytesOf(acts.opened.first().toLocalFile()), QByteArray("一,二,三\n"));
        QVERIFY(choose(1, 0, "打开").isEmpty());
        QVERIFY(acts.said().contains("run.sh"));
        QVERIFY(choose(2, 0, "打开").isEmpty());
        QCOMPARE(acts.opened.size(), 1);
        const QString saved = folder.filePath("saved.sh");
        QVERIFY(choose(1, 1, saved).first().endsWith("/run.sh"));
        QCOMPARE(bytesOf(saved), QByteArray("#!/bin/sh\n"));
        QVERIFY(!QFileInfo(saved).isExecutable());
    }

    void shouldListEditAndDeleteAnnotationsOfTheFile()
    {
        Acts acts(actsFile);
        QListWidget *list = acts.list("vn_annotation");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(1)->text(), QStringLiteral("第 1 页　图形\n乙　2024-05-07\n旧的备注"));
        acts.view->setCurrentPage(1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(list->item(1)).center());
        QCOMPARE(acts.view->currentPage(), 0);
        {
            const Answer answer("新的\n备注");
            QTest::keyClick(list, Qt::Key_F2);
        }
        QVERIFY(list->item(1)->text().endsWith("\n新的 备注"));
        acts.window.activateWindow();
        QTRY_VERIFY(list->hasFocus());
        QVERIFY(acts.window.isWindowModified());
        const QImage before = acts.view->viewport()->grab().toImage();
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(list->count(), 1);
        const QPoint red = acts.at(10, 25) * before.devicePixelRatio();
        QVERIFY(before.pixelColor(red) == QColor(200, 40, 40));
        QTRY_VERIFY(acts.view->viewport()->grab().toImage().pixelColor(red) == QColor(Qt::white));
        QTest::keyClick(&acts.window, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(&acts.window, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(list->count(), 2);
        QVERIFY(list->item(1)->text().endsWith("旧的备注") && !acts.window.isWindowModified());
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
        QTest::mousePress(acts.view->viewport(), Qt::LeftButton, {}, acts.at(5, 30));
        // The window system tells of a movement too late.
        QMouseEvent movement(QEvent::MouseMove, acts.at(25, 38), acts.at(25, 38), Qt::NoButton,
                             Qt::LeftButton, {});
        QApplication::sendEvent(acts.view->viewport(), &movement);
        QTest::mouseRelease(acts.view->viewport(), Qt::LeftButton, {}, acts.at(25, 38));
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
            const Answer answer(folder.filePath("other.ofd"));
            acts.view->setFocus();
            QTest::keyClick(&acts.window, Qt::Key_S, Qt::ControlModifier);
            QTRY_VERIFY(!acts.window.isWindowModified());
            QCOMPARE(answer.questions.size(), mustAsk ? 1 : 0);
            QCOMPARE(bytesOf(name) == before, mustAsk);
            QCOMPARE(QFile::remove(folder.filePath("other.ofd")), mustAsk);
        }
    }

    void shouldMakeNamesOfAttachmentsSafe_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("safe");
        QTest::addColumn<bool>("isHarmless");
        QTest::newRow("plain") << "a.txt"
                               << "a.txt" << true;
        QTest::newRow("folder") << "../../etc/a.txt"
                                << "a.txt" << true;
        QTest::newRow("backslashes") << "C:\\x\\a.pdf"
                                     << "a.pdf" << true;
        QTest::newRow("hidden") << "..bashrc"
                                << "bashrc" << false;
        QTest::newRow("none") << "/"
                              << "附件" << false;
        QTest::newRow("direction") << QString("a\u202Etxt.exe") << "a_txt.exe" << false;
        QTest::newRow("desktop") << "a.txt.desktop"
                                 << "a.txt.desktop" << false;
        QTest::newRow("page") << "a.html"
                              << "a.html" << false;
        QTest::newRow("line") << "a\nb.png"
                              << "a_b.png" << true;
        QTest::newRow("long") << QString(500, 'a') + ".txt" << QString(60, 'a') + ".txt" << true;
    }

    void shouldMakeNamesOfAttachmentsSafe()
    {
        QFETCH(QString, name);
        const QString safe = SafeFile::nameFor(name);
        QTEST(safe, "safe");
        QTEST(SafeFile::isHarmless(safe, "text"), "isHarmless");
        QVERIFY(!SafeFile::isHarmless(safe, "#!/bin/sh\nrm x\n"));
        QVERIFY(
            !SafeFile::isHarmless(safe, QByteArray("\177ELF\2\1\1\0\0\0\0\0\0\0\0\0\2\0>\0", 20)));
    }
};

QTEST_MAIN(ReaderActsTest)
#include "tst_readeracts.moc"
