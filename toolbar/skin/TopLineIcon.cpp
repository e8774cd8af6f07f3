// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/TopLineIcon.h"

#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/IconColours.h"
#include "toolbar/skin/PaintedIconEngine.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/skin/SkinIcon.h"

#include <QHash>
#include <QPointer>

namespace {

constexpr QRgb darkLine = 0xff454545; ///< What the skins draw lines with on light grounds.

class TopLineIconEngine : public PaintedIconEngine
{
public:
    TopLineIconEngine(const QString &path, const QString &letter, const Appearance *appearance)
        : m_path(path)
        , m_letter(letter)
        , m_appearance(appearance)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal opacity = painter->opacity();
        if (mode == QIcon::Disabled)
            painter->setOpacity(opacity * disabledIconOpacity(look()));
        if (m_path.isEmpty())
            paintLetter(*painter, rect);
        else
            drawing(*painter, rect).paint(painter, rect);
        painter->setOpacity(opacity);
    }

    QIconEngine *clone() const override
    {
        return new TopLineIconEngine(m_path, m_letter, m_appearance);
    }

private:
    SchemeLook look() const { return Appearance::lookOf(m_appearance); }
    bool isOnColour() const { return m_appearance && look().isLight() && !Skin::isLum(); }

    QIcon drawing(const QPainter &painter, const QRect &rect)
    {
        if (!isOnColour())
            return skinIcon(m_path, look());
        const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
        const int side = qRound(qMin(rect.width(), rect.height()) * ratio);
        QString &path = m_paths[side];
        if (path.isEmpty())
            path = drawingForStrip(m_path, side);
        return isForColouredStrip(path)
                   ? skinIcon(path)
                   : IconColours::stripDrawing(path, m_appearance->mainColour());
    }

    void paintLetter(QPainter &painter, const QRect &rect) const
    {
        constexpr double share = 0.8;
        const SchemeColours *colours = m_appearance ? m_appearance->colours() : nullptr;
        QFont font = painter.font();
        font.setPixelSize(qMax(1, static_cast<int>(rect.height() * share)));
        painter.setFont(font);
        painter.setPen(colours ? colours->text : isOnColour() ? QColor(Qt::white) : darkLine);
        painter.drawText(rect, Qt::AlignCenter, m_letter);
    }

    QString m_path;
    QHash<int, QString> m_paths; ///< By the side in physical pixels; found when first painted.
    QString m_letter;
    QPointer<const Appearance> m_appearance;
};

} // namespace

QIcon topLineIconOf(const QString &path, const QString &letter, const Appearance &appearance)
{
    return QIcon(new TopLineIconEngine(path, letter.toUpper(), &appearance));
}
