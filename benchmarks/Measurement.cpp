// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "benchmarks/Measurement.h"

#include "benchmarks/AllocationCount.h"
#include "benchmarks/EventCount.h"
#include "benchmarks/HandMadeContender.h"
#include "benchmarks/Stopwatch.h"
#include "benchmarks/ToolBarContender.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

/** Processes events until the window has been painted after the creation of @p paints. */
void waitForPaint(const EventCount &paints)
{
    while (paints.count() == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/** The resident memory in MiB. */
double residentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const double pages = file.readAll().split(' ').value(1).toDouble();
    constexpr double pageSize = 4096;
    return pages * pageSize / (1024.0 * 1024.0);
}

void sendMove(QWidget *widget, const QPoint &position)
{
    QMouseEvent event(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

Measurement::Measurement(const QString &contender, const Workload &workload)
    : m_workload(workload)
{
    if (contender == QLatin1String("toolbar"))
        m_contender = std::make_unique<ToolBarContender>(workload);
    else
        m_contender = std::make_unique<HandMadeContender>(workload);
}

Measurement::~Measurement() = default;

QJsonObject Measurement::run()
{
    const Stopwatch reading;
    m_contender->prepare();
    reading.store(m_figures, QStringLiteral("description ms"));

    showFirstWindow();
    m_contender->tidyUp();
    storeMemory(QStringLiteral("memory at first MiB"));
    openSecondTab();
    openAllTabs();
    storeMemory(QStringLiteral("memory with all rows MiB"));
    setStates();
    moveMouse();
    findCommands();
    switchColours();
    switchScale();
    return m_figures;
}

void Measurement::showFirstWindow()
{
    constexpr QSize windowSize(1400, 800);
    const EventCount paints(QEvent::Paint);
    const Stopwatch stopwatch;
    m_contender->build(m_window);
    stopwatch.store(m_figures, QStringLiteral("construction ms"));
    m_window.resize(windowSize);
    m_window.show();
    waitForPaint(paints);
    stopwatch.store(m_figures, QStringLiteral("first window ms"));
    settle();
    stopwatch.store(m_figures, QStringLiteral("first window at rest ms"));
}

void Measurement::openSecondTab()
{
    if (m_workload.tabs < 2)
        return;

    const EventCount paints(QEvent::Paint);
    const Stopwatch stopwatch;
    clickTab(1);
    waitForPaint(paints);
    settle();
    stopwatch.store(m_figures, QStringLiteral("second tab ms"));
}

void Measurement::openAllTabs()
{
    for (int tab = 2; tab < m_workload.tabs; ++tab) {
        clickTab(tab);
        settle();
    }
    if (m_workload.tabs > 1)
        clickTab(0);
    settle();
}

void Measurement::setStates()
{
    QStringList names = m_workload.commandNames();
    constexpr int rounds = 2;
    constexpr double microseconds = 1e-3;
    const double calls = static_cast<double>(names.size()) * rounds * microseconds;

    const Stopwatch usable;
    for (const bool state : {false, true}) {
        for (QString &name : names)
            m_contender->setUsable(name, state);
    }
    usable.store(m_figures, QStringLiteral("usable state us"), calls);
    settle();

    const Stopwatch checked;
    for (const bool state : {true, false}) {
        for (QString &name : names)
            m_contender->setChecked(name, state);
    }
    checked.store(m_figures, QStringLiteral("checked state us"), calls);
    settle();
}

void Measurement::moveMouse()
{
    constexpr int moves = 100;
    constexpr int warmUp = 10;
    QToolButton *button = nullptr;
    for (auto *candidate : m_window.findChildren<QToolButton *>()) {
        if (candidate->isVisible() && candidate->text() == Workload::commandText(0))
            button = candidate;
    }
    if (!button)
        qFatal("No button to move the mouse over");

    // Objects that are created on the first move are not counted.
    for (int i = 0; i < warmUp; ++i)
        sendMove(button, QPoint(2 + i % 10, 8));
    settle();

    const EventCount layouts(QEvent::LayoutRequest);
    const EventCount sheets(QEvent::StyleChange);
    const long before = allocationCount();
    const Stopwatch stopwatch;
    for (int i = 0; i < moves; ++i)
        sendMove(button, QPoint(2 + i % 10, 8));
    constexpr double microseconds = 1e-3;
    stopwatch.store(m_figures, QStringLiteral("mouse move us"), moves * microseconds);
    const auto allocations = static_cast<double>(allocationCount() - before);
    settle();
    m_figures.insert(QStringLiteral("allocations of 100 moves"), allocations);
    m_figures.insert(QStringLiteral("layouts of 100 moves"), layouts.count());
    m_figures.insert(QStringLiteral("sheets set by 100 moves"), sheets.count());
}

void Measurement::findCommands()
{
    const EventCount opened(QEvent::Paint);
    const Stopwatch opening;
    if (!m_contender->openFinder())
        return;
    waitForPaint(opened);
    settle();
    opening.store(m_figures, QStringLiteral("finder opened ms"));

    // Both by what many commands have in their texts, and by what none has.
    double slowest = 0;
    for (const char16_t key : {u'命', u'令', u'1', u'7', u' ', u'c', u'1', u'z'}) {
        const EventCount paints(QEvent::Paint);
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(key)));
        QElapsedTimer timer;
        timer.start();
        QCoreApplication::sendEvent(m_window.focusWidget(), &press);
        waitForPaint(paints);
        settle();
        slowest = std::max(slowest, static_cast<double>(timer.nsecsElapsed()) * 1e-6);
    }
    m_figures.insert(QStringLiteral("slowest key of the finder ms"), slowest);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.focusWidget(), &escape);
    settle();
}

void Measurement::switchColours()
{
    const EventCount paints(QEvent::Paint);
    const Stopwatch stopwatch;
    if (!m_contender->changeColours())
        return;
    waitForPaint(paints);
    settle();
    stopwatch.store(m_figures, QStringLiteral("change of colours ms"));
}

void Measurement::switchScale()
{
    const EventCount paints(QEvent::Paint);
    const Stopwatch stopwatch;
    if (!m_contender->changeScale())
        return;
    waitForPaint(paints);
    settle();
    stopwatch.store(m_figures, QStringLiteral("change of scale ms"));
}

void Measurement::clickTab(int tab)
{
    auto *button = m_window.findChild<QAbstractButton *>(m_workload.tabName(tab));
    if (!button)
        qFatal("No tab %d", tab);
    button->click();
}

void Measurement::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void Measurement::storeMemory(const QString &when)
{
    m_figures.insert(when, residentMemory());
}
