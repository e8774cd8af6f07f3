#include "tests/support/Menus.h"
#include "tests/support/TestHost.h"
#include "toolbar/ActionData.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRMenuButton.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QStyleOptionToolButton>
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
                         [this] { enableEverything(); });
        enableEverything();
        m_host->show();
    }

    void seeTheTopLine()
    {
        const QWidget *line = m_host->find<QWidget>(QStringLiteral("top_widget"));
        const QList<QPointer<QPushButton>> buttons = shown<QPushButton>(line);
        for (const QPointer<QPushButton> &button : buttons) {
            hover(button);
            if (button->menu())
                popMenu(button, [button] { QTest::mouseClick(button, Qt::LeftButton); });
        }
        // The application menus belong to no button of the toolkit's kind.
        for (const char *name : {"menu_file", "ab_set"}) {
            auto *button = m_host->find<MRMenuButton>(QLatin1String(name));
            if (button && button->isVisible() && button->GetMenu())
                popMenu(button, [button] { QTest::mouseClick(button, Qt::LeftButton); });
        }
    }

    void seeEveryTab()
    {
        const QList<QPushButton *> buttons = m_host->toolBar()->findChildren<QPushButton *>();
        for (QPushButton *tab : buttons) {
            if (tab->property("module") != "tabbutton" || !tab->isVisible())
                continue;
            if (!tab->isChecked())
                QTest::mouseClick(tab, Qt::LeftButton);
            seeTheRow(m_host->find<MRMainToolBar>(tab->objectName()));
        }
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

    void enableEverything()
    {
        const QList<QAction *> actions = m_host->window().findChildren<QAction *>();
        for (const QAction *action : actions) {
            if (!action->objectName().isEmpty())
                m_host->setUsable(action->objectName(), true);
        }
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
                popMenu(button, [button] { clickArrow(button); });
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

    static void clickArrow(QToolButton *button)
    {
        QStyleOptionToolButton option;
        option.initFrom(button);
        option.subControls = QStyle::SC_All;
        option.features = button->popupMode() == QToolButton::MenuButtonPopup
                              ? QStyleOptionToolButton::MenuButtonPopup
                              : QStyleOptionToolButton::None;
        const QRect arrow = button->style()->subControlRect(QStyle::CC_ToolButton, &option,
                                                            QStyle::SC_ToolButtonMenu, button);
        QTest::mouseClick(button, Qt::LeftButton, {},
                          arrow.isValid() ? arrow.center() : button->rect().center());
    }

    void popMenu(const QWidget *button, const std::function<void()> &open)
    {
        const int before = m_menusSeen;
        whenMenuPops([this](QMenu *menu) { seeMenu(menu); });
        open();
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
    void everyTabMenuAndButtonCanBeSeenAndUsed_data()
    {
        QTest::addColumn<int>("skin");
        QTest::addColumn<QString>("path");
        const QString resources = QStringLiteral(":/mr_toolbar/Resources/");
        QTest::newRow("marodi release") << marodi << resources + "marodi/mr_toolbar.release.xml";
        QTest::newRow("marodi debug") << marodi << resources + "marodi/mr_toolbar.debug.xml";
        QTest::newRow("lum release") << lum << resources + "lum/mr_toolbar.release.xml";
        QTest::newRow("lum debug") << lum << resources + "lum/mr_toolbar.debug.xml";
        const QString showcase = QFINDTESTDATA("../examples/reader/showcase.xml");
        QTest::newRow("marodi showcase") << marodi << showcase;
        QTest::newRow("lum showcase") << lum << showcase;
    }

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
