// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/GivenIcon.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/PaintedIconEngine.h"
#include "toolbar/skin/SkinIcon.h"

#include <QPointer>

namespace {

class GivenIconEngine : public PaintedIconEngine
{
public:
    GivenIconEngine(const QIcon &icon, const Appearance *appearance)
        : m_icon(icon)
        , m_appearance(appearance)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const bool isDisabled = mode == QIcon::Disabled;
        const qreal opacity = painter->opacity();
        if (isDisabled)
            painter->setOpacity(opacity * disabledIconOpacity(look()));
        m_icon.paint(painter, rect, Qt::AlignCenter, isDisabled ? QIcon::Normal : mode, state);
        painter->setOpacity(opacity);
    }

    QIconEngine *clone() const override { return new GivenIconEngine(m_icon, m_appearance); }

private:
    SchemeLook look() const { return m_appearance ? m_appearance->look() : SchemeLook(); }

    QIcon m_icon;
    QPointer<const Appearance> m_appearance;
};

} // namespace

QIcon givenIcon(const QIcon &icon, const Appearance &appearance)
{
    return QIcon(new GivenIconEngine(icon, &appearance));
}
