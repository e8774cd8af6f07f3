// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/Presentation.h"

#include "toolbar/description/Controller.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/SkinIcon.h"
#include "toolbar/widgets/CustomMenuStyle.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMenu>

#include <algorithm>

Presentation::Presentation(const QString &directory, Appearance &appearance, const Scale &scale)
    : m_directory(directory)
    , m_appearance(appearance)
    , m_scale(scale)
{
}

void Presentation::showAgain()
{
    giveAgain(false);
}

void Presentation::fitAgain()
{
    giveAgain(true);
}

void Presentation::giveAgain(bool lengthsAlone)
{
    for (const Given &given : m_given) {
        if (given.control && (given.isLength || !lengthsAlone))
            given.call(given.control, given.record, *this);
    }
}

QString Presentation::text(const Controller &record) const
{
    return record.text;
}

QString Presentation::toolTip(const Controller &record) const
{
    return record.tooltip;
}

QString Presentation::prompt(const Controller &record) const
{
    return record.prompt;
}

QIcon Presentation::icon(const Controller &record) const
{
    return m_appearance.icon(skinIconPath(m_directory, record.icon));
}

int Presentation::length(double designLength) const
{
    return ScreenDensity::scaled(designLength, m_scale.factor());
}

int Presentation::buttonWidth(double byRule, const QStringList &texts, double beside) const
{
    constexpr double leastButton = 45.0;
    constexpr double aroundText = 8.0;
    int width = length(byRule);
    if (m_scale.usesApplicationFont()) {
        const QFontMetrics metrics(QApplication::font());
        width = length(leastButton + beside);
        for (const QString &text : texts)
            width = std::max(width, metrics.horizontalAdvance(text) + length(aroundText + beside));
    }
    return std::max(width, m_scale.leastTarget());
}

void Presentation::fitIcons(CustomMenuStyle *style) const
{
    if (m_scale.isChosen())
        style->setScale(m_scale.factor());
}

void Presentation::fitIcons(QMenu *menu) const
{
    if (!m_scale.isChosen())
        return;
    constexpr int smallIcon = 16;
    if (!m_menuStyle)
        m_menuStyle = std::make_shared<CustomMenuStyle>(smallIcon);
    fitIcons(m_menuStyle.get());
    if (!menu->testAttribute(Qt::WA_SetStyle))
        CustomMenuStyle::share(m_menuStyle, menu);
}

QSize Presentation::iconSize(double designSide) const
{
    const int side = length(designSide);
    return {side, side};
}
