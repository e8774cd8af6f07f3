// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QWidget;

/**
 * Notices the keys that ask for key tips in a window: Alt, pressed and released alone, and F10.
 *
 * Both keep what they are for elsewhere: Alt goes to a menu bar that is opened by it, and to an
 * input method that is composing, and F10 to whatever takes it before the window gets it.
 */
class AltKey : public QObject
{
    Q_OBJECT

public:
    /**
     * Watches the events of the application, as whatever has the focus may keep its keys.
     * @param window what takes the toolbar in, which may be a part of a window
     */
    AltKey(QWidget *window, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void pressed();

private:
    void notePress(const QKeyEvent &key);
    void noteRelease(const QKeyEvent &key);
    bool isForWindow() const;

    QPointer<QWidget> m_window;
    bool m_isAltAlone = false;
    bool m_isComposing = false;
};
