// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/MarkedLanguage.h"
#include "tests/support/Pictures.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QComboBox>
#include <QPixmapCache>

#include <malloc.h>

namespace {

/** A change of a running toolbar, and the skin map of one that is built with it. */
struct Change
{
    const char *name;
    void (*make)(TestHost &host, bool isMade);
    TestHost::SkinMap before, after;
    int width = 1500;
};

void mirror(TestHost &, bool isMirrored)
{
    QGuiApplication::setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    QTest::qWait(1);
}

void translate(TestHost &, bool isTranslated)
{
    static MarkedLanguage marked;
    marked.remove();
    if (isTranslated)
        marked.install();
}

void enlargeFont(TestHost &, bool isLarge)
{
    static const QFont usual = QApplication::font();
    QFont font = usual;
    if (isLarge)
        font.setPointSize(14);
    QApplication::setFont(font);
    QTest::qWait(1);
}

void enlarge(TestHost &host, bool isLarge)
{
    host.facade().DoSetScaleSlot(isLarge ? 2 : 1);
}

const TestHost::SkinMap ofApplication{{"fontfromapplication", "true"}};

const Change changes[]{
    {"scale", enlarge, {{"scalefactor", "1"}}, {{"scalefactor", "2"}}},
    {"scale by the map",
     [](TestHost &host, bool isLarge) {
         host.setSkin({{"scalefactor", isLarge ? "1.25" : "1"}});
     },
     {{"scalefactor", "1"}},
     {{"scalefactor", "1.25"}}},
    {"scheme",
     [](TestHost &host, bool isDark) {
         host.setSkin({{"scheme", isDark ? "dark" : "light"}});
     },
     {},
     {{"scheme", "dark"}}},
    {"font", enlargeFont, ofApplication, ofApplication},
    {"language", translate, {}, {}},
    {"direction", mirror, {}, {}},
    {"direction, narrow", mirror, {}, {}, 560},
};

std::unique_ptr<TestHost> usedHost(const TestHost::SkinMap &skin, int width)
{
    auto host = TestHost::withFile(QStringLiteral(SHOWCASE), skin);
    useForAWhile(*host);
    host->window().resize(width, 700);
    return host;
}

/** Every text that is shown or spoken, each with what else the same control says. */
QStringList texts(const TestHost &host)
{
    static const char *const properties[]{"text",           "toolTip",         "statusTip",
                                          "accessibleName", "placeholderText", "title",
                                          "currentText",    "editable"};
    QStringList found;
    const QList<QObject *> objects = host.toolBar()->findChildren<QObject *>();
    for (const QObject *object : objects) {
        // Copies in menus of what a row has no room for are made when they are needed.
        if (object->property("position") == "toolbarextend")
            continue;
        QStringList line;
        for (const char *property : properties)
            line.append(object->property(property).toString());
        if (const auto *button = qobject_cast<const QAbstractButton *>(object))
            line.append(QString::number(button->minimumWidth()));
        if (const auto *box = qobject_cast<const QComboBox *>(object)) {
            for (int i = 0; i < box->count(); ++i)
                line.append(box->itemText(i));
        }
        line.removeAll(QString());
        found.append(line.join('|'));
    }
    found.removeAll(QString());
    return found;
}

/** The toolbar with each of its tabs open, its menus, and its top line alone. */
QList<QImage> looks(TestHost &host)
{
    QList<QImage> taken = picturesOf(host);
    host.click("t_fold");
    QTest::qWait(1);
    taken.append(host.toolBar()->grab().toImage());
    host.click("t_extend");
    return taken;
}

constexpr int someTries = 500; ///< Milliseconds, without the time that each try takes.

size_t bytesInUse()
{
    // Qt keeps the pixmaps of deleted icons until the cache is full.
    QPixmapCache::clear();
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

/** A toolbar that is changed while it runs, beside one that is built with the change. */
class ChangesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldLookAsBuilt_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<int>("entry");
        for (int i = 0; i < int(std::size(changes)); ++i) {
            QTest::addRow("%s, marodi", changes[i].name) << marodi << i;
            QTest::addRow("%s, lum", changes[i].name) << lum << i;
        }
    }

    void shouldLookAsBuilt()
    {
        const auto &[name, make, mapBefore, mapAfter, width] = rowOf(changes);
        const SkinChoice choice;
        const auto host = usedHost(mapBefore, width);
        const auto unused = TestHost::withFile(QStringLiteral(SHOWCASE), mapBefore);
        const QList<QImage> before = looks(*host);
        const QStringList textsBefore = texts(*host);
        const bool isOfTexts = make == translate; // Of which not all are seen.

        for (const auto *changed : {&host, &unused})
            make(**changed, true);
        const auto built = usedHost(mapAfter, width);
        if (isOfTexts)
            QCOMPARE(texts(*host), texts(*built));
        QTRY_VERIFY_WITH_TIMEOUT(looks(*host) == looks(*built), someTries);
        QVERIFY(looks(*host) != before);
        useForAWhile(*unused); // Its rows and menus have not been made before.
        unused->window().resize(width, 700);
        QTRY_VERIFY_WITH_TIMEOUT(looks(*unused) == looks(*built), someTries);

        make(*host, false);
        if (isOfTexts)
            QCOMPARE(texts(*host), textsBefore);
        QTRY_VERIFY_WITH_TIMEOUT(looks(*host) == before, someTries);
    }

    void shouldNotGrow_data() { addRows(changes); }

    void shouldNotGrow()
    {
        const Change &change = rowOf(changes);
        const auto host = usedHost(change.before, change.width);
        const auto makeAndUndo = [&](int times) {
            for (int i = 0; i < times; ++i) {
                change.make(*host, true);
                change.make(*host, false);
            }
        };
        // Looks are kept for the next time, texts are not.
        const bool isHeapCounted = change.make == translate;
        makeAndUndo(10);
        const auto objects = host->window().findChildren<QObject *>().size();
        const size_t bytes = bytesInUse();
        makeAndUndo(isHeapCounted ? 250 : 25);
        QCOMPARE(host->window().findChildren<QObject *>().size(), objects);
        QVERIFY2(!isHeapCounted || bytesInUse() < bytes + size_t{64} * 1024, "the heap has grown");
    }
};

QTEST_MAIN(ChangesTest)
#include "tst_changes.moc"
