// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/Scale.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/ScreenDensity.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

constexpr QLatin1String ownScreen = latin1("screen");
constexpr double least = 0.5;
constexpr double most = 4.0;

/** Those whose host has chosen a factor. */
QList<const Scale *> &chosenScales()
{
    // Never destroyed: a toolbar may outlive what is static.
    static auto *scales = new QList<const Scale *>;
    return *scales;
}

/** By how much the application enlarges itself, on whatever screen it is. */
double applicationFactor()
{
    const double factor = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
    return factor > 0.0 ? factor : 1.0;
}

} // namespace

Scale::Scale(QWidget *toolBar)
    : QObject(toolBar)
    , m_toolBar(toolBar)
    , m_factor(ScreenDensity::factor(toolBar))
{
}

Scale::~Scale()
{
    chosenScales().removeAll(this);
}

void Scale::choose(const QString &choice)
{
    if (choice != ownScreen) {
        bool isNumber = false;
        const double factor = choice.toDouble(&isNumber);
        if (isNumber)
            set(factor);
        return;
    }
    followScreens(true);
    take(ofScreen(m_toolBar->screen()));
}

void Scale::set(double factor)
{
    // Written so that no number is refused, too.
    if (!(factor >= least && factor <= most))
        return;
    followScreens(false);
    take(static_cast<float>(factor));
}

void Scale::take(float factor)
{
    if (!m_isChosen)
        chosenScales().append(this);
    m_isChosen = true;
    if (factor == m_factor)
        return;
    m_factor = factor;
    Q_EMIT changed();
}

std::optional<float> Scale::chosenFor(const QWidget *widget)
{
    const QList<const Scale *> &all = chosenScales();
    for (; widget && !all.isEmpty(); widget = widget->parentWidget()) {
        for (const Scale *scale : all) {
            if (scale->m_toolBar == widget)
                return scale->m_factor;
        }
    }
    return std::nullopt;
}

float Scale::ofScreen(const QScreen *screen)
{
    if (!screen)
        return 1.0F;

    // The screen's dpi are told in the application's units, and for all of its scaling at once.
    const double ratio = screen->devicePixelRatio();
    const int dpi = ScreenDensity::credible(qRound(screen->physicalDotsPerInchX() * ratio));
    double density = static_cast<double>(dpi) / ScreenDensity::designDpi;
    const double forScreen = ratio / applicationFactor();
    if (!qFuzzyCompare(forScreen, 1.0))
        density = std::max(density, forScreen);
    return static_cast<float>(density / forScreen);
}

void Scale::followScreens(bool follow)
{
    if (m_followsScreens == follow)
        return;
    m_followsScreens = follow;
    if (follow) {
        m_toolBar->installEventFilter(this);
        followWindow();
        return;
    }
    m_toolBar->removeEventFilter(this);
    if (m_window)
        disconnect(m_window, nullptr, this, nullptr);
    if (m_screen)
        disconnect(m_screen, nullptr, this, nullptr);
    m_window = nullptr;
    m_screen = nullptr;
}

bool Scale::eventFilter(QObject *watched, QEvent *event)
{
    // Shown again, the toolbar may be in another window.
    if (watched == m_toolBar && event->type() == QEvent::Show)
        followWindow();
    return false;
}

void Scale::followWindow()
{
    QWindow *window = m_toolBar->window()->windowHandle();
    if (window && window != m_window) {
        if (m_window)
            disconnect(m_window, nullptr, this, nullptr);
        m_window = window;
        connect(window, &QWindow::screenChanged, this, &Scale::followScreen);
    }
    followScreen();
}

void Scale::followScreen()
{
    QScreen *screen = m_window ? m_window->screen() : m_toolBar->screen();
    if (screen && screen != m_screen) {
        if (m_screen)
            disconnect(m_screen, nullptr, this, nullptr);
        m_screen = screen;
        connect(screen, &QScreen::physicalDotsPerInchChanged, this, &Scale::followScreen);
    }
    take(ofScreen(screen));
}
