// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"

#include <QLineEdit>
#include <QMenu>

#include <array>

using namespace Describe;

namespace {

const QString gisField =
    extra(searchField("gis_input", button("gis_prev") + button("gis_next"), "tooltip='Map'"));

QString otherField(const QString &name)
{
    return extra(searchField(name + "_input", button(name + "_next")));
}

/** A tab with these controls at its right end, a search field and additional controls. */
QString sections(const QString &extras = gisField, const QString &prompt = QStringLiteral("Find"))
{
    return section("tabbar", tab("t", button("b") + extras, "checked='true' scalable='true'"))
           + section(
               "searchbar",
               label("st_icon", "?") + field("st_input", "tooltip='" + prompt + '\'')
                   + button("st_prev") + button("st_next")
                   + optionsButton("st_set", item("st_option_wholeword", "checkable='true'")
                                                 + item("st_option_nocase", "checkable='true'")))
           + section("addtional", button("e_preference") + button("t_fold", "tooltip='Fold'"));
}

/** Types into a field as a user does, then presses one of its buttons, or Return for none. */
void searchFor(TestHost &host, const QString &fieldName, const QString &text,
               const QString &button = "")
{
    host.enableRows();
    auto *field = host.find<QLineEdit>(fieldName);
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(30, field->height() / 2));
    QTRY_VERIFY(field->hasFocus());
    field->clear();
    QTest::keyClicks(field, text);
    if (button.isEmpty())
        QTest::keyClick(field, Qt::Key_Return);
    else
        host.click(button);
}

SearchOption lastOf(const QSignalSpy &spy)
{
    return spy.last().first().value<SearchOption>();
}

} // namespace

