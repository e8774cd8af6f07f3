// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/monkey/RandomHost.h"
#include "tests/monkey/RandomUser.h"
#include "tests/monkey/Witness.h"
#include "tests/support/TestDocuments.h"
#include "tests/support/TestHost.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

namespace {

constexpr int stepsOfShortRun = 1500;
constexpr int stepsBetweenReports = 5000;
constexpr int movesTold = 12;

/** A random host and a random user that use one toolbar after the other. */
class Monkey
{
public:
    Monkey(unsigned int seed, const QDomDocument &document)
        : m_random(seed)
        , m_document(document)
        , m_names(document)
        , m_witness(m_names, [this] { react(); })
        , m_host(m_random, m_names.all, m_witness)
        , m_user(m_random)
    {
        waitForPopups();
    }

    ~Monkey() { deleteToolBar(); }
    Q_DISABLE_COPY_MOVE(Monkey)

    void step()
    {
        constexpr int stepsOfAToolbar = 150;
        if (!exists() || m_random.oneIn(stepsOfAToolbar)) {
            deleteToolBar();
            makeToolBar();
        }
        // The host may have deleted the window in its answer to the first signal.
        if (!exists())
            return;
        tell(m_random.oneIn(3) ? m_host.step() : m_user.step(*m_window));
        letTimePass();
        if (exists())
            m_witness.checkTree(*m_window);
    }

    QString fault() const { return m_witness.fault(); }
    QString heard() const { return m_witness.heard(); }
    QString lastMoves() const { return m_moves.join("\n    "); }

private:
    bool exists() const { return m_window && m_facade && m_toolBar; }

    void tell(const QString &move)
    {
        m_moves.append(move);
        if (m_moves.size() > movesTold)
            m_moves.removeFirst();
    }

    void makeToolBar()
    {
        m_window = new QMainWindow;
        m_window->resize(m_random.between(300, 1500), 400);
        QDomElement root = m_document.documentElement();
        const auto alignment = static_cast<ToolBarAlignment>(m_random.below(3));
        ToolBarSkinStyle skin{{"keytips", "true"}};
        if (m_random.oneIn(2))
            skin.insert("toolbarstate", m_kept);
        m_facade = new MRToolBar(m_window, root, skin, alignment);
        m_toolBar = m_window->findChild<NewToolBar *>();
        m_witness.watch(*m_facade, *m_window);
        m_host.setWindow(m_facade, m_window);
        m_window->show();
        m_window->activateWindow();
        if (!m_random.oneIn(5))
            m_host.enableEverything();
        tell("new window");
    }

    void deleteToolBar()
    {
        if (exists())
            m_kept = m_facade->GetToolBarState();
        if (m_random.oneIn(3))
            delete m_toolBar;
        if (m_random.oneIn(2))
            delete m_facade;
        delete m_window;
        delete m_facade;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_witness.checkNothingIsLeft();
    }

    void letTimePass()
    {
        constexpr int longerThanAnyWait = 310;
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (m_random.oneIn(250))
            QTest::qWait(longerThanAnyWait);
    }

    /** The host's answer to a signal, which may cause further signals. */
    void react()
    {
        constexpr int mostDepth = 3;
        if (!exists() || m_depth >= mostDepth)
            return;
        ++m_depth;
        if (m_random.oneIn(3))
            m_host.enableEverything();
        if (exists() && m_random.oneIn(3))
            tell("  answer: " + m_host.step());
        if (exists() && m_random.oneIn(6))
            tell("  answer: " + m_host.showTab());
        if (exists() && m_random.oneIn(12))
            answerInALoop();
        if (exists() && m_random.oneIn(200)) {
            tell("  answer: delete");
            deleteAnyWay();
        }
        --m_depth;
    }

    /** The host runs an event loop, as a message box does. */
    void answerInALoop()
    {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [this, &loop] {
            for (int steps = m_random.between(1, 4); steps > 0 && exists(); --steps)
                tell("  in a loop: " + moveInALoop());
            if (exists() && m_random.oneIn(8)) {
                tell("  in a loop: delete");
                deleteAnyWay();
            }
            // Objects passed to deleteLater() are deleted in this loop.
            QTimer::singleShot(1, &loop, &QEventLoop::quit);
        });
        loop.exec();
    }

    QString moveInALoop()
    {
        // The loop may run inside a slot that answers the opening of a tab.
        if (m_random.oneIn(3))
            return m_user.clickTab(*m_window);
        return m_random.oneIn(3) ? m_host.step() : m_user.step(*m_window);
    }

    void deleteAnyWay()
    {
        switch (m_random.below(4)) {
        case 0:
            delete m_window;
            break;
        case 1:
            delete m_toolBar;
            break;
        case 2:
            m_window->setAttribute(Qt::WA_DeleteOnClose);
            m_window->close();
            break;
        default:
            m_window->deleteLater();
        }
    }

    /** Closes popups from outside, because menus and lists run event loops of their own. */
    void waitForPopups()
    {
        QTimer::singleShot(0, &m_witness, [this] {
            waitForPopups(); // First, because usePopup() may return only after the next popup.
            usePopup();
        });
    }

    void usePopup()
    {
        QWidget *popup = QApplication::activePopupWidget();
        if (!popup)
            return;
        if (exists() && m_random.oneIn(8))
            tell("  with a menu open: " + m_host.step());
        else if (exists() && m_random.oneIn(200))
            delete m_window;
        else
            tell("  " + m_user.stepInPopup(*popup));
    }

    RandomSource m_random;
    QDomDocument m_document;
    NamesInUse m_names;
    Witness m_witness;
    QString m_kept; ///< From one toolbar to the next.
    RandomHost m_host;
    RandomUser m_user;
    QPointer<QMainWindow> m_window;
    QPointer<MRToolBar> m_facade;
    QPointer<NewToolBar> m_toolBar;
    QStringList m_moves;
    int m_depth = 0;
};

} // namespace

/** Checks the invariants of toolbars in random use by a host and a user. */
class MonkeyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldKeepItsInvariants_data() { TestDocuments::addAll(); }

    void shouldKeepItsInvariants()
    {
        QFETCH(int, skin);
        QFETCH(QString, path);
        const SkinChoice choice(skin);
        const int steps = qEnvironmentVariable("MONKEY_STEPS").isEmpty()
                              ? stepsOfShortRun
                              : qEnvironmentVariableIntValue("MONKEY_STEPS");
        const auto seed = static_cast<unsigned int>(qEnvironmentVariableIntValue("MONKEY_SEED"));
        Monkey monkey(seed, TestDocuments::read(path));
        for (int i = 0; i < steps; ++i) {
            monkey.step();
            if (i > 0 && i % stepsBetweenReports == 0)
                qInfo("%d steps", i);
            QVERIFY2(monkey.fault().isEmpty(),
                     qPrintable(QStringLiteral("seed %1, step %2: %3, after\n    %4")
                                    .arg(seed)
                                    .arg(i)
                                    .arg(monkey.fault(), monkey.lastMoves())));
        }
        qInfo("%d steps from seed %u: %s", steps, seed, qPrintable(monkey.heard()));
        // A run without signals would check nothing.
        if (steps >= stepsOfShortRun)
            QVERIFY(monkey.heard().contains("DoActive"));
    }
};

QTEST_MAIN(MonkeyTest)
#include "tst_monkey.moc"
