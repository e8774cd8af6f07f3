#include "PictureHost.h"

#include "Screen.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSet>
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
    m_window.resize(width, pageHeight * m_window.physicalDpiY() / 96);
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
    m_sheet.breakRow();
    takeMenus();
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
    }
    if (onShow)
        open(onShow);
}

void PictureHost::takeMenus()
{
    QSet<QString> taken;
    const QList<QAbstractButton *> buttons = m_window.findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        const bool isOfInterest =
            button->isVisible() && button->isEnabled() && !button->objectName().isEmpty()
            && button->property("module").toString() != QLatin1String("tabbutton")
            && (!button->findChildren<QMenu *>().isEmpty() || button->property("position").isValid()
                || button->objectName() == QLatin1String("qt_toolbar_ext_button")
                || (qobject_cast<QPushButton *>(button)
                    && static_cast<QPushButton *>(button)->menu()));
        if (isOfInterest && !taken.contains(button->objectName())) {
            taken.insert(button->objectName());
            takeMenuOf(button, button->objectName());
        }
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
    QAction *lastEnabled = nullptr;
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (!action->isVisible() || !action->isEnabled())
            continue;
        lastEnabled = action;
        if (!action->menu())
            continue;
        menu->setActiveAction(action);
        takePopups(name + QLatin1Char('-') + action->menu()->objectName());
        action->menu()->hide();
    }
    if (lastEnabled)
        menu->setActiveAction(actions.first()->isEnabled() ? actions.first() : lastEnabled);
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
    // With a little of what they have come out of.
    const int margin = 40 * m_window.physicalDpiY() / 96;
    m_sheet.add(caption, Screen::picture(m_window, area.adjusted(-8, -margin, 8, 8)));
}
