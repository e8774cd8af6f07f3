// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QScreen;
class QWidget;
class QWindow;

/** Follows a widget to the screen that it is shown on. */
class ScreenWatch : public QObject
{
    Q_OBJECT

public:
    explicit ScreenWatch(QWidget *widget);

    /** The screen of the widget's window; before it is shown, that which it is going to have. */
    const QScreen *screen() const;

    /** Follows the widget to the window that it is shown in. */
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** There is another screen, or the screen has another density. */
    void changed();

private:
    void followWindow();
    void followScreen();

    QWidget *m_widget;
    QPointer<QWindow> m_window;
    QPointer<QScreen> m_screen;
};
