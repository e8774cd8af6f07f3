// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"
#include "toolbar/find/FoundModel.h"

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListView>

/** Descriptions with commands everywhere, and the field of a toolbar that finds them. */
namespace Finder {

using namespace Describe;

inline QString opener()
{
    return section("addtional", button("t_findcommand") + button("h_help"));
}

/** A tab on show, another that was never opened, menus, and a button of quick access. */
inline QString several()
{
    const QString drop = menu("d_drop", item("d_one") + menu("d_more", item("d_two")),
                              "checkable='true' switchable='true'");
    return section("appbutton", menu("file", item("menu_three") + menu("recent", item("f_recent"))))
           + section("quickaccessbar", button("qbar_three") + button("qbar_quick"))
           + row(button("one", "keywords='premier erste'") + button("two") + drop,
                 tab("other", button("three", "tooltip='Drei' disabletip='No;select a page' "
                                              "shortcut='Ctrl+D'")
                                  + group("g", button("four"))))
           + opener();
}

inline void open(TestHost &host)
{
    host.facade().DoFindCommandSlot();
}

inline QLineEdit *field(const TestHost &host)
{
    const auto *popup = host.find<QWidget>("findcommand");
    return popup && popup->isVisible() ? popup->findChild<QLineEdit *>() : nullptr;
}

inline const FoundModel *model(const TestHost &host)
{
    return qobject_cast<const FoundModel *>(host.find<QListView>("findcommand_list")->model());
}

inline QStringList found(const TestHost &host)
{
    QStringList texts;
    for (int i = 0; i < model(host)->rowCount(); ++i)
        texts.append(model(host)->line(i).text);
    return texts;
}

inline void type(TestHost &host, const QString &text)
{
    // As an input method does, which is how ideographs are typed.
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(field(host), &event);
}

/** Opens the field, types and presses Return. */
inline void run(TestHost &host, const QString &typed,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    open(host);
    QTest::keyClicks(field(host), typed);
    QTest::keyClick(field(host), Qt::Key_Return, modifiers);
    QCoreApplication::processEvents();
}

inline TestHost usable(const QString &sections)
{
    TestHost host = TestHost::enabled(sections);
    host.window().resize(900, 700);
    for (const char *name : {"one", "two", "three", "four", "quick", "f_recent", "d_one", "d_two"})
        host.setUsable(name, true);
    return host;
}

/** Answers as hosts do, so that what is made later can be used. */
inline void answer(TestHost &host)
{
    QObject::connect(&host.facade(), &MRToolBar::DoRequestAuthority, &host.facade(),
                     [&host] { host.enableEverything(); });
}

} // namespace Finder
