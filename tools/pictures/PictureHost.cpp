#include "PictureHost.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int settleTime = 120;

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

/** The first button on show that a test of its own lets through. */
template <typename Button, typename Test>
Button *firstButton(QWidget *parent, const Test &test)
{
    const QList<Button *> buttons = parent->findChildren<Button *>();
    for (Button *button : buttons) {
        if (button->isVisible() && test(button))
            return button;
    }
    return nullptr;
}

} // namespace

PictureHost::PictureHost(const QDomDocument &description, const QDir &folder, const QString &prefix,
                         int width)
    : m_description(description)
    , m_folder(folder)
    , m_prefix(prefix)
{
    m_window.setWindowTitle(QStringLiteral("OFD阅读器"));
    m_window.resize(width, 240 * m_window.physicalDpiY() / 96);
    auto *page = new QLabel;
    page->setStyleSheet(QStringLiteral("background:#FFFFFF"));
    m_window.setCentralWidget(page);

    QDomElement root = m_description.documentElement();
    m_toolBar = new MRToolBar(&m_window, root, {}, ToolBarLeft);
    m_toolBar->setParent(&m_window);
    QObject::connect(m_toolBar, &MRToolBar::DoRequestAuthority, m_toolBar,
                     [this] { answerAuthority(); });
}

bool PictureHost::takeAll()
{
    m_window.show();
    m_window.activateWindow();
    if (!QTest::qWaitForWindowActive(&m_window))
        return false;
    take(QStringLiteral("disabled"));
    answerAuthority();
    takeTabs();
    takeStates();
    takeMenus();
    return m_isComplete;
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
        restPointer();
        take(QStringLiteral("tab-") + tab->objectName());
    }
    if (onShow)
        open(onShow);
}

void PictureHost::restPointer()
{
    QTest::mouseMove(&m_window, QPoint(m_window.width() / 2, m_window.height() - 20));
}

void PictureHost::takeStates()
{
    const auto plain = [](QToolButton *button) { return !button->menu() && button->isEnabled(); };
    QToolButton *button = firstButton<QToolButton>(&m_window, plain);
    if (button) {
        QTest::mouseMove(button);
        take(QStringLiteral("hover"));
        QTest::mousePress(button, Qt::LeftButton);
        take(QStringLiteral("pressed"));
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-50, -50));
    }
    const QList<QAction *> actions = m_window.findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->isCheckable() && action->objectName() == QLatin1String("t_handtool"))
            action->setChecked(true);
    }
    restPointer();
    take(QStringLiteral("checked"));
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
                || (qobject_cast<QPushButton *>(button)
                    && static_cast<QPushButton *>(button)->menu()));
        if (isOfInterest && !taken.contains(button->objectName())) {
            taken.insert(button->objectName());
            takeMenuOf(button, QStringLiteral("menu-") + button->objectName());
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
        take(name + QLatin1Char('-') + action->menu()->objectName());
        action->menu()->hide();
    }
    if (lastEnabled)
        menu->setActiveAction(actions.first()->isEnabled() ? actions.first() : lastEnabled);
    take(name);
}

void PictureHost::take(const QString &name)
{
    QTest::qWait(settleTime);
    // The screen, not the window: menus are windows of their own.
    QRect area = m_window.frameGeometry();
    const QList<QWidget *> windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (window->isVisible())
            area |= window->frameGeometry();
    }
    const QPixmap picture =
        m_window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    const QString path =
        m_folder.filePath(m_prefix + QLatin1Char('-') + name + QStringLiteral(".png"));
    if (picture.isNull() || !picture.save(path)) {
        std::fprintf(stderr, "mrtoolbar-pictures: cannot write %s\n", qPrintable(path));
        m_isComplete = false;
    }
}
