// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/EventCounter.h"
#include "tests/support/Icons.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>

using namespace Describe;

namespace {

const QString bothEnds = item("no_file") + item("f_clearhistory");

QString recentSection(const QString &entries)
{
    return section("appbutton", menu("menu_file", menu("menu_f_openrecent", entries)));
}

QStringList shownTexts(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> entries = menu->actions();
    for (const QAction *entry : entries) {
        if (entry->isVisible())
            texts.append(entry->text());
    }
    return texts;
}

QStringList manyPaths(int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths.append(QStringLiteral("/documents/%1.ofd").arg(i));
    return paths;
}

/** A host with filled menus and recent files. */
class RecentHost : public TestHost
{
public:
    explicit RecentHost(const QStringList &paths = {}, const QString &otherSections = {})
        : TestHost(recentSection(bothEnds) + otherSections)
    {
        toolBar()->Inner_DoDelayLoadMenuSlot();
        report(paths);
    }

    void report(const QStringList &paths) { facade().DoUpdateRecentFileSlot(paths); }
    QMenu *menu() const { return find<QMenu>("menu_f_openrecent"); }
    QAction *fileEntry(int number) const { return menu()->actions().at(number); }
    QList<QAction *> ownedEntries() const
    {
        return toolBar()->findChildren<QAction *>("f_openrecentfile", Qt::FindDirectChildrenOnly);
    }
};

} // namespace

