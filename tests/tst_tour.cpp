// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/Menus.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "toolbar/commands/ActionData.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QToolButton>

namespace {

/** A user who hovers every visible control, opens every menu and triggers every command. */
class Tour
{
public:
    explicit Tour(const QString &path)
        : m_host(TestHost::withFile(path))
        , m_active(&m_host->facade(), &MRToolBar::DoActive)
    {
        QObject::connect(&m_host->facade(), &MRToolBar::DoRequestAuthority, &m_host->facade(),
                         [this] { m_host->enableEverything(); });
        m_host->enableEverything();
        m_host->show();
    }

    void visitTheTopLine()
    {
        const QWidget *line = m_host->find<QWidget>(QStringLiteral("top_widget"));
        const QList<QPointer<QPushButton>> buttons = shown<QPushButton>(line);
        for (const QPointer<QPushButton> &button : buttons) {
            hover(button);
            // QPushButton::menu() is null for the application buttons.
            const auto *menuButton = qobject_cast<MRMenuButton *>(button);
            if (button->menu() || (menuButton && menuButton->GetMenu()))
                popMenu(button, button->rect().center());
        }
    }

    void visitEveryTab()
    {
        m_host->openEachTab(
            [this](const QString &tab) { visitTheRow(m_host->find<MRMainToolBar>(tab)); });
    }

    int visitedMenus() const { return m_visitedMenus; }
    int usedCommands() const { return m_usedCommands; }

private:
    template <typename Widget>
    static QList<QPointer<Widget>> shown(const QWidget *parent)
    {
        QList<QPointer<Widget>> widgets;
        const QList<Widget *> children = parent->findChildren<Widget *>();
        for (Widget *child : children) {
            if (child->isVisible())
                widgets.append(child);
        }
        return widgets;
    }

    void visitTheRow(const MRMainToolBar *row)
    {
        if (!row)
            return;

        const QList<QPointer<QToolButton>> buttons = shown<QToolButton>(row);
        for (const QPointer<QToolButton> &button : buttons) {
            if (!button || !button->isVisible())
                continue;
            hover(button);
            if (button->menu())
                popMenu(button, arrowOf(button));
            else if (button->isEnabled() && button->defaultAction())
                useCommand(button);
        }
    }

    void hover(QWidget *widget)
    {
        for (const QPoint &place : {widget->rect().center(), widget->rect().bottomRight()}) {
            QCursor::setPos(widget->mapToGlobal(place));
            QTest::mouseMove(widget, place);
        }
        QVERIFY(widget->isVisible());
        QTest::mouseMove(&m_host->window(), m_host->window().rect().bottomLeft());
    }

    void popMenu(QWidget *button, const QPoint &place)
    {
        const int before = m_visitedMenus;
        whenMenuPops([this](QMenu *menu) { visitMenu(menu); });
        QTest::mouseClick(button, Qt::LeftButton, {}, place);
        QTRY_VERIFY2(m_visitedMenus > before, qPrintable(button->objectName() + " popped no menu"));
    }

    void visitMenu(QMenu *menu)
    {
        ++m_visitedMenus;
        const QList<QAction *> entries = menu->actions();
        for (QAction *entry : entries) {
            if (!entry->isVisible() || entry->isSeparator())
                continue;
            QTest::mouseMove(menu, menu->actionGeometry(entry).center());
            menu->setActiveAction(entry);
            if (QMenu *subMenu = entry->menu(); subMenu && !subMenu->actions().isEmpty()) {
                subMenu->popup(menu->mapToGlobal(menu->actionGeometry(entry).topRight()));
                visitMenu(subMenu);
                subMenu->hide();
            }
        }
    }

    void useCommand(QToolButton *button)
    {
        const QAction *action = button->defaultAction();
        // The first trigger of an unavailable control is not reported.
        if (!ActionData::isAvailable(action) || action->objectName().isEmpty())
            return;

        m_active.clear();
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_COMPARE(TestHost::texts(m_active), QStringList(action->objectName()));
        QTest::qWait(0);
        QCOMPARE(m_active.size(), 1);
        ++m_usedCommands;
    }

    std::unique_ptr<TestHost> m_host;
    QSignalSpy m_active;
    int m_visitedMenus = 0;
    int m_usedCommands = 0;
};

} // namespace

/** Uses every control of a toolbar, mainly for the sanitizers. */
class TourTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowAndUseEveryTabMenuAndButton_data() { TestDocuments::addAll(); }

    void shouldShowAndUseEveryTabMenuAndButton()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const SkinChoice choice(skin);
        Tour tour(path);
        tour.visitTheTopLine();
        tour.visitEveryTab();
        QVERIFY(tour.visitedMenus() >= 3);
        QVERIFY(tour.usedCommands() >= 10);
    }
};

QTEST_MAIN(TourTest)
#include "tst_tour.moc"
