// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "pages/PageView.h"
#include "shell/Description.h"
#include "shell/ReaderWindow.h"

#include <QTemporaryDir>
#include <QTest>

/** Without a window manager the focus may still go to a window that was shown earlier. */
inline bool activate(ReaderWindow &window)
{
    for (int attempt = 0; attempt < 50; ++attempt) {
        window.activateWindow();
        if (QTest::qWaitForWindowActive(&window, 100))
            return true;
    }
    return false;
}

/** For the whole program, before its first window. */
inline void keepUsersSettings()
{
    static const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
}

/** Chooses a command of the toolbar, also one on a row that is not on show. */
inline void choose(const ReaderWindow &window, const QString &command)
{
    const QWidgetList widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->inherits("NewToolBar"))
            QMetaObject::invokeMethod(widget, "DoActive", Q_ARG(QString, command));
    }
}

/** A picture of the widget once nothing in it changes any more, such as a row that is laid out. */
inline QImage settled(QWidget &widget)
{
    QImage last;
    QImage next = widget.grab().toImage();
    while (next != last) {
        last = next;
        QTest::qWait(50);
        next = widget.grab().toImage();
    }
    return next;
}

/** The reader with one of its descriptions. */
struct ReaderHost
{
    explicit ReaderHost(const QString &description = "release", const QString &skin = "marodi")
        : window(Description::read(description, skin, &error), QString())
    {
    }

    /** Shows the window until keys go to its pages. */
    void show()
    {
        window.show();
        QVERIFY(activate(window));
        QTRY_VERIFY(view->hasFocus());
    }
    QWidget *sheet() const { return view->viewport(); }

    QString error;
    ReaderWindow window;
    PageView *view = window.findChild<PageView *>();
};
