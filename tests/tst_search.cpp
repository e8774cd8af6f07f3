// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/Menus.h"
#include "tests/support/Rows.h"
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

/** Searches from a field by Return or a button; direction -1 stands for none at all. */
const struct
{
    const char *name, *field, *text, *button;
    int direction;
} searchesOfFields[]{
    {"Return", "st_input", "abc", "", 1},
    {"next", "st_input", "abc", "st_next", 1},
    {"previous", "st_input", "abc", "st_prev", 0},
    {"Return, empty", "st_input", "", "", -1},
    {"next, empty", "st_input", "", "st_next", -1},
    {"second field, Return", "gis_input", "abc", "", 1},
    {"second field, next", "gis_input", "abc", "gis_next", 1},
    {"second field, previous", "gis_input", "abc", "gis_prev", 0},
    {"second field, empty", "gis_input", "", "gis_next", -1},
};

/** Searches from other fields; the text of the main field must not be empty. */
const struct
{
    const char *name, *field, *main, *own, *button, *searched;
} searchesOfRows[]{
    {"Return", "law_input", "main", "own", "", "own"},
    {"Return, main field empty", "law_input", "", "own", "", ""},
    {"Return, empty", "law_input", "main", "", "", ""},
    {"next", "law_input", "main", "own", "law_next", "main"},
    {"earlier Return", "gis_earlier_input", "main", "own", "", "own"},
    {"earlier Return, second field empty", "gis_earlier_input", "", "own", "", ""},
    {"earlier next", "gis_earlier_input", "main", "own", "gis_earlier_next", "main"},
};

/** Fields in use; their resting width is that at 96 dpi, 0 if it is fixed. */
const struct
{
    const char *name;
    int skin;
    const char *field, *prompt;
    int resting;
} fieldsInUse[]{
    {"marodi", marodi, "st_input", "点此查找文本", 108},
    {"lum", lum, "st_input", "点此查找文本", 0},
    {"no prompt", marodi, "st_input", "", 0},
    {"field of a row", marodi, "gis_input", "", 0},
};

} // namespace

/** The search fields and the additional controls. */
class SearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSearchFromItsFields_data() { addRows(searchesOfFields); }

    void shouldSearchFromItsFields()
    {
        const auto &row = rowOf(searchesOfFields);
        TestHost host = TestHost::shown(sections());
        const bool isSecondField = QString(row.field) == "gis_input";
        host.find<QLineEdit>(isSecondField ? "st_input" : "gis_input")->setText("not this");
        const QSignalSpy searches(&host.facade(), &MRToolBar::DoSearchContent);
        searchFor(host, row.field, row.text, row.button);
        QCOMPARE(searches.count(), row.direction < 0 ? 0 : 1);
        if (row.direction < 0)
            return;
        QCOMPARE(lastOf(searches).content, QString(row.text));
        QCOMPARE(lastOf(searches).direction, row.direction);
        QCOMPARE(lastOf(searches).newSearch, isSecondField);
        searchFor(host, "st_input", "then");
        QCOMPARE(searches.count(), 2);
        QVERIFY2(lastOf(searches).direction == 1 && !lastOf(searches).newSearch,
                 "The former search affects this one");
    }

    void shouldSearchFromAnyFieldOfARow_data() { addRows(searchesOfRows); }

    void shouldSearchFromAnyFieldOfARow()
    {
        const auto &[name, field, main, own, button, searched] = rowOf(searchesOfRows);
        TestHost host =
            TestHost::shown(sections(otherField("law") + otherField("gis_earlier") + gisField));
        const bool isEarlier = QString(field).startsWith("gis");
        host.find<QLineEdit>(isEarlier ? "gis_input" : "st_input")->setText(main);
        const QSignalSpy searches(&host.facade(), &MRToolBar::DoSearchContent);
        searchFor(host, field, own, button);
        QCOMPARE(searches.count(), *searched ? 1 : 0);
        if (searches.isEmpty())
            return;
        QCOMPARE(lastOf(searches).content, QString(searched));
        QCOMPARE(lastOf(searches).newSearch, isEarlier);
    }

    void shouldKeepASearchApartFromOneInItsHandler()
    {
        const QStringList inner{"second 1 new", "main 0 repeated"};
        // The control, the button that the host clicks in its answer, and the searches.
        const QList<std::tuple<QString, QString, QStringList>> rows{
            {"gis_next", "st_prev", inner},
            {"st_prev", "gis_next", {"main 0 repeated", "second 1 new"}},
            // One control emits two searches, with another search in between.
            {"gis_input_next", "st_prev", inner + QStringList("second 1 new")}};
        for (const auto &[control, answer, searches] : rows) {
            const QString next = control.startsWith("gis_input") ? control : "gis_next";
            TestHost host =
                TestHost::enabled(sections(QString(gisField).replace("gis_next", next)));
            host.find<QLineEdit>("st_input")->setText("main");
            host.find<QLineEdit>("gis_input")->setText("second");
            QStringList heard;
            connect(&host.facade(), &MRToolBar::DoSearchContent, this,
                    [&heard, &host, button = answer](const SearchOption &option) {
                        heard.append(QStringLiteral("%1 %2 %3")
                                         .arg(option.content)
                                         .arg(option.direction)
                                         .arg(option.newSearch ? "new" : "repeated"));
                        if (heard.size() == 1)
                            host.find<QPushButton>(button)->click();
                    });
            host.find<QPushButton>(control)->click();
            QCOMPARE(heard, searches);
        }
    }

    void shouldCarryTheOptionsOfItsMenu()
    {
        TestHost host = TestHost::shown(sections());
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
            TestHost host = TestHost::shown(sections());
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

    void shouldWidenAndShowItsButtonsInUse_data() { addRows(fieldsInUse); }

    void shouldWidenAndShowItsButtonsInUse()
    {
        const auto &row = rowOf(fieldsInUse);
        const int resting = row.resting;
        const QString name = row.field;
        const SkinChoice choice(row.skin);
        TestHost host(sections(gisField, row.prompt));
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
