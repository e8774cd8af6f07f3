// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/IconColours.h"

#include "toolbar/skin/Contrast.h"

#include <QBuffer>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QRegularExpression>
#include <QStyle>

#include <algorithm>

namespace {

constexpr double darkestLine = 0.3; ///< Lines in a grey up to this lightness are the darkest.

/** What bodies of drawings are filled with, a page for instance: just lighter than the ground. */
QColor paper(const SchemeColours &colours)
{
    constexpr double share = 0.08;
    return Contrast::mixed(colours.surface, colours.text, share);
}

QColor fromGrey(double lightness, const SchemeColours &colours)
{
    const double share = std::clamp((lightness - darkestLine) / (1 - darkestLine), 0.0, 1.0);
    return Contrast::mixed(colours.text, paper(colours), share);
}

bool isAccent(const QColor &colour)
{
    constexpr int firstBlue = 185;
    constexpr int lastBlue = 240;
    return colour.hslHue() >= firstBlue && colour.hslHue() <= lastBlue;
}

QColor fromHue(const QColor &colour, const SchemeColours &colours)
{
    constexpr double darkestFill = 0.5; // Up to here it is a line; beyond it, paler and paler.
    constexpr double leastInk = 0.25;
    const QColor ink =
        isAccent(colour) ? colours.accent
                         : Contrast::lightened(colour, colours.pressed, colours.iconContrast * 1.5);
    const double share =
        std::clamp((colour.lightnessF() - darkestFill) / (1 - darkestFill), 0.0, 1.0);
    return Contrast::mixed(ink, paper(colours), share * (1 - leastInk));
}

const QRegularExpression &colourPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("(?<=fill=\"|stroke=\")#(?:[0-9A-Fa-f]{6}|[0-9A-Fa-f]{3})(?=\")"));
    return pattern;
}

bool isWhiteAllOver(const QString &svg)
{
    for (auto matches = colourPattern().globalMatch(svg); matches.hasNext();) {
        if (QColor(matches.next().captured()) != QColor(Qt::white))
            return false;
    }
    return true;
}

QImage recolouredPixels(QImage image, const SchemeColours &colours)
{
    image = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            QColor colour = IconColours::recoloured(QColor(pixel), colours);
            colour.setAlpha(qAlpha(pixel));
            image.setPixel(x, y, colour.rgba());
        }
    }
    return image;
}

/**
 * Draws an SVG file or, for any other file, its pixels. Qt's own icon of an SVG file reads and
 * parses it once to see whether it can, and again to draw it.
 */
class DrawingEngine : public QIconEngine
{
public:
    using Colours = SchemeColours (*)(const SchemeLook &look);

    /** @param colours what the drawing is recoloured with; null leaves it as it is */
    DrawingEngine(const QString &path, const SchemeLook &look, Colours colours)
        : m_path(path)
        , m_look(look)
        , m_colours(colours)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        QPixmap picture = pixmap(rect.size() * ratio, QIcon::Normal, QIcon::Off);
        picture.setDevicePixelRatio(ratio);
        const QRect place =
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, picture.size() / ratio, rect);
        painter->drawPixmap(place.topLeft(), picture);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode, QIcon::State) override
    {
        const QString key = keyFor(size);
        QPixmap picture;
        if (!QPixmapCache::find(key, &picture)) {
            picture = QPixmap::fromImage(drawn(size));
            QPixmapCache::insert(key, picture);
        }
        return picture;
    }

    QIconEngine *clone() const override { return new DrawingEngine(m_path, m_look, m_colours); }

private:
    QString keyFor(const QSize &size) const
    {
        const int kind = !m_colours ? 0 : m_colours == &schemeColours ? 1 : 2;
        return QStringLiteral("mrtoolbar %1 %2 %3 %4 %5x%6")
            .arg(m_path, QString::number(kind), QString::number(static_cast<int>(m_look.scheme)),
                 QString::number(m_look.mainColour), QString::number(size.width()),
                 QString::number(size.height()));
    }

    QImage drawn(const QSize &room) const
    {
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly))
            return QImage();
        const bool isSvg = IconColours::isSvg(m_path);
        QByteArray content = file.readAll();
        if (isSvg && m_colours)
            content = IconColours::recoloured(content, m_colours(m_look));
        QBuffer buffer(&content);
        QImageReader reader(&buffer, isSvg ? QByteArrayLiteral("svg") : QByteArray());
        // A picture of pixels is not enlarged, as in an icon.
        const QSize own = reader.size();
        if (isSvg || own.width() > room.width() || own.height() > room.height())
            reader.setScaledSize(own.scaled(room, Qt::KeepAspectRatio));
        const QImage image = reader.read();
        const bool isFinished = isSvg || image.isNull() || !m_colours;
        return isFinished ? image : recolouredPixels(image, m_colours(m_look));
    }

    QString m_path;
    SchemeLook m_look;
    Colours m_colours;
};

} // namespace

QColor IconColours::recoloured(const QColor &colour, const SchemeColours &colours)
{
    constexpr double leastSaturation = 0.15;
    const bool isGrey = colour.hslSaturationF() < leastSaturation;
    return isGrey ? fromGrey(colour.lightnessF(), colours) : fromHue(colour, colours);
}

bool IconColours::isSvg(const QString &path)
{
    return path.endsWith(QLatin1String(".svg"));
}

QByteArray IconColours::recoloured(const QByteArray &svg, const SchemeColours &colours)
{
    const QString text = QString::fromUtf8(svg);
    const bool isWhite = isWhiteAllOver(text);
    QString result;
    result.reserve(text.size());
    qsizetype copied = 0;
    for (auto matches = colourPattern().globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QColor colour(match.captured());
        result += text.mid(copied, match.capturedStart() - copied);
        result += (isWhite ? colours.text : recoloured(colour, colours)).name();
        copied = match.capturedEnd();
    }
    return (result + text.mid(copied)).toUtf8();
}

QIcon IconColours::drawing(const QString &path, const SchemeLook &look)
{
    if (!look.isLight())
        return QIcon(new DrawingEngine(path, look, &schemeColours));
    return isSvg(path) ? QIcon(new DrawingEngine(path, look, nullptr)) : QIcon(path);
}

QIcon IconColours::stripDrawing(const QString &path, const QColor &strip)
{
    const SchemeLook look{Scheme::Light, strip.rgb()};
    return QIcon(new DrawingEngine(path, look, &stripColours));
}
