// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/MarkedLanguage.h"
#include "tests/support/Pictures.h"
#include "tests/support/TestHost.h"
#include "toolbar/widgets/MRDropButton.h"

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QPixmapCache>

#include <malloc.h>

namespace {

/** Every text that is shown or spoken, each with the name of what has it. */
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

size_t bytesInUse()
{
    // Qt keeps the pixmaps of deleted icons until the cache is full.
    QPixmapCache::clear();
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

/** The texts of descriptions in another language. */
class TranslationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAllAsBuiltInTheLanguage_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("path");
        QTest::newRow("marodi") << marodi << SHOWCASE;
        QTest::newRow("lum") << lum << SHOWCASE;
        QTest::newRow("marodi release")
            << marodi << ":/mr_toolbar/Resources/marodi/mr_toolbar.release.xml";
        QTest::newRow("lum debug") << lum << ":/mr_toolbar/Resources/lum/mr_toolbar.debug.xml";
    }

    void shouldShowAllAsBuiltInTheLanguage()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const SkinChoice choice(skin);
        MarkedLanguage marked;
        const auto host = TestHost::withFile(path);
        const auto unused = TestHost::withFile(path);
        useForAWhile(*host);
        const QList<QImage> before = picturesOf(*host);
        const QStringList textsBefore = texts(*host);

        marked.install();
        const auto built = TestHost::withFile(path);
        useForAWhile(*built);
        QCOMPARE(texts(*host), texts(*built));
        QTRY_VERIFY(picturesOf(*host) == picturesOf(*built));
        QVERIFY(picturesOf(*host) != before);
        useForAWhile(*unused); // Its rows and menus have not been made before.
        QTRY_VERIFY(picturesOf(*unused) == picturesOf(*built));

        marked.remove();
        QCOMPARE(texts(*host), textsBefore);
        QTRY_VERIFY(picturesOf(*host) == before);
    }

    void shouldNotGrow()
    {
        MarkedLanguage marked;
        const auto host = TestHost::withFile(QStringLiteral(SHOWCASE));
        useForAWhile(*host);
        const auto change = [&marked](int times) {
            for (int i = 0; i < times; i += 2) {
                marked.install();
                marked.remove();
            }
        };
        change(20);
        const auto objects = host->window().findChildren<QObject *>().size();
        const size_t bytes = bytesInUse();
        change(500);
        QCOMPARE(host->window().findChildren<QObject *>().size(), objects);
        QVERIFY2(bytesInUse() < bytes + size_t{64} * 1024, "the heap has grown");
    }
};

QTEST_MAIN(TranslationTest)
#include "tst_translation.moc"
