// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QMainWindow;

/**
 * The keys of the reader's window: those of commands, those that reach what the Tab key passes over
 * or comes to late, and Escape. A focus that gets lost goes back to the pages.
 */
class KeyboardReach : public QObject
{
    Q_OBJECT

public:
    /** Gives the focus to a control of the toolbar by name; false if it is not on show. */
    using FocusControl = std::function<bool(const QString &name)>;

    /** @param window shows the toolbar and, in its middle, the pages. It owns this object. */
    KeyboardReach(QMainWindow *window, FocusControl focusControl);

    /** Whether one types into the widget, which then is what Escape leaves first. */
    static bool isField(const QWidget *widget);

Q_SIGNALS:
    void commandAsked(const QString &name);
    void escapePressed();

private:
    void addCommandKeys();
    void addPlaceKeys();
    void addKey(const QString &key, const std::function<void()> &press);
    void addPlaceKey(const QString &key, const QStringList &names, const QString &absence);
    void keepFocus();

    QMainWindow *m_window;
    FocusControl m_focusControl;
};
