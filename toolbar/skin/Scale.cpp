// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/Scale.h"

#include "toolbar/Latin1.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/ScreenWatch.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

constexpr QLatin1String ownScreen = latin1("screen");
constexpr double least = 0.5;
constexpr double most = 4.0;

/** The size of the texts that the lengths of the skins are made for, in pixels at 96 dpi. */
constexpr float designTextSize = 12.0F;

constexpr double targetMillimetres = 9.0;
constexpr double millimetresPerInch = 25.4;

bool isFactor(double factor)
{
    // False for what is no number, too.
    return factor >= least && factor <= most;
}

/** Those whose host has chosen something. */
QList<const Scale *> &chosenScales()
{
    // Never destroyed: a toolbar may outlive what is static.
    static auto *scales = new QList<const Scale *>;
    return *scales;
}

void addToChosen(const Scale *scale)
{
    if (!chosenScales().contains(scale))
        chosenScales().append(scale);
}

std::optional<bool> truthOf(const QString &text)
{
    if (text == QLatin1String("true"))
        return true;
    if (text == QLatin1String("false"))
        return false;
    return std::nullopt;
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
    , m_chosen(ScreenDensity::factor(toolBar))
    , m_factor(m_chosen)
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
    m_takesScreens = true;
    watchScreens();
    take(ofScreen(m_screens->screen()));
}

bool Scale::isChoice(const QString &choice)
{
    bool isNumber = false;
    const double factor = choice.toDouble(&isNumber);
    return choice == ownScreen || (isNumber && isFactor(factor));
}

void Scale::set(double factor)
{
    if (!isFactor(factor))
        return;
    m_takesScreens = false;
    watchScreens();
    take(static_cast<float>(factor));
}

void Scale::take(float factor)
{
    addToChosen(this);
    m_isChosen = true;
    m_chosen = factor;
    update();
}

void Scale::update()
{
    float factor = m_chosen;
    if (m_usesApplicationFont)
        factor = std::max(factor, QFontInfo(QApplication::font()).pixelSize() / designTextSize);
    if (factor == m_factor)
        return;
    m_factor = factor;
    Q_EMIT changed();
}

/** Returns whether the text is a choice, and another one than before. */
bool Scale::decide(bool &wish, const QString &choice)
{
    const auto isWanted = truthOf(choice);
    if (!isWanted || *isWanted == wish)
        return false;
    addToChosen(this);
    wish = *isWanted;
    return true;
}

void Scale::chooseApplicationFont(const QString &choice)
{
    if (!decide(m_usesApplicationFont, choice))
        return;
    // Only while it matters: the filter sees every event of the application.
    qApp->removeEventFilter(this);
    if (m_usesApplicationFont)
        qApp->installEventFilter(this);
    followFont();
}

void Scale::followFont()
{
    const float before = m_factor;
    update();
    // Texts and widths are different ones, too.
    if (m_factor == before)
        Q_EMIT changed();
}

void Scale::chooseTouch(const QString &choice)
{
    if (!decide(m_isForTouch, choice))
        return;
    watchScreens();
    Q_EMIT changed();
}

int Scale::leastTarget() const
{
    if (!m_isForTouch)
        return 0;
    const int dpi = ScreenDensity::credible(m_toolBar->physicalDpiX());
    return static_cast<int>(std::ceil(targetMillimetres / millimetresPerInch * dpi));
}

const Scale *Scale::nearestTo(const QWidget *widget)
{
    const QList<const Scale *> &all = chosenScales();
    for (; widget && !all.isEmpty(); widget = widget->parentWidget()) {
        for (const Scale *scale : all) {
            if (scale->m_toolBar == widget)
                return scale;
        }
    }
    return nullptr;
}

std::optional<float> Scale::chosenFor(const QWidget *widget)
{
    const Scale *scale = nearestTo(widget);
    if (!scale || !scale->isChosen())
        return std::nullopt;
    return scale->m_factor;
}

int Scale::leastTargetFor(const QWidget *widget)
{
    const Scale *scale = nearestTo(widget);
    return scale ? scale->leastTarget() : 0;
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

void Scale::watchScreens()
{
    if (!m_takesScreens && !m_isForTouch) {
        m_screens.reset();
    } else if (!m_screens) {
        m_screens = std::make_unique<ScreenWatch>(m_toolBar);
        connect(m_screens.get(), &ScreenWatch::changed, this, &Scale::followScreen);
    }
}

void Scale::followScreen()
{
    const float before = m_factor;
    if (m_takesScreens)
        take(ofScreen(m_screens->screen()));
    // Nine millimetres are another number of pixels there.
    if (m_isForTouch && m_factor == before)
        Q_EMIT changed();
}

bool Scale::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qApp && event->type() == QEvent::ApplicationFontChange)
        followFont();
    return false;
}
