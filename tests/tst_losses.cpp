// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/NamedList.h"

#include <QApplication>
#include <QLineEdit>
#include <QToolBar>

#include <malloc.h>

using namespace Describe;

namespace {

/** Every kind of control in every area. */
QString everything()
{
    const QString group = "<buttongroup name='g'>" + button("g_one") + menu("g_menu", item("g_a"))
                          + button("g_two", "checkable='true' group='gg'") + "</buttongroup>";
    const QString fields = "<combobox name='v_zoom' index='1' editable='true'>"
                           "<item action='vzmode_50p' text='50%'/>"
                           "<item action='vzmode_100p' text='100%'/></combobox>"
                           "<lineedit name='d_gotopage' text='Page'/>"
                           "<label name='d_totalpagelabel' text='/'/>";
    const QString extra = "<extra name='e'><lineedit name='gis_input'>" + button("gis_prev")
                          + button("gis_next") + "</lineedit></extra>";
    const QString drops = menu("d_drop", item("d_a", "checkable='true'") + item("d_b"),
                               "checkable='true' switchable='true' index='1'")
                          + menu("d_plain", item("d_c") + menu("d_inner", item("d_d")));
    const QString firstRow = button("one", "checkable='true'") + "<sperator/>"
                             + button("two", "group='g2' checkable='true'") + drops + group
                             + fields;
    return section("appbutton",
                   menu("menu_file",
                        item("f_open") + item("one")
                            + menu("f_openrecent", item("no_file") + item("f_clearhistory")))
                       + menu("set", menu("menu_view", item("v_a"))))
           + section("quickaccessbar", button("qbar_f_open", "checkable='true'") + button("qt_set"))
           + section("tabbar", tab("first", firstRow, "checked='true'")
                                   + tab("second", button("one") + button("three"))
                                   + tab("third", button("four") + extra, "scalable='true'"))
           + section("searchbar", "<label name='s_label' text='Search'/><lineedit name='s_input'/>"
                                      + button("s_prev") + button("s_next")
                                      + "<button name='st_set'>"
                                      + item("st_wholeword", "checkable='true'") + "</button>")
           + section("addtional", button("h_help") + button("t_fold"));
}

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

/** Sets and queries every state by name, twice. */
void stateAll(TestHost &host, const QStringList &controlNames)
{
    const QStringList areas{"appbutton", "toptoolbar",  "quickaccessbar", "searchbar",
                            "addtional", "maintoolbar", "tabbar",         "quickaccessbar/f_open"};
    QStringList names = controlNames + QStringList{"toolbar_whole", "d/"};
    for (const QString &area : areas)
        names.append("toolbar_" + area);
    for (const bool state : {false, true}) {
        for (const QString &name : std::as_const(names)) {
            if (name != "toolbar_whole") // Once it is disabled, nothing is enabled any more.
                host.setUsable(name, state);
            host.setVisible(name, state);
            host.setChecked(name, state);
            host.facade().GetCompositeEnable(name);
            host.facade().GetCompositeVisible(name);
            host.facade().GetControlCheckedState(name);
            host.facade().GetControlGeometry(name);
        }
        QCoreApplication::processEvents();
    }
}

/** Calls the other slots of the facade. */
void reportAll(MRToolBar &facade)
{
    facade.GetQuickAccessButtonList();
    facade.DoSetPageInfoSlot(3, 40);
    for (const char *mode : {"vzmode_50p", "vzmode_37p", "vzmode_fitpage"})
        facade.DoSetZoomModeSlot(mode);
    facade.DoSetBackgroundSlot(Background_Eyeguard);
    facade.DoUpdateRecentFileSlot({"/c.ofd"});
    facade.DoSetSkinStyleSlot({{"[MainColor]", "#123456"}});
    facade.DoResetToolbarSlot();
}

/** Uses all remaining controls as a user does. */
void useAll(TestHost &host)
{
    for (const int width : {1, 1300}) {
        host.window().resize(width, 300);
        QCoreApplication::processEvents();
    }
    const QList<QAction *> actions = host.toolBar()->findChildren<QAction *>();
    for (QAction *action : actions)
        action->trigger();
    for (const char *name : {"third", "first", "second", "h_help", "t_fold", "t_extend"}) {
        if (auto *button = host.find<QPushButton>(name))
            button->click();
    }
    const QList<QLineEdit *> fields = host.toolBar()->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        field->setFocus();
        field->setText("7");
        QTest::keyClick(field, Qt::Key_Return);
    }
    QCoreApplication::processEvents();
}

void goOnWith(TestHost &host, const QStringList &names)
{
    stateAll(host, names);
    reportAll(host.facade());
    useAll(host);
    stateAll(host, names);
}

} // namespace

/** The toolbar after the host has deleted or removed some of its controls. */
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
        QVERIFY(!host->action("two"));
        QVERIFY(!host->facade().IsSupportByToolBar("two"));
        QVERIFY(!host->facade().GetCompositeEnable("two"));
        QVERIFY(!host->facade().GetControlGeometry("two").isValid());
        delete host->find<QPushButton>("second");
        QVERIFY(!host->facade().GetCompositeVisible("second"));
    }

    void shouldListLivingObjectsOnly()
    {
        QObject owner;
        NamedList<QObject> list;
        QObjectList objects;
        for (const char *name : {"a", "b", "a", "c", "a"}) {
            objects.append(new QObject(&owner));
            objects.last()->setObjectName(name);
            list.append(objects.last());
        }
        QCOMPARE(list.first("a"), objects.at(0));
        delete objects.at(0);
        delete objects.at(4);
        QCOMPARE(list.first("a"), objects.at(2));
        QCOMPARE(list.objects(), (QObjectList{objects.at(1), objects.at(2), objects.at(3)}));
        QVERIFY(!list.at(0) && list.at(1) == objects.at(1) && !list.at(5) && !list.at(-1));

        // A control is deleted during the iteration.
        QStringList seen;
        for (QObject *object : list) {
            seen.append(object->objectName());
            if (object == objects.at(1)) {
                delete objects.at(2);
                list.append(new QObject(&owner));
            }
        }
        QCOMPARE(seen, (QStringList{"b", "c"}));
        QVERIFY(!list.first("a") && !list.first("d"));
    }
};

QTEST_MAIN(LossTest)
#include "tst_losses.moc"
