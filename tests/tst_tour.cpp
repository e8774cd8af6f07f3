#include "tests/support/Menus.h"
#include "tests/support/Pointer.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"
#include "toolbar/ActionData.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QToolButton>

namespace {

/** A user who has a look at everything that a toolbar shows, and uses it. */
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

    void seeTheTopLine()
    {
        const QWidget *line = m_host->find<QWidget>(QStringLiteral("top_widget"));
        const QList<QPointer<QPushButton>> buttons = shown<QPushButton>(line);
        for (const QPointer<QPushButton> &button : buttons) {
            hover(button);
            // The application menus belong to no button of the toolkit's kind.
            const auto *menuButton = qobject_cast<MRMenuButton *>(button);
            if (button->menu() || (menuButton && menuButton->GetMenu()))
                popMenu(button, button->rect().center());
        }
    }

    void seeEveryTab()
    {
        m_host->openEachTab(
            [this](const QString &tab) { seeTheRow(m_host->find<MRMainToolBar>(tab)); });
    }

    int menusSeen() const { return m_menusSeen; }
    int commandsUsed() const { return m_commandsUsed; }

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

    void seeTheRow(const MRMainToolBar *row)
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
        const int before = m_menusSeen;
        whenMenuPops([this](QMenu *menu) { seeMenu(menu); });
        QTest::mouseClick(button, Qt::LeftButton, {}, place);
        QTRY_VERIFY2(m_menusSeen > before, qPrintable(button->objectName() + " popped no menu"));
    }

    void seeMenu(QMenu *menu)
    {
        ++m_menusSeen;
        const QList<QAction *> entries = menu->actions();
        for (QAction *entry : entries) {
            if (!entry->isVisible() || entry->isSeparator())
                continue;
            QTest::mouseMove(menu, menu->actionGeometry(entry).center());
            menu->setActiveAction(entry);
            if (QMenu *subMenu = entry->menu(); subMenu && !subMenu->actions().isEmpty()) {
                subMenu->popup(menu->mapToGlobal(menu->actionGeometry(entry).topRight()));
                seeMenu(subMenu);
                subMenu->hide();
            }
        }
    }

    void useCommand(QToolButton *button)
    {
        const QAction *action = button->defaultAction();
        // The first use of a control that the host cannot do anything with is swallowed.
        if (!ActionData::isAvailable(action) || action->objectName().isEmpty())
            return;

        m_active.clear();
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_COMPARE(TestHost::texts(m_active), QStringList(action->objectName()));
        QTest::qWait(0);
        QCOMPARE(m_active.size(), 1);
        ++m_commandsUsed;
    }

    std::unique_ptr<TestHost> m_host;
    QSignalSpy m_active;
    int m_menusSeen = 0;
    int m_commandsUsed = 0;
};

} // namespace

/** Meant for the sanitizers as much as for what it checks itself. */
class TestTour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTabMenuAndButtonCanBeSeenAndUsed_data() { TestDocuments::addAll(); }

    void everyTabMenuAndButtonCanBeSeenAndUsed()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const SkinChoice choice(skin);
        Tour tour(path);
        tour.seeTheTopLine();
        tour.seeEveryTab();
        QVERIFY(tour.menusSeen() >= 3);
        QVERIFY(tour.commandsUsed() >= 10);
    }
};

QTEST_MAIN(TestTour)
#include "tst_tour.moc"
