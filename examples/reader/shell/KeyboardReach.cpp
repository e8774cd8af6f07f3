// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/KeyboardReach.h"

#include "reach/ToolBarReach.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMap>
#include <QShortcut>

#include <algorithm>

KeyboardReach::KeyboardReach(QMainWindow *window, FocusControl focusControl)
    : QObject(window)
    , m_window(window)
    , m_focusControl(std::move(focusControl))
{
    addCommandKeys();
    addPlaceKeys();
    addKey(QStringLiteral("Esc"), [this] { Q_EMIT escapePressed(); });
    // Queued, because only then it is known whether another widget or window gets the focus.
    connect(qApp, &QApplication::focusChanged, this, &KeyboardReach::keepFocus,
            Qt::QueuedConnection);
}

bool KeyboardReach::isField(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QComboBox *>(widget);
}

void KeyboardReach::addCommandKeys()
{
    // The keys in the tooltips of the shipped descriptions, and common ones.
    const QMap<QString, QString> keys = {
        {QStringLiteral("Ctrl+O"), QStringLiteral("f_open")},
        {QStringLiteral("Ctrl+W"), QStringLiteral("f_close")},
        {QStringLiteral("Ctrl+Q"), QStringLiteral("f_exit")},
        {QStringLiteral("Ctrl+S"), QStringLiteral("f_save")},
        {QStringLiteral("Ctrl+Shift+S"), QStringLiteral("f_saveas")},
        {QStringLiteral("Ctrl+P"), QStringLiteral("f_print")},
        {QStringLiteral("Ctrl+Z"), QStringLiteral("e_undo")},
        {QStringLiteral("Ctrl+Y"), QStringLiteral("e_redo")},
        {QStringLiteral("Ctrl+F"), QStringLiteral("e_find")},
        {QStringLiteral("Ctrl+A"), QStringLiteral("e_selectall")},
        {QStringLiteral("Ctrl+Shift+A"), QStringLiteral("e_unselect")},
        {QStringLiteral("Ctrl++"), QStringLiteral("v_zoomin")},
        {QStringLiteral("Ctrl+="), QStringLiteral("v_zoomin")}, // Ctrl++ without Shift.
        {QStringLiteral("Ctrl+-"), QStringLiteral("v_zoomout")},
        {QStringLiteral("Ctrl+0"), QStringLiteral("vzmode_original")},
        {QStringLiteral("Alt+Left"), QStringLiteral("v_prevview")},
        {QStringLiteral("Alt+Right"), QStringLiteral("v_nextview")},
        {QStringLiteral("F11"), QStringLiteral("v_fullscreen")},
    };
    for (auto key = keys.cbegin(); key != keys.cend(); ++key) {
        const QString &name = key.value();
        addKey(key.key(), [this, name] { Q_EMIT commandAsked(name); });
    }
}

void KeyboardReach::addPlaceKeys()
{
    addKey(QStringLiteral("F6"), [this] { m_focusControl(QString()); });
    addKey(QStringLiteral("Ctrl+Shift+P"), [this] { Q_EMIT finderAsked(); });
    addPlaceKey(QStringLiteral("Ctrl+G"), ToolBarReach::pageFieldNames(),
                [this] { Q_EMIT pageAsked(); });
    addPlaceKey(QStringLiteral("Ctrl+M"), ToolBarReach::zoomBoxNames(),
                [this] { Q_EMIT zoomAsked(); });
}

void KeyboardReach::addPlaceKey(const QString &key, const QStringList &names,
                                const std::function<void()> &orElse)
{
    addKey(key, [this, names, orElse] {
        if (std::none_of(names.cbegin(), names.cend(), m_focusControl))
            orElse();
    });
}

void KeyboardReach::addKey(const QString &key, const std::function<void()> &press)
{
    auto *shortcut = new QShortcut(QKeySequence(key), m_window);
    connect(shortcut, &QShortcut::activated, this, press);
}

void KeyboardReach::keepFocus()
{
    // The zoom box clears its focus after a choice, which leaves the window without focus.
    if (m_window->isActiveWindow() && !QApplication::focusWidget())
        m_window->centralWidget()->setFocus();
}
