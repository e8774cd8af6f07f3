// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ControlStates.h"

#include "PictureSheet.h"
#include "Screen.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <functional>

namespace {

struct Kind
{
    const char *name;
    std::function<bool(const QWidget *)> matches;
};

QString module(const QWidget *widget)
{
    return widget->property("module").toString();
}

const QToolButton *rowButton(const QWidget *widget, bool hasMenu)
{
    const auto *button = qobject_cast<const QToolButton *>(widget);
    const bool isOnRow = button && module(widget->parentWidget()) == QLatin1String("maintoolbar");
    return isOnRow && (button->menu() != nullptr) == hasMenu ? button : nullptr;
}

bool isGroupButton(const QWidget *widget, bool hasMenu)
{
    const auto *button = qobject_cast<const QToolButton *>(widget);
    return button && module(widget).startsWith(QLatin1String("groupbutton"))
           && (button->menu() != nullptr) == hasMenu;
}

bool isTab(const QWidget *widget, bool isOnShow)
{
    return module(widget) == QLatin1String("tabbutton")
           && static_cast<const QPushButton *>(widget)->isChecked() == isOnShow;
}

bool hasPopupMode(const QWidget *widget, QToolButton::ToolButtonPopupMode mode)
{
    const QToolButton *button = rowButton(widget, true);
    return button && button->popupMode() == mode;
}

template <typename Class>
Kind named(const char *kind, const char *objectName)
{
    return {kind, [objectName](const QWidget *widget) {
                return qobject_cast<const Class *>(widget)
                       && widget->objectName() == QLatin1String(objectName);
            }};
}

QList<Kind> kinds()
{
    return {
        {"button", [](const QWidget *widget) { return rowButton(widget, false) != nullptr; }},
        {"split button",
         [](const QWidget *widget) { return hasPopupMode(widget, QToolButton::MenuButtonPopup); }},
        {"menu button",
         [](const QWidget *widget) { return hasPopupMode(widget, QToolButton::InstantPopup); }},
        {"group button", [](const QWidget *widget) { return isGroupButton(widget, false); }},
        {"group menu", [](const QWidget *widget) { return isGroupButton(widget, true); }},
        {"tab", [](const QWidget *widget) { return isTab(widget, false); }},
        {"tab on show", [](const QWidget *widget) { return isTab(widget, true); }},
        {"quick access",
         [](const QWidget *widget) {
             return qobject_cast<const QToolButton *>(widget)
                    && widget->parentWidget()->objectName()
                           == QLatin1String("toolbar_quickaccessbar");
         }},
        named<QPushButton>("application", "menu_file"),
        named<QPushButton>("search options", "st_set"),
        named<QPushButton>("additional", "e_preference"),
        named<QLineEdit>("search field", "st_input"),
        named<QLineEdit>("page field", "d_gotopage"),
        named<QComboBox>("zoom box", "v_zoom"),
        named<QComboBox>("zoom box", "v_zoomlist"),
    };
}

bool opensMenuWhenPressed(const QWidget *control)
{
    const auto *toolButton = qobject_cast<const QToolButton *>(control);
    const auto *pushButton = qobject_cast<const QPushButton *>(control);
    return (toolButton && toolButton->menu()) || (pushButton && pushButton->menu())
           || control->objectName() == QLatin1String("menu_file");
}

void point(QWidget *control, QPoint place)
{
    QCursor::setPos(control->mapToGlobal(place));
    QTest::mouseMove(control, place);
}

} // namespace

ControlStates::ControlStates(QMainWindow &window, PictureSheet &sheet)
    : m_window(window)
    , m_sheet(sheet)
{
}

void ControlStates::takeNewKinds()
{
    // Guarded, because a change of state may delete widgets, such as a focus ring.
    QList<QPointer<QWidget>> widgets;
    for (QWidget *widget : m_window.findChildren<QWidget *>())
        widgets.append(widget);
    for (const Kind &kind : kinds()) {
        const QString name = QLatin1String(kind.name);
        if (m_taken.contains(name))
            continue;
        for (const QPointer<QWidget> &widget : std::as_const(widgets)) {
            if (!widget || !widget->isVisible() || !widget->isEnabled() || !widget->parentWidget()
                || widget->visibleRegion().isEmpty() || !kind.matches(widget))
                continue;
            m_taken.insert(name);
            takeStates(name, widget);
            break;
        }
    }
}

void ControlStates::takeStates(const QString &kind, QWidget *control)
{
    m_sheet.breakRow();
    Screen::restPointer(m_window);
    take(kind, control);
    point(control, control->rect().center());
    take(QStringLiteral("hover"), control);
    if (qobject_cast<QToolButton *>(control) && opensMenuWhenPressed(control)) {
        point(control, {control->width() - 4, control->height() - 6});
        take(QStringLiteral("hover on arrow"), control);
    }
    takePressed(control);
    takeChecked(control);
    Screen::restPointer(m_window);
    const Qt::FocusPolicy policy = control->focusPolicy();
    if (policy != Qt::NoFocus) {
        m_window.setAttribute(Qt::WA_KeyboardFocusChange);
        control->setFocus(Qt::TabFocusReason);
        take(QStringLiteral("focus"), control);
        m_window.setAttribute(Qt::WA_KeyboardFocusChange, false);
        m_window.setFocus();
        control->clearFocus();
    }
    takeDisabled(control);
}

void ControlStates::takePressed(QWidget *control)
{
    if (!qobject_cast<QAbstractButton *>(control) || opensMenuWhenPressed(control))
        return;

    QTest::mousePress(control, Qt::LeftButton);
    take(QStringLiteral("pressed"), control);
    QTest::mouseRelease(control, Qt::LeftButton, {}, QPoint(-50, -50));
}

void ControlStates::takeChecked(QWidget *control)
{
    auto *button = qobject_cast<QAbstractButton *>(control);
    // A checked tab counts as open, so its row would get no picture. Tabs are their own kind.
    if (!button || !button->isCheckable() || module(button) == QLatin1String("tabbutton"))
        return;
    const bool wasChecked = button->isChecked();
    button->setChecked(true);
    Screen::restPointer(m_window);
    take(QStringLiteral("checked"), control);
    point(control, control->rect().center());
    take(QStringLiteral("checked, hover"), control);
    button->setChecked(wasChecked);
}

void ControlStates::takeDisabled(QWidget *control)
{
    control->setEnabled(false);
    take(QStringLiteral("disabled"), control);
    control->setEnabled(true);
}

void ControlStates::take(const QString &caption, const QWidget *control)
{
    const int margin = 8 * control->physicalDpiX() / 96;
    const QRect place(control->mapToGlobal(QPoint()), control->size());
    const QRect area = place.adjusted(-margin, -margin, margin, margin);
    m_sheet.add(caption, Screen::picture(m_window, area & m_window.frameGeometry()));
}
