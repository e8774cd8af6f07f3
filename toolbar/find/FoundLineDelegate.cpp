// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/find/FoundLineDelegate.h"

#include "toolbar/find/FoundModel.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double lineMargin = 6.0;
constexpr double sideMargin = 10.0;
constexpr double iconSide = 24.0;
constexpr double gap = 10.0;
constexpr double corner = 4.0;

/** What stands at the start of a line, in the direction of reading. */
QRect visualRect(Qt::LayoutDirection direction, const QRect &whole, const QRect &logical)
{
    return QStyle::visualRect(direction, whole, logical);
}

/** The icon in one colour, for a ground that it is not drawn for. */
QPixmap tinted(QPixmap picture, const QColor &colour)
{
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), colour);
    return picture;
}

} // namespace

QSize FoundLineDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    const int texts = 2 * QFontMetrics(m_look.font).height();
    const int height = std::max(texts, m_look.length(iconSide)) + 2 * m_look.length(lineMargin);
    return {0, height};
}

void FoundLineDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    const auto *model = qobject_cast<const FoundModel *>(index.model());
    if (!model)
        return;
    const FoundLine line = model->line(index.row());
    const Qt::LayoutDirection direction = option.direction;
    const int side = m_look.length(iconSide);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setFont(m_look.font);
    painter->setLayoutDirection(direction);
    paintGround(painter, option);

    const int margin = m_look.length(sideMargin);
    const QRect inner = option.rect.adjusted(margin, 0, -margin, 0);
    const QRect iconPlace(inner.left(), inner.top() + (inner.height() - side) / 2, side, side);
    paintIcon(painter, visualRect(direction, inner, iconPlace), line);

    const int keyWidth = paintKey(painter, inner, direction, line);
    const QRect texts = inner.adjusted(side + m_look.length(gap), 0, -keyWidth, 0);
    paintTexts(painter, visualRect(direction, inner, texts), direction, line);
    painter->restore();
}

void FoundLineDelegate::paintGround(QPainter *painter, const QStyleOptionViewItem &option) const
{
    if (!option.state.testFlag(QStyle::State_Selected))
        return;
    painter->setBrush(m_look.colours.pressed);
    // Where grounds are hardly told apart, a frame does it.
    painter->setPen(m_look.isLight ? QPen(Qt::NoPen) : QPen(m_look.colours.focus));
    const QRectF ground = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const double radius = m_look.length(corner);
    painter->drawRoundedRect(ground, radius, radius);
}

void FoundLineDelegate::paintIcon(QPainter *painter, const QRect &place,
                                  const FoundLine &line) const
{
    if (!line.isIconForTopLine) {
        line.icon.paint(painter, place, Qt::AlignCenter,
                        line.isEnabled ? QIcon::Normal : QIcon::Disabled);
        return;
    }
    const double ratio = painter->device()->devicePixelRatioF();
    constexpr double topLineSide = 16.0;
    const int side = m_look.length(topLineSide);
    const QSize size(side, side);
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter onPicture(&picture);
    line.icon.paint(&onPicture, QRect(QPoint(), size));
    onPicture.end();
    const QRect centred(place.center() - QRect(QPoint(), size).center(), size);
    const SchemeColours &colours = m_look.colours;
    painter->drawPixmap(centred, tinted(picture, line.isEnabled ? colours.text : colours.dimText));
}

int FoundLineDelegate::paintKey(QPainter *painter, const QRect &place,
                                Qt::LayoutDirection direction, const FoundLine &line) const
{
    if (line.key.isEmpty())
        return 0;
    const QFontMetrics metrics(m_look.font);
    const int around = m_look.length(lineMargin);
    const QSize size(metrics.horizontalAdvance(line.key) + 2 * around,
                     metrics.height() + around / 2);
    QRect key(QPoint(), size);
    key.moveCenter(place.center());
    key.moveRight(place.right());
    key = visualRect(direction, place, key);

    painter->setPen(m_look.colours.frame);
    painter->setBrush(Qt::NoBrush);
    const double radius = m_look.length(corner) * 0.75;
    painter->drawRoundedRect(QRectF(key).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter->setPen(m_look.colours.dimText);
    painter->drawText(key, Qt::AlignCenter | Qt::TextSingleLine, line.key);
    return size.width() + m_look.length(gap);
}

void FoundLineDelegate::paintTexts(QPainter *painter, const QRect &place,
                                   Qt::LayoutDirection direction, const FoundLine &line) const
{
    const QFontMetrics metrics(m_look.font);
    const auto start = QStyle::visualAlignment(direction, Qt::AlignLeft | Qt::AlignVCenter);
    // Absolute: what is mirrored already would be so again for a text from right to left.
    const int flags = static_cast<int>(start | Qt::AlignAbsolute) | Qt::TextSingleLine;
    const auto draw = [&](const QRect &where, const QString &text, const QColor &colour) {
        painter->setPen(colour);
        painter->drawText(where, flags, metrics.elidedText(text, Qt::ElideRight, where.width()));
    };
    QString below = line.where;
    if (!line.isEnabled) {
        const QString reason = line.reason.isEmpty() ? FoundModel::tr("不可用") : line.reason;
        below += (below.isEmpty() ? QString() : QStringLiteral("  ·  ")) + reason;
    }
    const SchemeColours &colours = m_look.colours;
    QRect upper = place;
    upper.setHeight(metrics.height());
    upper.moveTop(place.center().y() - metrics.height() + 1);
    if (below.isEmpty())
        upper.moveCenter(place.center());
    draw(upper, line.text, line.isEnabled ? colours.text : colours.dimText);
    draw(upper.translated(0, metrics.height()), below, colours.dimText);
}
