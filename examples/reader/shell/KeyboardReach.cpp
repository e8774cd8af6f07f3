// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/KeyboardReach.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMap>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>

namespace {

constexpr int messageTime = 6000;

/** The one on show, as rows that are not opened keep theirs. */
QWidget *shownChild(const QWidget *parent, const QString &name)
{
    const QList<QWidget *> widgets = parent->findChildren<QWidget *>(name);
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && widget->isEnabled())
            return widget;
    }
    return nullptr;
}

/** A row that is wider than the window scrolls by itself only for the Tab key. */
void bringIntoView(QWidget *field)
{
    for (QWidget *parent = field->parentWidget(); parent; parent = parent->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(parent);
        if (!area)
            continue;
        // The toolkit's own look at a field is content with its cursor.
        const QPoint middle = field->mapTo(area->widget(), field->rect().center());
        area->ensureVisible(middle.x(), middle.y(), field->width(), 0);
    }
}

/** Has what is typed replace the text; of a box that takes none, the list is opened. */
void offerChoice(QWidget *field)
{
    auto *edit = qobject_cast<QLineEdit *>(field);
    auto *box = qobject_cast<QComboBox *>(field);
    if (box)
        edit = box->lineEdit();
    if (edit)
        edit->selectAll();
    else if (box)
        box->showPopup();
}

} // namespace

KeyboardReach::KeyboardReach(QMainWindow *window)
    : QObject(window)
    , m_window(window)
{
    addCommandKeys();
    addPlaceKeys();
    addKey(QStringLiteral("Esc"), [this] { Q_EMIT escapePressed(); });
    // Later, when it is known whether another widget, or another window, takes the focus.
    connect(qApp, &QApplication::focusChanged, this, &KeyboardReach::keepFocus,
            Qt::QueuedConnection);
}

QStringList KeyboardReach::zoomBoxNames()
{
    return {QStringLiteral("v_zoom"), QStringLiteral("v_zoomlist")};
}

bool KeyboardReach::isField(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QComboBox *>(widget);
}

void KeyboardReach::addCommandKeys()
{
    // The keys that the tooltips of the shipped descriptions promise, and what readers expect.
    const QMap<QString, QString> keys = {
        {QStringLiteral("Ctrl+O"), QStringLiteral("f_open")},
        {QStringLiteral("Ctrl+S"), QStringLiteral("f_save")},
        {QStringLiteral("Ctrl+P"), QStringLiteral("f_print")},
        {QStringLiteral("Ctrl+Z"), QStringLiteral("e_undo")},
        {QStringLiteral("Ctrl+Y"), QStringLiteral("e_redo")},
        {QStringLiteral("Ctrl+F"), QStringLiteral("e_find")},
        {QStringLiteral("Ctrl+A"), QStringLiteral("e_selectall")},
        {QStringLiteral("Ctrl+Shift+A"), QStringLiteral("e_unselect")},
        {QStringLiteral("Ctrl++"), QStringLiteral("v_zoomin")},
        {QStringLiteral("Ctrl+="), QStringLiteral("v_zoomin")}, // The same key without Shift.
        {QStringLiteral("Ctrl+-"), QStringLiteral("v_zoomout")},
        {QStringLiteral("Ctrl+0"), QStringLiteral("vzmode_original")},
        {QStringLiteral("F11"), QStringLiteral("v_fullscreen")},
    };
    for (auto key = keys.cbegin(); key != keys.cend(); ++key) {
        const QString &name = key.value();
        addKey(key.key(), [this, name] { Q_EMIT commandAsked(name); });
    }
}

void KeyboardReach::addPlaceKeys()
{
    addKey(QStringLiteral("F10"), [this] { enterToolBar(); });
    addKey(QStringLiteral("Ctrl+G"), [this] {
        enterField({QStringLiteral("d_gotopage"), QStringLiteral("d_gotopageinput")},
                   tr("工具栏现在没有可用的页码框"));
    });
    addKey(QStringLiteral("Ctrl+M"),
           [this] { enterField(zoomBoxNames(), tr("工具栏现在没有可用的缩放框")); });
}

void KeyboardReach::addKey(const QString &key, const std::function<void()> &press)
{
    auto *shortcut = new QShortcut(QKeySequence(key), m_window);
    connect(shortcut, &QShortcut::activated, this, press);
}

void KeyboardReach::enterField(const QStringList &names, const QString &absence)
{
    for (const QString &name : names) {
        if (QWidget *field = shownChild(m_window, name)) {
            field->setFocus(Qt::ShortcutFocusReason);
            bringIntoView(field);
            offerChoice(field);
            return;
        }
    }
    m_window->statusBar()->showMessage(absence, messageTime);
}

void KeyboardReach::enterToolBar()
{
    const auto *bar = m_window->findChild<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    if (!bar)
        return;
    for (QWidget *next = bar->nextInFocusChain(); next != bar; next = next->nextInFocusChain()) {
        const bool takesFocus =
            next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) != 0;
        if (takesFocus && bar->isAncestorOf(next)) {
            next->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

void KeyboardReach::keepFocus()
{
    // The zoom box lets go of the focus, to nobody, once a zoom is chosen.
    if (m_window->isActiveWindow() && !QApplication::focusWidget())
        m_window->centralWidget()->setFocus();
}
