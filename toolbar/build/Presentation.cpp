// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/Presentation.h"

#include "toolbar/description/Controller.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/ScreenDensity.h"
#include "toolbar/skin/SkinIcon.h"

Presentation::Presentation(const QString &directory, Appearance &appearance, const float &scale)
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
    return ScreenDensity::scaled(designLength, m_scale);
}

QSize Presentation::iconSize(double designSide) const
{
    const int side = length(designSide);
    return {side, side};
}