/** The search fields and the additional controls. */
class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSearchFromItsFields_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("direction"); // -1: no search at all.
        const auto row = [](const char *name, const char *field, const char *text,
                            const char *button, int direction) {
            QTest::newRow(name) << field << text << button << direction;
        };
        row("Return", "st_input", "abc", "", 1);
        row("next", "st_input", "abc", "st_next", 1);
        row("previous", "st_input", "abc", "st_prev", 0);
        row("Return, empty", "st_input", "", "", -1);
        row("next, empty", "st_input", "", "st_next", -1);
        row("second field, Return", "gis_input", "abc", "", 1);
        row("second field, next", "gis_input", "abc", "gis_next", 1);
        row("second field, previous", "gis_input", "abc", "gis_prev", 0);
        row("second field, empty", "gis_input", "", "gis_next", -1);
    }

    void shouldSearchFromItsFields()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QString, button);
        QFETCH(int, direction);
        TestHost host(sections());
        host.show();
        const bool isSecondField = field == "gis_input";
        host.find<QLineEdit>(isSecondField ? "st_input" : "gis_input")->setText("not this");
        const QSignalSpy searches(&host.facade(), &MRToolBar::DoSearchContent);
        searchFor(host, field, text, button);
        QCOMPARE(searches.count(), direction < 0 ? 0 : 1);
        if (direction < 0)
            return;
        QCOMPARE(lastOf(searches).content, text);
        QCOMPARE(lastOf(searches).direction, direction);
        QCOMPARE(lastOf(searches).newSearch, isSecondField);

        searchFor(host, "st_input", "then");
        QCOMPARE(searches.count(), 2);
        QVERIFY2(lastOf(searches).direction == 1 && !lastOf(searches).newSearch,
                 "The former search affects this one");
    }

    void shouldSearchFromAnyFieldOfARow_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("main"); // The text of the main field, which must not be empty.
        QTest::addColumn<QString>("own");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("searched");
        const auto row = [](const char *name, const char *field, const char *main, const char *own,
                            const char *button, const char *searched) {
            QTest::newRow(name) << field << main << own << button << searched;
        };
        row("Return", "law_input", "main", "own", "", "own");
        row("Return, main field empty", "law_input", "", "own", "", "");
        row("Return, empty", "law_input", "main", "", "", "");
        row("next", "law_input", "main", "own", "law_next", "main");
        row("earlier Return", "gis_earlier_input", "main", "own", "", "own");
        row("earlier Return, second field empty", "gis_earlier_input", "", "own", "", "");
        row("earlier next", "gis_earlier_input", "main", "own", "gis_earlier_next", "main");
    }

    void shouldSearchFromAnyFieldOfARow()
    {
        QFETCH(QString, field);
        QFETCH(QString, main);
        QFETCH(QString, own);
        QFETCH(QString, button);
        QFETCH(QString, searched);
        TestHost host(sections(otherField("law") + otherField("gis_earlier") + gisField));
        host.show();
        const bool isEarlier = field.startsWith("gis");
        host.find<QLineEdit>(isEarlier ? "gis_input" : "st_input")->setText(main);
        const QSignalSpy searches(&host.facade(), &MRToolBar::DoSearchContent);
        searchFor(host, field, own, button);
        QCOMPARE(searches.count(), searched.isEmpty() ? 0 : 1);
        if (searched.isEmpty())
            return;
        QCOMPARE(lastOf(searches).content, searched);
        QCOMPARE(lastOf(searches).newSearch, isEarlier);
    }

    void shouldKeepASearchApartFromOneInItsHandler_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("answer"); // The button that the host clicks in its answer.
        QTest::addColumn<QStringList>("searches");
        const QStringList inner{"second 1 new", "main 0 repeated"};
        QTest::newRow("main within second") << "gis_next"
                                            << "st_prev" << inner;
        QTest::newRow("second within main")
            << "st_prev"
            << "gis_next" << QStringList{"main 0 repeated", "second 1 new"};
        // One control emits two searches, with another search in between.
        QTest::newRow("main within second, which goes on")
            << "gis_input_next"
            << "st_prev" << inner + QStringList("second 1 new");
    }

    void shouldKeepASearchApartFromOneInItsHandler()
    {
        QFETCH(QString, control);
        QFETCH(QString, answer);
        const QString next = control.startsWith("gis_input") ? control : "gis_next";
        TestHost host(sections(QString(gisField).replace("gis_next", next)));
        host.showEnabled();
        host.find<QLineEdit>("st_input")->setText("main");
        host.find<QLineEdit>("gis_input")->setText("second");
        QStringList heard;
        connect(&host.facade(), &MRToolBar::DoSearchContent, this, [&](const SearchOption &option) {
            heard.append(
                QStringLiteral("%1 %2 %3")
                    .arg(option.content, QString::number(option.direction),
                         option.newSearch ? QStringLiteral("new") : QStringLiteral("repeated")));
            if (heard.size() == 1)
                host.find<QPushButton>(answer)->click();
        });
        host.find<QPushButton>(control)->click();
        QTEST(heard, "searches");
    }

    void shouldCarryTheOptionsOfItsMenu()
    {
        TestHost host(sections());
        host.show();
        const QSignalSpy searches(&host.facade(), &MRToolBar::DoSearchContent);
        const QString wholeWord = "st_option_wholeword";
        const QString noCase = "st_option_nocase";
        QStringList checked;
        for (const QString &option : {wholeWord, noCase, wholeWord, noCase}) {
            const auto before = searches.count();
            whenMenuPops([&option](QMenu *menu) { clickEntry(menu, entryOf(menu, option)); });
            host.click("st_set");
            QVERIFY2(searches.count() == before, "An option is no search");
            if (!checked.removeOne(option))
                checked.append(option);
            for (const QString field : {"st_input", "gis_input"}) {
                searchFor(host, field, "abc");
                QCOMPARE(lastOf(searches).wholeWord, checked.contains(wholeWord));
                QCOMPARE(lastOf(searches).noCase, checked.contains(noCase));
            }
            QCOMPARE(searches.count(), before + 2);
        }
    }

    void shouldSplitTheTipOfTheFoldButton()
    {
        using Tips = std::array<QString, 3>;
        for (const auto &[tip, foldTip, unfoldTip] :
             {Tips{"Rows", "Rows", "Rows"},
              Tips{"Hide rows;Show rows", "Hide rows", "Show rows"}}) {
            const TestHost host(section("addtional", button("t_fold", "tooltip='" + tip + '\'')));
            QCOMPARE(host.find<QPushButton>("t_fold")->toolTip(), foldTip);
            QCOMPARE(host.find<QPushButton>("t_extend")->toolTip(), unfoldTip);
        }
    }

    void shouldDrawAPromptFainterThanText()
    {
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            TestHost host(sections());
            host.show();
            for (const char *colour : {"", "#7A3B1B"}) {
                if (*colour)
                    host.facade().DoSetSkinStyleSlot({{"[MainColor.checked]", colour}});
                for (const char *name : {"st_input", "gis_input"}) {
                    const QPalette palette = host.find<QLineEdit>(name)->palette();
                    QVERIFY2(palette.color(QPalette::PlaceholderText).alpha()
                                 < palette.color(QPalette::Text).alpha(),
                             name);
                }
            }
        }
    }

    void shouldWidenAndShowItsButtonsInUse_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<int>("resting"); // Width without focus at 96 dpi; 0 if fixed.
        QTest::newRow("marodi") << marodi << "st_input"
                                << "点此查找文本" << 108;
        QTest::newRow("lum") << lum << "st_input"
                             << "点此查找文本" << 0;
        QTest::newRow("no prompt") << marodi << "st_input"
                                   << "" << 0;
        QTest::newRow("field of a row") << marodi << "gis_input"
                                        << "" << 0;
    }

    void shouldWidenAndShowItsButtonsInUse()
    {
        QFETCH(int, skin);
        QFETCH(QString, name);
        QFETCH(QString, prompt);
        QFETCH(int, resting);
        const SkinChoice choice(skin);
        TestHost host(sections(gisField, prompt));
        auto *document = new QLineEdit;
        host.window().setCentralWidget(document);
        host.showEnabled();
        document->setFocus();
        const bool isOnRow = name == "gis_input";
        auto *previous = host.find<QPushButton>(isOnRow ? "gis_prev" : "st_prev");
        const auto *next = host.find<QPushButton>(isOnRow ? "gis_next" : "st_next");
        previous->setFixedWidth(20);
        auto *field = host.find<QLineEdit>(name);
        const int rest = resting > 0 ? host.scaled(resting) : field->maximumWidth();
        const int widened = resting > 0 ? 2 * rest : rest;
        const auto isSo = [&](int width, bool areButtonsShown) {
            return field->maximumWidth() == width && previous->isVisible() == areButtonsShown
                   && next->isVisible() == areButtonsShown;
        };

        QVERIFY(isSo(rest, isOnRow));
        QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(5, 5));
        QTRY_VERIFY(field->hasFocus());
        QVERIFY(isSo(widened, true));
        QCOMPARE(field->textMargins(), QMargins(0, 0, 2 * 20, 0));
        QTest::keyClicks(field, "kept");
        document->setFocus();
        QVERIFY(isSo(widened, true));
        field->setFocus();
        field->clear();
        document->setFocus();
        QVERIFY(isSo(rest, isOnRow));
        if (resting > 0)
            QCOMPARE(field->textMargins(), QMargins(0, 0, 0, host.scaled(3)));
    }
};

QTEST_MAIN(SearchTest)
#include "tst_search.moc"
