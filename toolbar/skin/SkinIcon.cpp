// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/SkinIcon.h"

#include "toolbar/skin/IconColours.h"
#include "toolbar/skin/PaintedIconEngine.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QPair>

#include <cstdlib>
#include <utility>

namespace {

/** Qt's own disabled look leaves light glyphs as they are; this one fades all alike. */
constexpr qreal disabledOpacity = 0.45;
constexpr qreal disabledOpacityOnDark = 0.55; ///< A screen shows dark greys as nearly black.

/** The sides, in pixels, that the skins have drawings for. */
constexpr int drawnSides[] = {16, 20, 24};

QString folderOf(int side)
{
    return QStringLiteral("/icon%1/").arg(side);
}

/** The side that the file is drawn for, by its folder; 0 if that does not tell. */
int drawnSideOf(const QString &path)
{
    for (const int side : drawnSides) {
        if (path.contains(folderOf(side)))
            return side;
    }
    return 0;
}

bool isWhiteAllOver(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray drawing = file.readAll();
    const auto colours = drawing.count('#');
    return colours > 0 && colours == drawing.count("#ffffff");
}

/**
 * How badly a drawing of @p drawnSide fits @p side physical pixels. Lines stay on their pixels when
 * they are multiplied, best by the least number; otherwise the nearest drawing is smeared least.
 */
std::pair<bool, int> misfit(int drawnSide, int side)
{
    return {side % drawnSide != 0, std::abs(side - drawnSide)};
}

/** The drawing of the same thing that is made for one of the sides; empty if the skin has none. */
QString drawingOfSide(const QString &path, int ownSide, int drawnSide)
{
    QString other = path;
    other.replace(folderOf(ownSide), folderOf(drawnSide));
    if (QFile::exists(other))
        return other;
    // Some that no description can name.
    other.replace(QLatin1String("/icons/"), QLatin1String("/drawings/"));
    return QFile::exists(other) ? other : QString();
}

/** The drawing of the same thing that is made for @p side physical pixels; if in doubt @p path. */
QString drawingFor(const QString &path, int side)
{
    const int ownSide = drawnSideOf(path);
    if (ownSide == 0 || side <= 0 || side == ownSide)
        return path;

    QString best = path;
    int bestSide = ownSide;
    for (const int drawnSide : drawnSides) {
        if (misfit(drawnSide, side) >= misfit(bestSide, side))
            continue;
        const QString other = drawingOfSide(path, ownSide, drawnSide);
        if (!other.isEmpty() && isForColouredStrip(other) == isForColouredStrip(path)) {
            best = other;
            bestSide = drawnSide;
        }
    }
    return best;
}

class SkinIconEngine : public PaintedIconEngine
{
public:
    SkinIconEngine(const QString &path, const SchemeLook &look)
        : m_path(path)
        , m_look(look)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        const QIcon drawing = drawingOf(qRound(qMin(rect.width(), rect.height()) * ratio));
        const qreal opacity = painter->opacity();
        if (mode == QIcon::Disabled)
            painter->setOpacity(opacity * disabledIconOpacity(m_look));
        drawing.paint(painter, rect, Qt::AlignCenter, QIcon::Normal, state);
        painter->setOpacity(opacity);
    }

    QIconEngine *clone() const override { return new SkinIconEngine(m_path, m_look); }

private:
    /** Looked up when first painted: the search reads files. */
    QIcon drawingOf(int side)
    {
        QIcon &drawing = m_drawings[side];
        if (drawing.isNull())
            drawing = IconColours::drawing(drawingFor(m_path, side), m_look);
        return drawing;
    }

    QString m_path;
    SchemeLook m_look;
    QHash<int, QIcon> m_drawings; ///< By the side in physical pixels.
};

using IconKey = QPair<QString, QPair<int, QRgb>>;

QHash<IconKey, QIcon> &iconCache()
{
    // Never destroyed: an application that is a static object itself clears it later than that.
    static auto &cache = *new QHash<IconKey, QIcon>;
    return cache;
}

} // namespace

bool isForColouredStrip(const QString &path)
{
    // Asked for each size of each icon, but files are read only once. Never destroyed, as the
    // icons.
    static auto &answers = *new QHash<QString, bool>;
    const auto known = answers.constFind(path);
    return known == answers.cend() ? *answers.insert(path, isWhiteAllOver(path)) : *known;
}

QString drawingForStrip(const QString &path, int side)
{
    const int ownSide = drawnSideOf(path);
    QString best;
    int bestSide = 0;
    for (const int drawnSide : drawnSides) {
        const QString other = ownSide != 0 ? drawingOfSide(path, ownSide, drawnSide) : QString();
        const bool isBetter = best.isEmpty() || misfit(drawnSide, side) < misfit(bestSide, side);
        if (!other.isEmpty() && isBetter && isForColouredStrip(other)) {
            best = other;
            bestSide = drawnSide;
        }
    }
    return best.isEmpty() ? drawingFor(path, side) : best;
}

qreal disabledIconOpacity(const SchemeLook &look)
{
    return look.isLight() ? disabledOpacity : disabledOpacityOnDark;
}

QString skinIconFile(const QString &directory, const QString &name)
{
    return directory + QStringLiteral("icons/") + name;
}

QString skinIconPath(const QString &directory, const QString &name)
{
    if (name.isEmpty())
        return QString();

    const QString path = skinIconFile(directory, name);
    return QFile::exists(path) ? path : QString();
}

QIcon skinIcon(const QString &path, const SchemeLook &look)
{
    QHash<IconKey, QIcon> &cache = iconCache();
    const IconKey key(path, {static_cast<int>(look.scheme), look.mainColour});
    const auto cached = cache.constFind(key);
    if (cached != cache.cend())
        return *cached;
    // A directory exists, too, and an icon made of it would take up room.
    if (!QFileInfo(path).isFile())
        return QIcon();

    // Icons must not outlive the application; a process may have several, one after the other.
    if (cache.isEmpty())
        qAddPostRoutine([] { iconCache().clear(); });
    return *cache.insert(key, QIcon(new SkinIconEngine(path, look)));
}
