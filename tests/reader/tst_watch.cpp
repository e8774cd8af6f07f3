// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/PageView.h"
#include "panels/SearchPanel.h"
#include "shell/LivePreview.h"
#include "tests/reader/ReaderHost.h"

#include <QDomDocument>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTemporaryDir>

#include <filesystem>

namespace {

/** A description with two tabs and a command on each; the first tab is on show. */
QByteArray describing(const QByteArray &name, const QByteArray &more = {})
{
    QByteArray text = R"(<uiconfig prefix=""><toolbar_tabbar>
<tabbutton name="first" text="First" checkable="true" checked="true">
<button action="NAME" text="One" MORE/></tabbutton>
<tabbutton name="second" text="Second" checkable="true"><button action="NAME_too" text="Two"/>
<lineedit action="d_gotopage" text="Page"/></tabbutton></toolbar_tabbar></uiconfig>)";
    return text.replace("NAME", name).replace("MORE", more);
}

/** A window that is rebuilt whenever a file is saved. */
struct Preview
{
    Preview()
    {
        save(describing("x_old"));
        Options options;
        options.description = QString::fromStdString(path);
        preview.emplace(window, options);
        window.openSample();
        window.show();
        QVERIFY(has("x_old") && findings().isEmpty());
    }
    void save(const QByteArray &content, const char *suffix = "") const
    {
        QFile file(QString::fromStdString(path) + suffix);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    bool has(const QString &name) const { return window.findChild<QObject *>(name) != nullptr; }
    /** The line and the rule of each finding. */
    QStringList findings() const
    {
        QStringList list;
        const auto *table = window.findChild<QTableWidget *>();
        for (int row = 0; row < table->rowCount(); ++row)
            list.append(table->item(row, 0)->text() + ' ' + table->item(row, 3)->toolTip());
        return list;
    }

    const QTemporaryDir folder;
    const std::string path = folder.filePath("bar.xml").toStdString();
    ReaderWindow window{QDomDocument(), QString()};
    std::optional<LivePreview> preview;
};

} // namespace

/** The reader's --watch: a toolbar that is rebuilt whenever its description is saved. */
class WatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { keepUsersSettings(); }

    void shouldFollowTheFileHoweverItIsSaved_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"overwritten", "in steps", "replaced", "moved aside", "linked"})
            QTest::newRow(way) << way;
    }

    void shouldFollowTheFileHoweverItIsSaved()
    {
        QFETCH(const QString, way);
        Preview preview;
        for (const QByteArray name : {"x_second", "x_third"}) { // The first save must not end it.
            const std::string backup = preview.path + '~' + name.toStdString();
            if (way == "in steps")
                preview.save(describing(name).chopped(20));
            else if (way == "moved aside")
                std::filesystem::rename(preview.path, backup);
            else if (way == "linked") // The watched file remains, under another name.
                std::filesystem::create_hard_link(preview.path, backup);
            const bool isReplaced = way == "replaced" || way == "linked";
            preview.save(describing(name), isReplaced ? ".new" : "");
            if (isReplaced)
                std::filesystem::rename(preview.path + ".new", preview.path);
            QTRY_VERIFY2(preview.has(name), name);
            QVERIFY(!preview.has("x_old") && preview.has("x_second") == (name == "x_second"));
        }
    }

    void shouldKeepTheToolBarAndListFindings()
    {
        for (const auto &[content, finding] :
             {std::pair{describing("x_new").chopped(20), "5 xml-syntax"},
              {QByteArray("<html/>"), "1 wrong-root"},
              {QByteArray(""), "1 xml-syntax"},
              {QByteArray(), " unreadable"}}) {
            Preview preview;
            content.isNull() ? void(std::filesystem::remove(preview.path)) : preview.save(content);
            QTRY_COMPARE(preview.findings(), QStringList(finding));
            QVERIFY(preview.has("x_old"));
            preview.save(describing("x_new", "colour='red'"));
            QTRY_VERIFY(preview.has("x_new"));
            QCOMPARE(preview.findings(), QStringList("3 unknown-attribute"));
        }
    }

    void shouldKeepTheViewOfTheDocument()
    {
        Preview preview;
        auto *view = preview.window.findChild<PageView *>();
        auto *search = preview.window.findChild<SearchPanel *>();
        preview.window.findChild<QPushButton *>("second")->click();
        view->setZoomMode(ZoomMode::fromName("vzmode_125p"));
        view->setCurrentPage(2);
        search->searchWord(QStringLiteral("文档"));
        QTRY_VERIFY(!search->findChild<TextSearch *>()->isActive());
        QVERIFY(QTest::qWaitForWindowExposed(&preview.window));
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum() / 2);
        const auto *hits = search->findChild<QListWidget *>();
        const auto look = [view, hits] {
            return QList<int>{view->currentPage(), qRound(view->percent()), hits->count(),
                              view->verticalScrollBar()->value()};
        };
        const QList<int> before = look();
        QVERIFY(!before.contains(0));
        preview.save(describing("x_new"));
        QTRY_VERIFY(preview.has("x_new_too")); // Only the row on show is filled.
        QCOMPARE(look(), before);
        const auto *field = preview.window.findChild<QLineEdit *>("d_gotopage");
        QCOMPARE(field->text(), QString::number(before.at(0) + 1));
        QTRY_VERIFY(field->isVisible() && field->isEnabled());
    }
};

QTEST_MAIN(WatchTest)
#include "tst_watch.moc"
