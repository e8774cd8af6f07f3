// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QPixmapCache>

#include <malloc.h>

namespace {

/** Bytes in use on the heap; 0 where a sanitizer has replaced the allocator. */
size_t bytesInUse()
{
    // Qt keeps the pixmaps of deleted icons until the cache is full.
    QPixmapCache::clear();
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/** Makes a toolbar, opens every tab and menu, sets states and deletes it. */
void useOneToolbar(QMainWindow &window, const QDomDocument &description)
{
    QDomElement root = description.documentElement();
    MRToolBar facade(&window, root, {}, ToolBarLeft);
    auto *toolBar = window.findChild<NewToolBar *>();
    QCoreApplication::processEvents();
    const QList<QPushButton *> buttons = toolBar->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->property("module") == "tabbutton" && !button->isChecked())
            button->click();
    }
    toolBar->Inner_DoDelayLoadMenuSlot();
    QString name = QStringLiteral("f_open");
    facade.DoSetControlUsableStateSlot(name, true);
    facade.DoSetPageInfoSlot(3, 12);
    facade.DoSetSkinStyleSlot({{QStringLiteral("[MainColor]"), QStringLiteral("#336699")}});
    QCoreApplication::processEvents();

    delete toolBar;
    runDeferredDeletes();
}

} // namespace

/** The heap of a process that makes and deletes many toolbars. */
class GrowthTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFreeTheMemoryOfDeletedToolbars_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("name");
        QTest::newRow("marodi") << marodi << "marodi/mr_toolbar.debug.xml";
        QTest::newRow("lum") << lum << "lum/mr_toolbar.release.xml";
    }

    void shouldFreeTheMemoryOfDeletedToolbars()
    {
        QFETCH(int, skin);
        QFETCH(QString, name);
        const SkinChoice choice(skin);
        constexpr int warmUp = 10;
        constexpr int toolbars = 200;
        // For the rounding of the allocator. One leaked control per toolbar would exceed it.
        constexpr size_t tolerance = size_t{64} * 1024;

        // One window for all toolbars, because Qt and the X server keep memory of every window.
        const QDomDocument document = TestDocuments::read(TestDocuments::shippedPath(name));
        QMainWindow window;
        window.resize(1300, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        for (int i = 0; i < warmUp; ++i)
            useOneToolbar(window, document);
        const qsizetype widgetsBefore = QApplication::allWidgets().size();
        const size_t bytesBefore = bytesInUse();
        for (int i = warmUp; i < toolbars; ++i)
            useOneToolbar(window, document);
        QCOMPARE(QApplication::allWidgets().size(), widgetsBefore);

        const size_t bytesAfter = bytesInUse();
        qInfo("%zu bytes in use after %d toolbars, %zu after %d", bytesBefore, warmUp, bytesAfter,
              toolbars);
        QVERIFY2(bytesAfter < bytesBefore + tolerance, "the heap has grown");
    }
};

QTEST_MAIN(GrowthTest)
#include "tst_growth.moc"
