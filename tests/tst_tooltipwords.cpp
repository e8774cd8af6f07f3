// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QRegularExpression>

using namespace Describe;

namespace {

const QString wordsKey = "tooltipwords";

QStringList linesOf(const QString &card)
{
    static const QRegularExpression line("<pstyle=\"line-height:16px\">([^<]*)</p>");
    QStringList found;
    for (auto all = line.globalMatch(card); all.hasNext();)
        found.append(all.next().captured(1));
    return found;
}

QStringList tipOf(const TestHost &host)
{
    return linesOf(host.action("a")->toolTip());
}

} // namespace

/** Where the lines of tooltip cards end. */
class ToolTipWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldEndLinesBetweenWords_data()
    {
        QTest::addColumn<QString>("description");
        QTest::addColumn<QStringList>("lines");
        const auto add = [](const QString &description, const QStringList &lines) {
            QTest::newRow(qPrintable(description)) << description << lines;
        };
        add("", {});
        add("Open", {"Open"});
        add("Open files", {"Open files"});
        add("Open a file of yours", {"Open a file", "of yours"});
        add("Open files  from disk", {"Open files", "from disk"});
        add("internationalisation", {"internationalisation"});
        add("一二三四五六七八九十一二", {"一二三四五六七八九十", "一二"});
        add("打开一个文件名是 document 的文件", {"打开一个文件名是 document", "的文件"});
        add("words七八九十一二三", {"words七八九十一", "二三"});
    }

    void shouldEndLinesBetweenWords()
    {
        QFETCH(QString, description);
        QFETCH(QStringList, lines);
        QCOMPARE(linesOf(toolTipCard("title;" + description, CardLines::Words)), lines);
    }

    void shouldFollowTheSkinMap()
    {
        const QString described = row(button("a", "tooltip='Open;Open a file of yours'"));
        const QStringList cut{"Open a fil", "e of yours"};
        const QStringList words{"Open a file", "of yours"};
        TestHost plain(described);
        QCOMPARE(tipOf(plain), cut);
        TestHost host(described, {{wordsKey, "true"}});
        QCOMPARE(tipOf(host), words);
        host.facade().DoSetSkinStyleSlot({{"[MainColor]", "#336699"}});
        QCOMPARE(tipOf(host), words);
        host.facade().DoSetSkinStyleSlot({{wordsKey, "perhaps"}});
        QCOMPARE(tipOf(host), words);
        host.facade().DoSetSkinStyleSlot({{wordsKey, "false"}});
        QCOMPARE(tipOf(host), cut);
        host.facade().DoSetSkinStyleSlot({{wordsKey, "true"}});
        QCOMPARE(tipOf(host), words);
    }

    void shouldCutWhatAHostSetsItself()
    {
        TestHost host(row(button("a")), {{wordsKey, "true"}});
        NewToolBar::SetWidgetToolTip(host.action("a"), "Open;Open a file of yours");
        QCOMPARE(tipOf(host), QStringList({"Open a fil", "e of yours"}));
    }
};

QTEST_MAIN(ToolTipWordsTest)
#include "tst_tooltipwords.moc"
