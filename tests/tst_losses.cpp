// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "tests/support/Use.h"
#include "toolbar/NamedList.h"

#include <QApplication>
#include <QPixmapCache>
#include <QToolBar>

#include <malloc.h>

using namespace Describe;

namespace {

/** A host with all rows and menus filled and the first tab on show. */
std::unique_ptr<TestHost> openedHost()
{
    auto host = std::make_unique<TestHost>(everything());
    host->window().resize(700, 300);
    host->window().show();
    host->toolBar()->Inner_DoDelayLoadMenuSlot();
    for (const char *name : {"second", "third", "first"})
        host->find<QPushButton>(name)->click();
    host->enableEverything();
    host->facade().DoUpdateRecentFileSlot({"/a.ofd", "/b.ofd"});
    host->facade().DoSetPageInfoSlot(2, 30);
    QCoreApplication::processEvents();
    return host;
}

/** The actions and widgets with names of the description. */
QObjectList controlsOf(const TestHost &host)
{
    const QString description = everything();
    QObjectList controls;
    const QObjectList objects = host.toolBar()->findChildren<QObject *>();
    for (QObject *object : objects) {
        if (!object->objectName().isEmpty() && description.contains(object->objectName())
            && (qobject_cast<QAction *>(object) || qobject_cast<QWidget *>(object)))
            controls.append(object);
    }
    return controls;
}

QStringList namesOf(const QObjectList &objects)
{
    QStringList names;
    for (const QObject *object : objects)
        names.append(object->objectName());
    names.removeDuplicates();
    return names;
}

/** Uses all remaining controls, and the names of areas and of @p controlNames. */
void goOnWith(TestHost &host, const QStringList &controlNames)
{
    QStringList names = controlNames + QStringList{"d/", "toolbar_quickaccessbar/f_open"};
    for (const char *area : {"appbutton", "toptoolbar", "quickaccessbar", "searchbar", "addtional",
                             "maintoolbar", "tabbar"})
        names.append(QStringLiteral("toolbar_") + area);
    useEverything(host.facade(), host.window(), names);
}

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

/** The toolbar after the host has deleted some of its controls, and the heap after many. */
class LossTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // glibc then overwrites freed memory, so that its use is noticed.
    void initTestCase() { mallopt(M_PERTURB, 0xa5); }

    void shouldWorkWithoutADeletedControl_data()
    {
        QTest::addColumn<int>("position");
        const auto host = openedHost();
        const QObjectList controls = controlsOf(*host);
        QVERIFY(controls.size() > 60);
        for (int i = 0; i < controls.size(); ++i) {
            const QObject *control = controls.at(i);
            QTest::addRow("%d: %s %s", i, control->metaObject()->className(),
                          qPrintable(control->objectName()))
                << i;
        }
    }

    void shouldWorkWithoutADeletedControl()
    {
        QFETCH(int, position);
        const auto host = openedHost();
        const QObjectList controls = controlsOf(*host);
        const QStringList names = namesOf(controls);
        delete controls.at(position);
        goOnWith(*host, names);
    }

    void shouldWorkWithoutActionsRemovedFromARow()
    {
        for (const char *tab : {"first", "second", "third"}) {
            const auto host = openedHost();
            const QStringList names = namesOf(controlsOf(*host));
            host->find<QToolBar>(tab)->clear();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            goOnWith(*host, names);
        }
    }

    void shouldNotFindADeletedControl()
    {
        const auto host = openedHost();
        delete host->action("two");
        QVERIFY(!host->action("two") && !host->facade().IsSupportByToolBar("two"));
        QVERIFY(!host->facade().GetCompositeEnable("two"));
        QVERIFY(!host->facade().GetControlGeometry("two").isValid());
        delete host->find<QPushButton>("second");
        QVERIFY(!host->facade().GetCompositeVisible("second"));
    }

    void shouldListLivingObjectsOnly()
    {
        QObject owner;
        NamedList<QObject> list;
        for (const char *name : {"a", "b", "a", "c", "a"}) {
            auto *object = new QObject(&owner);
            object->setObjectName(name);
            list.append(object);
        }
        const QObjectList objects = list.objects();
        delete objects.at(0);
        delete objects.at(4);
        QCOMPARE(list.first("a"), objects.at(2));
        QVERIFY(!list.at(0) && list.at(1) == objects.at(1) && !list.at(5) && !list.at(-1));
        QStringList seen;
        for (QObject *object : list) {
            seen.append(object->objectName());
            if (object == objects.at(1)) // A control is deleted during the iteration.
                delete objects.at(2);
        }
        QCOMPARE(seen, (QStringList{"b", "c"}));
        QVERIFY(!list.first("a") && !list.first("d"));
    }

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

QTEST_MAIN(LossTest)
#include "tst_losses.moc"
