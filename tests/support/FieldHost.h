// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Describe.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QLineEdit>

/** A host with a field of its own that has the focus. */
class FieldHost : public TestHost
{
public:
    explicit FieldHost(const QString &sections, const SkinMap &skin = {})
        : TestHost(sections, skin)
        , active(&facade(), &MRToolBar::DoActive)
        , asked(&facade(), &MRToolBar::DoRequestAuthority)
    {
        window().setCentralWidget(field);
        window().resize(scaled(900), scaled(400));
        show();
        enableRows();
        field->setFocus();
    }

    void press(Qt::Key key = Qt::Key_T, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    QStringList commands() const { return texts(active); }

    QLineEdit *field = new QLineEdit;
    QSignalSpy active;
    QSignalSpy asked;
};

namespace Describe {

inline QString fileMenu(const QString &entries)
{
    return section("appbutton", menu("menu_file", entries));
}

/** A tab "row" on show and a tab "other" that is not made yet. */
inline QString tabs(const QString &controls, const QString &otherControls)
{
    return row(controls, tab("other", otherControls));
}

} // namespace Describe
