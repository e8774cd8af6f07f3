// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

#include <functional>

class QMainWindow;

/**
 * The shortcuts of the reader's window: those of commands, those for the fields of the toolbar, and
 * Escape. When no widget has the focus any more, the pages get it.
 */
class KeyboardReach : public QObject
{
    Q_OBJECT

public:
    /** Focuses a control of the toolbar by name; returns false if it is not visible. */
    using FocusControl = std::function<bool(const QString &name)>;

    /** @param window The window with the toolbar and the pages. It owns this object. */
    KeyboardReach(QMainWindow *window, FocusControl focusControl);

    /** Whether the widget takes typed text. Escape first leaves such a widget. */
    static bool isField(const QWidget *widget);

Q_SIGNALS:
    void commandAsked(const QString &name);
    /** The toolbar is to open the field that finds its commands. */
    void finderAsked();
    void escapePressed();
    /** The user wants to type a page or a zoom, and the toolbar shows no field for it. */
    void pageAsked();
    void zoomAsked();

private:
    void addCommandKeys();
    void addPlaceKeys();
    void addKey(const QString &key, const std::function<void()> &press);
    void addPlaceKey(const QString &key, const QStringList &names,
                     const std::function<void()> &orElse);
    void keepFocus();

    QMainWindow *m_window;
    FocusControl m_focusControl;
};
