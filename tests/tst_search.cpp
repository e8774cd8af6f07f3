#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRSearchBar.h"

#include <QMenu>
#include <QVBoxLayout>

#include <array>

namespace {

const QString sections =
    "<toolbar_tabbar><tabbutton name='t' checkable='true' checked='true' scalable='true'>"
    "<button action='b' text='B'/><extra usable='true'><lineedit action='gis_input' tooltip='Map'>"
    "<button action='gis_prev' text='&lt;'/><button action='gis_next' text='&gt;'/></lineedit>"
    "</extra></tabbutton></toolbar_tabbar>"
    "<toolbar_searchbar><label name='st_icon' text='?'/><lineedit action='st_input' "
    "tooltip='Find'/><button action='st_prev' text='&lt;'/><button action='st_next' text='&gt;'/>"
    "<button action='st_set' text='o'>"
    "<menuitem action='st_option_wholeword' text='Whole' checkable='true'/>"
    "<menuitem action='st_option_nocase' text='Case' checkable='true'/></button>"
    "</toolbar_searchbar><toolbar_addtional><button action='e_preference' text='P'/>"
    "<button action='t_fold' tooltip='Fold'/></toolbar_addtional>";

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

/** A search field of its own, beside another widget that can take the focus. */
struct Field
{
    explicit Field(bool mainBar)
        : bar(new MRSearchBar(&window, nullptr, previous, next, mainBar))
    {
        previous->setFixedSize(20, 20);
        next->setFixedSize(24, 20);
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(other);
        layout->addWidget(bar, 0, Qt::AlignLeft);
        window.resize(900, 200);
    }

    void show()
    {
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        moveFocus(other);
    }

    static void moveFocus(QWidget *to)
    {
        to->setFocus();
        QTRY_VERIFY(to->hasFocus());
    }

    int scaled(int length) const
    {
        return static_cast<int>(static_cast<float>(length)
                                * (static_cast<float>(bar->physicalDpiX()) / 96.0F));
    }

    QWidget window;
    QLineEdit *other = new QLineEdit(&window);
    QPushButton *previous = new QPushButton("<");
    QPushButton *next = new QPushButton(">");
    MRSearchBar *bar;
};

} // namespace

/** The search fields and the additional controls at the right end. */
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
        const QList<std::tuple<const char *, const char *, const char *, const char *, int>> rows{
            {"Return", "st_input", "abc", "", 1},
            {"next", "st_input", "abc", "st_next", 1},
            {"previous", "st_input", "abc", "st_prev", 0},
            {"Return, empty", "st_input", "", "", -1},
            {"next, empty", "st_input", "", "st_next", -1},
            {"second field, Return", "gis_input", "abc", "", 1},
            {"second field, next", "gis_input", "abc", "gis_next", 1},
            {"second field, previous", "gis_input", "abc", "gis_prev", 0},
            {"second field, empty", "gis_input", "", "gis_next", -1}};
        for (const auto &[name, field, text, button, direction] : rows)
            QTest::newRow(name) << field << text << button << direction;
    }

    void shouldSearchFromItsFields()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QString, button);
        QFETCH(int, direction);
        TestHost host(sections);
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
                 "One search has left its mark on the next");
    }

    void shouldCarryTheOptionsOfItsMenu()
    {
        TestHost host(sections);
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
            const TestHost host("<toolbar_addtional><button action='t_fold' tooltip='" + tip
                                + "'/></toolbar_addtional>");
            QCOMPARE(host.find<QPushButton>("t_fold")->toolTip(), foldTip);
            QCOMPARE(host.find<QPushButton>("t_extend")->toolTip(), unfoldTip);
        }
    }

    void shouldNotLookFilledByItsPrompt()
    {
        for (const int skin : {marodi, lum}) {
            const SkinChoice choice(skin);
            TestHost host(sections);
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

    void shouldFollowItsPlaceholderInWidth_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("placeholder");
        QTest::addColumn<bool>("resizable");
        QTest::addColumn<int>("resting"); // At 96 dpi; 0: the layout may choose.
        QTest::newRow("marodi") << marodi << "点此查找文本" << true << 108;
        QTest::newRow("lum") << lum << "点此查找文本" << true << 0;
        QTest::newRow("empty") << marodi << "" << true << 0;
        QTest::newRow("not resizable") << marodi << "点此查找文本" << false << 0;
    }

    void shouldFollowItsPlaceholderInWidth()
    {
        QFETCH(int, skin);
        QFETCH(QString, placeholder);
        QFETCH(bool, resizable);
        QFETCH(int, resting);
        const SkinChoice choice(skin);
        Field field(true);
        field.bar->SetResizable(resizable);
        field.bar->setPlaceholderText(placeholder);
        field.show();
        const auto isFixedTo = [&field](int length) {
            return field.bar->maximumWidth()
                   == (length > 0 ? field.scaled(length) : QWIDGETSIZE_MAX);
        };
        QVERIFY(isFixedTo(resting));
        QTest::mouseClick(field.bar, Qt::LeftButton, {}, QPoint(5, 5));
        QVERIFY(isFixedTo(2 * resting));
        field.bar->setText("kept");
        field.moveFocus(field.other);
        QVERIFY(isFixedTo(2 * resting));
        field.moveFocus(field.bar);
        field.bar->clear();
        field.moveFocus(field.other);
        QVERIFY(isFixedTo(resting));
    }

    void shouldShowItsButtonsWithTheFocusOrText_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<bool>("isMainBar");
        QTest::newRow("main bar of marodi") << marodi << true;
        QTest::newRow("main bar of lum") << lum << true;
        QTest::newRow("field of fixed width") << marodi << false;
    }

    void shouldShowItsButtonsWithTheFocusOrText()
    {
        QFETCH(int, skin);
        QFETCH(bool, isMainBar);
        const SkinChoice choice(skin);
        Field field(isMainBar);
        field.bar->SetResizable(isMainBar);
        field.bar->setPlaceholderText("Find");
        field.show();
        const auto areShown = [&field](bool shown) {
            return field.previous->isVisible() == shown && field.next->isVisible() == shown;
        };
        QVERIFY(areShown(!isMainBar));
        field.moveFocus(field.bar);
        QVERIFY(areShown(true));
        QCOMPARE(field.bar->textMargins(), QMargins(0, 0, 2 * 20, 0));
        field.bar->setText("kept");
        field.moveFocus(field.other);
        QVERIFY(areShown(true));
        field.moveFocus(field.bar);
        field.bar->clear();
        field.moveFocus(field.other);
        QVERIFY(areShown(!isMainBar));
        if (isMainBar && skin == marodi)
            QCOMPARE(field.bar->textMargins(), QMargins(0, 0, 0, field.scaled(3)));
    }
};

QTEST_MAIN(SearchTest)
#include "tst_search.moc"
