// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/TurnedIcon.h"

#include "toolbar/skin/PaintedIconEngine.h"

namespace {

class TurnedIconEngine : public PaintedIconEngine
{
public:
    explicit TurnedIconEngine(const QIcon &icon)
        : m_icon(icon)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        // Turning the painter instead would put the lines between the pixels.
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        QPixmap picture(rect.size() * ratio);
        picture.fill(Qt::transparent);
        {
            QPainter upright(&picture);
            m_icon.paint(&upright, picture.rect(), Qt::AlignCenter, mode, state);
        }
        picture = picture.transformed(QTransform().rotate(180));
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), picture);
    }

    QIconEngine *clone() const override { return new TurnedIconEngine(m_icon); }

private:
    QIcon m_icon;
};

} // namespace

QIcon turnedIcon(const QIcon &icon)
{
    return icon.isNull() ? QIcon() : QIcon(new TurnedIconEngine(icon));
}
