// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "PictureHost.h"

#include "Screen.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int pageHeight = 200;

void collectNames(const QDomElement &parent, QStringList &names)
{
    for (QDomElement element = parent.firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        const QString name =
            element.attribute(QStringLiteral("action"), element.attribute(QStringLiteral("name")));
        if (!name.isEmpty() && element.tagName() != QLatin1String("tabbutton"))
            names.append(name);
        collectNames(element, names);
    }
}

} // namespace

PictureHost::PictureHost(const QDomDocument &description, const QMap<QString, QString> &skinMap,
                         int width)
    : m_description(description)
    , m_sheet(m_window.physicalDpiX() / 96.0)
    , m_states(m_window, m_sheet)
{
    m_window.setWindowTitle(QStringLiteral("OFD阅读器"));
    m_window.resize(QSize(width, pageHeight) * m_window.physicalDpiX() / 96);
    auto *page = new QLabel;
    page->setStyleSheet(QStringLiteral("background:#FFFFFF"));
    m_window.setCentralWidget(page);

    QDomElement root = m_description.documentElement();
    m_toolBar = new MRToolBar(&m_window, root, skinMap, ToolBarLeft);
    m_toolBar->setParent(&m_window);
    QObject::connect(m_toolBar, &MRToolBar::DoRequestAuthority, m_toolBar,
                     [this] { answerAuthority(); });
}

bool PictureHost::takeAll(const QString &path)
{
    m_window.show();
    m_window.activateWindow();
    if (!QTest::qWaitForWindowActive(&m_window))
        return false;
    Screen::restPointer(m_window);
    takeWindow(QStringLiteral("disabled"));
    answerAuthority();
    takeTabs();
    return m_sheet.save(path);
}

void PictureHost::answerAuthority()
{
    QStringList names;
    collectNames(m_description.documentElement(), names);
    for (QString name : std::as_const(names))
        m_toolBar->DoSetControlUsableStateSlot(name, true);
    m_toolBar->DoSetPageInfoSlot(3, 12);
}

void PictureHost::takeTabs()
{
    QList<QPushButton *> tabs;
    const QList<QPushButton *> buttons = m_window.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->property("module").toString() == QLatin1String("tabbutton")
            && button->isVisible())
            tabs.append(button);
    }
    // A click on the tab that is on show would fold the rows.
    const auto open = [](QPushButton *tab) {
        if (!tab->isChecked())
            QTest::mouseClick(tab, Qt::LeftButton);
    };
    const auto first = std::find_if(tabs.cbegin(), tabs.cend(),
                                    [](const QPushButton *tab) { return tab->isChecked(); });
    QPushButton *const onShow = first == tabs.cend() ? nullptr : *first;
    for (QPushButton *tab : std::as_const(tabs)) {
        open(tab);
        Screen::restPointer(m_window);
        takeWindow(tab->objectName());
        m_states.takeNewKinds();
        m_sheet.breakRow();
        takeNewMenus();
        takeNewLists();
        m_sheet.breakRow();
    }
    if (onShow)
        open(onShow);
}

bool PictureHost::isNew(QWidget *control)
{
    if (!control->isVisible() || !control->isEnabled() || control->objectName().isEmpty()
        || m_opened.contains(control->objectName()))
        return false;
    m_opened.insert(control->objectName());
    for (QWidget *parent = control->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(parent))
            area->ensureWidgetVisible(control);
    }
    return true;
}

void PictureHost::takeNewMenus()
{
    const QList<QAbstractButton *> buttons = m_window.findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        const auto *pushButton = qobject_cast<const QPushButton *>(button);
        const bool opensMenu =
            button->property("module").toString() != QLatin1String("tabbutton")
            && (!button->findChildren<QMenu *>().isEmpty() || button->property("position").isValid()
                || button->objectName() == QLatin1String("qt_toolbar_ext_button")
                || (pushButton && pushButton->menu()));
        if (opensMenu && isNew(button))
            takeMenuOf(button, button->objectName());
    }
}

void PictureHost::takeNewLists()
{
    const QList<QComboBox *> boxes = m_window.findChildren<QComboBox *>();
    for (QComboBox *box : boxes) {
        if (!isNew(box))
            continue;
        box->showPopup();
        takePopups(box->objectName());
        box->hidePopup();
    }
}

void PictureHost::takeMenuOf(QAbstractButton *button, const QString &name)
{
    QTimer timer;
    int patience = 20;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu && --patience > 0)
            return;
        timer.stop();
        if (!menu)
            return;
        takeSubMenus(menu, name);
        menu->close();
    });
    timer.start(100);
    auto *toolButton = qobject_cast<QToolButton *>(button);
    if (toolButton && toolButton->menu())
        toolButton->showMenu();
    else
        QTest::mouseClick(button, Qt::LeftButton);
    while (timer.isActive())
        QTest::qWait(20);
}

void PictureHost::takeSubMenus(QMenu *menu, const QString &name)
{
    QAction *command = nullptr;
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (!action->isVisible() || !action->isEnabled() || action->isSeparator())
            continue;
        if (QMenu *subMenu = action->menu()) {
            menu->setActiveAction(action);
            takeSubMenus(subMenu, name + QLatin1Char('-') + subMenu->objectName());
            subMenu->hide();
        } else if (!command) {
            command = action;
        }
    }
    menu->setActiveAction(command);
    takePopups(name);
}

void PictureHost::takeWindow(const QString &caption)
{
    m_sheet.add(caption, Screen::picture(m_window, m_window.frameGeometry()));
}

void PictureHost::takePopups(const QString &caption)
{
    QRect area;
    const QList<QWidget *> windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (window->isVisible() && window != &m_window)
            area |= window->frameGeometry();
    }
    // With a margin that shows where they were opened.
    const int margin = 40 * m_window.physicalDpiY() / 96;
    m_sheet.add(caption, Screen::picture(m_window, area.adjusted(-8, -margin, 8, 8)));
}