/** The recent files in the application menu. */
class RecentFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldListRecentFiles()
    {
        TestHost host(recentSection(bothEnds));
        const QSignalSpy files(&host.facade(), &MRToolBar::DoOpenFile);
        const QStringList paths{"/docs/a.ofd", "/docs/b;c.ofd", "relative/d.ofd"};
        host.facade().DoUpdateRecentFileSlot(paths); // No effect before the menus are filled.
        host.toolBar()->Inner_DoDelayLoadMenuSlot();
        const auto *menu = host.find<QMenu>("menu_f_openrecent");
        host.facade().DoUpdateRecentFileSlot({"/docs/old.ofd"});
        host.facade().DoUpdateRecentFileSlot(paths);
        QCOMPARE(shownTexts(menu),
                 (QStringList{"&1 a.ofd", "&2 b;c.ofd", "&3 d.ofd", "f_clearhistory"}));
        QVERIFY(menu->actions().last()->isEnabled());
        for (int i = 1; i <= paths.size(); ++i) {
            QCOMPARE(menu->actions().at(i)->data().toString(), paths.at(i - 1));
            menu->actions().at(i)->trigger();
        }
        QCOMPARE(TestHost::texts(files), (QStringList{paths.at(0), paths.at(1),
                                                      QFileInfo(paths.at(2)).absoluteFilePath()}));
        host.facade().DoUpdateRecentFileSlot({});
        QCOMPARE(shownTexts(menu), QStringList{"no_file"});
        QVERIFY(!menu->actions().last()->isEnabled());
    }

    void shouldNotListRecentFilesInAMenuWithoutBothEnds()
    {
        for (const QString &entries :
             {item("no_file"), item("x") + bothEnds, bothEnds + item("x")}) {
            TestHost host(recentSection(entries));
            host.toolBar()->Inner_DoDelayLoadMenuSlot();
            const auto *menu = host.find<QMenu>("menu_f_openrecent");
            const QStringList before = shownTexts(menu);
            host.facade().DoUpdateRecentFileSlot({"/docs/a.ofd"});
            QCOMPARE(shownTexts(menu), before);
        }
    }

    void shouldReportTheClearingOfRecentFilesOnce()
    {
        // In the menu only, and also on a row.
        for (const QString &otherPlace : {QString(), row(button("f_clearhistory"))}) {
            RecentHost host({"/a.ofd", "/b.ofd"}, otherPlace);
            const QSignalSpy active(&host.facade(), &MRToolBar::DoActive);
            host.menu()->actions().last()->trigger();
            QCOMPARE(TestHost::texts(active), QStringList{"f_clearhistory"});
            QCOMPARE(shownTexts(host.menu()), QStringList{"no_file"});
            QVERIFY(!host.menu()->actions().last()->isEnabled());
            host.report({"/a.ofd"});
            QCOMPARE(shownTexts(host.menu()), (QStringList{"&1 a.ofd", "f_clearhistory"}));
        }
    }

    void shouldReuseItsEntries()
    {
        constexpr int longest = 10;
        RecentHost host;
        for (int i = 0; i < 100; ++i)
            host.report(manyPaths(1 + i % longest));
        QCOMPARE(host.ownedEntries().size(), qsizetype(longest));
    }

    void shouldLeaveTheMenuAloneForAnEqualList()
    {
        RecentHost host(manyPaths(5));
        const EventCounter changes(
            host.menu(), {QEvent::ActionAdded, QEvent::ActionRemoved, QEvent::ActionChanged});
        host.report(manyPaths(5));
        QCOMPARE(changes.count(), 0);
        host.fileEntry(1)->setText("&1: in another language");
        host.report(manyPaths(5));
        QCOMPARE(host.fileEntry(1)->text(), QString("&1 0.ofd"));
    }

    void shouldLayAnOpenMenuOutOnce()
    {
        RecentHost host;
        host.show();
        host.menu()->popup(host.window().mapToGlobal(QPoint()));
        QVERIFY(QTest::qWaitForWindowExposed(host.menu()));
        const EventCounter layouts(host.menu(), {QEvent::Resize});
        host.report(manyPaths(200));
        QVERIFY2(layouts.count() <= 2, qPrintable(QString::number(layouts.count())));
        QCOMPARE(host.menu()->size(), host.menu()->sizeHint());
        host.report({"/only.ofd"});
        QVERIFY2(layouts.count() <= 4, qPrintable(QString::number(layouts.count())));
        QCOMPARE(host.menu()->size(), host.menu()->sizeHint());
        const QSignalSpy files(&host.facade(), &MRToolBar::DoOpenFile);
        clickEntry(host.menu(), host.fileEntry(1));
        QCOMPARE(TestHost::texts(files), QStringList{"/only.ofd"});
    }

    void shouldLetAChosenEntryKeepItsFile()
    {
        RecentHost host({"/a.ofd", "/b.ofd"});
        const QSignalSpy files(&host.facade(), &MRToolBar::DoOpenFile);
        // Hosts put the file that was opened last first.
        connect(&host.facade(), &MRToolBar::DoOpenFile, &host.facade(), [&host] {
            host.report({"/b.ofd", "/a.ofd", "/c.ofd"});
        });
        QStringList heardOf;
        connect(host.find<QMenu>("menu_file"), &QMenu::triggered, this,
                [&heardOf](const QAction *entry) {
                    heardOf += {entry->text(), entry->data().toString(), entry->toolTip()};
                });
        host.fileEntry(2)->trigger();
        QCOMPARE(TestHost::texts(files), QStringList{"/b.ofd"});
        QCOMPARE(heardOf, (QStringList{"&2 b.ofd", "/b.ofd", "/b.ofd"}));
        QCOMPARE(shownTexts(host.menu()),
                 (QStringList{"&1 b.ofd", "&2 a.ofd", "&3 c.ofd", "f_clearhistory"}));
        for (int i = 0; i < 20; ++i)
            host.fileEntry(2)->trigger();
        QVERIFY2(host.ownedEntries().size() <= 4, "Each choice leaves an entry behind");
    }

    void shouldResetAnEntryThatIsUsedAgain()
    {
        RecentHost host({"/a.ofd", "/b.ofd"});
        QAction *entry = host.fileEntry(1);
        entry->setIcon(colouredIcon(Qt::red));
        entry->setEnabled(false);
        entry->setVisible(false);
        entry->setCheckable(true);
        entry->setChecked(true);
        int calls = 0;
        connect(entry, &QAction::triggered, this, [&calls] { ++calls; });
        delete host.fileEntry(2);
        host.report({"/b.ofd", "/c.ofd"});
        QCOMPARE(shownTexts(host.menu()), (QStringList{"&1 b.ofd", "&2 c.ofd", "f_clearhistory"}));
        QCOMPARE(host.ownedEntries().size(), qsizetype(2));
        const QAction *anew = host.fileEntry(1);
        QVERIFY(anew->icon().isNull() && anew->isEnabled() && anew->isVisible());
        QVERIFY(!anew->isCheckable() && anew->isIconVisibleInMenu());
        QCOMPARE(anew->toolTip(), QString("/b.ofd"));
        host.fileEntry(1)->trigger();
        QCOMPARE(calls, 0);
    }
};

QTEST_MAIN(RecentFilesTest)
#include "tst_recentfiles.moc"
