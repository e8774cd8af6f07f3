// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

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
    /** @param window shows the toolbar and, in its middle, the pages. It owns this object. */
    explicit KeyboardReach(QMainWindow *window);

    /** Whether one types into the widget, which then is what Escape leaves first. */
    static bool isField(const QWidget *widget);

Q_SIGNALS:
    void commandAsked(const QString &name);
    void escapePressed();

private:
    void addCommandKeys();
    void addPlaceKeys();
    void addKey(const QString &key, const std::function<void()> &press);
    void say(const QString &message) const;
    void keepFocus();

    QMainWindow *m_window;
};
